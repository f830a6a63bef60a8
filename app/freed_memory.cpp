#include "app/freed_memory.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace ovindra {

void KeepFreedMemory() {
#ifdef __GLIBC__
  constexpr int kKept = 64 << 20;
  /// What is larger goes back to the system at once.
  constexpr int kLargest = 16 << 20;
  mallopt(M_TRIM_THRESHOLD, kKept);
  mallopt(M_MMAP_THRESHOLD, kLargest);
#endif
}

}  // namespace ovindra
