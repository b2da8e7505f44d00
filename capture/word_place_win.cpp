#include "capture/word_place.h"

#include <utility>

// What is called here for windows of other programs reads what the window manager keeps of them and
// sends them nothing. (GetScrollInfo would for SB_CTL, a scroll bar that is a window.)
namespace capture {
namespace {

// The mouse among the generic desktop controls of the HID usage tables.
constexpr USHORT kGenericDesktop = 1;
constexpr USHORT kMouse = 2;

/// Also while another program is in the foreground (RIDEV_INPUTSINK). Removing names no window.
void reportMouseTo(HWND window) {
  const DWORD flags = window != nullptr ? RIDEV_INPUTSINK : RIDEV_REMOVE;
  const RAWINPUTDEVICE mouse{kGenericDesktop, kMouse, flags, window};
  RegisterRawInputDevices(&mouse, 1, sizeof mouse);
}

std::uintptr_t numberOf(HWND window) { return reinterpret_cast<std::uintptr_t>(window); }

std::optional<int> scrollPosition(HWND window, int bar) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_POS;
  return GetScrollInfo(window, bar, &info) != FALSE ? std::optional(info.nPos) : std::nullopt;
}

}  // namespace

WordPlace::WordPlace(HWND popup, POINT place) : place_(place), window_(WindowFromPoint(place)) {
  reportMouseTo(popup);
}

WordPlace::~WordPlace() { reportMouseTo(nullptr); }

void WordPlace::noteMouse(LPARAM input) {
  RAWINPUT report{};
  UINT size = sizeof report;
  const UINT got = GetRawInputData(reinterpret_cast<HRAWINPUT>(input), RID_INPUT, &report, &size,
                                   sizeof(RAWINPUTHEADER));
  if (got == static_cast<UINT>(-1) || report.header.dwType != RIM_TYPEMOUSE) return;
  (report.data.mouse.usButtonFlags != 0 ? mouseUsed_ : mouseMoved_) = true;
}

PopupSight WordPlace::look() {
  PopupSight sight;
  LASTINPUTINFO last{sizeof last, 0};
  if (GetLastInputInfo(&last) != FALSE) sight.input = last.dwTime;
  // Fails while the desktop is not ours: the lock screen, a question for administrators' rights.
  GetCursorPos(&pointer_);
  sight.x = pointer_.x;
  sight.y = pointer_.y;
  sight.mouseMoved = std::exchange(mouseMoved_, false);
  sight.mouseUsed = std::exchange(mouseUsed_, false);
  sight.foreground = numberOf(GetForegroundWindow());
  sight.window = window();
  return sight;
}

WordWindow WordPlace::window() const {
  WordWindow seen;
  HWND top = GetAncestor(window_, GA_ROOT);
  // A window is visible if all those that it lies in are, minimised ones included.
  seen.shown = IsWindowVisible(window_) != FALSE && IsIconic(top) == FALSE;
  RECT rect{};
  GetWindowRect(window_, &rect);
  seen.left = rect.left;
  seen.top = rect.top;
  seen.right = rect.right;
  seen.bottom = rect.bottom;
  // The popup opens beside the place, and the strip above it.
  seen.topmost = numberOf(GetAncestor(WindowFromPoint(place_), GA_ROOT));
  seen.horizontal = scrollPosition(window_, SB_HORZ);
  seen.vertical = scrollPosition(window_, SB_VERT);
  return seen;
}

}  // namespace capture
