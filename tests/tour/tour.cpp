// A short tour of Lexilo where nobody is watching: what a user would do first, with pictures of it.
//
//   tour.exe PICTURE_FOLDER
#include <windows.h>
#include <algorithm>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <span>
#include <string>

#include "tests/support/process/lexilo.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/text.h"

namespace {

using namespace support;

class Tour {
 public:
  explicit Tour(std::string pictures) : pictures_(std::move(pictures)) {}

  void play() {
    const Lexilo lexilo(AppFolder::withFullDictionary());
    try {
      visit(lexilo);
    } catch (const std::exception&) {
      saveScreenshot(pictures_ + "/stopped.png");
      throw;
    }
    const DWORD code = lexilo.exit();
    if (code != 0) throw Failure("Lexilo ended with code " + std::to_string(code));
    std::puts("The last item of the toolbar's menu ends the program.");
  }

 private:
  void visit(const Lexilo& lexilo) {
    lexilo.waitUntilSeen();
    show("The toolbar floats near the top right corner", "toolbar");

    const QuickLookup window = lexilo.openQuickLookupAtA();
    show("Its first button opens the quick lookup window", "open");

    window.lookUp(L"data");
    show("«data» is typed", "typed");

    // The list may be short: it ends with its block of rows.
    const int last = std::min(2, static_cast<int>(window.words().size()) - 1);
    const std::wstring chosen = window.words().at(static_cast<std::size_t>(last));
    window.clickWord(last);
    window.waitForHeadword(chosen);
    show("«" + utf8(chosen) + "» is chosen from the list", "chosen");

    window.lookUp(L"数据");
    show("«数据» is typed", "chinese");
    window.close();
  }

  void show(const std::string& what, const std::string& name) {
    const std::string file = pictures_ + "/" + std::to_string(++shown_) + "-" + name + ".png";
    saveScreenshot(file);
    std::printf("%s: %s\n", what.c_str(), file.c_str());
    std::fflush(stdout);
  }

  std::string pictures_;
  int shown_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
  if (arguments.size() != 2) {
    std::puts("usage: tour PICTURE_FOLDER");
    return EXIT_FAILURE;
  }
  const std::string pictures = arguments[1];
  try {
    Tour(pictures).play();
    return EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::printf("error: the tour stopped: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
