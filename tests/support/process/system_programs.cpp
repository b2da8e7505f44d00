#include "tests/support/process/system_programs.h"

#include "tests/support/process/controls.h"
#include "tests/support/process/find.h"
#include "tests/support/process/process.h"
#include "tests/support/process/text.h"

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

Browser::Browser() : window_(waitForWindow({.className = L"IEFrame", .title = {}})) {}

Browser::~Browser() {
  const win32::OwnedKernelObject process(
      OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, processOf(window_)));
  TerminateProcess(process.get(), 0);
  WaitForSingleObject(process.get(), kDefaultTimeout);
}

void Browser::waitForAddress(const std::wstring& address) const {
  HWND bar = waitForChild(window_, L"Edit");
  std::wstring shown;
  try {
    waitFor("the address", [&] { return (shown = textOf(bar)) == address; });
  } catch (const Failure&) {
    throw Failure("the browser shows " + utf8(shown) + " and not " + utf8(address));
  }
}

}  // namespace support
