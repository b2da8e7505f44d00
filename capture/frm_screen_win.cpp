#include "capture/frm_screen.h"

namespace {

constexpr COLORREF kBackColor = RGB(0, 0, 255);

/// Off the desktop, in twips.
constexpr int kFarAway = -10000;
constexpr int kAway = -1000;

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmScreen";
  design.caption = u"Form2";
  design.frame = forms::Frame::kBorderless;
  design.neverActive = true;
  return design;
}

}  // namespace

frmScreen::frmScreen() : Form(design()) {}

void frmScreen::Form_Load() { setPosition(kFarAway, kFarAway); }

void frmScreen::cover(const capture::Rectangle& place) {
  SetWindowPos(handle(), HWND_TOPMOST, place.left, place.top, place.width, place.height,
               SWP_SHOWWINDOW);
}

void frmScreen::uncover() {
  setPosition(kAway, kAway);
  // Above or left of the first monitor there may be another.
  RECT place{};
  GetWindowRect(handle(), &place);
  if (MonitorFromRect(&place, MONITOR_DEFAULTTONULL) != nullptr) hide();
}

LRESULT frmScreen::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND: {
      HDC context = reinterpret_cast<HDC>(wParam);
      RECT client{};
      GetClientRect(handle(), &client);
      SetDCBrushColor(context, kBackColor);
      FillRect(context, &client, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
      return TRUE;
    }
    case WM_DPICHANGED:
      // It has the size of the window that it covers, whatever the resolution.
      return 0;
    default:
      return Form::handleMessage(message, wParam, lParam);
  }
}
