#include "capture/frm_screen_word.h"

#include "app/state.h"

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

/// Twips left of and above every desktop: the host is shown for a moment at start-up.
constexpr int kOffDesktop = -10000;

}  // namespace

frmScreenWord::frmScreenWord() : Form(design()) { setPosition(kOffDesktop, kOffDesktop); }

void frmScreenWord::Form_Load() { Adodc1.setConnectionString(user::ConnectionString); }
