#pragma once

#include <windows.h>

#include "forms/form.h"
#include "forms/geometry.h"

namespace wintest {

/// A point of the screen below which no test puts a window.
inline constexpr POINT kNowhere{1270, 1010};

inline RECT rectOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

inline POINT centreOf(const RECT& rect) {
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

inline POINT centreOf(const forms::Widget& widget) { return centreOf(rectOf(widget.handle())); }

inline bool isTopmost(HWND window) {
  return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

/// Whether a window has neither a taskbar button nor a place in Alt+Tab.
inline bool isToolWindow(HWND window) {
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_EXSTYLE);
  return (style & WS_EX_TOOLWINDOW) != 0 && (style & WS_EX_APPWINDOW) == 0;
}

/// Whether no click activates a window.
inline bool refusesActivation(HWND window) {
  return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_NOACTIVATE) != 0;
}

/// Whether top-level window `upper` lies above `lower` on the screen.
inline bool isAbove(HWND upper, HWND lower) {
  for (HWND window = upper; window != nullptr; window = GetWindow(window, GW_HWNDNEXT)) {
    if (window == lower) return true;
  }
  return false;
}

/// Where a place in a widget, in twips from its top left corner, lies on the screen.
inline POINT inWidget(const forms::Widget& widget, int x, int y) {
  const RECT rect = rectOf(widget.handle());
  const int dpi = widget.form().dpi();
  return {rect.left + forms::toPixels(x, dpi), rect.top + forms::toPixels(y, dpi)};
}

/// Place and size of a widget in its form's client area, in pixels.
inline RECT pixelBox(const forms::Widget& widget) {
  RECT rect = rectOf(widget.handle());
  MapWindowPoints(nullptr, widget.form().handle(), reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

}  // namespace wintest
