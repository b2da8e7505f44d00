#include "query/frm_spc.h"

#include "capture/screen_word.h"
#include "forms/message_box.h"
#include "text/strings.h"

namespace {

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmSpc";
  design.caption = u"特殊查询";
  design.frame = forms::Frame::kDialog;
  design.growsWithTexts = true;
  design.width = 4140;
  design.height = 2175;
  design.iconResource = forms::kProgramIcon;
  return design;
}

}  // namespace

frmSpc::frmSpc() : Form(design()) {
  txtE.setFont(query::inputFont());
  txtC.setFont(query::inputFont());
  cmdOK.onClick = [this] { cmdOK_Click(); };
  cmdCancel.onClick = [this] { cmdCancel_Click(); };
  onEnter = [this] { cmdOK_Click(); };
  onEscape = [this] { cmdCancel_Click(); };
}

// Activation comes with every return to the dialog, so capture is off again after the user was in
// another window.
void frmSpc::Form_Activate() { ScreenWord::StopCapture(); }

void frmSpc::Form_Unload() { ScreenWord::StartCapture(); }

void frmSpc::cmdOK_Click() {
  // Blanks alone count as empty, unlike in frmMain's input box.
  std::u16string e(text::trimBlanks(txtE.text()));
  std::u16string c(text::trimBlanks(txtC.text()));
  if (e.empty() || c.empty()) {
    forms::showMessage(u"请在英文和中文的文本框里输入内容！", forms::MessageIcon::kExclamation);
    return;
  }
  // Deliberate: errors are not caught here, unlike those of frmMain's own searches. They reach the
  // handler of uncaught errors, and the dialog stays open with both texts.
  search(e, c);
  unload();
}

void frmSpc::cmdCancel_Click() { unload(); }
