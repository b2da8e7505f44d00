#include "tests/support/window/system_editor.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

#include "tests/support/process/find.h"
#include "tests/support/wait.h"
#include "tests/support/window/hooked_text_window.h"

namespace support {
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

std::wstring programOf(SystemEditor::Kind kind) {
  return kind == SystemEditor::Kind::kNotepad
             ? L"C:\\windows\\system32\\notepad.exe"
             : L"C:\\Program Files\\Windows NT\\Accessories\\wordpad.exe";
}

}  // namespace

SystemEditor::SystemEditor(Kind kind, const std::u16string& text)
    : mark_(freshMark()),
      process_(programOf(kind), fileFor(mark_)),
      window_(waitFor("the program's window",
                      [&] {
                        return findWindow(
                            {.process = process_.id(),
                             .className = kind == Kind::kNotepad ? L"Notepad" : L"WORDPADTOP",
                             .title = {}});
                      })),
      control_(waitForChild(window_, kind == Kind::kNotepad ? L"Edit" : L"RichEdit20W")) {
  // Programs set out their windows, and window managers place them, in their own time.
  process_.waitForInputIdle();
  constexpr RECT kPlace{200, 100, 900, 700};
  actUntil(
      "an editor in its place",
      [&] {
        SetWindowPos(window_, HWND_TOPMOST, kPlace.left, kPlace.top, kPlace.right - kPlace.left,
                     kPlace.bottom - kPlace.top, SWP_NOACTIVATE);
      },
      [&] {
        const RECT now = rectOf(window_);
        return EqualRect(&now, &kPlace) != FALSE;
      },
      kLastingWindow);
  setText(text);
  eventually([this] { return characterCell(control_, 0).has_value(); });
  repaint(window_);
}

SystemEditor::~SystemEditor() {
  std::error_code ignored;
  std::filesystem::remove(pathOf(mark_), ignored);
}

void SystemEditor::setText(const std::u16string& text) const {
  send(control_, EM_LIMITTEXT, 4'000'000);
  send(control_, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

}  // namespace support
