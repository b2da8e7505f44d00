#include "app/frm_menu.h"

#include "app/commands.h"
#include "capture/screen_word.h"

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
  for (const app::Command* command : app::menuCommands()) {
    if (command == nullptr) {
      mnu_file.add(u"-");
    } else if (command == &app::kCapture) {
      mnuMouse_ = mnu_file.add(std::u16string(command->caption), [this] { onMouse.raise(); });
    } else {
      mnu_file.add(std::u16string(command->caption), command->run);
    }
  }
  checkMouse(true);
}

// Dropping the menu down counts as this form's gaining focus, leaving it in whatever way as losing
// it, before the chosen command runs.
void frmMenu::popUp(const forms::Form& owner, POINT screen, const forms::Widget& opener) {
  Form_GotFocus();
  const forms::PopupMenu::Item* chosen = mnu_file.choose(owner, screen, &opener);
  Form_LostFocus();
  if (chosen != nullptr && chosen->onClick) chosen->onClick();
}

void frmMenu::checkMouse(bool checked) { mnu_file.item(mnuMouse_).checked = checked; }

void frmMenu::Form_GotFocus() { ScreenWord::StopCapture(); }

// Deliberate: capture runs again whatever the toolbar shows.
void frmMenu::Form_LostFocus() { ScreenWord::StartCapture(); }
