#include "forms/widget.h"

#include <algorithm>
#include <utility>

#include "forms/appearance/text_size.h"
#include "forms/focus.h"
#include "forms/geometry.h"
#include "forms/stacking.h"
#include "win32/input_method.h"
#include "win32/win32.h"

// Controls are subclassed: widgetProc sees each message before the control's own procedure. Focus
// changes are only noted here; events follow in order (focus.h). A control hands the mouse to the
// form, by HTTRANSPARENT, where a neighbour grabs it, and the form passes it on.
namespace forms {
namespace {

/// Texts are made no smaller to fit, in twips: 6 pixels at 96 dpi.
constexpr int kLeastHeight = 90;

/// A tool tip asks itself, by this message, which window is under the pointer before it shows that
/// window's text. Beside a widget that takes the mouse there too, it is to show the widget's: then
/// the point is moved onto the widget, as the message's documentation suggests.
LRESULT CALLBACK toolTipProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                             DWORD_PTR host) {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, toolTipProc, id);
  if (message == TTM_WINDOWFROMPOINT) {
    auto& point = *reinterpret_cast<POINT*>(lParam);
    if (const Widget* grabber = reinterpret_cast<const WidgetHost*>(host)->grabberAt(point)) {
      RECT rect{};
      GetWindowRect(grabber->handle(), &rect);
      point.x = std::clamp(point.x, rect.left, rect.right - 1);
    }
  }
  return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

// The system's documentation asks for this before the first common control is created, whether or
// not the manifest names their library.
WidgetHost::WidgetHost() {
  static const BOOL ready = [] {
    const INITCOMMONCONTROLSEX classes{
        sizeof classes, ICC_STANDARD_CLASSES | ICC_TREEVIEW_CLASSES | ICC_BAR_CLASSES};
    return InitCommonControlsEx(&classes);
  }();
  static_cast<void>(ready);  // without it the creation of a control fails, with an error
}

Widget* WidgetHost::widgetAt(POINT screen, const Widget* except) const {
  const auto found = std::ranges::find_if(widgets_, [&](const Widget* widget) {
    RECT rect{};
    GetWindowRect(widget->handle(), &rect);
    return widget != except && IsWindowVisible(widget->handle()) && PtInRect(&rect, screen);
  });
  return found == widgets_.end() ? nullptr : *found;
}

Widget* WidgetHost::widgetOf(HWND control) const {
  const auto found = std::ranges::find_if(widgets_, [=](const Widget* widget) {
    return control != nullptr && widget->handle() == control;
  });
  return found == widgets_.end() ? nullptr : *found;
}

Widget* WidgetHost::grabberAt(POINT screen) const {
  const auto found =
      std::ranges::find_if(widgets_, [&](const Widget* widget) { return widget->grabs(screen); });
  return found == widgets_.end() ? nullptr : *found;
}

void WidgetHost::addWidget(Widget& widget) { widgets_.push_back(&widget); }

void WidgetHost::removeWidget(Widget& widget) { std::erase(widgets_, &widget); }

void WidgetHost::createToolTip() {
  toolTip_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                             WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                             CW_USEDEFAULT, CW_USEDEFAULT, handle_, nullptr,
                             GetModuleHandleW(nullptr), nullptr);
  SetWindowSubclass(toolTip_, toolTipProc, 0, reinterpret_cast<DWORD_PTR>(this));
  setToolTipFont();
}

// By itself the control keeps the font of the DPI for which it was created. The system's font has
// the size that the user wants texts in.
void WidgetHost::setToolTipFont() {
  if (toolTip_ == nullptr) return;
  auto made = makeFont({}, monitorDpi_);
  SendMessageW(toolTip_, WM_SETFONT, reinterpret_cast<WPARAM>(made.get()), TRUE);
  toolTipFont_ = std::move(made);
}

void WidgetHost::setToolTip(const Widget& widget, const std::u16string& text) {
  // Not before one is needed: under Wine 8 SetWindowPos(HWND_TOPMOST) fails on a window that owns a
  // tool tip window.
  if (toolTip_ == nullptr) createToolTip();
  TOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = handle_;
  tool.uId = reinterpret_cast<UINT_PTR>(widget.handle());
  SendMessageW(toolTip_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  tool.lpszText = const_cast<wchar_t*>(win32::wide(text));
  if (!text.empty()) SendMessageW(toolTip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

Widget::Widget(WidgetHost& form, const ControlKind& kind, const WidgetBox& box,
               const std::u16string& caption)
    : form_(form), box_(box) {
  handle_ = CreateWindowExW(kind.exStyle, kind.className, win32::wide(caption),
                            WS_CHILD | WS_VISIBLE | kind.style, 0, 0, 0, 0, form.handle(), nullptr,
                            GetModuleHandleW(nullptr), nullptr);
  if (handle_ == nullptr) {
    win32::throwLastError();
  }
  // Not SetWindowSubclass(): it asks the system for a window property at every message, which takes
  // 0.13 ms under Wine 8, some hundred times as long as the message itself.
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  controlProc_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&widgetProc)));
  try {
    form_.addWidget(*this);
    setFont({});
  } catch (...) {
    // No destructor will run: the control would live on with a widget that is none.
    form_.removeWidget(*this);
    DestroyWindow(handle_);
    throw;
  }
  applyBox();
}

