// Texts in fixed colours while the system's colours are others.
#include <algorithm>

#include "forms/rich_text_box.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/find.h"
#include "tests/support/process/screen.h"
#include "tests/support/window/system_colors.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kWhite = RGB(255, 255, 255);

class ColoredForm : public FormA {
 public:
  forms::RichTextBox pane{*this, {150, 1000, 3900, 900}};
  forms::RichTextBox tip{*this, {150, 2000, 3900, 900}, forms::RichTextBox::Look::kToolTip};
};

class HighContrastTest : public WindowTest {
 protected:
  HighContrastTest() { plan<'A'>().design.height = 4000; }

  static ColoredForm& form() { return forms::form<ColoredForm>(); }
  void openWithTexts() {
    opened<ColoredForm>();
    write();
  }
  static void write() {
    form().pane.setRuns({{u" bit\r\n", kRed}, {u" 位；\r\n 比特", kBlue}}, 1);
    form().tip.setRuns({{u"bit\r\n", kRed}, {u"位；比特", kBlue}});
  }
  /// The colour near a box's lower right corner, where no text is.
  static COLORREF corner(const forms::Widget& box) {
    RECT rect = clientRectOf(box.handle());
    rect.left = rect.right - 6;
    rect.top = rect.bottom - 6;
    rect.right = rect.left + 1;
    rect.bottom = rect.top + 1;
    return screenPixels(rect).at(0);
  }
  /// Whether all around the first character of a box is of that colour, but for its own ink.
  static bool standsOn(const forms::Widget& box, COLORREF color) {
    const POINT place = richTextPosition(box.handle(), 1);
    const auto pixels = screenPixels({place.x, place.y + 2, place.x + 8, place.y + 10});
    return std::ranges::count(pixels, color) > static_cast<std::ptrdiff_t>(pixels.size()) / 3;
  }
  static void expectTextColours() {
    for (const forms::Widget* box :
         std::initializer_list<const forms::Widget*>{&form().pane, &form().tip}) {
      const auto colours = richTextColours(box->handle());
      EXPECT_EQ(colours.front(), kRed);
      EXPECT_EQ(colours.back(), kBlue);
    }
  }
  static void expectBlackTheme() {
    EXPECT_TRUE(eventually([] { return corner(form().pane) == kWhite; })) << "the pane";
    EXPECT_TRUE(eventually([] { return corner(form().tip) == RGB(0, 0, 0); })) << "the tool tip";
    EXPECT_TRUE(eventually([] { return standsOn(form().pane, kWhite); })) << "text of the pane";
    EXPECT_TRUE(eventually([] { return standsOn(form().tip, kWhite); })) << "text of the tool tip";
    expectTextColours();
  }
};

TEST_F(HighContrastTest, TextsStandOnWhite) {
  const HighContrast colors;
  openWithTexts();
  expectBlackTheme();
  write();
  expectBlackTheme();
}

TEST_F(HighContrastTest, SwitchedOnAndOffWhileTheyAreShown) {
  openWithTexts();
  const COLORREF tip = GetSysColor(COLOR_INFOBK);
  for (int times = 0; times < 2; ++times) {
    {
      const HighContrast colors;
      SendMessageW(form().handle(), WM_SYSCOLORCHANGE, 0, 0);
      expectBlackTheme();
    }
    SendMessageW(form().handle(), WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_TRUE(eventually([&] { return corner(form().tip) == tip; }));
    EXPECT_TRUE(eventually([&] { return standsOn(form().tip, tip); }));
    EXPECT_TRUE(eventually([] { return corner(form().pane) == GetSysColor(COLOR_WINDOW); }));
    expectTextColours();
  }
}

TEST_F(HighContrastTest, AnotherLightThemeKeepsItsColours) {
  constexpr COLORREF kPaleGreen = RGB(199, 237, 204);
  const SystemColors colors(std::array<SystemColors::Color, 2>{
      {{COLOR_WINDOW, kPaleGreen}, {COLOR_INFOBK, RGB(255, 255, 225)}}});
  openWithTexts();
  EXPECT_TRUE(eventually([] { return standsOn(form().pane, kPaleGreen); }));
  EXPECT_TRUE(eventually([] { return standsOn(form().tip, RGB(255, 255, 225)); }));
}

TEST_F(HighContrastTest, ADarkThemeGivesWay) {
  const SystemColors colors(std::array<SystemColors::Color, 1>{{{COLOR_WINDOW, RGB(32, 32, 32)}}});
  openWithTexts();
  EXPECT_TRUE(
      eventually([] { return standsOn(form().pane, kWhite) && corner(form().pane) == kWhite; }));
}

TEST_F(HighContrastTest, AnotherResolutionLeavesTheTextsTheirColours) {
  openWithTexts();
  form().pane.select(1, 3);
  form().pane.rescale();
  expectTextColours();
  EXPECT_EQ(form().pane.selStart(), 1U);
  EXPECT_EQ(form().pane.selLength(), 3U);
}

}  // namespace
}  // namespace support
