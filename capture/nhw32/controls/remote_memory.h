#pragma once

#include <cstddef>
#include <cstdint>

#include "win32/handles.h"

namespace nhw32 {

/// Memory allocated in the process of a window, for messages that take the address of a structure;
/// readable and writable, of `size` bytes. The destructor frees it. A function that fails throws
/// NoAnswer(kRefused): the process may be protected from us or have ended. Offsets and sizes are in
/// bytes and must lie within the memory.
class RemoteMemory {
 public:
  RemoteMemory(HWND window, std::size_t size);
  ~RemoteMemory();
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;

  /// Returns the address of byte `offset` in the other process.
  [[nodiscard]] std::uint64_t address(std::size_t offset) const;
  /// Returns whether the process is a 32-bit one, whose structures hold 32-bit addresses.
  [[nodiscard]] bool inProgramOf32Bits() const;

  /// Copies between this process and the other one.
  void write(std::size_t offset, const void* from, std::size_t size) const;
  void read(std::size_t offset, void* to, std::size_t size) const;

  /// Leaves the memory allocated until the other process ends, for a control that may still use it.
  void abandon() { address_ = nullptr; }

 private:
  win32::OwnedKernelObject process_;
  std::byte* address_ = nullptr;
};

}  // namespace nhw32
