#include "forms/button.h"

#include <utility>

#include "forms/geometry.h"

namespace forms {
namespace {

/// Between a button's edge and its caption, in twips.
constexpr int kSideMargin = 60;
constexpr int kUpperMargin = 30;

}  // namespace

Button::Button(WidgetHost& form, const std::u16string& caption, const WidgetBox& box)
    : Widget(form, {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0}, box, caption) {
  onKeyDown[VK_RETURN] = [this] { send(BM_CLICK); };
  keepFitting();
}

Button::Button(WidgetHost& form, const Picture& picture, const WidgetBox& box)
    : Widget(form, {L"BUTTON", BS_PUSHBUTTON | BS_ICON | WS_TABSTOP, 0}, box) {
  onKeyDown[VK_RETURN] = [this] { send(BM_CLICK); };
  setPicture(picture);
}

void Button::setPicture(const Picture& picture) {
  // The picture before may be the last copy of its own: it is kept until the control has the new.
  const Picture before = std::exchange(picture_, picture);
  showPicture();
}

// The picture keeps the icon alive; the control does not own it.
void Button::showPicture() {
  HICON icon = picture_.icon(toPixels(kPictureTwips, form().dpi()));
  send(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
}

// Not BCM_GETIDEALSIZE, whose margins are wider than what a caption needs not to be cut.
bool Button::fits(HDC dc, const RECT& room) const {
  const std::u16string caption = windowText(handle());
  SIZE size{};
  GetTextExtentPoint32W(dc, win32::wide(caption), static_cast<int>(caption.size()), &size);
  const int dpi = form().dpi();
  return size.cx <= room.right - (2 * toPixels(kSideMargin, dpi)) &&
         size.cy <= room.bottom - (2 * toPixels(kUpperMargin, dpi));
}

void Button::command(WORD code) {
  if (code == BN_CLICKED) onClick.raise();
}

void Button::rescale() {
  Widget::rescale();
  if (picture_ != Picture{}) showPicture();
}

}  // namespace forms
