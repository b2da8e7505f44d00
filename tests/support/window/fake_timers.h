#pragma once

#include <algorithm>
#include <vector>

#include "tests/support/window/scoped_import.h"

extern "C" decltype(&SetTimer) __imp_SetTimer;

namespace support {

/// While it lives, the timers that forms start do not run by the clock: they tick when the test
/// says so. Timers without a window, as the tests' own, run as ever. One at a time.
class FakeTimers {
 public:
  FakeTimers() { started().clear(); }

  /// Queues one tick of every timer that was started since, as when all intervals have passed.
  static void queueTicks() {
    for (const Started& timer : started()) PostMessageW(timer.window, WM_TIMER, timer.id, 0);
  }

 private:
  using Function = decltype(&SetTimer);
  struct Started {
    HWND window;
    UINT_PTR id;
  };

  static std::vector<Started>& started() {
    static std::vector<Started> all;
    return all;
  }
  static Function& real() {
    static Function function = __imp_SetTimer;
    return function;
  }
  static UINT_PTR WINAPI start(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
    if (window == nullptr) return real()(window, id, milliseconds, procedure);
    started().push_back({window, id});
    return id;
  }

  Function real_ = real();  // taken before the import is replaced
  ScopedImport<Function> import_{__imp_SetTimer, start};
};

}  // namespace support
