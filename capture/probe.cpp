#include "capture/probe.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "text/query_text.h"
#include "text/strings.h"

namespace capture {
namespace {

/// Names of the window classes of consoles, viewers, word processors, spreadsheets, browsers and
/// text boxes. Deliberate: some contain a shorter one of the list, which would do ("Edit" admits
/// all rich edit controls); each is there for the windows that it names.
constexpr std::array<std::string_view, 17> kTextWindows = {
    "ttyGrab",
    "AVL_AVView",
    "tty",
    "_WwG",
    "ConsoleWindowClass",
    "EXCEL6",
    "EXCEL7",
    "EXCEL<",
    "ThunderRT6TextBox",
    "ThunderRT5TextBox",
    "ThunderTextBox",
    "HTML_Internet Explorer",
    "RichEdit20W",
    "RichEdit20A",
    "RichEdit",
    "Internet Explorer_Server",
    "Edit",
};

// The strip, in pixels. Deliberate: it begins one margin left of the window and is two margins
// narrower than it, so it ends three margins left of the window's right edge.
constexpr int kStripHeight = 5;
constexpr int kStripMargin = 4;
constexpr int kStripReach = 200;  // left of the pointer

}  // namespace

std::optional<std::string_view> probedAs(std::string_view className) {
  const auto* const entry = std::ranges::find_if(kTextWindows, [&](std::string_view name) {
    return className.find(name) != std::string_view::npos;
  });
  return entry == kTextWindows.end() ? std::nullopt : std::optional(*entry);
}

std::span<const std::string_view> probedNames() { return kTextWindows; }

Rectangle stripPlace(int x, int y, int windowLeft, int windowRight) {
  // The rows just above the pointer: the strip must not cover the point, where the service looks
  // for the window.
  Rectangle strip{windowLeft - kStripMargin, y - kStripHeight,
                  windowRight - windowLeft - 2 * kStripMargin, kStripHeight};
  if (x - strip.left > kStripReach) strip.left = x - kStripReach;
  return strip;
}

std::string_view reportedText(std::span<const char> buffer) {
  const auto end = std::find(buffer.begin(), buffer.end(), '\0');
  if (end == buffer.end()) throw std::length_error("the reported word has no end");
  return {buffer.data(), static_cast<std::size_t>(end - buffer.begin())};
}

bool opensPopup(std::u16string_view text) {
  // The empty text counts as English.
  return text.size() >= 2 && user::getEorC(text) == user::kEnglish;
}

}  // namespace capture

namespace ScreenWord {

std::u16string GetFirstWord(std::u16string_view text) {
  const auto trimmed = text::trimBlanks(text);
  return std::u16string(trimmed.substr(0, trimmed.find(u' ')));
}

}  // namespace ScreenWord
