#pragma once

#include "forms/form.h"
#include "forms/popup_menu.h"

/// Owner of the toolbar's popup menu; never shown itself.
class frmMenu : public forms::Form {
 public:
  frmMenu();

  forms::PopupMenu mnu_file{u"file"};

  /// The item mnuMouse (鼠标取词) was chosen: the toolbar, which shows the state, switches capture.
  forms::Event<> onMouse;

  /// Drops the menu down with its top left corner at a screen point and runs the chosen command;
  /// `opener` is the button on `owner` that opened it (see PopupMenu::choose). While the menu is
  /// open this form counts as having the focus, which suspends capture.
  void popUp(const forms::Form& owner, POINT screen, const forms::Widget& opener);

  /// Sets the check mark of mnuMouse.
  void checkMouse(bool checked);

 private:
  void Form_GotFocus();
  void Form_LostFocus() override;

  std::size_t mnuMouse_ = 0;  // its index in mnu_file
};
