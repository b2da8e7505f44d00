#include "tests/support/process/lexilo.h"

#include <algorithm>
#include <functional>
#include <optional>

#include "tests/support/process/controls.h"
#include "tests/support/process/popup_menu.h"
#include "tests/support/process/screen.h"

namespace support {
Lexilo::Lexilo(const AppFolder& folder)
    : process_(folder.program().wstring(), L"", folder.path().wstring()) {}

HWND Lexilo::toolbar() const {
  return waitForWindow({.process = process_.id(), .className = L"Lexilo.frmTop", .title = {}});
}

HWND Lexilo::waitUntilPainted() const {
  HWND window = toolbar();
  const RECT rect = rectOf(button(ToolbarButton::kQuickLookup));
  waitFor("the toolbar to be painted", [&] {
    const std::vector<COLORREF> pixels = screenPixels(rect);
    return std::ranges::adjacent_find(pixels, std::not_equal_to{}) != pixels.end();
  });
  return window;
}

HWND Lexilo::waitUntilSeen() const {
  HWND window = waitUntilPainted();
  passTime(kReactionTime);
  return window;
}

RECT Lexilo::grip() const { return rectOf(fromLeftToRight(L"Static").front()); }

std::vector<HWND> Lexilo::fromLeftToRight(const std::wstring& className) const {
  std::vector<HWND> widgets = childrenOf(toolbar(), className);
  std::erase_if(widgets, [](HWND widget) { return IsWindowVisible(widget) == FALSE; });
  std::ranges::sort(widgets, {}, [](HWND widget) { return rectOf(widget).left; });
  return widgets;
}

HWND Lexilo::button(ToolbarButton button) const {
  return fromLeftToRight(L"Button").at(static_cast<std::size_t>(button));
}

void Lexilo::click(ToolbarButton button) const { clickButton(this->button(button)); }

QuickLookup Lexilo::openQuickLookup() const {
  click(ToolbarButton::kQuickLookup);
  return QuickLookup(process_);
}

QuickLookup Lexilo::openQuickLookupAtA() const {
  return waitFor("the quick lookup window at its first words",
                 [&]() -> std::optional<QuickLookup> {
                   const QuickLookup window = openQuickLookup();
                   if (!window.words().empty()) return window;
                   window.close();
                   return std::nullopt;
                 })
      .value();
}

HWND Lexilo::dropMenu() const {
  click(ToolbarButton::kMenu);
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

}  // namespace support
