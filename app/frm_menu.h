#pragma once

#include "forms/form.h"
#include "forms/popup_menu.h"

/// Owner of the toolbar's popup menu; never shown itself.
class frmMenu : public forms::Form {
 public:
  frmMenu();

  forms::PopupMenu mnu_file{u"file"};

  /// Drops the menu down at a screen point and runs the chosen item. While the menu is open this
  /// form counts as having the focus.
  void popUp(const forms::Form& owner, POINT screen, const forms::Widget& opener);

  /// The check mark of "鼠标取词".
  void checkMouse(bool checked);

 private:
  void Form_GotFocus();
  void Form_LostFocus() override;
  void mnu_dgn_Click();
  void mnu_kscx_Click();
  void mnuMouse_Click();
  void mnu_zdsz_Click();
  void mnu_help_Click();
  void mnu_about_Click();
  void mnu_fwwz_Click();
  void mnu_exit_Click();

  std::size_t mnuMouse_ = 0;
};
