#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

#include "capture/nhw32/reader.h"
#include "tests/support/process/threaded_window.h"

namespace support {

/// A text control in a window of its own thread, as in another program, whose thread ours may hold
/// up or trouble.
class HookedTextWindow {
 public:
  /// What a control's thread does with a message before the control does; none: nothing.
  using Hook = std::function<std::optional<LRESULT>(HWND, UINT, WPARAM, LPARAM)>;

  struct Design {
    std::wstring className = L"EDIT";
    DWORD style = ES_MULTILINE | ES_AUTOVSCROLL;
    SIZE size{420, 220};
    Hook hook = {};
    HFONT font = nullptr;  ///< null: the control's own
  };

  explicit HookedTextWindow(Design design, const std::u16string& text = u"");
  ~HookedTextWindow();
  HookedTextWindow(const HookedTextWindow&) = delete;
  HookedTextWindow& operator=(const HookedTextWindow&) = delete;

  [[nodiscard]] HWND window() const { return window_.window(); }
  [[nodiscard]] HWND control() const { return window_.control(); }
  void setText(const std::u16string& text) const;

 private:
  void prepare(HWND control) const;

  const Design design_;
  ThreadedWindow window_;
};

/// The upper left corner of a character of an edit or rich edit control of any program, in screen
/// pixels; none after the text.
std::optional<POINT> characterCorner(HWND control, std::size_t position);

/// A character's cell in screen pixels where it is wholly in sight and not the last of its line.
std::optional<RECT> characterCell(HWND control, std::size_t position);

/// What the service finds. Where a busy machine lets the time run out it is asked again, as the
/// program does ten times a second; reported if the service would have left the window alone by
/// then (Backoff).
nhw32::Answer answerTo(const nhw32::Question& question);

/// A question about a point of a control.
nhw32::Question questionAt(HWND control, POINT point);
/// ... about the middle of a character in sight.
nhw32::Question questionAbout(HWND control, std::size_t position);

}  // namespace support
