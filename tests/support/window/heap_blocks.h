#pragma once

#include <windows.h>

#include <cstddef>

namespace support {

/// Calls `visit` with each block of the process's memory, in use or not, while no other thread
/// takes or gives back any.
template <class Visit>
void forHeapBlocks(Visit visit) {
  const HANDLE heap = GetProcessHeap();
  PROCESS_HEAP_ENTRY entry{};
  HeapLock(heap);
  while (HeapWalk(heap, &entry)) visit(entry);
  HeapUnlock(heap);
}

inline bool isInUse(const PROCESS_HEAP_ENTRY& block) {
  return (block.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
}

/// How many blocks of memory the process has in use.
inline std::size_t heapBlocks() {
  std::size_t count = 0;
  forHeapBlocks([&](const PROCESS_HEAP_ENTRY& block) { count += isInUse(block) ? 1 : 0; });
  return count;
}

/// Whether an address lies in memory that was given back to the heap.
inline bool isFreeInHeap(const void* address) {
  bool free = false;
  forHeapBlocks([&](const PROCESS_HEAP_ENTRY& block) {
    const auto* const begin = static_cast<const std::byte*>(block.lpData);
    const bool inside = address >= begin && address < begin + block.cbData;
    free = free || (inside && block.wFlags == 0);
  });
  return free;
}

}  // namespace support
