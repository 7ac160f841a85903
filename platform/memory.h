#ifndef TESSALY_PLATFORM_MEMORY_H_
#define TESSALY_PLATFORM_MEMORY_H_

namespace tessaly {

// Gives memory that was freed back to the system, where the allocator would keep it for later: what
// start-up needed for its pictures and its reading is not needed again.
void ReturnFreedMemory();

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_MEMORY_H_
