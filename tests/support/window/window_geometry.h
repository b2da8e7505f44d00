#pragma once

#include <windows.h>

#include "forms/form.h"
#include "forms/geometry.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/find.h"

namespace support {

/// A point of the screen below which no test puts a window.
inline constexpr POINT kNowhere{1270, 1010};

inline POINT centreOf(const forms::Widget& widget) { return centreOf(rectOf(widget.handle())); }

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

/// The font that a widget's texts are drawn in.
inline LOGFONTW fontOf(const forms::Widget& widget) {
  LOGFONTW font{};
  const LRESULT handle = SendMessageW(widget.handle(), WM_GETFONT, 0, 0);
  GetObjectW(reinterpret_cast<HGDIOBJ>(handle), sizeof font, &font);
  return font;
}

/// Whether a label is seen on the left of a box, with its middle within the box's height.
inline bool standsBeside(const forms::Widget& label, const forms::Widget& box) {
  const RECT text = rectOf(label.handle());
  const RECT rect = rectOf(box.handle());
  const LONG middle = centreOf(text).y;
  return IsWindowVisible(label.handle()) != FALSE && text.right <= rect.left &&
         rect.top <= middle && middle < rect.bottom;
}

/// The texts of a tree's nodes, from top to bottom.
inline std::vector<std::u16string> nodeTexts(const forms::Widget& tree) {
  std::vector<std::u16string> texts;
  for (const std::wstring& text : treeTexts(tree.handle())) {
    texts.emplace_back(text.begin(), text.end());
  }
  return texts;
}

/// The middle of a tree's node, counted from 1, on the screen.
inline POINT nodePoint(const forms::Widget& tree, int number) {
  return centreOf(treeNodeRect(tree.handle(), number - 1).value_or(RECT{}));
}

}  // namespace support
