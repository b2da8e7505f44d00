#pragma once

#include <windows.h>

#include <cstddef>

#include "win32/handles.h"

namespace support {

/// Memory inside the process of a window, for messages whose structures its control reads there.
class RemoteMemory {
 public:
  RemoteMemory(HWND window, std::size_t size);
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;
  ~RemoteMemory();

  /// The address of byte `offset` as the other process knows it.
  [[nodiscard]] void* at(std::size_t offset = 0) const {
    return static_cast<std::byte*>(address_) + offset;
  }

  /// The address as a message's parameter.
  [[nodiscard]] LPARAM parameter() const { return reinterpret_cast<LPARAM>(address_); }

  template <class Value>
  void put(const Value& value, std::size_t offset = 0) const {
    write(&value, sizeof value, offset);
  }

  template <class Value>
  [[nodiscard]] Value get(std::size_t offset = 0) const {
    Value value{};
    read(&value, sizeof value, offset);
    return value;
  }

  void write(const void* from, std::size_t size, std::size_t offset) const;
  void read(void* to, std::size_t size, std::size_t offset) const;

 private:
  win32::OwnedKernelObject process_;
  void* address_ = nullptr;
};

}  // namespace support
