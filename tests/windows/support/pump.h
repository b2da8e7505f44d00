#pragma once

#include <windows.h>

#include "forms/loaded_forms.h"

/// Waiting while messages are handled, as the program's own loop handles them.
namespace wintest {

/// How long a test waits for anything unless it says otherwise, in ms.
inline constexpr DWORD kPatience = 5'000;

/// Handles messages until `look` is true; false when `milliseconds` have passed.
template <class Look>
bool eventually(Look look, DWORD milliseconds = kPatience) {
  const ULONGLONG deadline = GetTickCount64() + milliseconds;
  while (true) {
    forms::doEvents();
    if (look()) return true;
    if (GetTickCount64() >= deadline) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
  }
}

/// Handles messages for `milliseconds`; whether `look` was true all the while. For what must not
/// happen.
template <class Look>
bool allAlong(Look look, DWORD milliseconds) {
  return !eventually([&] { return !look(); }, milliseconds);
}

/// Handles messages for `milliseconds`.
inline void passTime(DWORD milliseconds) {
  eventually([] { return false; }, milliseconds);
}

/// Brings a window to the front until `look` is true for `lasting` ms: a window manager that still
/// answers an earlier window may bring that one to the front meanwhile.
template <class Look>
bool bringToFront(HWND window, Look look, DWORD lasting) {
  constexpr int kTries = 20;
  for (int tries = 0; tries < kTries; ++tries) {
    if (eventually(look, lasting) && allAlong(look, lasting)) return true;
    SetForegroundWindow(window);
  }
  return false;
}

/// Does `act` until `look` is true and stays so: a window manager may answer a window's earlier
/// places and sizes late, and that answer is the one that counts then. At most ten times.
template <class Act, class Look>
bool untilItLasts(Act act, Look look) {
  constexpr DWORD kLong = 1'000;
  constexpr DWORD kLasting = 30;
  for (int tries = 0; tries < 10; ++tries) {
    act();
    if (eventually(look, kLong) && allAlong(look, kLasting)) return true;
  }
  return false;
}

}  // namespace wintest
