#include "forms/button.h"

#include "forms/geometry.h"

namespace forms {

Button::Button(WidgetHost& form, const std::u16string& caption, const WidgetBox& box)
    : Widget(form, {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0}, box, caption) {
  onKeyDown[VK_RETURN] = [this] { send(BM_CLICK); };
}

Button::Button(WidgetHost& form, const Picture& picture, const WidgetBox& box)
    : Widget(form, {L"BUTTON", BS_PUSHBUTTON | BS_ICON | WS_TABSTOP, 0}, box) {
  onKeyDown[VK_RETURN] = [this] { send(BM_CLICK); };
  setPicture(picture);
}

void Button::setPicture(const Picture& picture) {
  picture_ = picture;
  showPicture();
}

// The picture keeps the icon alive; the control does not own it.
void Button::showPicture() {
  HICON icon = picture_.icon(toPixels(kPictureTwips, form().dpi()));
  send(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
}

void Button::command(WORD code) {
  if (code == BN_CLICKED) onClick.raise();
}

void Button::rescale() {
  Widget::rescale();
  if (picture_ != Picture{}) showPicture();
}

}  // namespace forms
