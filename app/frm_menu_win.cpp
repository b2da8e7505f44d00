#include "app/frm_menu.h"

#include "app/browser.h"
#include "app/frm_about.h"
#include "app/frm_top.h"
#include "app/state.h"
#include "capture/screen_word.h"
#include "forms/loaded_forms.h"
#include "lookup/frm_sub.h"
#include "query/frm_dict_setting.h"
#include "query/frm_main.h"
#include "win32/program.h"

namespace {

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmMenu";
  design.frame = forms::Frame::kBorderless;
  design.neverActive = true;
  return design;
}

}  // namespace

frmMenu::frmMenu() : Form(design()) {
  mnu_file.add(u"多功能查询", [this] { mnu_dgn_Click(); });
  mnu_file.add(u"快速查询", [this] { mnu_kscx_Click(); });
  mnuMouse_ = mnu_file.add(u"鼠标取词", [this] { mnuMouse_Click(); });
  mnu_file.add(u"-");
  mnu_file.add(u"字典设置", [this] { mnu_zdsz_Click(); });
  mnu_file.add(u"-");
  mnu_file.add(u"帮助", [this] { mnu_help_Click(); });
  mnu_file.add(u"关于", [this] { mnu_about_Click(); });
  mnu_file.add(u"访问我们的网站", [this] { mnu_fwwz_Click(); });
  mnu_file.add(u"-");
  mnu_file.add(u"退出", [this] { mnu_exit_Click(); });
  checkMouse(true);
}

void frmMenu::popUp(const forms::Form& owner, POINT screen, const forms::Widget& opener) {
  Form_GotFocus();
  const forms::PopupMenu::Item* chosen = mnu_file.choose(owner, screen, &opener);
  Form_LostFocus();
  if (chosen != nullptr && chosen->onClick) chosen->onClick();
}

void frmMenu::checkMouse(bool checked) { mnu_file.item(mnuMouse_).checked = checked; }

void frmMenu::Form_GotFocus() { ScreenWord::StopCapture(); }

void frmMenu::Form_LostFocus() { ScreenWord::StartCapture(); }

void frmMenu::mnu_dgn_Click() {
  forms::form<frmMain>().show();
  user::MainOpen = true;
}

void frmMenu::mnu_kscx_Click() { forms::form<frmSub>().show(); }

void frmMenu::mnuMouse_Click() { forms::form<frmTop>().cmdMouse_Click(); }

void frmMenu::mnu_zdsz_Click() { forms::form<frmdictSetting>().show(); }

void frmMenu::mnu_help_Click() { app::showHelp(); }

void frmMenu::mnu_about_Click() { forms::form<frmAbout>().show(); }

void frmMenu::mnu_fwwz_Click() { app::openInBrowser(app::kHomePage); }

void frmMenu::mnu_exit_Click() { win32::endProgram(); }
