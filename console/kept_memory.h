// What the program does with memory that it has freed, and in which pages it gets it.
#pragma once

#include <climits>
#include <cstddef>
#include <cstdlib>
#include <memory>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define VEXO_KEEPS_MEMORY
#include <malloc.h>
#include <sys/mman.h>
#endif

namespace console {

/// To be called before memory is in use. What an import frees it soon needs again: kept, it is not fetched from the
/// system once more. And what it needs it fetches in few large pages: the heap gets a gigabyte of addresses, no memory
/// yet, for which the system may use them. Beyond that gigabyte, blocks above 32 MB, the most that the C library can be
/// told, are given back. Where any of this is refused, an import just takes longer.
inline void keep_freed_memory() {
#ifdef VEXO_KEEPS_MEMORY
  constexpr std::size_t kRoom = std::size_t{1} << 30U;
  constexpr std::size_t kPage = 4096;
  constexpr int kUsualMostMapped = 65536;
  mallopt(M_TRIM_THRESHOLD, INT_MAX);
  mallopt(M_MMAP_MAX, 0);  // a block so large would get a mapping of its own
  // NOLINTBEGIN(cppcoreguidelines-no-malloc): the C library's heap is what this is about
  if (void* const room = std::malloc(kRoom)) {
    void* begin = room;
    std::size_t bytes = kRoom;
    if (std::align(kPage, kPage, begin, bytes) != nullptr) madvise(begin, bytes, MADV_HUGEPAGE);
    std::free(room);
  }
  // NOLINTEND(cppcoreguidelines-no-malloc)
  mallopt(M_MMAP_MAX, kUsualMostMapped);
  mallopt(M_MMAP_THRESHOLD, 32 << 20);
#endif
}

}  // namespace console
