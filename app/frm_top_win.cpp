#include "app/frm_top.h"

#include "app/frm_menu.h"
#include "app/state.h"
#include "capture/frm_screen_word.h"
#include "capture/screen_word.h"
#include "data/headword_lookup.h"
#include "forms/geometry.h"
#include "forms/loaded_forms.h"
#include "forms/message_box.h"
#include "settings/settings_file.h"
#include "win32/monitor.h"
#include "win32/program.h"

namespace {

constexpr int kDesignHeight = 375;

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmTop";
  design.caption = u"Lexilo";
  design.frame = forms::Frame::kBorderless;
  design.width = 2325;
  design.height = kDesignHeight;
  design.topmost = true;
  design.closable = false;
  design.iconResource = forms::kProgramIcon;
  return design;
}

}  // namespace

frmTop::frmTop() : Form(design()) {
  cmdMouseYes.setVisible(false);
  cmdMouseNot.setVisible(false);
  cmdMain.setToolTip(std::u16string(app::kQuickLookup.toolTip));
  cmdSub.setToolTip(std::u16string(app::kMultiQuery.toolTip));
  cmdDictSetting.setToolTip(std::u16string(app::kDictSettings.toolTip));
  cmdHelp.setToolTip(std::u16string(app::kHelp.toolTip));
  Command1.setToolTip(u"菜单");
  cmdMain.onClick = [this] { cmdMain_Click(); };
  cmdSub.onClick = [this] { cmdSub_Click(); };
  cmdDictSetting.onClick = [this] { cmdDictSetting_Click(); };
  cmdMouse.onClick = [this] { cmdMouse_Click(); };
  cmdHelp.onClick = [this] { cmdHelp_Click(); };
  Command1.onClick = [this] { Command1_Click(); };
  Timer1.onTimer = [this] { Timer1_Timer(); };
  Image1.onMouseMove = [this](forms::TwipPoint) { Image1_MouseMove(); };
  Image1.onMouseDown = [this](forms::TwipPoint) { Image1_MouseDown(); };
  Image1.onMouseUp = [this](forms::TwipPoint) { Image1_MouseUp(); };
  Image1.onCaptureLost = [this] {
    if (IsDragging) Image1_MouseUp();
  };
}

// A second instance ends at once. Anything that fails on the way is shown in a box, and the steps
// after it are skipped; the program goes on with what it has.
void frmTop::Form_Load() {
  if (!win32::claimOnlyInstance(L"Local\\Lexilo.Instance")) win32::endProgram();
  IdxPending = true;
  try {
    start();
  } catch (...) {
    forms::showMessage(forms::describe(std::current_exception()), forms::MessageIcon::kNone,
                       u"Lexilo");
  }
}

void frmTop::start() {
  cmdMouse.setPicture(cmdMouseNot.picture());
  placeAtTopRight();
  user::MainOpen = false;
  Timer1.setInterval(10);
  Timer1.setEnabled(true);
  TopHeight = kDesignHeight;
  // Deliberate: the size that the form has already, here and once more below.
  setSize(width(), TopHeight);
  setForeColor(RGB(0, 0, 255));
  Get_Windows_Rect();
  setSize(width(), TopHeight);
  user::ConnectionString = data::connectionString(win32::applicationFolder() + u"\\kk.dat");
  Adodc1.setConnectionString(user::ConnectionString);
  Adodc2.setConnectionString(user::ConnectionString);
  show();
  user::BrowserPath = app::browserPath(user::systemDirectory());
  cmdMouse.setPicture(cmdMouseYes.picture());
  cmdMouse.setToolTip(u"允许鼠标取词");
  auto& host = forms::form<frmScreenWord>();
  // Deliberate: shown twice, before and after its timers start.
  host.show();
  ScreenWord::StartCapture();
  host.show();
  host.hide();
}

void frmTop::placeAtTopRight() {
  const win32::Monitor monitor = win32::monitorOf(handle());
  const int screenWidth = forms::toTwips(monitor.bounds.right - monitor.bounds.left, monitor.dpi);
  // 1300 twips from the right edge, and as far below the top as it is high.
  setPosition(screenWidth - width() - 1300, height());
}

void frmTop::Form_Paint() { bringToTop(); }

