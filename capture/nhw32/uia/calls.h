#pragma once

#include <windows.h>

#include <chrono>

#include "capture/nhw32/reader.h"

namespace nhw32 {

/// Makes the calls of one question, which starts when this object is made.
class UiaCalls {
 public:
  /// The question may take `limit`. Keeps `now` by reference.
  UiaCalls(const Clock& now, std::chrono::milliseconds limit)
      : now_(now), start_(now()), limit_(limit) {}

  /// Makes a call, which returns an HRESULT. Throws NoAnswer(kUiaOutOfTime) if the call times out,
  /// or, without making it, if a call of kUiaCallTime could end after the limit. Throws
  /// NoAnswer(kNone) if it fails otherwise.
  template <class Call>
  void make(Call call) {
    checkTime();
    checkResult(call());
  }

 private:
  void checkTime() const;
  static void checkResult(HRESULT result);

  const Clock& now_;
  std::chrono::steady_clock::time_point start_;
  std::chrono::milliseconds limit_;
};

}  // namespace nhw32
