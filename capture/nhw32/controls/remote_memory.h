#pragma once

#include <cstddef>
#include <cstdint>

#include "win32/handles.h"

namespace nhw32 {

/// Memory in the program of a window, for messages whose structures a control reads there. Every
/// operation that fails throws NoAnswer.
class RemoteMemory {
 public:
  RemoteMemory(HWND window, std::size_t size);
  ~RemoteMemory();
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;

  /// The address of byte `offset` as the other program knows it.
  [[nodiscard]] std::uint64_t address(std::size_t offset) const;
  [[nodiscard]] bool inProgramOf32Bits() const;

  void write(std::size_t offset, const void* from, std::size_t size) const;
  void read(std::size_t offset, void* to, std::size_t size) const;

  /// Leaves the memory to the other program for good: it may still be going to use it.
  void abandon() { address_ = nullptr; }

 private:
  win32::OwnedKernelObject process_;
  std::byte* address_ = nullptr;
};

}  // namespace nhw32
