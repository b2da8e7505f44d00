#include "capture/nhw32/uia/com.h"

#include <objbase.h>

namespace nhw32 {

// A locked array cannot be destroyed.
UniqueDoubleArray::~UniqueDoubleArray() {
  if (locked_) SafeArrayUnaccessData(array_);
  SafeArrayDestroy(array_);
}

std::span<const double> UniqueDoubleArray::values() {
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

ScopedCom::ScopedCom() : ready_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) {}

// Only a successful CoInitializeEx is to be balanced; S_FALSE (initialised already) is one.
ScopedCom::~ScopedCom() {
  if (ready_) CoUninitialize();
}

}  // namespace nhw32
