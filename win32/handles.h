#pragma once

#include <type_traits>
#include <utility>

#include "win32/win32.h"

namespace win32 {

/// Owns one system handle, null for none; `Close` frees it. Movable like std::unique_ptr. Whether
/// it may be closed on another thread depends on the kind of handle.
template <class Handle, auto Close>
class Owned {
 public:
  Owned() = default;
  explicit Owned(Handle handle) : handle_(handle) {}
  Owned(Owned&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Owned& operator=(Owned&& other) noexcept {
    if (this != &other) {
      reset();
      handle_ = std::exchange(other.handle_, nullptr);
    }
    return *this;
  }
  ~Owned() { reset(); }

  [[nodiscard]] Handle get() const { return handle_; }
  /// Returns the handle, which the caller then has to free.
  [[nodiscard]] Handle release() { return std::exchange(handle_, nullptr); }
  explicit operator bool() const { return handle_ != nullptr; }
  void reset() {
    if (handle_ != nullptr) Close(std::exchange(handle_, nullptr));
  }

 private:
  Handle handle_ = nullptr;
};

inline void closeFont(HFONT font) { DeleteObject(font); }
inline void closeIcon(HICON icon) { DestroyIcon(icon); }
inline void closeImageList(HIMAGELIST list) { ImageList_Destroy(list); }
inline void closeMenu(HMENU menu) { DestroyMenu(menu); }
inline void freeMemory(HGLOBAL memory) { GlobalFree(memory); }
inline void closeKernelObject(HANDLE object) { CloseHandle(object); }

using OwnedFont = Owned<HFONT, closeFont>;
using OwnedIcon = Owned<HICON, closeIcon>;
using OwnedImageList = Owned<HIMAGELIST, closeImageList>;
using OwnedMenu = Owned<HMENU, closeMenu>;
using OwnedMemory = Owned<HGLOBAL, freeMemory>;
using OwnedKernelObject = Owned<HANDLE, closeKernelObject>;

}  // namespace win32
