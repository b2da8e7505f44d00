#pragma once

#include "tests/windows/support/screen_places.h"

/// How the boxes of a window and their labels look.
namespace wintest {

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

}  // namespace wintest
