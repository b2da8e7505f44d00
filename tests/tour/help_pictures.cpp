// Takes the pictures of the help page from the real windows.
//
//   help_pictures.exe FOLDER
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <span>
#include <string>

#include "tests/support/process/controls.h"
#include "tests/support/process/dictionary_windows.h"
#include "tests/support/process/input.h"
#include "tests/support/process/meaning_popup.h"
#include "tests/support/process/popup_menu.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/settings.h"
#include "tests/support/process/system_programs.h"

namespace {

using namespace support;

class ScreenshotOnFailure {
 public:
  explicit ScreenshotOnFailure(std::string folder) : folder_(std::move(folder)) {}

  void takeAll() const {
    settings::clear();
    const Lexilo lexilo(AppFolder::withFullDictionary());
    lexilo.waitUntilSeen();
    // Nothing of the pointer or of a tool tip is to be seen.
    input::moveTo(kAwayFromTexts);
    take(rectOf(lexilo.toolbar()), "toolbar");
    takeMenu(lexilo);
    takeQuickLookup(lexilo);
    takeDictionaries(lexilo);
    takePopup(lexilo);
    lexilo.exit();
  }

 private:
  void takeMenu(const Lexilo& lexilo) const {
    take(rectOf(lexilo.dropMenu()), "menu");
    popup_menu::dismiss(lexilo.process());
  }

  void takeQuickLookup(const Lexilo& lexilo) const {
    const QuickLookup window = lexilo.openQuickLookupAtA();
    placeWindow(window.window(), {300, 200, 800, 560});
    window.lookUp(L"catalyst");
    input::moveTo(kAwayFromTexts);
    takeWindow(window.window(), "quick-lookup");
    window.close();
  }

  void takeDictionaries(const Lexilo& lexilo) const {
    const MultiQuery window(lexilo);
    placeWindow(window.window(), {200, 150, 960, 620});
    window.searchFor(L"hepat", L"确定", L"hepat");
    input::moveTo(kAwayFromTexts);
    takeWindow(window.window(), "multi-dictionary");
    {
      const SpecialQuery dialog(lexilo.process(), window);
      dialog.fill(L"heat", L"热");
      input::moveTo(kAwayFromTexts);
      takeWindow(dialog.window(), "special");
      dialog.cancel();
    }
    window.close();
    const DictionarySettings settings(lexilo);
    input::moveTo(kAwayFromTexts);
    takeWindow(settings.window(), "settings");
    settings.close();
  }

  void takePopup(const Lexilo& lexilo) const {
    const Notepad notepad;
    notepad.place({200, 200, 760, 420});
    notepad.setText(
        L"The enzyme is a catalyst: it makes the reaction faster\r\nand is not used up by it.");
    const MeaningPopup popup(lexilo.process());
    const POINT place = editPosition(notepad.edit(), 18);
    input::moveTo({place.x + 3, place.y + 6});
    (void)popup.waitFor(L"catalyst");
    passTime(kReactionTime);
    takeWindow(notepad.window(), "popup");
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }

  /// The window manager's frame is thinner than the one that the program knows of.
  void takeWindow(HWND window, const std::string& name) const {
    RECT rect = rectOf(window);
    InflateRect(&rect, -3, -3);
    take(rect, name);
  }

  void take(const RECT& rect, const std::string& name) const {
    const std::string file = folder_ + "/" + name + ".png";
    saveScreenshot(file, rect);
    std::printf("%s\n", file.c_str());
    std::fflush(stdout);
  }

  std::string folder_;
};

}  // namespace

int main(int argc, char** argv) {
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
  if (arguments.size() != 2) {
    std::puts("usage: help_pictures FOLDER");
    return EXIT_FAILURE;
  }
  try {
    ScreenshotOnFailure(arguments[1]).takeAll();
    return EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::printf("error: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
