#include <cstring>
#include <utility>

#include "forms/appearance/system_look.h"
#include "forms/focus.h"
#include "forms/form.h"
#include "forms/geometry.h"
#include "forms/stacking.h"
#include "win32/monitor.h"

// The window procedure of all forms. Windows' notifications are turned into the form's events and
// into calls of focus.h and stacking.h, which put in order what Windows sends in another one.
namespace forms {
namespace {

void (*&sessionEndHandler())() {
  static void (*endProgram)() = nullptr;
  return endProgram;
}

}  // namespace

void setSessionEndHandler(void (*endProgram)()) { sessionEndHandler() = endProgram; }

// WM_NCCREATE is the first message that carries the form, WM_NCDESTROY the last message of all;
// those before and after get the system's default.
LRESULT CALLBACK Form::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* form = static_cast<Form*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
    form->handle_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(form));
    guard([=] { addToStack(window, form->rank()); });
  }
  auto* form = reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (form == nullptr || form->handle_ == nullptr) {
    return DefWindowProcW(window, message, wParam, lParam);
  }
  if (message == WM_NCDESTROY) {
    form->handle_ = nullptr;
    removeFromStack(window);
    return DefWindowProcW(window, message, wParam, lParam);
  }
  LRESULT result = 0;
  guard([&] { result = form->handleMessage(message, wParam, lParam); });
  return result;
}

LRESULT Form::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      // Nothing is laid out while minimised; restoring counts as a new size.
      if (wParam == SIZE_MINIMIZED) {
        resizedFor_ = {-1, -1};
      } else if (shown_) {
        resized();
      }
      if (wParam == SIZE_MAXIMIZED) barsMayBeCovered(handle_);
      return 0;
    case WM_PAINT:
      paint();
      return 0;
    case WM_ACTIVATE:
      // The control that had the focus gets it back when the form is active again, which a dialog
      // does but an ordinary window does not.
      if (LOWORD(wParam) == WA_INACTIVE) {
        if (HWND focus = GetFocus(); IsChild(handle_, focus)) lastFocus_ = focus;
      } else if (HIWORD(wParam) == 0) {
        giveFocusBack();
        barsMayBeCovered(handle_);
        postBarsToTop();
      }
      postFocusCheck();
      postStackingCheck();
      return 0;
    case WM_ACTIVATEAPP:
      // Sent to every top-level window of the thread, also if a message box of the form's, rather
      // than the form, was active.
      postStackingCheck();
      break;
    case WM_SETFOCUS:
      giveFocusBack();
      postFocusCheck();
      return 0;
    case WM_KILLFOCUS:
      postFocusCheck();
      return 0;
    case WM_MOUSEACTIVATE:
      // The press is dropped: a control that got it would take the focus, and SetFocus activates.
      if (design_.neverActive) return MA_NOACTIVATEANDEAT;
      break;
    case WM_WINDOWPOSCHANGING:
      limitSize(*reinterpret_cast<WINDOWPOS*>(lParam));
      adjustPlacement(handle_, *reinterpret_cast<WINDOWPOS*>(lParam));
      break;
    case WM_WINDOWPOSCHANGED:
      if (!isMinimised()) {
        RECT rect{};
        GetWindowRect(handle_, &rect);
        place_ = {rect.left, rect.top, rect.right, rect.bottom};
      }
      if (design_.floating && (reinterpret_cast<WINDOWPOS*>(lParam)->flags & SWP_NOZORDER) == 0) {
        raiseWhatIsAbove(handle_);
      }
      // Not for word capture's windows, which come and go ten times a second.
      if (!design_.neverActive) postStackingCheck();
      break;
    case WM_GETMINMAXINFO:
      limitTracking(*reinterpret_cast<MINMAXINFO*>(lParam));
      return 0;
    case WM_SIZING:
      if (correctSizing(wParam, *reinterpret_cast<RECT*>(lParam))) return TRUE;
      break;
    case WM_DPICHANGED:
      // moveTo() may have taken the monitor's DPI already, while the form was hidden.
      if (HIWORD(wParam) == monitorDpi_) return 0;
      rescale(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return 0;
    case WM_GETDPISCALEDSIZE:
      return scaleSize(static_cast<int>(wParam), *reinterpret_cast<SIZE*>(lParam)) ? TRUE : FALSE;
    case WM_DISPLAYCHANGE:
      comeBackOnScreen();
      break;
    case WM_SYSCOLORCHANGE:
      // The system sends it to top-level windows alone, and the common controls need it.
      for (const Widget* widget : widgets())
        SendMessageW(widget->handle(), message, wParam, lParam);
      takeSystemLook();
      return 0;
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      takeSystemLook();
      break;
    case WM_SETCURSOR:
      if (mousePointer_ != nullptr && LOWORD(lParam) == HTCLIENT) {
        SetCursor(mousePointer_);
        return TRUE;
      }
      // From a control, which asks its form first: without a shape of the form's it sets its own.
      if (reinterpret_cast<HWND>(wParam) != handle_) return FALSE;
      break;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
      barsMayBeCovered(handle_);
      passToGrabber(message, wParam, lParam);
      return 0;
    case WM_MOUSEMOVE:
      if (passToGrabber(message, wParam, lParam)) return 0;
      onMouseMove.raise({toTwips(GET_X_LPARAM(lParam), dpi_), toTwips(GET_Y_LPARAM(lParam), dpi_)});
      return 0;
    case WM_COMMAND:
      command(HIWORD(wParam), reinterpret_cast<HWND>(lParam), LOWORD(wParam));
      return 0;
    case WM_NOTIFY: {
      const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
      Widget* widget = widgetOf(header.hwndFrom);
      return widget == nullptr ? 0 : widget->notify(header);
    }
    case WM_SYSCOMMAND:
      if ((wParam & 0xFFF0) == SC_CLOSE && !design_.closable) return 0;
      break;
    case WM_CLOSE:
      if (design_.closable) unload();
      return 0;
    case WM_ENDSESSION:
      // The process may end as soon as this returns: what Form_Unload keeps is written now.
      if (wParam != FALSE) endSession();
      return 0;
    default:
      break;
  }
  return DefWindowProcW(handle_, message, wParam, lParam);
}

