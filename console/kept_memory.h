// What the program does with memory that it has freed.
#pragma once

#include <limits>

#include <malloc.h>

namespace console {

/// What an import frees it soon needs again: kept, it is not fetched from the system page by page once more. Blocks
/// above 32 MB are still given back, so that a huge file takes no more memory than without.
inline void keep_freed_memory() {
#ifdef __GLIBC__
  mallopt(M_MMAP_THRESHOLD, 32 << 20);
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
#endif
}

}  // namespace console
