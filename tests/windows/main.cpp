#include <gtest/gtest.h>
#include <windows.h>

#include "forms/exception_barrier.h"
#include "forms/loaded_forms.h"
#include "forms/message_box.h"
#include "tests/support/wait.h"
#include "tests/support/window/dictionary.h"
#include "tests/support/window/started_browser.h"

namespace {

/// Waits as the program's own message loop does.
void handleMessages(DWORD milliseconds) {
  if (milliseconds > 0) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds, QS_ALLINPUT);
  }
  forms::doEvents();
}

}  // namespace

/// The windows' own tests. Started with a page on its command line, the program stands in for the
/// browser.
int main(int argc, char** argv) {
  if (support::recordedPage()) return 0;
  ::testing::InitGoogleTest(&argc, argv);
  support::setWaitStep(handleMessages);
  forms::setErrorHandler(forms::showErrorBox);
  support::writeDictionary();
  return RUN_ALL_TESTS();
}
