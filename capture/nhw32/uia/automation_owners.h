#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <utility>

#include "capture/nhw32/uia/automation_interfaces.h"

/// Owners of what UI Automation hands out.
namespace nhw32 {

/// Owns one reference to a COM object, or none.
template <class Interface>
class Reference {
 public:
  Reference() = default;
  Reference(Reference&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Reference& operator=(Reference&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Reference() { reset(); }

  [[nodiscard]] Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  /// Where a call is to leave a reference; gives back the one that was held.
  Interface** out() {
    reset();
    return &object_;
  }
  /// The same for calls that do not say what they leave.
  void** anyOut() { return reinterpret_cast<void**>(out()); }
  void reset() {
    if (object_ != nullptr) std::exchange(object_, nullptr)->Release();
  }

 private:
  Interface* object_ = nullptr;
};

/// Owns a text that a call leaves.
class OwnedText {
 public:
  OwnedText() = default;
  OwnedText(const OwnedText&) = delete;
  OwnedText& operator=(const OwnedText&) = delete;
  ~OwnedText() { SysFreeString(text_); }

  BSTR* out() { return &text_; }
  [[nodiscard]] std::u16string_view view() const {
    return {reinterpret_cast<const char16_t*>(text_), SysStringLen(text_)};
  }

 private:
  BSTR text_ = nullptr;
};

/// Owns an array of doubles that a call leaves.
class OwnedDoubles {
 public:
  OwnedDoubles() = default;
  OwnedDoubles(const OwnedDoubles&) = delete;
  OwnedDoubles& operator=(const OwnedDoubles&) = delete;
  ~OwnedDoubles();

  SAFEARRAY** out() { return &array_; }
  /// What it holds; nothing where it is no array of doubles with one dimension.
  std::span<const double> values();

 private:
  SAFEARRAY* array_ = nullptr;
  bool locked_ = false;
};

/// Owns a value of any type that a call leaves.
class OwnedValue {
 public:
  OwnedValue() { VariantInit(&value_); }
  OwnedValue(const OwnedValue&) = delete;
  OwnedValue& operator=(const OwnedValue&) = delete;
  ~OwnedValue() { VariantClear(&value_); }

  VARIANT* out() { return &value_; }
  [[nodiscard]] const VARIANT& get() const { return value_; }

 private:
  VARIANT value_;
};

/// Keeps COM ready for this thread, in the apartment that takes no messages. Goes on the thread
/// that made it.
class ComThread {
 public:
  ComThread();
  ComThread(const ComThread&) = delete;
  ComThread& operator=(const ComThread&) = delete;
  ~ComThread();

  /// False where the thread is in another apartment already.
  [[nodiscard]] bool ready() const { return ready_; }

 private:
  bool ready_;
};

}  // namespace nhw32
