#pragma once

#include <span>
#include <string>
#include <string_view>

/// The commands of the program, once for the toolbar's buttons and the menu's items, and the
/// browser that some of them start. User-interface thread only.
namespace app {

struct Command {
  std::u16string_view caption;  ///< of the menu's item
  std::u16string_view toolTip;  ///< of the toolbar's button; empty if it sets its own or has none
  int icon = 0;                 ///< resource number of the button's picture; 0 for no button
  /// Runs the command; throws what opening the window or the browser throws. Null where the
  /// window that offers the command carries it out itself.
  void (*run)() = nullptr;
};

extern const Command kMultiQuery;    ///< opens frmMain
extern const Command kQuickLookup;   ///< opens frmSub
extern const Command kCapture;       ///< switches word capture on or off; run by frmTop itself
extern const Command kDictSettings;  ///< opens frmdictSetting
extern const Command kHelp;          ///< opens the help page, or shows a message if that fails
extern const Command kAbout;         ///< opens frmAbout
extern const Command kHomePage;      ///< opens kHomePageAddress (frm_about.h) in the browser
extern const Command kExit;          ///< ends the program at once; unloads no form

/// The menu's items in their order; null is a separator.
std::span<const Command* const> menuCommands();

/// Returns the browser on the drive that `systemDirectory` lies on.
std::u16string browserPath(const std::u16string& systemDirectory);

/// Starts user::BrowserPath with `page` as its command line, shown normally. Deliberate: `page` is
/// passed on as it is, without quotes, blanks included. Throws std::runtime_error if the browser
/// cannot be started.
void openInBrowser(std::u16string_view page);

}  // namespace app
