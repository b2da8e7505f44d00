#include <gtest/gtest.h>

#include "tests/support/window/hooked_text_window.h"
#include "tests/support/window/text_geometry.h"

namespace support {
namespace {

/// How many pixel columns the "m" of "aim" takes where a blank follows, and in how many it is read
/// where it is the text's last letter.
void compareLastLetters(const HookedTextWindow::Design& design) {
  const HookedTextWindow longer(design, u"aim x");
  const auto cell = characterCell(longer.control(), 2);
  const HookedTextWindow target(design, u"aim");
  EXPECT_NEAR(wordColumns(target.control(), 2), cell->right - cell->left, 1);
}

TEST(Nhw32LastLetter, IsReadInItsWholeWidthAndNoFurther) {
  compareLastLetters({});
  compareLastLetters({.style = ES_AUTOHSCROLL});
  compareLastLetters({.className = L"RichEdit20W"});
}

}  // namespace
}  // namespace support
