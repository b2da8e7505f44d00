// The text box that looks like a tool tip: what it does with texts that do not fit.
#include "forms/rich_text_box.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/find.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

constexpr std::u16string_view kHead = u"enzyme\r\n";

class ToolTipForm : public FormA {
 public:
  forms::RichTextBox box{*this, {0, 0, 2500, 900}, forms::RichTextBox::Look::kToolTip};
};

class ToolTipBox : public WindowTest {
 protected:
  /// Shows a headword and a line of `characters` Chinese ones in a box of this size, in twips.
  void show(std::size_t characters, int width, int height) {
    opened<ToolTipForm>();
    box().setFont({u"宋体", 9});
    box().setText(std::u16string(kHead) + std::u16string(characters, u'酶'));
    box().move({0, 0, width, height});
    forms::doEvents();
  }

  static forms::RichTextBox& box() { return forms::form<ToolTipForm>().box; }

  static LRESULT lines() { return SendMessageW(box().handle(), EM_GETLINECOUNT, 0, 0); }

  static bool scrolls() { return (GetWindowLongPtrW(box().handle(), GWL_STYLE) & WS_VSCROLL) != 0; }

  /// Whether the last character stands wholly in sight.
  static bool endIsInSight() {
    constexpr LONG kCharacter = 12;  // pixels, at 9 points and 96 dpi
    // The control counts the end of the first line once.
    const auto last = static_cast<LONG>(box().text().size()) - 2;
    const POINT corner = richTextPosition(box().handle(), last);
    const RECT client = clientRectOf(box().handle());
    return corner.x >= client.left && corner.x + kCharacter <= client.right &&
           corner.y >= client.top && corner.y + kCharacter <= client.bottom;
  }
};

TEST_F(ToolTipBox, OneLineFits) {
  show(1, 2500, 900);
  EXPECT_EQ(lines(), 2);
  EXPECT_FALSE(scrolls());
  EXPECT_TRUE(endIsInSight());
}

TEST_F(ToolTipBox, FourFullLinesWrapAndFit) {
  show(119, 6000, 1500);
  EXPECT_EQ(lines(), 5);
  EXPECT_FALSE(scrolls());
  EXPECT_TRUE(endIsInSight());
}

TEST_F(ToolTipBox, WhatDoesNotFitWrapsAndScrolls) {
  show(600, 6000, 1500);
  EXPECT_GE(lines(), 1 + 600 / 32);
  EXPECT_TRUE(scrolls());
  EXPECT_FALSE(endIsInSight());
  SendMessageW(box().handle(), EM_LINESCROLL, 0, lines());
  EXPECT_TRUE(endIsInSight());
}

TEST_F(ToolTipBox, TheScrollBarGoesWithTheTextThatNeededIt) {
  show(600, 6000, 1500);
  ASSERT_TRUE(scrolls());
  box().setText(u"enzyme\r\n酶");
  EXPECT_FALSE(scrolls());
}

}  // namespace
}  // namespace support
