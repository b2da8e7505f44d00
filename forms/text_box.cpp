#include "forms/text_box.h"

#include "forms/window_text.h"

namespace forms {

TextBox::TextBox(Form& form, const WidgetBox& box)
    : Widget(form, {L"EDIT", ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE}, box) {}

std::u16string TextBox::text() const { return windowText(handle()); }

void TextBox::setText(const std::u16string& text) { SetWindowTextW(handle(), wide(text)); }

void TextBox::command(WORD code) {
  if (code == EN_CHANGE) onChange.raise();
}

LRESULT TextBox::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // Not every system's control knows Ctrl+A (control code 1); all users do.
  constexpr WPARAM kCtrlA = 1;
  if (message == WM_CHAR && wParam == kCtrlA) {
    send(EM_SETSEL, 0, -1);
    return 0;
  }
  return Widget::handleMessage(message, wParam, lParam);
}

}  // namespace forms
