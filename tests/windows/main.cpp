#include <gtest/gtest.h>
#include <windows.h>

#include "forms/exception_barrier.h"
#include "forms/message_box.h"
#include "tests/windows/support/dictionary.h"
#include "tests/windows/support/started_page.h"

/// The windows' own tests. Started with a page on its command line, the program stands in for the
/// browser.
int main(int argc, char** argv) {
  if (wintest::tookPage()) return 0;
  ::testing::InitGoogleTest(&argc, argv);
  forms::setErrorHandler(forms::showErrorBox);
  wintest::writeDictionary();
  return RUN_ALL_TESTS();
}