Widget::~Widget() {
  // First: destroying the control sends notifications, which raise the focus events that are due.
  forgetFocus(*this);
  form_.removeWidget(*this);
  if (handle_ != nullptr) {
    DestroyWindow(handle_);
  }
}

// A control may be destroyed before its widget, with the form's window: from WM_NCDESTROY on the
// widget has no handle.
LRESULT CALLBACK Widget::widgetProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* widget = reinterpret_cast<Widget*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message == WM_NCDESTROY) {
    widget->handle_ = nullptr;
    return CallWindowProcW(widget->controlProc_, window, message, wParam, lParam);
  }
  LRESULT result = 0;
  guard([&] { result = widget->handleMessage(message, wParam, lParam); });
  return result;
}

LRESULT Widget::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      postFocusCheck();
      break;
    case WM_NCHITTEST:
      // The form gets the mouse instead and passes it to the widget that grabs it.
      if (const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
          Widget* grabber = form_.grabberAt(point)) {
        if (grabber != this) return HTTRANSPARENT;
      }
      break;
    case WM_SETCURSOR:
      // The form's shape comes first; with none of its own it returns FALSE.
      if (SendMessageW(form_.handle(), message, wParam, lParam) != FALSE) return TRUE;
      break;
    case WM_GETDLGCODE:
      // IsDialogMessage asks with the key's message: a key that has a handler is not a dialog's.
      if (const auto* key = reinterpret_cast<const MSG*>(lParam);
          key != nullptr && takesKey(key->message, key->wParam)) {
        return CallWindowProcW(controlProc_, handle_, message, wParam, lParam) | DLGC_WANTMESSAGE;
      }
      // Otherwise a letter would be a dialog's mnemonic.
      if (onText) {
        return CallWindowProcW(controlProc_, handle_, message, wParam, lParam) | DLGC_WANTCHARS;
      }
      break;
    case WM_CHAR:
    case WM_IME_COMPOSITION:
      if (onText && raiseText(message, wParam, lParam)) return 0;
      break;
    case WM_KEYDOWN:
      if (takesKey(message, wParam)) {
        // A copy: the handler may destroy the widget. The focus events that are due come first, as
        // for a mouse button.
        const auto handler = onKeyDown.find(wParam)->second;
        dropCharacterOf(wParam);
        raisePendingFocusEvents();
        guard(handler);
        return 0;
      }
      break;
    default:
      raiseMouseEvents(message, lParam);
  }
  // A handler may have destroyed the control.
  return handle_ == nullptr ? 0 : CallWindowProcW(controlProc_, handle_, message, wParam, lParam);
}

void Widget::dropCharacterOf(WPARAM key) const {
  MSG character{};
  if (PeekMessageW(&character, handle_, WM_CHAR, WM_CHAR, PM_NOREMOVE) != FALSE &&
      character.wParam == key) {
    PeekMessageW(&character, handle_, WM_CHAR, WM_CHAR, PM_REMOVE);
  }
}

bool Widget::takesKey(UINT message, WPARAM wParam) const {
  return message == WM_KEYDOWN && onKeyDown.contains(wParam) && GetKeyState(VK_CONTROL) >= 0 &&
         GetKeyState(VK_MENU) >= 0;
}

bool Widget::raiseText(UINT message, WPARAM wParam, LPARAM lParam) const {
  constexpr WPARAM kDelete = 0x7F;  // Ctrl+Backspace
  std::u16string typed;
  if (message == WM_IME_COMPOSITION) {
    typed = win32::composedText(handle_, lParam);
  } else if (wParam > u' ' && wParam != kDelete) {
    typed = static_cast<char16_t>(wParam);
  }
  if (!typed.empty()) onText.raise(typed);
  return !typed.empty();
}

void Widget::raiseMouseEvents(UINT message, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEMOVE:
      onMouseMove.raise(pointOf(lParam));
      break;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
      raisePendingFocusEvents();
      barsMayBeCovered(form_.handle());
      onMouseDown.raise(pointOf(lParam));
      break;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      onMouseUp.raise(pointOf(lParam));
      if (message == WM_RBUTTONUP) onRightMouseUp.raise(pointOf(lParam));
      break;
    default:
      break;
  }
}

