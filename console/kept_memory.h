// What the program does with memory that it has freed.
#pragma once

#include <climits>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace console {

/// What an import frees it soon needs again: kept, it is not fetched from the system page by page once more. Blocks
/// above 32 MB, the most that the C library can be told, are still given back.
inline void keep_freed_memory() {
#ifdef __GLIBC__
  mallopt(M_MMAP_THRESHOLD, 32 << 20);
  mallopt(M_TRIM_THRESHOLD, INT_MAX);
#endif
}

}  // namespace console
