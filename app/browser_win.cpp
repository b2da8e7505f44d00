#include "app/browser.h"

#include "app/state.h"
#include "forms/message_box.h"
#include "win32/program.h"

namespace app {

std::u16string browserPath(const std::u16string& systemDirectory) {
  return systemDirectory.substr(0, 1) + u":\\Program Files\\Internet Explorer\\IEXPLORE.EXE";
}

void openInBrowser(std::u16string_view page) { win32::startProgram(user::BrowserPath, page); }

void showHelp() {
  try {
    openInBrowser(win32::applicationFolder() + u"\\help\\help.htm");
  } catch (const std::exception&) {
    forms::showMessage(u"未找到帮助文件！", forms::MessageIcon::kCritical);
  }
}

}  // namespace app