// A drag moves the window with the size in WindowRect, which a change of the DPI changes.
void frmTop::Form_Resize() { Get_Windows_Rect(); }

LRESULT frmTop::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT result = Form::handleMessage(message, wParam, lParam);
  // It may have been moved back onto a monitor; a drag starts from the rectangle that is stored.
  if (message == WM_DISPLAYCHANGE && !IsDragging) Get_Windows_Rect();
  return result;
}

void frmTop::Form_LostFocus() {
  disableTimer1();
  // Deliberate: whatever the button shows. Capture that was switched off runs again.
  ScreenWord::StartCapture();
}

// Deliberate: cmdMain opens the quick lookup window frmSub, and cmdSub opens frmMain.
void frmTop::cmdMain_Click() { app::kQuickLookup.run(); }

void frmTop::cmdSub_Click() { app::kMultiQuery.run(); }

void frmTop::cmdDictSetting_Click() { app::kDictSettings.run(); }

void frmTop::cmdHelp_Click() { app::kHelp.run(); }

// 30 twips above the toolbar's lower edge.
void frmTop::Command1_Click() {
  POINT corner{0, forms::toPixels(TopHeight - 30, dpi())};
  ClientToScreen(handle(), &corner);
  auto& menu = forms::form<frmMenu>();
  menu.onMouse = [this] { cmdMouse_Click(); };
  menu.popUp(*this, corner, Command1);
}

void frmTop::cmdMouse_Click() {
  if (cmdMouse.picture() == cmdMouseYes.picture()) {
    showCapture(false);
    ScreenWord::StopCapture();
    forms::form<frmMenu>().checkMouse(false);
  } else {
    showCapture(true);
    ScreenWord::StartCapture();
    forms::form<frmMenu>().checkMouse(true);
  }
}

// Deliberate: the tool tip names the state, allowed or forbidden, not what a click does.
void frmTop::showCapture(bool on) {
  cmdMouse.setToolTip(on ? u"允许鼠标取词" : u"禁止鼠标取词");
  cmdMouse.setPicture(on ? cmdMouseYes.picture() : cmdMouseNot.picture());
}

// The position is stored at every move; a press uses the stored one.
void frmTop::Image1_MouseMove() {
  GetCursorPos(&CursorPos);
  if (!IsDragging) return;
  MoveWindow(handle(), forms::subtract(CursorPos.x, DragOffsetX),
             forms::subtract(CursorPos.y, DragOffsetY), WindowRect.right - WindowRect.left,
             WindowRect.bottom - WindowRect.top, TRUE);
}

void frmTop::Image1_MouseDown() {
  Timer1.setEnabled(true);
  // Deliberate: only the timer arms a drag, after the first press. The first drag starts with no
  // offset, so that the toolbar jumps to the pointer.
  if (IsDragArmed) {
    DragOffsetX = forms::subtract(CursorPos.x, WindowRect.left);
    DragOffsetY = forms::subtract(CursorPos.y, WindowRect.top);
  }
  IsDragging = true;
}

void frmTop::Image1_MouseUp() {
  Get_Windows_Rect();
  IsDragging = false;
  disableTimer1();
}

// The first tick, which reads the index, is not to be lost: the timer's message comes after all
// input that is waiting. An error of it is the tick's own.
void frmTop::disableTimer1() {
  if (IdxPending) Timer1.onTimer.raise();
  Timer1.setEnabled(false);
}

// The toolbar's rectangle in screen pixels, for drags.
void frmTop::Get_Windows_Rect() { GetWindowRect(handle(), &WindowRect); }

// The first tick reads the headword index, once the toolbar is on the screen; a failure is not
// repeated. While the mouse button is down on the grip, a tick arms the drag's offset for the next
// press.
void frmTop::Timer1_Timer() {
  IsDragArmed = IsDragging;
  if (!IdxPending) return;
  IdxPending = false;
  GetIdx();
  Timer1.setEnabled(false);
}

void frmTop::GetIdx() {
  RunQuery(Adodc1, data::kIndexQuery);
  user::IdxWords = data::readIndexWords(Adodc1.recordset());
  // This control reads nothing else; its rows and its connection are freed.
  Adodc1.close();
}

void frmTop::RunQuery(data::DataControl& control, std::u16string_view sql) {
  control.setRecordSource(sql);
  control.refresh();
}
