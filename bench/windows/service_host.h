#pragma once

#include <windows.h>

#include "capture/nhw32/nhw32.h"
#include "capture/nhw32/reader.h"
#include "capture/nhw32/router.h"
#include "capture/nhw32/service.h"
#include "tests/support/wait.h"

namespace bench {

/// A window that a screen-text service of its own reports words to.
class ServiceHost {
 public:
  ServiceHost()
      : window_(CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                                nullptr)) {
    service_.start();
  }
  ~ServiceHost() {
    service_.stop();
    DestroyWindow(window_);
  }
  ServiceHost(const ServiceHost&) = delete;
  ServiceHost& operator=(const ServiceHost&) = delete;

  /// Arms the service at `point` and returns as soon as its report is there. One that does not come
  /// is asked for again every 100 ms, as the program does. Throws Failure.
  void waitForWordAt(POINT point) {
    constexpr DWORD kProbeTime = 100;
    const ULONGLONG deadline = GetTickCount64() + support::kDefaultTimeout;
    do {
      service_.disarm();
      service_.arm(window_, point);
      MsgWaitForMultipleObjects(0, nullptr, FALSE, kProbeTime, QS_POSTMESSAGE);
      MSG message;
      if (PeekMessageW(&message, window_, report_, report_, PM_REMOVE) != FALSE) return;
    } while (GetTickCount64() < deadline);
    throw support::Failure("the service reports no word");
  }

 private:
  const UINT report_ = RegisterWindowMessageA(nhw32::kMessageName);
  HWND window_;
  nhw32::Service service_{[] { return nhw32::makeWindowReader(); }, report_};
};

}  // namespace bench
