#pragma once

#include <windows.h>

#include "forms/dispatcher.h"

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

}  // namespace wintest
