#pragma once

#include <string>

/// The test program in the role of the browser that Lexilo starts: it records how it was started.
namespace support {

/// How a program was started to show a page, as it sees it itself.
struct StartedBrowser {
  std::u16string program;  ///< its file
  std::u16string name;     ///< what it takes for its own name, the first argument
  std::u16string page;     ///< the rest of its command line
  int show = 0;            ///< SW_SHOWNORMAL ...; -1 where it was not told
};

/// Records how this process was started and returns true if its command line names a page: it was
/// started as the browser.
bool recordedPage();

/// Makes a copy of this program the browser, in a folder whose name has a blank, and forgets what
/// was started before. Another copy lies where the browser's path ends at that blank, for whoever
/// starts the wrong one.
void useAsBrowser();

/// Waits for the browser that is started since then; a test without one fails, and all is empty.
StartedBrowser waitForBrowser();

}  // namespace support
