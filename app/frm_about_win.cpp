#include "app/frm_about.h"

#include "capture/screen_word.h"

namespace {

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmAbout";
  design.caption = u"关于";
  design.frame = forms::Frame::kFixed;
  design.growsWithTexts = true;
  design.width = 6360;
  design.height = 4965;
  design.iconResource = forms::kProgramIcon;
  return design;
}

}  // namespace

frmAbout::frmAbout() : Form(design()) {
  lblTitle.setFont({u"Microsoft YaHei", 15});
  cmdOK.onClick = [this] { cmdOK_Click(); };
  onEscape = [this] { cmdOK_Click(); };
}

void frmAbout::Form_Load() { centre(); }

void frmAbout::Form_Activate() { ScreenWord::StopCapture(); }

// Deliberate: capture runs again whatever the toolbar shows.
void frmAbout::Form_Unload() { ScreenWord::StartCapture(); }

void frmAbout::cmdOK_Click() { unload(); }
