#pragma once

#include <windows.h>

namespace harness {

/// Owner of a kernel handle.
class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  Handle(Handle&& other) noexcept : handle_(other.release()) {}
  Handle& operator=(Handle&& other) noexcept {
    if (this != &other) {
      close();
      handle_ = other.release();
    }
    return *this;
  }
  ~Handle() { close(); }

  [[nodiscard]] HANDLE get() const { return handle_; }

 private:
  HANDLE release() {
    HANDLE handle = handle_;
    handle_ = nullptr;
    return handle;
  }
  void close() {
    if (handle_ != nullptr) CloseHandle(handle_);
    handle_ = nullptr;
  }

  HANDLE handle_ = nullptr;
};

}  // namespace harness
