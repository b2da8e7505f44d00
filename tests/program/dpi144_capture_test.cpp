// Words in windows that count other pixels than the screen has.
#include <gtest/gtest.h>

#include <string_view>

#include "tests/support/process/controls.h"
#include "tests/support/process/find.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/meaning_popup.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/settings.h"
#include "tests/support/process/text_window.h"
#include "tests/support/process/threaded_window.h"

namespace support {
namespace {

constexpr int kDpi = 144;

constexpr std::wstring_view kText =
    L"acid bone copper desk engine fever gland\r\nheart iron jacket kidney liver muscle\r\n"
    L"nerve oxygen plasma quartz river sodium\r\ntissue uranium valve water xylem yeast";

/// An edit control of a program that was written for 96 dpi, in whose pixels `place` is.
ThreadedWindow oldWindow(const RECT& place) {
  return ThreadedWindow({.controlClass = L"EDIT",
                         .controlStyle = ES_MULTILINE,
                         .place = place,
                         .prepare = [](HWND control) { SetWindowTextW(control, kText.data()); },
                         .awareness = DPI_AWARENESS_CONTEXT_UNAWARE});
}

/// Where character `index` stands on the screen, in the screen's own pixels.
POINT onScreen(HWND control, std::size_t index) {
  const auto packed = static_cast<DWORD>(send(control, EM_POSFROMCHAR, index));
  const auto before = SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_UNAWARE);
  POINT point{static_cast<SHORT>(LOWORD(packed)) + 3, static_cast<SHORT>(HIWORD(packed)) + 6};
  ClientToScreen(control, &point);
  SetThreadDpiAwarenessContext(before);
  return {MulDiv(point.x, kDpi, USER_DEFAULT_SCREEN_DPI),
          MulDiv(point.y, kDpi, USER_DEFAULT_SCREEN_DPI)};
}

// Far from the screen's corner and from the window's own: whoever takes one kind of pixels for the
// other finds another word, or none. (Wine shows such a window without scaling it, but finds it
// under the pointer where Windows would show it.)
TEST(Dpi144Capture, AWindowOfAProgramThatKnowsNoScalingIsReadWhereItIsSeen) {
  ASSERT_EQ(GetDpiForSystem(), static_cast<UINT>(kDpi));
  settings::clear();
  input::moveTo(kAwayFromTexts);
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const ThreadedWindow old = oldWindow({200, 150, 600, 300});
  const MeaningPopup popup(lexilo.process());
  for (const wchar_t* word : {L"nerve", L"oxygen", L"river", L"kidney", L"valve"}) {
    const POINT place = onScreen(old.control(), kText.find(word) + 1);
    input::moveTo(place);
    (void)popup.waitFor(word);
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }
}

}  // namespace
}  // namespace support
