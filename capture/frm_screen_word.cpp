#include "capture/frm_screen_word.h"

#include "app/state.h"
#include "capture/frm_screen_word_meaning.h"
#include "capture/nhw32/nhw32.h"
#include "capture/probe_rules.h"
#include "capture/screen_word.h"
#include "forms/geometry.h"
#include "forms/registry.h"

namespace {

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmScreenWord";
  design.caption = u"Form2";
  design.frame = forms::Frame::borderless;
  design.width = 2940;
  design.height = 1695;
  design.neverActive = true;
  design.background = COLOR_HIGHLIGHT;
  return design;
}

LONG_PTR setProcedure(HWND window, WNDPROC procedure) {
  return SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

}  // namespace

frmScreenWord::frmScreenWord() : Form(design()) {
  timScreenWord1.onTimer = [this] { timScreenWord1_Timer(); };
  Timer1.onTimer = [this] { Timer1_Timer(); };
  // The host is shown for a moment at start-up: left of and above all monitors.
  const int left = forms::toTwips(GetSystemMetrics(SM_XVIRTUALSCREEN), dpi());
  const int top = forms::toTwips(GetSystemMetrics(SM_YVIRTUALSCREEN), dpi());
  setPosition(left - width(), top - height());
}

void frmScreenWord::Form_Load() {
  Adodc1.setConnectionString(user::ConnectionString);
  ScreenWord::hScreenWordWnd = handle();
  ScreenWord::MsgHasString = RegisterWindowMessageA(nhw32::kMessageName);
  ScreenWord::OldWndProc =
      reinterpret_cast<WNDPROC>(setProcedure(handle(), ScreenWord::WindowProc));
  nhw32::SetNHW32();
}

void frmScreenWord::Form_Unload() {
  timScreenWord1.setEnabled(false);
  nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0);
  setProcedure(handle(), ScreenWord::OldWndProc);
  nhw32::ResetNHW32();
}

void frmScreenWord::timScreenWord1_Timer() {
  if (handingOver_) return;
  try {
    catchWord();
  } catch (const std::exception&) {
    // A probe that fails ends silently; the next one comes in a moment.
  }
  nhw32::SetNHW32();
  ScreenWord::strScreenWord.clear();
}

void frmScreenWord::catchWord() {
  POINT pointer{};
  GetCursorPos(&pointer);
  ScreenWord::CatchWordAt(pointer);
  timScreenWord2.setEnabled(false);
}

void frmScreenWord::Timer1_Timer() {
  // The popup handles events while it opens, further ticks among them.
  if (handingOver_ || !capture::opensPopup(ScreenWord::strScreenWord)) return;
  handingOver_ = true;
  try {
    handOver(ScreenWord::GetFirstWord(ScreenWord::strScreenWord));
  } catch (const std::exception&) {
    // No popup then, and nothing to trouble the user with in the middle of other work.
  }
  ScreenWord::strScreenWord.clear();
  // A popup that the pointer left while it was opening has closed already, and capture goes on.
  if (forms::isLoaded<frmScreenWordMeaning>()) ScreenWord::StopCapture();
  handingOver_ = false;
}

void frmScreenWord::handOver(std::u16string word) {
  auto& popup = forms::single<frmScreenWordMeaning>();
  if (forms::isLoaded<frmScreenWordMeaning>()) popup.showMeaning(word, popup.Adodc1);
}
