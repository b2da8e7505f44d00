#include "forms/message_box.h"

#include <vector>

#include "forms/exception_barrier.h"
#include "forms/focus.h"
#include "forms/stacking.h"
#include "win32/win32.h"

namespace forms {
namespace {

UINT iconFlag(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kCritical:
      return MB_ICONERROR;
    case MessageIcon::kExclamation:
      return MB_ICONEXCLAMATION;
    case MessageIcon::kInformation:
      return MB_ICONINFORMATION;
    case MessageIcon::kNone:
      break;
  }
  return 0;
}

/// Disables every window of ours on this thread until the end of the scope, except the box's owner,
/// which the box disables itself.
class ScopedOtherWindowsDisabled {
 public:
  explicit ScopedOtherWindowsDisabled(HWND owner) {
    for (HWND window : win32::threadWindows()) {
      if (window == owner || !IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
      if (!isOurs(window)) continue;
      disabled_.push_back(window);
      EnableWindow(window, FALSE);
    }
  }
  ~ScopedOtherWindowsDisabled() {
    for (HWND window : disabled_) EnableWindow(window, TRUE);
  }
  ScopedOtherWindowsDisabled(const ScopedOtherWindowsDisabled&) = delete;
  ScopedOtherWindowsDisabled& operator=(const ScopedOtherWindowsDisabled&) = delete;

 private:
  std::vector<HWND> disabled_;
};

}  // namespace

// MessageBox disables its owner only. Timers go on while it is open: a handler that fails then is
// dropped by reportUncaught, so that there is one box at a time.
void showMessage(const std::u16string& text, MessageIcon icon, const std::u16string& title) {
  {
    const HWND owner = GetActiveWindow();
    const ScopedFocusHold focusHeld;
    const ScopedOtherWindowsDisabled othersDisabled(owner);
    // Our windows are topmost: a box that is not would open below them.
    MessageBoxW(owner, win32::wide(text), win32::wide(title),
                MB_OK | MB_TOPMOST | MB_SETFOREGROUND | iconFlag(icon));
  }
  // No window was raised above the box while it was open.
  postStackingCheck();
}

void showErrorBox(const std::exception_ptr& error) {
  showMessage(describe(error), MessageIcon::kCritical);
}

}  // namespace forms
