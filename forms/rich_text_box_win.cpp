#include "forms/rich_text_box.h"

#include <algorithm>

#include "forms/appearance/system_look.h"
#include "forms/clipboard.h"
#include "forms/geometry.h"
#include "forms/text_lines.h"
#include "forms/widget.h"
#include "win32/win32.h"

namespace forms {
namespace {

/// The control's library, from the system directory only; it stays loaded.
const wchar_t* richEditClass() {
  static const HMODULE library =
      LoadLibraryExW(L"msftedit.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (library == nullptr) {
    win32::throwLastError();
  }
  return MSFTEDIT_CLASS;
}

constexpr DWORD kStyle = ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | ES_NOHIDESEL | WS_VSCROLL;

/// Twips between the edge of a tool tip and its text.
constexpr int kToolTipMargin = 60;

ControlKind kindOf(RichTextBox::Look look) {
  if (look == RichTextBox::Look::kToolTip) return {richEditClass(), kStyle | WS_BORDER, 0};
  return {richEditClass(), kStyle | WS_TABSTOP, WS_EX_CLIENTEDGE};
}

/// Returns where the control puts the text that a message asks for; null if that is not UTF-16.
wchar_t* givenText(UINT message, WPARAM wParam, LPARAM lParam) {
  constexpr UINT kUtf16 = 1200;  // the code page of UTF-16 in EM_GETTEXTEX
  if (message == EM_GETTEXTRANGE) return reinterpret_cast<const TEXTRANGEW*>(lParam)->lpstrText;
  if (message == EM_GETTEXTEX && reinterpret_cast<const GETTEXTEX*>(wParam)->codepage != kUtf16) {
    return nullptr;
  }
  return reinterpret_cast<wchar_t*>(lParam);
}

}  // namespace

RichTextBox::RichTextBox(WidgetHost& form, const WidgetBox& box, Look look)
    : Widget(form, kindOf(look), box), look_(look) {
  send(EM_SETUNDOLIMIT, 0);
  if (look == Look::kToolTip) keepMargins();
  showBackground();
}

// A tool tip's back colour stays that of tool tips: its characters get one of their own.
void RichTextBox::showBackground() {
  std::vector<std::uint32_t> colors;
  for (const ColoredLength& run : runs_) colors.push_back(run.color);
  const int index = look_ == Look::kToolTip ? COLOR_INFOBK : COLOR_WINDOW;
  const COLORREF background = systemBackgroundFor(colors, index);
  const COLORREF behind = look_ == Look::kPane ? background : GetSysColor(index);
  if (std::exchange(behind_, behind) != behind) {
    send(EM_SETBKGNDCOLOR, FALSE, static_cast<LPARAM>(behind));
  }
  if (look_ == Look::kPane) return;
  CHARFORMAT2W format{};
  format.cbSize = sizeof format;
  format.dwMask = CFM_BACKCOLOR;
  format.crBackColor = background;
  if (background == GetSysColor(index)) format.dwEffects = CFE_AUTOBACKCOLOR;
  send(EM_SETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&format));
}

// The formatting rectangle is lost when the control is resized.
void RichTextBox::keepMargins() {
  const int margin = toPixels(kToolTipMargin, form().dpi());
  RECT inner{};
  GetClientRect(handle(), &inner);
  InflateRect(&inner, -margin, -margin);
  send(EM_SETRECT, 0, reinterpret_cast<LPARAM>(&inner));
}

