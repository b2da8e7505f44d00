#pragma once

// First: the other headers rest on it.
#include <windows.h>

#include <oleauto.h>

#include <cstddef>
#include <span>
#include <string_view>

/// Owners of the COM values that UI Automation returns; interface pointers are owned by ComPtr.
namespace nhw32 {

/// Owns a BSTR.
class UniqueBstr {
 public:
  UniqueBstr() = default;
  UniqueBstr(const UniqueBstr&) = delete;
  UniqueBstr& operator=(const UniqueBstr&) = delete;
  ~UniqueBstr() { SysFreeString(text_); }

  /// For one call that stores a BSTR.
  BSTR* out() { return &text_; }
  [[nodiscard]] std::u16string_view view() const {
    return {reinterpret_cast<const char16_t*>(text_), SysStringLen(text_)};
  }

 private:
  BSTR text_ = nullptr;
};

/// Owns a VARIANT.
class UniqueVariant {
 public:
  UniqueVariant() { VariantInit(&value_); }
  UniqueVariant(const UniqueVariant&) = delete;
  UniqueVariant& operator=(const UniqueVariant&) = delete;
  ~UniqueVariant() { VariantClear(&value_); }

  /// For one call that stores a value.
  VARIANT* out() { return &value_; }
  [[nodiscard]] const VARIANT& get() const { return value_; }

 private:
  VARIANT value_;
};

/// Owns a SAFEARRAY that is expected to hold doubles.
class UniqueDoubleArray {
 public:
  UniqueDoubleArray() = default;
  UniqueDoubleArray(const UniqueDoubleArray&) = delete;
  UniqueDoubleArray& operator=(const UniqueDoubleArray&) = delete;
  ~UniqueDoubleArray();

  /// For one call that stores an array.
  SAFEARRAY** out() { return &array_; }
  /// Returns the elements, valid as long as this object; empty if it is not a one-dimensional array
  /// of doubles. To be called once.
  std::span<const double> values();

 private:
  SAFEARRAY* array_ = nullptr;
  bool locked_ = false;
};

/// Initialises COM for this thread, in the multithreaded apartment, until the end of the scope. To
/// be destroyed on the same thread.
class ScopedCom {
 public:
  ScopedCom();
  ScopedCom(const ScopedCom&) = delete;
  ScopedCom& operator=(const ScopedCom&) = delete;
  ~ScopedCom();

  /// Returns false if the thread is in a single-threaded apartment already.
  [[nodiscard]] bool ready() const { return ready_; }

 private:
  bool ready_;
};

}  // namespace nhw32
