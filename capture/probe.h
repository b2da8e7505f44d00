#pragma once

#include <span>
#include <string>
#include <string_view>

/// What a probe for the word under the pointer decides. Lengths in screen pixels.
namespace capture {

/// Whether windows of this class are probed: whether the name contains, case included, one of the
/// names of text windows.
bool isProbed(std::string_view className);

/// A rectangle of the screen.
struct Rectangle {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Rectangle&) const = default;
};

/// Where the probe strip covers a window that reaches from `windowLeft` to `windowRight`, for the
/// pointer at `x`, `y`. It begins at most 200 pixels left of the pointer and keeps its width then,
/// so that it may reach past the window.
Rectangle stripPlace(int x, int y, int windowLeft, int windowRight);

/// The text before the first NUL of what the screen-text service wrote. Throws std::length_error
/// where there is none.
std::string_view reportedText(std::span<const char> buffer);

/// Whether a reported text opens the popup: English, of two or more code units.
bool opensPopup(std::u16string_view text);

}  // namespace capture

namespace ScreenWord {

/// The first word of `text`; blanks (U+0020 only) part words.
std::u16string GetFirstWord(std::u16string_view text);

}  // namespace ScreenWord
