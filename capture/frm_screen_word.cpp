#include "capture/frm_screen_word.h"

#include "app/state.h"
#include "forms/geometry.h"

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

}  // namespace

frmScreenWord::frmScreenWord() : Form(design()) {
  // The host is shown for a moment at start-up: left of and above all monitors.
  const int left = forms::toTwips(GetSystemMetrics(SM_XVIRTUALSCREEN), dpi());
  const int top = forms::toTwips(GetSystemMetrics(SM_YVIRTUALSCREEN), dpi());
  setPosition(left - width(), top - height());
}

void frmScreenWord::Form_Load() { Adodc1.setConnectionString(user::ConnectionString); }
