#include "forms/popup_menu.h"

namespace forms {

std::size_t PopupMenu::add(const std::u16string& caption, std::function<void()> onClick) {
  items_.push_back({caption, std::move(onClick)});
  return items_.size() - 1;
}

namespace {

/// Removes a press of the left button on `widget` from the message queue, with its release. The
/// range covers WM_LBUTTONDBLCLK: soon after another press it is a double click.
void dropPress(const Widget& widget) {
  MSG message;
  while (PeekMessageW(&message, widget.handle(), WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, PM_REMOVE)) {
  }
}

}  // namespace

// The menu is made anew each time from the items' states. TPM_RETURNCMD returns the choice instead
// of sending WM_COMMAND; the identifier 0 means none, so they count from 1.
const PopupMenu::Item* PopupMenu::choose(const Form& owner, POINT screen,
                                         const Widget* opener) const {
  const win32::OwnedMenu menu(CreatePopupMenu());
  for (std::size_t index = 0; index < items_.size(); ++index) {
    const Item& item = items_[index];
    const bool separator = item.caption == u"-";
    const UINT flags = (separator ? MF_SEPARATOR : MF_STRING) |
                       (item.enabled ? MF_ENABLED : MF_GRAYED) |
                       (item.checked ? MF_CHECKED : MF_UNCHECKED);
    AppendMenuW(menu.get(), flags, index + 1, win32::wide(item.caption));
  }
  // Without the foreground a click elsewhere would not close the menu; the empty message lets the
  // task switch happen that TrackPopupMenu would otherwise swallow (both as Windows documents).
  SetForegroundWindow(owner.handle());
  const auto chosen = static_cast<std::size_t>(
      TrackPopupMenuEx(menu.get(), TPM_RETURNCMD, screen.x, screen.y, owner.handle(), nullptr));
  PostMessageW(owner.handle(), WM_NULL, 0, 0);
  if (opener != nullptr) dropPress(*opener);
  return chosen == 0 ? nullptr : &items_[chosen - 1];
}

}  // namespace forms
