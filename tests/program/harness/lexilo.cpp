#include "tests/program/harness/lexilo.h"

#include <algorithm>

#include "tests/program/harness/input.h"
#include "tests/program/harness/popup_menu.h"

namespace harness {

Lexilo::Lexilo(const AppFolder& folder)
    : process_(folder.program().wstring(), L"", folder.path().wstring()) {}

HWND Lexilo::toolbar() const {
  return waitForWindow({.process = process_.id(), .className = L"Lexilo.frmTop", .title = {}});
}

RECT Lexilo::grip() const { return rectOf(onlyChild(toolbar(), L"Static")); }

std::vector<HWND> Lexilo::buttons() const {
  std::vector<HWND> buttons = childrenOf(toolbar(), L"Button");
  std::erase_if(buttons, [](HWND button) { return IsWindowVisible(button) == FALSE; });
  std::ranges::sort(buttons, {}, [](HWND button) { return rectOf(button).left; });
  return buttons;
}

RECT Lexilo::buttonRect(ToolbarButton button) const {
  return rectOf(buttons().at(static_cast<std::size_t>(button)));
}

void Lexilo::click(ToolbarButton button) const { input::click(centreOf(buttonRect(button))); }

QuickLookup Lexilo::openQuickLookup() const {
  click(ToolbarButton::quickLookup);
  return QuickLookup(process_);
}

HWND Lexilo::dropMenu() const {
  click(ToolbarButton::menu);
  return popup_menu::waitForMenu(process_);
}

void Lexilo::choose(MenuItem item) const {
  dropMenu();
  popup_menu::choose(static_cast<int>(item));
}

DWORD Lexilo::exit() const {
  choose(MenuItem::exit);
  return process_.waitForExit();
}

}  // namespace harness
