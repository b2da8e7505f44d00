#include "forms/message_box.h"

#include <vector>

#include "forms/focus.h"
#include "win32/win32.h"

namespace forms {
namespace {

UINT iconFlag(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::critical:
      return MB_ICONERROR;
    case MessageIcon::exclamation:
      return MB_ICONEXCLAMATION;
    case MessageIcon::information:
      return MB_ICONINFORMATION;
    case MessageIcon::none:
      break;
  }
  return 0;
}

/// Holds every window of this thread but the box's owner, which the box holds itself.
class OtherWindowsHeld {
 public:
  explicit OtherWindowsHeld(HWND owner) : owner_(owner) {
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM self) {
          reinterpret_cast<OtherWindowsHeld*>(self)->hold(window);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(this));
  }
  ~OtherWindowsHeld() {
    for (HWND window : held_) EnableWindow(window, TRUE);
  }
  OtherWindowsHeld(const OtherWindowsHeld&) = delete;
  OtherWindowsHeld& operator=(const OtherWindowsHeld&) = delete;

 private:
  void hold(HWND window) {
    if (window == owner_ || !IsWindowVisible(window) || !IsWindowEnabled(window)) return;
    EnableWindow(window, FALSE);
    held_.push_back(window);
  }

  HWND owner_;
  std::vector<HWND> held_;
};

}  // namespace

void showMessage(const std::u16string& text, MessageIcon icon, const std::u16string& title) {
  const HWND owner = GetActiveWindow();
  const FocusHeld focusHeld;
  const OtherWindowsHeld othersHeld(owner);
  // Our windows are topmost: a box that is not would open below them.
  MessageBoxW(owner, win32::wide(text), win32::wide(title),
              MB_OK | MB_TOPMOST | MB_SETFOREGROUND | iconFlag(icon));
}

}  // namespace forms