TwipPoint Widget::pointOf(LPARAM lParam) const {
  return {toTwips(GET_X_LPARAM(lParam), form_.dpi()), toTwips(GET_Y_LPARAM(lParam), form_.dpi())};
}

void Widget::move(const WidgetBox& box) {
  box_ = box;
  applyBox();
}

void Widget::setWidth(int width) {
  box_.width = width;
  applyBox();
}

void Widget::applyBox() {
  if (handle_ == nullptr) return;
  const int dpi = form_.dpi();
  const int left = toPixels(box_.left, dpi);
  const int top = toPixels(box_.top, dpi);
  // Edges are rounded, not lengths: neighbours in twips stay neighbours in pixels.
  const int right = toPixels(box_.left + box_.width, dpi);
  const int bottom = toPixels(box_.top + box_.height, dpi);
  RECT before{};
  GetClientRect(handle_, &before);
  SetWindowPos(handle_, nullptr, left, top, std::max(right - left, 0), std::max(bottom - top, 0),
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
  RECT room{};
  GetClientRect(handle_, &room);
  if (keepsFitting_ && !EqualRect(&before, &room)) fitText();
}

void Widget::setVisible(bool visible) { ShowWindow(handle_, visible ? SW_SHOWNA : SW_HIDE); }

void Widget::setEnabled(bool enabled) { EnableWindow(handle_, enabled ? TRUE : FALSE); }

void Widget::setFocus() {
  SetFocus(handle_);
  raisePendingFocusEvents();
}

void Widget::setFont(Font font) {
  font_ = std::move(font);
  fitText();
}

void Widget::fitText() {
  LOGFONTW description = describe(font_, form_.monitorDpi(), form_.textDpi());
  RECT room{};
  GetClientRect(handle_, &room);
  if (description.lfHeight < 0 && room.right > 0 && room.bottom > 0) {
    const auto wanted = static_cast<int>(-description.lfHeight);
    const int least = toPixels(kLeastHeight, form_.monitorDpi());
    description.lfHeight = -largestFitting(
        wanted, least, [&](int height) { return fitsAt(description, height, room); });
  }
  auto made = makeFont(description);
  send(WM_SETFONT, reinterpret_cast<WPARAM>(made.get()), TRUE);
  systemFont_ = std::move(made);
}

bool Widget::fitsAt(LOGFONTW description, int height, const RECT& room) const {
  description.lfHeight = -height;
  const auto font = makeFont(description);
  HDC dc = GetDC(handle_);
  const HGDIOBJ before = SelectObject(dc, font.get());
  const bool result = fits(dc, room);
  SelectObject(dc, before);
  ReleaseDC(handle_, dc);
  return result;
}

void Widget::setToolTip(const std::u16string& text) {
  if (toolTip_ == text) return;
  // A button with a picture has no text of its own; what it then has is the tool tip before.
  const bool isName = windowText(handle_) == toolTip_;
  toolTip_ = text;
  if (isName) SetWindowTextW(handle_, win32::wide(toolTip_));
  form_.setToolTip(*this, toolTip_);
}

void Widget::command(WORD /*code*/) {}

LRESULT Widget::notify(const NMHDR& /*header*/) { return 0; }

// The place first: the font is chosen for it.
void Widget::rescale() {
  applyBox();
  fitText();
}

std::u16string windowText(HWND window) {
  std::wstring buffer(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  const int length = GetWindowTextW(window, buffer.data(), static_cast<int>(buffer.size()));
  return win32::fromWide({buffer.data(), static_cast<std::size_t>(length)});
}

ScopedRepaintHold::ScopedRepaintHold(const Widget& widget)
    : window_(widget.handle()), visible_(isVisible()) {
  if (!visible_) return;
  SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  // DefWindowProc takes WS_VISIBLE away and with it all drawing. A control that keeps a flag of its
  // own instead (the tree view) would draw its scroll bars as soon as that flag is set again, and a
  // second time with the frame.
  keepsOwnFlag_ = isVisible();
  if (keepsOwnFlag_) DefWindowProcW(window_, WM_SETREDRAW, FALSE, 0);
}

ScopedRepaintHold::~ScopedRepaintHold() {
  if (!visible_) return;
  SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
  if (keepsOwnFlag_) DefWindowProcW(window_, WM_SETREDRAW, TRUE, 0);
  // The frame as well: a scroll bar that came or went meanwhile is part of it. These are the flags
  // that WM_SETREDRAW's documentation asks for.
  RedrawWindow(window_, nullptr, nullptr, RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
}

bool ScopedRepaintHold::isVisible() const {
  return (GetWindowLongPtrW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
}

}  // namespace forms