// The message comes to each of our windows; the handler, which ends the program, needs one.
void Form::endSession() {
  if (sessionEndHandler() != nullptr) {
    sessionEndHandler()();
  } else {
    unload();
  }
}

// Controls send their notifications from their own message handling, before the message loop has
// raised the focus events that are due: those come first.
void Form::command(WORD code, HWND control, WORD id) const {
  raisePendingFocusEvents();
  if (Widget* widget = widgetOf(control)) {
    widget->command(code);
    return;
  }
  // IsDialogMessage turns Enter and Esc into these two commands.
  if (id == IDOK) onEnter.raise();
  if (id == IDCANCEL) onEscape.raise();
}

bool Form::passToGrabber(UINT message, WPARAM wParam, LPARAM lParam) const {
  POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  ClientToScreen(handle_, &point);
  Widget* grabber = grabberAt(point);
  if (grabber == nullptr) return false;
  ScreenToClient(grabber->handle(), &point);
  SendMessageW(grabber->handle(), message, wParam, MAKELPARAM(point.x, point.y));
  return true;
}

void Form::paint() {
  PAINTSTRUCT paint;
  BeginPaint(handle_, &paint);
  EndPaint(handle_, &paint);
  raisePaint();
}

void Form::resized() {
  if (isMinimised()) return;
  // Windows sends WM_SIZE to a new window once more when it is shown.
  RECT client{};
  GetClientRect(handle_, &client);
  const SIZE before = std::exchange(resizedFor_, {client.right, client.bottom});
  if (before.cx == client.right && before.cy == client.bottom) return;
  takeClientSize();
  guard([this] { Form_Resize(); });
}

void Form::giveFocusBack() {
  if (isMinimised()) return;
  const bool usable = IsChild(handle_, lastFocus_) != FALSE &&
                      IsWindowVisible(lastFocus_) != FALSE && IsWindowEnabled(lastFocus_) != FALSE;
  HWND target = usable ? lastFocus_ : GetNextDlgTabItem(handle_, nullptr, FALSE);
  if (target != nullptr) SetFocus(target);
}

