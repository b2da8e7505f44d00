#include "forms/text_box.h"

#include <utility>

#include "forms/clipboard.h"
#include "forms/widget.h"
#include "text/characters.h"
#include "text/strings.h"

namespace forms {
namespace {

DWORD styleOf(TextBox::Look look) {
  return look == TextBox::Look::kLine ? ES_AUTOHSCROLL : ES_MULTILINE | ES_READONLY;
}

/// Returns the beginning of `text`, at most `longest` units of it; no surrogate pair is cut in two.
std::u16string_view beginningOf(std::u16string_view text, std::size_t longest) {
  if (text.size() <= longest) return text;
  text = text.substr(0, longest);
  if (!text.empty() && text::isHighSurrogate(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace

TextBox::TextBox(WidgetHost& form, const WidgetBox& box, Look look)
    : Widget(form, {L"EDIT", styleOf(look) | WS_TABSTOP, WS_EX_CLIENTEDGE}, box), look_(look) {
  // The control takes a committed text whole, not by a WM_CHAR for each of its characters.
  if (look == Look::kLine) send(EM_SETIMESTATUS, EMSIS_COMPOSITIONSTRING, EIMES_GETCOMPSTRATONCE);
  keepFitting();
}

std::u16string TextBox::text() const { return windowText(handle()); }

void TextBox::setText(const std::u16string& text) {
  SetWindowTextW(handle(), win32::wide(text));
  if (look_ == Look::kNote) fitText();
}

bool TextBox::fits(HDC dc, const RECT& room) const {
  if (look_ == Look::kLine) {
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    return metrics.tmHeight <= room.bottom;
  }
  RECT inner{};
  send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&inner));
  RECT needed = inner;
  DrawTextW(dc, win32::wide(text()), -1, &needed,
            DT_CALCRECT | DT_WORDBREAK | DT_EDITCONTROL | DT_EXPANDTABS | DT_NOPREFIX);
  return needed.right <= inner.right && needed.bottom <= room.bottom;
}

void TextBox::insert(const std::u16string& text) {
  send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(win32::wide(text)));
}

void TextBox::selectAll() { send(EM_SETSEL, 0, -1); }

bool TextBox::isAllSelected() const {
  DWORD start = 0;
  DWORD end = 0;
  send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return start == 0 && end == static_cast<DWORD>(GetWindowTextLengthW(handle()));
}

void TextBox::paste() {
  const auto pasted = clipboardText(form().handle());
  if (!pasted || pasted->empty()) return;
  const auto longest = static_cast<std::size_t>(send(EM_GETLIMITTEXT));
  const std::u16string line = text::onOneLine(beginningOf(*pasted, longest));
  insert(cleanPasted && isAllSelected() ? cleanPasted(line) : line);
}

void TextBox::command(WORD code) {
  if (code == EN_CHANGE && !composing_) onChange.raise();
}

void TextBox::formActivated() {
  if (look_ == Look::kLine) selectAll();
}

// Some versions of the control show in their text what is being composed, and say so by EN_CHANGE.
// Input methods differ in whether a committed text comes before or after WM_IME_ENDCOMPOSITION, and
// one that loses the focus may send neither.
LRESULT TextBox::compose(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool begins = message == WM_IME_STARTCOMPOSITION;
  const bool commits = message == WM_IME_COMPOSITION;
  const bool wasComposing = std::exchange(composing_, true);
  if (!wasComposing) raisedText_ = text();
  const LRESULT result = Widget::handleMessage(message, wParam, lParam);
  composing_ = begins || (commits && wasComposing);
  if (!begins) raiseChangeSinceLast();
  return result;
}

void TextBox::raiseChangeSinceLast() {
  std::u16string now = text();
  if (now == raisedText_) return;
  raisedText_ = std::move(now);
  onChange.raise();
}

LRESULT TextBox::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // Not every version of the edit control handles Ctrl+A.
  constexpr WPARAM kCtrlA = 1;
  if (message == WM_CHAR && wParam == kCtrlA) {
    selectAll();
    return 0;
  }
  // The control's menu pastes by WM_PASTE; by which means the control handles its keys is
  // documented nowhere.
  constexpr WPARAM kCtrlV = 22;
  const bool pasteKey = (message == WM_CHAR && wParam == kCtrlV) ||
                        (message == WM_KEYDOWN && wParam == VK_INSERT && GetKeyState(VK_SHIFT) < 0);
  if (look_ == Look::kLine && (message == WM_PASTE || pasteKey)) {
    paste();
    return 0;
  }
  const bool composes = message == WM_IME_STARTCOMPOSITION || message == WM_IME_ENDCOMPOSITION ||
                        (message == WM_IME_COMPOSITION && (lParam & GCS_RESULTSTR) != 0) ||
                        (message == WM_KILLFOCUS && composing_);
  const LRESULT result =
      composes ? compose(message, wParam, lParam) : Widget::handleMessage(message, wParam, lParam);
  // A box of several lines would keep Tab, Enter and Esc for itself.
  constexpr LRESULT kKeysOfTyping = DLGC_WANTALLKEYS | DLGC_WANTTAB;
  const bool note = message == WM_GETDLGCODE && look_ == Look::kNote;
  return note ? result & ~kKeysOfTyping : result;
}

}  // namespace forms
