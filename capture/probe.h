#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What a probe for the word under the pointer decides. Lengths in screen pixels. Pure functions.
namespace capture {

/// Returns the first of the names of text windows that a class name contains, in the same case;
/// nullopt if windows of this class are not probed.
std::optional<std::string_view> probedAs(std::string_view className);

/// Returns the names of text windows, all of them.
std::span<const std::string_view> probedNames();

/// Returns whether windows of this class are probed.
inline bool isProbed(std::string_view className) { return probedAs(className).has_value(); }

/// A rectangle of the screen.
struct Rectangle {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Rectangle&) const = default;
};

/// Returns where the probe strip covers a window that reaches from `windowLeft` to `windowRight`,
/// for the pointer at `x`, `y`: the 5 rows above the pointer, from 4 pixels left of the window, 8
/// pixels narrower than the window. It begins at most 200 pixels left of the pointer. Deliberate:
/// it keeps its width then, so that it may reach past the window.
Rectangle stripPlace(int x, int y, int windowLeft, int windowRight);

/// Returns the text before the first NUL of what the screen-text service wrote, a view into
/// `buffer`. Throws std::length_error if there is no NUL.
std::string_view reportedText(std::span<const char> buffer);

/// Returns whether a reported text opens the popup: English, of two or more code units. Deliberate:
/// single letters and Chinese texts, which the pointer passes over all the time, do not.
bool opensPopup(std::u16string_view text);

}  // namespace capture

namespace ScreenWord {

/// Returns the first word of `text`. Deliberate: only U+0020 separates words; tabs, punctuation and
/// ideographic spaces do not.
std::u16string GetFirstWord(std::u16string_view text);

}  // namespace ScreenWord
