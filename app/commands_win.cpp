#include "app/commands.h"

#include <array>

#include "app/frm_about.h"
#include "app/resources/resource_ids.h"
#include "app/state.h"
#include "forms/loaded_forms.h"
#include "forms/message_box.h"
#include "lookup/frm_sub.h"
#include "query/frm_dict_setting.h"
#include "query/frm_main.h"
#include "win32/program.h"

// The commands are constants, initialised before any code runs; opening a window creates it on the
// first reference.
namespace app {
namespace {

template <class F>
void show() {
  forms::form<F>().show();
}

// A window that was open already is shown with the focus where it was: the user, who asks for it,
// is about to type.
template <class F>
void showReadyToType() {
  show<F>();
  forms::form<F>().returnToBox();
}

void showMultiQuery() {
  showReadyToType<frmMain>();
  // Deliberate: also if frmMain was open already, which sets it itself when it is loaded.
  user::MainOpen = true;
}

void showHelp() {
  try {
    openInBrowser(win32::applicationFolder() + u"\\help\\help.htm");
  } catch (const std::exception&) {
    forms::showMessage(u"未找到帮助文件！", forms::MessageIcon::kCritical);
  }
}

// Deliberate: without a message of its own, unlike the help page; an error is an uncaught one.
void openHomePage() { openInBrowser(kHomePageAddress); }

constexpr const Command* kSeparator = nullptr;

}  // namespace

constinit const Command kMultiQuery{u"多功能查询", u"多功能查询", IDI_MULTI_QUERY, showMultiQuery};
constinit const Command kQuickLookup{u"快速查询", u"快速查询", IDI_QUICK_LOOKUP,
                                     showReadyToType<frmSub>};
constinit const Command kCapture{u"鼠标取词", {}, 0, nullptr};
// Deliberate: the menu and the tool tip call it by different names.
constinit const Command kDictSettings{u"字典设置", u"查询设置", IDI_DICT_SETTINGS,
                                      show<frmdictSetting>};
constinit const Command kHelp{u"帮助", u"帮助", IDI_HELP_PAGE, showHelp};
constinit const Command kAbout{u"关于", {}, 0, show<frmAbout>};
constinit const Command kHomePage{u"访问我们的网站", {}, 0, openHomePage};
// Deliberate: no form is unloaded and no connection closed first.
constinit const Command kExit{u"退出", {}, 0, win32::endProgram};

std::span<const Command* const> menuCommands() {
  static constexpr std::array<const Command*, 11> kMenu{
      &kMultiQuery, &kQuickLookup, &kCapture,  kSeparator, &kDictSettings, kSeparator,
      &kHelp,       &kAbout,       &kHomePage, kSeparator, &kExit};
  return kMenu;
}

std::u16string browserPath(const std::u16string& systemDirectory) {
  return systemDirectory.substr(0, 1) + u":\\Program Files\\Internet Explorer\\IEXPLORE.EXE";
}

void openInBrowser(std::u16string_view page) { win32::startProgram(user::BrowserPath, page); }

}  // namespace app
