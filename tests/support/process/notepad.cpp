#include "tests/support/process/notepad.h"

#include "tests/support/process/text_box.h"

namespace support {

Notepad::Notepad(const std::wstring& file)
    : process_(L"C:\\windows\\system32\\notepad.exe", file),
      window_(waitForWindow({.process = process_.id(), .className = L"Notepad", .title = {}})),
      edit_(waitForChild(window_, L"Edit")) {
  waitFor("Notepad to come to the front", [&] { return GetForegroundWindow() == window_; });
  // The window manager gives a new window the focus in its own time.
  passTime(kReactionTime);
}

void Notepad::clickIntoText() const { takeKeyboard(edit_); }

void Notepad::setText(const std::wstring& text) const {
  send(edit_, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void Notepad::place(const RECT& rect) const { placeWindow(window_, rect); }

}  // namespace support
