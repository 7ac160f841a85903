#include "platform/memory.h"

#include <malloc.h>

namespace tessaly {

// Nothing depends on whether there was anything to give back.
void ReturnFreedMemory() {
  static_cast<void>(::malloc_trim(0));
}

}  // namespace tessaly
