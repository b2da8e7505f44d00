#pragma once

#include <windows.h>

#include <cstddef>

namespace wintest {

/// How many blocks of memory the process has in use.
inline std::size_t heapBlocks() {
  std::size_t count = 0;
  const HANDLE heap = GetProcessHeap();
  PROCESS_HEAP_ENTRY entry{};
  HeapLock(heap);
  while (HeapWalk(heap, &entry)) {
    if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) ++count;
  }
  HeapUnlock(heap);
  return count;
}

}  // namespace wintest
