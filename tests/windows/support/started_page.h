#pragma once

#include <string>

/// The test program as the browser that Lexilo starts: it writes down how it was started.
namespace wintest {

/// In the browser's role: writes the command line down and returns true where it names a page.
bool tookPage();

/// Makes this program the browser and forgets what was started before.
void useAsBrowser();

/// The command line of the browser that was started since then; "" where none was.
std::u16string startedCommandLine();

/// How that browser was asked to show its window (SW_SHOWNORMAL ...); 65535 where it was not.
int startedShow();

}  // namespace wintest
