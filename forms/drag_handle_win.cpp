#include "forms/drag_handle.h"

#include "forms/geometry.h"
#include "forms/placement.h"

// STATIC draws nothing here: WM_PAINT is handled, and a new text, which STATIC draws at once and
// without WM_PAINT, is set while drawing is switched off by WM_SETREDRAW. Every button captures the
// mouse while it is down, so that the release comes here wherever the pointer is;
// WM_CAPTURECHANGED, also from another window that takes the mouse, ends the drag.
namespace forms {
namespace {

POINT screenPoint(HWND window, LPARAM lParam) {
  POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  ClientToScreen(window, &point);
  return point;
}

/// Columns of dots, as the handle of a tool bar has.
void drawGrip(HDC dc, const RECT& client, COLORREF color, int dpi) {
  const int step = std::max(toPixels(45, dpi), 3);
  const int dot = std::max(toPixels(15, dpi), 1);
  for (int y = step; y + step < client.bottom; y += step) {
    for (int x = step; x + dot < client.right; x += step) {
      const RECT spot{x, y, x + dot, y + dot};
      SetDCBrushColor(dc, color);
      FillRect(dc, &spot, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    }
  }
}

}  // namespace

DragHandle::DragHandle(WidgetHost& form, Look look, const WidgetBox& box)
    : Widget(form, {L"STATIC", SS_NOTIFY | WS_CLIPSIBLINGS, 0}, box), look_(look) {}

LRESULT DragHandle::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // The second of two quick drags begins with a double click.
  if (message == WM_LBUTTONDBLCLK) message = WM_LBUTTONDOWN;
  if (message == WM_RBUTTONDBLCLK) message = WM_RBUTTONDOWN;
  if (message == WM_MBUTTONDBLCLK) message = WM_MBUTTONDOWN;
  switch (message) {
    case WM_PAINT:
      paint();
      return 0;
    case WM_SETTEXT: {
      const ScopedRepaintHold hold(*this);
      return Widget::handleMessage(message, wParam, lParam);
    }
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
      SetCapture(handle());
      break;
    case WM_MOUSEMOVE:
      if (dragged_) follow(screenPoint(handle(), lParam));
      break;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP: {
      const POINT screen = screenPoint(handle(), lParam);
      const LRESULT result = Widget::handleMessage(message, wParam, lParam);
      if (dragged_) drop(screen);
      if (GetCapture() == handle()) ReleaseCapture();
      return result;
    }
    case WM_CAPTURECHANGED:
      cancelDrag();
      onCaptureLost.raise();
      break;
    default:
      break;
  }
  return Widget::handleMessage(message, wParam, lParam);
}

bool DragHandle::grabs(POINT screen) const {
  if (grabMargin_ == 0 || dragged_ || !IsWindowVisible(handle())) return false;
  RECT rect{};
  GetWindowRect(handle(), &rect);
  InflateRect(&rect, toPixels(grabMargin_, form().dpi()), 0);
  return PtInRect(&rect, screen) != FALSE;
}

void DragHandle::paint() const {
  PAINTSTRUCT paint;
  HDC dc = BeginPaint(handle(), &paint);
  RECT client{};
  GetClientRect(handle(), &client);
  FillRect(dc, &client, GetSysColorBrush(dragged_ ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
  if (look_ == Look::kGrip) drawGrip(dc, client, form().foreColor(), form().dpi());
  EndPaint(handle(), &paint);
  form().raisePaint();
}

void DragHandle::beginDrag() {
  dragged_ = true;
  // The place of the press (of the message that is handled), not of the pointer by now.
  const DWORD pressed = GetMessagePos();
  dragStart_ = {GET_X_LPARAM(pressed), GET_Y_LPARAM(pressed)};
  RECT rect{};
  GetWindowRect(handle(), &rect);
  besideLine_ = distanceOutside(dragStart_.x, rect.left, rect.right);
  SetWindowPos(handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  InvalidateRect(handle(), nullptr, FALSE);
}

void DragHandle::cancelDrag() {
  if (!std::exchange(dragged_, false)) return;
  InvalidateRect(handle(), nullptr, FALSE);
  onDragEnded.raise();
}

// The left edge follows the pointer, without the offset of a press on the widget; y stays.
void DragHandle::follow(POINT screen) {
  screen.x -= besideLine_;
  ScreenToClient(form().handle(), &screen);
  SetWindowPos(handle(), nullptr, screen.x, toPixels(top(), form().dpi()), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DragHandle::drop(POINT screen) {
  // A press without a move is no drag, even one in the margin beside the line.
  const bool moved = screen.x != dragStart_.x || screen.y != dragStart_.y;
  screen.x -= besideLine_;
  Widget* target = moved ? form().widgetAt(screen, this) : nullptr;
  if (target != nullptr) {
    RECT rect{};
    GetWindowRect(target->handle(), &rect);
    target->onDragDrop.raise(*this, {toTwips(screen.x - rect.left, form().dpi()),
                                     toTwips(screen.y - rect.top, form().dpi())});
  }
  cancelDrag();
}

}  // namespace forms
