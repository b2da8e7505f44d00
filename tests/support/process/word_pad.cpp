#include "tests/support/process/word_pad.h"

#include "tests/support/process/controls.h"

namespace support {

WordPad::WordPad(const std::wstring& file)
    : process_(L"C:\\Program Files\\Windows NT\\Accessories\\wordpad.exe", file),
      window_(waitForWindow({.process = process_.id(), .className = L"WORDPADTOP", .title = {}})),
      edit_(waitForChild(window_, L"RICHEDIT20W")) {
  waitFor("WordPad to come to the front", [&] { return GetForegroundWindow() == window_; });
  passTime(kReactionTime);
}

void WordPad::setText(const std::wstring& text) const {
  send(edit_, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void WordPad::place(const RECT& rect) const { placeWindow(window_, rect); }

}  // namespace support
