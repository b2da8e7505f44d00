#include "tests/windows/support/text_program.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

#include "tests/program/harness/find.h"
#include "tests/windows/support/pump.h"
#include "tests/windows/support/text_target.h"

namespace wintest {
namespace {

/// Other tests may be running on this machine, and their programs be started in the same way.
std::string freshMark() {
  std::random_device random;
  return "text-" + std::to_string(random()) + "-" + std::to_string(random());
}

std::filesystem::path pathOf(const std::string& mark) {
  return std::filesystem::temp_directory_path() / (mark + ".txt");
}

/// An empty file for the program to open, named after the mark.
std::wstring fileFor(const std::string& mark) {
  std::ofstream(pathOf(mark)).flush();
  return pathOf(mark).wstring();
}

std::wstring programOf(TextProgram::Kind kind) {
  return kind == TextProgram::Kind::kNotepad
             ? L"C:\\windows\\system32\\notepad.exe"
             : L"C:\\Program Files\\Windows NT\\Accessories\\wordpad.exe";
}

}  // namespace

TextProgram::TextProgram(Kind kind, const std::u16string& text)
    : mark_(freshMark()),
      process_(programOf(kind), fileFor(mark_)),
      window_(harness::waitFor("the program's window",
                               [&] {
                                 return harness::findWindow({.process = process_.id(),
                                                             .className = kind == Kind::kNotepad
                                                                              ? L"Notepad"
                                                                              : L"WORDPADTOP",
                                                             .title = {}});
                               })),
      control_(harness::waitForChild(window_, kind == Kind::kNotepad ? L"Edit" : L"RichEdit20W")) {
  // Programs set out their windows, and window managers place them, in their own time.
  process_.waitForInputIdle();
  constexpr RECT kPlace{200, 100, 900, 700};
  untilItLasts(
      [&] {
        SetWindowPos(window_, HWND_TOPMOST, kPlace.left, kPlace.top, kPlace.right - kPlace.left,
                     kPlace.bottom - kPlace.top, SWP_NOACTIVATE);
      },
      [&] {
        const RECT now = harness::rectOf(window_);
        return EqualRect(&now, &kPlace) != FALSE;
      });
  setText(text);
  eventually([this] { return characterCell(control_, 0).has_value(); });
  harness::repaint(window_);
}

TextProgram::~TextProgram() {
  std::error_code ignored;
  std::filesystem::remove(pathOf(mark_), ignored);
}

void TextProgram::setText(const std::u16string& text) const {
  harness::send(control_, EM_LIMITTEXT, 4'000'000);
  harness::send(control_, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

}  // namespace wintest