// A line that is too long and has no other place to break would be broken after its leading blank,
// which leaves an empty line (Wine's control does not break between Han characters). The control
// therefore holds no-break spaces there, and handleMessage gives them out as blanks.
void RichTextBox::setText(const std::u16string& text) {
  text_ = text;
  runs_.clear();
  SetWindowTextW(handle(), win32::wide(withFirmBlanks(text)));
  if (hangingIndent_ == 0 || text.empty()) return;
  PARAFORMAT format{};
  format.cbSize = sizeof format;
  format.dwMask = PFM_OFFSET;
  format.dxOffset = hangingIndent_;
  select(0, text.size());
  send(EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
  select(0, 0);
}

void RichTextBox::setRuns(std::initializer_list<TextRun> runs, std::size_t caret) {
  std::u16string text;
  for (const TextRun& run : runs) text += run.text;
  const ScopedRepaintHold held(*this);
  setText(text);
  for (const TextRun& run : runs) runs_.push_back({run.text.size(), run.color});
  colorRuns();
  select(caret, 0);
}

void RichTextBox::colorRuns() {
  std::size_t start = 0;
  for (const ColoredLength& run : runs_) {
    select(start, run.length);
    setSelColor(run.color);
    start += run.length;
  }
  showBackground();
}

// Whether WM_SETFONT leaves the characters their colours is documented nowhere.
void RichTextBox::rescale() {
  const std::size_t start = selStart();
  const std::size_t length = selLength();
  const ScopedRepaintHold held(*this);
  Widget::rescale();
  if (runs_.empty()) return;
  colorRuns();
  select(start, length);
}

void RichTextBox::setHangingIndent(int twips) { hangingIndent_ = twips; }

std::u16string RichTextBox::text() const { return windowText(handle()); }

void RichTextBox::select(std::size_t start, std::size_t length) {
  CHARRANGE range{};
  range.cpMin = static_cast<LONG>(controlPosition(text_, start));
  range.cpMax = static_cast<LONG>(controlPosition(text_, start + length));
  send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

std::size_t RichTextBox::selStart() const {
  CHARRANGE range{};
  send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
  return textPosition(text_, static_cast<std::size_t>(range.cpMin));
}

std::size_t RichTextBox::selLength() const {
  CHARRANGE range{};
  send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
  return textPosition(text_, static_cast<std::size_t>(range.cpMax)) - selStart();
}

std::u16string RichTextBox::selText() const { return text_.substr(selStart(), selLength()); }

void RichTextBox::setSelColor(COLORREF color) {
  CHARFORMATW format{};
  format.cbSize = sizeof format;
  format.dwMask = CFM_COLOR;
  format.crTextColor = color;
  send(EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
}

// The end of the selection, limited to the visible part: a menu opens there.
TwipPoint RichTextBox::caretPlace() const {
  CHARRANGE range{};
  send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
  POINTL point{};
  send(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&point), range.cpMax);
  RECT client{};
  GetClientRect(handle(), &client);
  return {toTwips(std::clamp(point.x, client.left, client.right), form().dpi()),
          toTwips(std::clamp(point.y, client.top, client.bottom), form().dpi())};
}

// Not by the control, which would copy no-break spaces, and formats besides the text.
void RichTextBox::copy() const {
  if (selLength() != 0) setClipboardText(form().handle(), selText());
}

LRESULT RichTextBox::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETTEXT:
    case EM_GETSELTEXT:
    case EM_GETLINE:
    case EM_GETTEXTRANGE:
    case EM_GETTEXTEX: {
      const LRESULT length = Widget::handleMessage(message, wParam, lParam);
      if (wchar_t* given = givenText(message, wParam, lParam)) {
        std::replace(given, given + length, static_cast<wchar_t>(kNoBreakSpace), L' ');
      }
      return length;
    }
    case WM_COPY:
      copy();
      return 0;
    case WM_KEYDOWN:
      if (GetKeyState(VK_CONTROL) < 0 && (wParam == 'C' || wParam == VK_INSERT)) {
        copy();
        return 0;
      }
      return Widget::handleMessage(message, wParam, lParam);
    case WM_GETDLGCODE:
      // The pane is for reading: Tab leaves it, as it leaves every other widget.
      return Widget::handleMessage(message, wParam, lParam) &
             ~static_cast<LRESULT>(DLGC_WANTTAB | DLGC_WANTALLKEYS);
    case WM_CONTEXTMENU:
      // From the keyboard: both coordinates are -1, whatever is above their 32 bits. The mouse's
      // right button has its own event.
      if (GET_X_LPARAM(lParam) == -1 && GET_Y_LPARAM(lParam) == -1)
        onRightMouseUp.raise(caretPlace());
      return 0;
    case WM_SIZE: {
      const LRESULT result = Widget::handleMessage(message, wParam, lParam);
      if (look_ == Look::kToolTip) keepMargins();
      return result;
    }
    default:
      return Widget::handleMessage(message, wParam, lParam);
  }
}

}  // namespace forms
