// What larger texts of the system do to widgets and forms, from the start and while they are open.
#include "tests/support/window/text_size.h"

#include "forms/button.h"
#include "forms/static_controls.h"
#include "forms/tree_view.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class SizedForm : public FormA {
 public:
  SizedForm() {
    box.setFont({u"宋体", 10.5});
    box.setText(u"data");
    note.setText(u"选择默认查词词典，在多功能查询窗体启动时将直接选择该词典。");
  }
  forms::Label label{*this, u"输入：", {90, 1180, 640, 270}};
  forms::Button button{*this, u"退出", {2600, 1120, 750, 330}};
  forms::TextBox box{*this, {750, 1120, 1750, 330}};
  forms::TreeView list{*this, {30, 1600, 2000, 1000}};
  forms::TextBox note{*this, {2100, 1600, 2200, 900}, forms::TextBox::Look::kNote};
};

class TextSizeTest : public WindowTest {
 protected:
  // Borderless and never active: the window manager and the real monitor have no say.
  TextSizeTest() {
    plan<'A'>().design.frame = forms::Frame::kBorderless;
    plan<'A'>().design.neverActive = true;
  }
  static SizedForm& form() { return forms::form<SizedForm>(); }
  static void showAt(int dpi) {
    form().show();
    const RECT suggested{20, 20, 900, 700};
    SendMessageW(form().handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                 reinterpret_cast<LPARAM>(&suggested));
  }
  static void expectNothingCut() {
    for (const forms::Widget* widget : std::initializer_list<const forms::Widget*>{
             &form().label, &form().button, &form().box, &form().note}) {
      EXPECT_TRUE(isSeenWhole(*widget)) << letterHeight(*widget);
    }
  }
};

TEST_F(TextSizeTest, NothingIsCutAtAnySizeAndResolution) {
  for (const int percent : {100, 125, 150, 200, 225}) {
    const TextSize texts(percent);
    for (const int dpi : {96, 120, 144, 192}) {
      SCOPED_TRACE(std::to_string(percent) + " % at " + std::to_string(dpi) + " dpi");
      showAt(dpi);
      expectNothingCut();
      EXPECT_EQ(letterHeight(form().list), MulDiv(9 * percent, dpi, 7200));
      unloadAll();
    }
  }
}

TEST_F(TextSizeTest, TheUsualSizeIsNotMadeSmaller) {
  const TextSize texts(100);
  for (const int dpi : {96, 120, 144, 192}) {
    showAt(dpi);
    EXPECT_EQ(letterHeight(form().label), MulDiv(9, dpi, 72));
    EXPECT_EQ(letterHeight(form().button), MulDiv(9, dpi, 72));
    EXPECT_EQ(letterHeight(form().box), MulDiv(105, dpi, 720));
  }
}

TEST_F(TextSizeTest, AFixedPlaceTakesTheLargestSizeThatFits) {
  const TextSize texts(225);
  showAt(96);
  // The label is 43 pixels wide, for three characters.
  EXPECT_EQ(letterHeight(form().label), 14);
  EXPECT_GT(letterHeight(form().button), 12);
  EXPECT_LT(letterHeight(form().button), 27);
}

TEST_F(TextSizeTest, AnOpenFormTakesANewSizeAndTheOldOneBack) {
  showAt(96);
  const int before = letterHeight(form().label);
  for (const UINT message : {WM_SETTINGCHANGE, WM_THEMECHANGED}) {
    {
      const TextSize texts(150);
      SendMessageW(form().handle(), message, 0, 0);
      EXPECT_EQ(letterHeight(form().list), 18);
      EXPECT_GT(letterHeight(form().label), before);
      EXPECT_EQ(letterHeight(form().box), std::clamp(letterHeight(form().box), 15, 21));
      expectNothingCut();
      EXPECT_EQ(form().width(), 4500);
      EXPECT_EQ(form().dpi(), 96);
    }
    tellOfTextSize(form());
    EXPECT_EQ(letterHeight(form().label), before);
    EXPECT_EQ(letterHeight(form().list), before);
  }
}

TEST_F(TextSizeTest, AFormThatGrowsDoesSoWithItsWidgets) {
  plan<'A'>().design.growsWithTexts = true;
  showAt(96);
  const RECT small = pixelBox(form().label);
  const TextSize texts(200);
  tellOfTextSize(form());
  EXPECT_EQ(form().dpi(), 192);
  EXPECT_EQ(form().monitorDpi(), 96);
  EXPECT_EQ(form().width(), 4500);
  const RECT large = pixelBox(form().label);
  EXPECT_EQ(large.left, 2 * small.left);
  EXPECT_NEAR(large.bottom, 2 * small.bottom, 1);
  EXPECT_EQ(letterHeight(form().label), 24);
  EXPECT_EQ(letterHeight(form().box), 28);
  const RECT client = clientRectOf(form().handle());
  EXPECT_EQ(client.right - client.left, 600);
  expectNothingCut();
}

TEST_F(TextSizeTest, FixedTextsStay) {
  plan<'A'>().design.fixedTexts = true;
  const TextSize texts(200);
  showAt(96);
  EXPECT_EQ(letterHeight(form().box), 14);
}

}  // namespace
}  // namespace support
