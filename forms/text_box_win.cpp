#include "forms/text_box.h"

#include "forms/widget.h"

namespace forms {
namespace {

DWORD styleOf(TextBox::Look look) {
  return look == TextBox::Look::kLine ? ES_AUTOHSCROLL : ES_MULTILINE | ES_READONLY;
}

}  // namespace

TextBox::TextBox(WidgetHost& form, const WidgetBox& box, Look look)
    : Widget(form, {L"EDIT", styleOf(look) | WS_TABSTOP, WS_EX_CLIENTEDGE}, box), look_(look) {}

std::u16string TextBox::text() const { return windowText(handle()); }

void TextBox::setText(const std::u16string& text) { SetWindowTextW(handle(), win32::wide(text)); }

void TextBox::command(WORD code) {
  if (code == EN_CHANGE) onChange.raise();
}

LRESULT TextBox::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // Not every version of the edit control handles Ctrl+A (control code 1).
  constexpr WPARAM kCtrlA = 1;
  if (message == WM_CHAR && wParam == kCtrlA) {
    send(EM_SETSEL, 0, -1);
    return 0;
  }
  const LRESULT result = Widget::handleMessage(message, wParam, lParam);
  // A box of several lines would keep Tab, Enter and Esc for itself.
  constexpr LRESULT kKeysOfTyping = DLGC_WANTALLKEYS | DLGC_WANTTAB;
  const bool note = message == WM_GETDLGCODE && look_ == Look::kNote;
  return note ? result & ~kKeysOfTyping : result;
}

}  // namespace forms
