#include "tests/support/process/popup_menu.h"

#include <cstdlib>

#include "tests/support/process/find.h"
#include "tests/support/process/input.h"

namespace support::popup_menu {
namespace {

/// The class that the system gives to popup menus.
constexpr const wchar_t* kMenuClass = L"#32768";

WindowQuery menuOf(const Process& program) {
  return {.process = program.id(), .className = kMenuClass, .title = {}};
}

}  // namespace

HWND waitForMenu(const Process& program) {
  HWND menu = waitForWindow(menuOf(program));
  passTime(kReactionTime);
  return menu;
}

bool isOpen(const Process& program) { return findWindow(menuOf(program)) != nullptr; }

void choose(int steps) {
  for (int i = 0; i < std::abs(steps); ++i) input::key(steps > 0 ? VK_DOWN : VK_UP);
  input::key(VK_RETURN);
}

void dismiss(const Process& program) {
  input::key(VK_ESCAPE);
  waitFor("the popup menu to close", [&] { return !isOpen(program); });
}

}  // namespace support::popup_menu
