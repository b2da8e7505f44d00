// Words on the lines into which a program breaks a paragraph.
#include <string>
#include <utility>

#include "tests/program/capture_fixture.h"

namespace support {
namespace {

/// Of the menu item that switches the wrapping of lines in Wine's Notepad.
constexpr WPARAM kWordWrap = 0x119;

/// Notepad's text box, which is made anew whenever the wrapping is switched.
HWND textBoxOf(const Notepad& notepad) {
  return FindWindowExW(notepad.window(), nullptr, L"Edit", nullptr);
}

bool wraps(HWND textBox) {
  return textBox != nullptr && (GetWindowLongPtrW(textBox, GWL_STYLE) & ES_AUTOHSCROLL) == 0;
}

void switchWrapping(const Notepad& notepad, bool on) {
  if (wraps(textBoxOf(notepad)) == on) return;
  send(notepad.window(), WM_COMMAND, kWordWrap);
  waitFor("the wrapping to be switched", [&] {
    HWND textBox = textBoxOf(notepad);
    return textBox != nullptr && wraps(textBox) == on;
  });
}

TEST_F(Capture, AWordOnAWrappedLineIsRead) {
  const Notepad notepad;
  notepad.place(kPage);
  switchWrapping(notepad, false);
  switchWrapping(notepad, true);
  std::wstring text;
  while (text.size() < 300) text += L"A few words to fill a line. ";
  const auto begin = static_cast<LONG>(text.size());
  text += L"The catalyst and the enzyme.";
  HWND textBox = textBoxOf(notepad);
  send(textBox, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
  for (const auto& [inside, word] : {std::pair(6, L"catalyst"), std::pair(23, L"enzyme")}) {
    const LONG character = begin + inside;
    EXPECT_GE(send(textBox, EM_LINEFROMCHAR, static_cast<WPARAM>(character)), 1);
    const POINT place = editPosition(textBox, character);
    input::moveTo({place.x + 3, place.y + 6});
    (void)popup.waitFor(word);
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }
}

}  // namespace
}  // namespace support