// After a monitor was taken away, or its resolution changed. It is documented nowhere that the
// system moves every window back, and a form without a title bar cannot be moved by the keyboard.
// The strip of word capture, which is never active, may lie outside.
void Form::comeBackOnScreen() {
  if (design_.neverActive || IsWindowVisible(handle_) == FALSE || isMinimised() ||
      MonitorFromWindow(handle_, MONITOR_DEFAULTTONULL) != nullptr) {
    return;
  }
  const RECT work = win32::monitorOf(handle_).work;
  const PixelBox before = place();
  moveTo(work.left, work.top);
  setPlace(centred(place(), before, {work.left, work.top, work.right, work.bottom}));
}

// The system asks which size the form will have at `monitorDpi`. That is what WM_DPICHANGED then
// suggests. It gives the size that the window is getting, which is not always the one that it has:
// WM_GETDPISCALEDSIZE names a SetWindowPos, such as one that fills half of a monitor. Returns false
// where the system is to scale the size itself.
bool Form::scaleSize(int monitorDpi, SIZE& size) {
  scaledSize_ = {-1, -1};
  if (IsZoomed(handle_) != FALSE) return false;
  if (isMinimised() || (size.cx == place_.width() && size.cy == place_.height())) {
    size = sizeAt(monitorDpi);
    return true;
  }
  const SIZE before = frameAt(monitorDpi_);
  const SIZE after = frameAt(monitorDpi);
  const int dpi = layoutDpiAt(monitorDpi, textScale(windowMetrics(monitorDpi), monitorDpi));
  size = {scaledOuter(size.cx, before.cx, after.cx, dpi_, dpi),
          scaledOuter(size.cy, before.cy, after.cy, dpi_, dpi)};
  scaledSize_ = size;
  return true;
}

// A maximised window takes the rectangle that Windows suggests, and so does one that was getting
// another size; any other keeps its size in twips, and its place is the suggested one, so that it
// does not leap between two monitors while it is dragged.
void Form::rescale(int monitorDpi, const RECT& suggested) {
  takeDpi(monitorDpi);
  resizedFor_ = {-1, -1};
  showIcons();
  setToolTipFont();
  for (Widget* widget : widgets()) widget->rescale();
  if (isMinimised()) {
    restoreSize();
    return;
  }
  const SIZE size{suggested.right - suggested.left, suggested.bottom - suggested.top};
  const SIZE scaled = std::exchange(scaledSize_, {-1, -1});
  const bool takesSize =
      IsZoomed(handle_) != FALSE || (size.cx == scaled.cx && size.cy == scaled.cy);
  const SIZE outer = takesSize ? size : outerPixels(width_, height_);
  SetWindowPos(handle_, nullptr, suggested.left, suggested.top, outer.cx, outer.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

// Gives a minimised form the size to which it is restored.
void Form::restoreSize() {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  GetWindowPlacement(handle_, &placement);
  RECT& restored = placement.rcNormalPosition;
  const SIZE size = outerPixels(width_, height_);
  restored.right = restored.left + size.cx;
  restored.bottom = restored.top + size.cy;
  placement.showCmd = SW_SHOWMINNOACTIVE;
  SetWindowPlacement(handle_, &placement);
}

SIZE Form::sizeAt(int monitorDpi) const {
  const double scale = textScale(windowMetrics(monitorDpi), monitorDpi);
  return outerPixels(width_, height_, layoutDpiAt(monitorDpi, scale), monitorDpi);
}

// After any change of a setting: which one it was is told in too many ways. Colours are read again
// at once. Fonts and frames only if they are others: then as for a new DPI, at the place that the
// window has, or nearest to it where it would leave its monitor.
void Form::takeSystemLook() {
  for (Widget* widget : widgets()) widget->recolor();
  const NONCLIENTMETRICSW now = windowMetrics(monitorDpi_);
  if (std::memcmp(&now, &metrics_, sizeof now) == 0) return;
  const PixelBox before = place();
  rescale(monitorDpi_, {before.left, before.top, before.right, before.bottom});
  if (design_.growsWithTexts && !isMinimised() && IsZoomed(handle_) == FALSE) {
    const RECT work = win32::monitorOf(handle_).work;
    setPlace(centred(place(), place(), {work.left, work.top, work.right, work.bottom}));
  }
}

}  // namespace forms
