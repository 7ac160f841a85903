// Loaded into the program before the system's library, it makes one volume as slow as an old drive:
// every 16 KiB that are read or written there, and every flush, take TESSALY_SLOW_MILLISECONDS.
// When another volume, or none, stands at the place that TESSALY_SLOW_VOLUME names, the first one
// was pulled out: whatever is still open there fails.

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <thread>

namespace {

constexpr std::size_t kBytesInATurn = std::size_t{16} * 1024;

struct SlowVolume {
  const char* folder = std::getenv("TESSALY_SLOW_VOLUME");
  dev_t device = DeviceAt(folder);
  std::chrono::milliseconds turn{TurnMilliseconds()};

  static dev_t DeviceAt(const char* folder) {
    struct stat place {};
    return folder != nullptr && ::stat(folder, &place) == 0 ? place.st_dev : 0;
  }
  static int TurnMilliseconds() {
    const char* text = std::getenv("TESSALY_SLOW_MILLISECONDS");
    return text == nullptr ? 0 : std::atoi(text);
  }
};

// Waits as long as the volume takes; false when it was pulled out.
bool Take(int handle, std::size_t bytes) {
  static const SlowVolume volume;
  struct stat file {};
  if (volume.device == 0 || ::fstat(handle, &file) != 0 || file.st_dev != volume.device) {
    return true;
  }
  const std::size_t turns = bytes / kBytesInATurn + (bytes % kBytesInATurn == 0 ? 0 : 1);
  std::this_thread::sleep_for(volume.turn * static_cast<int>(turns));
  if (SlowVolume::DeviceAt(volume.folder) == volume.device) {
    return true;
  }
  errno = EIO;
  return false;
}

template <typename Function>
Function SystemFunction(const char* name) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

// The names and declarations are the system's.
extern "C" {

ssize_t read(int handle, void* data, std::size_t bytes) {
  static const auto original = SystemFunction<decltype(&read)>("read");
  return Take(handle, bytes) ? original(handle, data, bytes) : -1;
}

ssize_t write(int handle, const void* data, std::size_t bytes) {
  static const auto original = SystemFunction<decltype(&write)>("write");
  return Take(handle, bytes) ? original(handle, data, bytes) : -1;
}

int fsync(int handle) {
  static const auto original = SystemFunction<decltype(&fsync)>("fsync");
  return Take(handle, 1) ? original(handle) : -1;
}

int fdatasync(int handle) {
  static const auto original = SystemFunction<decltype(&fdatasync)>("fdatasync");
  return Take(handle, 1) ? original(handle) : -1;
}
}
