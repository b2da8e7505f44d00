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
