#pragma once

#include <windows.h>

#include <cstdlib>
#include <memory>

#include "forms/form.h"
#include "tests/support/window/scoped_import.h"

extern "C" decltype(&SystemParametersInfoForDpi) __imp_SystemParametersInfoForDpi;

namespace support {

/// The system with larger texts while it lives, as the user sets them (100 to 225 percent): its
/// font for messages is larger. Tells no window.
class TextSize {
 public:
  explicit TextSize(int percent) : import_(__imp_SystemParametersInfoForDpi, &ask) {
    percentOf() = percent;
  }

 private:
  static int& percentOf() {
    static int percent = 100;
    return percent;
  }
  static BOOL WINAPI ask(UINT action, UINT size, void* data, UINT flags, UINT dpi) {
    auto* metrics = static_cast<NONCLIENTMETRICSW*>(data);
    if (action != SPI_GETNONCLIENTMETRICS) return FALSE;
    if (SystemParametersInfoW(action, size, data, flags) == FALSE) return FALSE;
    // 9 points, as every Windows has it.
    metrics->lfMessageFont.lfHeight = -MulDiv(9 * percentOf(), static_cast<int>(dpi), 7200);
    return TRUE;
  }

  ScopedImport<decltype(&SystemParametersInfoForDpi)> import_;
};

/// What the system does when the user has chosen another size of texts.
inline void tellOfTextSize(const forms::Form& form) {
  SendMessageW(form.handle(), WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS,
               reinterpret_cast<LPARAM>(L"WindowMetrics"));
}

/// The height of a widget's letters in pixels.
inline int letterHeight(const forms::Widget& widget) {
  LOGFONTW font{};
  const LRESULT handle = SendMessageW(widget.handle(), WM_GETFONT, 0, 0);
  GetObjectW(reinterpret_cast<HGDIOBJ>(handle), sizeof font, &font);
  return static_cast<int>(std::abs(font.lfHeight));
}

/// Whether all of a widget's text is seen in its box, broken into lines as the control does.
inline bool isSeenWhole(const forms::Widget& widget, int sideMargin = 0) {
  HWND control = widget.handle();
  const std::u16string text = forms::windowText(control);
  HDC dc = GetDC(control);
  const HGDIOBJ before =
      SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
  RECT room{};
  GetClientRect(control, &room);
  room.right -= sideMargin;
  RECT needed = room;
  DrawTextW(dc, win32::wide(text), -1, &needed, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
  SelectObject(dc, before);
  ReleaseDC(control, dc);
  return needed.right <= room.right && needed.bottom <= room.bottom;
}

}  // namespace support
