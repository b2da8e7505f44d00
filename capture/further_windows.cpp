#include "capture/further_windows.h"

#include <algorithm>
#include <array>
#include <utility>

#include "capture/probe.h"
#include "text/characters.h"

namespace capture {
namespace {

/// Parts of window class names.
constexpr std::array<std::string_view, 8> kFurtherWindows = {
    "Chrome_RenderWidgetHostHWND",    // pages of Chromium: Chrome, Edge, Electron, WebView2
    "Chrome_WidgetWin_1",             // their windows
    "MozillaWindowClass",             // Firefox, Thunderbird
    "HwndWrapper[",                   // Windows Presentation Foundation
    "CASCADIA_HOSTING_WINDOW_CLASS",  // Windows Terminal
    "Windows.UI.Core.CoreWindow",     // Universal Windows Platform
    "DesktopChildSiteBridge",         // WinUI 3, also inside Windows Terminal
    "Scintilla",                      // a text box of many editors
};

/// File names of programs.
constexpr std::array<std::u16string_view, 7> kLeftAlone = {
    u"Code.exe",     u"Code - Insiders.exe",     u"Code - OSS.exe",
    u"VSCodium.exe", u"VSCodium - Insiders.exe", u"Cursor.exe",
    u"Windsurf.exe",
};

template <typename Unit>
bool isSame(Unit left, Unit right) {
  return text::lowerAscii(left) == text::lowerAscii(right);
}

bool contains(std::string_view className, std::string_view name) {
  return std::search(className.begin(), className.end(), name.begin(), name.end(), isSame<char>) !=
         className.end();
}

}  // namespace

std::optional<std::string_view> furtherAs(std::string_view className) {
  if (isProbed(className)) return std::nullopt;
  const auto isIn = [className](std::string_view name) { return contains(className, name); };
  const auto* const entry = std::ranges::find_if(kFurtherWindows, isIn);
  if (entry != kFurtherWindows.end()) return *entry;
  const auto stated = probedNames();
  const auto found = std::ranges::find_if(stated, isIn);
  return found == stated.end() ? std::nullopt : std::optional(*found);
}

bool isLeftAlone(std::u16string_view program) {
  return program.empty() || std::ranges::any_of(kLeftAlone, [program](std::u16string_view name) {
           return std::ranges::equal(program, name, isSame<char16_t>);
         });
}

bool FurtherRest::rests(const FurtherSight& sight) const {
  return sight.kind == FurtherSight::Window::kFurther && !sight.inputDown &&
         sight.window == place_.window && sight.x == place_.x && sight.y == place_.y;
}

FurtherRest::Act FurtherRest::look(const FurtherSight& sight, Time now) {
  if (!rests(sight)) {
    place_ = sight;
    since_ = now;
    // A window that is probed has a question of the probe by now.
    const bool cancels = std::exchange(asked_, false);
    return cancels && sight.kind != FurtherSight::Window::kProbed ? Act::kCancel : Act::kNothing;
  }
  if (now - since_ < kRest) return Act::kNothing;
  // A question stays armed until its word is taken. One that the service did not accept, because
  // the user works at this place, is not repeated here either.
  if (std::exchange(asked_, true) && !sight.armed) return Act::kNothing;
  return Act::kAsk;
}

}  // namespace capture
