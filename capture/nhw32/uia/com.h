#pragma once

// First: the other headers rest on it.
#include <windows.h>

#include <objbase.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <cstddef>
#include <span>
#include <string_view>

/// Owners of the COM values that UI Automation returns.
namespace nhw32 {

/// Owns a reference to an interface.
using Microsoft::WRL::ComPtr;

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
  /// Gives away an array of doubles; null if the value is another one.
  SAFEARRAY* releaseDoubles() {
    if (value_.vt != (VT_ARRAY | VT_R8)) return nullptr;
    value_.vt = VT_EMPTY;
    return value_.parray;
  }

 private:
  VARIANT value_;
};

/// Owns a SAFEARRAY that is expected to hold doubles.
class UniqueDoubleArray {
 public:
  /// Takes over `array`, which may be null.
  explicit UniqueDoubleArray(SAFEARRAY* array = nullptr) : array_(array) {}
  UniqueDoubleArray(const UniqueDoubleArray&) = delete;
  UniqueDoubleArray& operator=(const UniqueDoubleArray&) = delete;
  // A locked array cannot be destroyed.
  ~UniqueDoubleArray() {
    if (locked_) SafeArrayUnaccessData(array_);
    SafeArrayDestroy(array_);
  }

  /// For one call that stores an array.
  SAFEARRAY** out() { return &array_; }
  /// Returns the elements, valid as long as this object; empty if it is not a one-dimensional array
  /// of doubles. To be called once.
  std::span<const double> values() {
    VARTYPE type = VT_EMPTY;
    LONG first = 0;
    LONG last = -1;
    void* data = nullptr;
    if (locked_ || array_ == nullptr || SafeArrayGetDim(array_) != 1 ||
        FAILED(SafeArrayGetVartype(array_, &type)) || type != VT_R8 ||
        FAILED(SafeArrayGetLBound(array_, 1, &first)) ||
        FAILED(SafeArrayGetUBound(array_, 1, &last)) || last < first ||
        FAILED(SafeArrayAccessData(array_, &data))) {
      return {};
    }
    // The data is valid while the array is locked; the destructor unlocks it.
    locked_ = true;
    // In 64 bits: the bounds may be any 32-bit numbers.
    const auto count = static_cast<std::size_t>(static_cast<long long>(last) - first + 1);
    return {static_cast<const double*>(data), count};
  }

 private:
  SAFEARRAY* array_ = nullptr;
  bool locked_ = false;
};

/// Initialises COM for this thread, in the multithreaded apartment, until the end of the scope. To
/// be destroyed on the same thread.
class ScopedCom {
 public:
  ScopedCom() : ready_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) {}
  ScopedCom(const ScopedCom&) = delete;
  ScopedCom& operator=(const ScopedCom&) = delete;
  // Only a successful CoInitializeEx is to be balanced; S_FALSE (initialised already) is one.
  ~ScopedCom() {
    if (ready_) CoUninitialize();
  }

  /// Returns false if the thread is in a single-threaded apartment already.
  [[nodiscard]] bool ready() const { return ready_; }

 private:
  bool ready_;
};

}  // namespace nhw32
