#include "query/frm_spc.h"

#include "forms/widget.h"
#include "tests/support/window/query_test.h"

namespace support {
namespace {

class FrmSpc : public QueryTest {
 protected:
  static constexpr const char16_t* kBothBoxes = u"请在英文和中文的文本框里输入内容！";
  static constexpr const char16_t* kRefused = u"无法在词典文件中执行这次查询：";

  static frmSpc& dialog() { return forms::form<frmSpc>(); }

  /// Opens both windows by the button and waits until the dialog has the focus.
  void openBoth() {
    open();
    press(form().cmdSpc);
    awaitActive(dialog());
    ASSERT_TRUE(eventually([] { return GetFocus() == dialog().txtE.handle(); }));
  }
  static void fill(const std::u16string& english, const std::u16string& chinese) {
    dialog().txtE.setText(english);
    dialog().txtC.setText(chinese);
  }
  static bool closed() {
    return eventually([] { return !forms::isLoaded<frmSpc>(); });
  }
  static std::u16string sql() { return form().Adodc1.recordSource(); }
};

TEST_F(FrmSpc, OpensAboveItsOwnerWhichStaysUsable) {
  openBoth();
  wchar_t caption[64] = L"";
  GetWindowTextW(dialog().handle(), caption, 64);
  EXPECT_STREQ(caption, L"特殊查询");
  EXPECT_EQ(GetWindow(dialog().handle(), GW_OWNER), form().handle());
  EXPECT_TRUE(IsWindowEnabled(form().handle()));
  form().show();
  awaitActive(form());
  EXPECT_TRUE(isAbove(dialog().handle(), form().handle()));
  easy(u"liver");
  EXPECT_EQ(lines().size(), 1U);
}

TEST_F(FrmSpc, OpensInTheMiddleOfItsOwnerAndStaysWhereItIsMoved) {
  openBoth();
  const RECT owner = rectOf(form().handle());
  const RECT opened = rectOf(dialog().handle());
  EXPECT_NEAR(opened.left + opened.right, owner.left + owner.right, 2);
  EXPECT_NEAR(opened.top + opened.bottom, owner.top + owner.bottom, 2);
  SetWindowPos(dialog().handle(), nullptr, opened.left - 50, opened.top - 40, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  press(form().cmdSpc);
  awaitActive(dialog());
  EXPECT_EQ(rectOf(dialog().handle()).left, opened.left - 50);
  EXPECT_EQ(rectOf(dialog().handle()).top, opened.top - 40);
}

TEST_F(FrmSpc, BothBoxesHaveTheirNamesAndTheirFont) {
  openBoth();
  EXPECT_EQ(forms::windowText(dialog().Label1.handle()), u"英文");
  EXPECT_TRUE(standsBeside(dialog().Label1, dialog().txtE));
  EXPECT_EQ(forms::windowText(dialog().Label2.handle()), u"中文");
  EXPECT_TRUE(standsBeside(dialog().Label2, dialog().txtC));
  for (const forms::Widget* box :
       std::initializer_list<const forms::Widget*>{&dialog().txtE, &dialog().txtC}) {
    const LOGFONTW font = fontOf(*box);
    EXPECT_STREQ(font.lfFaceName, L"宋体");
    EXPECT_EQ(font.lfHeight, -MulDiv(21, dialog().dpi(), 144));
  }
  EXPECT_EQ(forms::windowText(dialog().cmdOK.handle()), u"确定");
  EXPECT_EQ(forms::windowText(dialog().cmdCancel.handle()), u"取消");
}

TEST_F(FrmSpc, SearchesForBothTextsAndCloses) {
  openBoth();
  fill(u"  heart  ", u"  心 ");
  press(dialog().cmdOK);
  EXPECT_TRUE(closed());
  EXPECT_EQ(sql(),
            u"select top 200 word,meaning from med where  word like '%heart%' and meaning like"
            u" '%心%'");
  EXPECT_EQ(lines().size(), 4U);
  EXPECT_EQ(form().txtInput.text(), u"特殊查询 heart：心");
}

TEST_F(FrmSpc, LeavesTheColumnOfTheLastSearchAlone) {
  openBoth();
  easy(u"心");
  ASSERT_EQ(form().lastColumn(), u"meaning");
  fill(u"heart", u"心");
  press(dialog().cmdOK);
  ASSERT_TRUE(closed());
  EXPECT_EQ(form().lastColumn(), u"meaning");
}

TEST_F(FrmSpc, EnterIsOkAndEscIsCancel) {
  openBoth();
  input::type(L"liver");
  ASSERT_TRUE(eventually([] { return dialog().txtE.text() == u"liver"; }));
  input::key(VK_TAB);
  ASSERT_TRUE(eventually([] { return GetFocus() == dialog().txtC.handle(); }));
  input::type(L"肝");
  ASSERT_TRUE(eventually([] { return dialog().txtC.text() == u"肝"; }));
  input::key(VK_RETURN);
  ASSERT_TRUE(closed());
  EXPECT_EQ(lines(), (Texts{u"liver          肝"}));
  press(form().cmdSpc);
  awaitActive(dialog());
  input::key(VK_ESCAPE);
  EXPECT_TRUE(closed());
  EXPECT_EQ(lines().size(), 1U);
}

TEST_F(FrmSpc, TabGoesThroughItAndCancelCloses) {
  openBoth();
  for (const forms::Widget* next : std::initializer_list<const forms::Widget*>{
           &dialog().txtC, &dialog().cmdOK, &dialog().cmdCancel, &dialog().txtE}) {
    input::key(VK_TAB);
    EXPECT_TRUE(eventually([&] { return GetFocus() == next->handle(); }));
  }
  press(dialog().cmdCancel);
  EXPECT_TRUE(closed());
}

TEST_F(FrmSpc, AnEmptyBoxIsToldAndNothingIsSearched) {
  openBoth();
  const std::u16string before = sql();
  for (const auto& [english, chinese] :
       std::vector<std::pair<std::u16string, std::u16string>>{{u"heat", u""},
                                                              {u"heat", u"  "},
                                                              {u"", u"热"},
                                                              {u" ", u"热"},
                                                              {u"   ", u"  "},
                                                              {u"", u""}}) {
    fill(english, chinese);
    press(dialog().cmdOK);
    expectBox(kBothBoxes, Icon::kWarning);
    EXPECT_TRUE(forms::isLoaded<frmSpc>());
  }
  EXPECT_EQ(sql(), before);
  EXPECT_EQ(form().txtInput.text(), u"");
}

TEST_F(FrmSpc, NothingFoundIsToldAndRecordedAllTheSame) {
  openBoth();
  fill(u"zzz", u"热");
  press(dialog().cmdOK);
  expectBox(kNothing, Icon::kInformation);
  EXPECT_TRUE(closed());
  EXPECT_EQ(form().txtInput.text(), u"特殊查询 zzz：热");
}

TEST_F(FrmSpc, StarsAndQuestionMarksAreNoWildcards) {
  openBoth();
  fill(u"h*t", u"心");
  press(dialog().cmdOK);
  expectBox(kNothing, Icon::kInformation);
  press(form().cmdSpc);
  fill(u"h%t b_a", u"心");
  press(dialog().cmdOK);
  EXPECT_TRUE(closed());
  EXPECT_EQ(lines(), (Texts{u"heart beat          心搏"}));
}

TEST_F(FrmSpc, LinesThatCannotBeWrittenAreNoReasonToStop) {
  // The width of the lines overflows: the word is longer than 16 bits count.
  store("insert into med values ('" + std::string(33'000, 'x') + "','m')");
  openBoth();
  easy(u"heart");
  const Texts before = lines();
  fill(u"xxx", u"m");
  press(dialog().cmdOK);
  EXPECT_TRUE(closed());
  EXPECT_EQ(lines(), before);
  EXPECT_EQ(form().txtInput.text(), u"特殊查询 xxx：m");
  EXPECT_EQ(boxes.count(), 0U);
}

TEST_F(FrmSpc, AQuoteIsAnUncaughtErrorWithAdviceAndTheEnginesWords) {
  openBoth();
  easy(u"heart");
  const Texts before = lines();
  struct Case {
    std::u16string english;
    std::u16string chinese;
    std::u16string engineText;
  };
  for (const auto& [english, chinese, engineText] :
       std::vector<Case>{{u"heart's", u"心", u"near \"s\": syntax error"},
                         {u"heart", u"'", u"unrecognized token: \"' limit 200\""},
                         {u"' or", u"'", u"near \"%\": syntax error"},
                         {u"'; select 1 --", u"心", u"SQL text with more than one statement"}}) {
    fill(english, chinese);
    press(dialog().cmdOK);
    expectDatabaseBox(kRefused, engineText);
    EXPECT_EQ(dialog().txtE.text(), english);
  }
  EXPECT_EQ(lines(), before);
  EXPECT_EQ(form().txtInput.text(), u"heart");
  // The program goes on.
  fill(u"heart", u"心");
  press(dialog().cmdOK);
  EXPECT_TRUE(closed());
}

TEST_F(FrmSpc, AQuoteBeforeThousandsOfCharactersFitsTheScreen) {
  openBoth();
  RECT box{};
  boxes.whileUp([&](HWND window) { box = rectOf(window); });
  fill(u"'" + std::u16string(5000, u'x'), u"心");
  press(dialog().cmdOK);
  ASSERT_TRUE(eventually([this] { return boxes.count() == 1; }));
  const std::u16string text = boxes.take()[0].text;
  EXPECT_TRUE(text.starts_with(kRefused));
  EXPECT_NE(text.find(u"不要使用单引号（'）"), text.npos);
  EXPECT_NE(text.find(u"\n\nnear \"xxx"), text.npos);
  EXPECT_NE(text.find(u"xxx…xxx"), text.npos);
  EXPECT_TRUE(text.ends_with(u"xxx\": syntax error"));
  EXPECT_LE(box.right - box.left, GetSystemMetrics(SM_CXSCREEN));
  EXPECT_LE(box.bottom - box.top, GetSystemMetrics(SM_CYSCREEN) / 2);
}

TEST_F(FrmSpc, WithoutADictionaryTheSearchFails) {
  store("update [Index] set Isshow=0");
  forms::form<frmMain>();
  expectBox(kChoose, Icon::kWarning);
  openBoth();
  fill(u"heart", u"心");
  press(dialog().cmdOK);
  expectDatabaseBox(kRefused, u"near \"where\": syntax error");
  EXPECT_TRUE(forms::isLoaded<frmSpc>());
}

TEST_F(FrmSpc, GoesWithItsOwner) {
  openBoth();
  form().unload();
  EXPECT_FALSE(forms::isLoaded<frmSpc>());
  EXPECT_FALSE(forms::isLoaded<frmMain>());
  EXPECT_FALSE(user::MainOpen);
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmSpc, CaptureRestsFromItsActivationToItsEnd) {
  ScreenWord::StartCapture();
  openBoth();
  EXPECT_TRUE(rests());
  ScreenWord::StartCapture();
  form().show();
  awaitActive(form());
  dialog().show();
  awaitActive(dialog());
  EXPECT_TRUE(rests());
  dialog().unload();
  EXPECT_TRUE(captureRuns());
}

}  // namespace
}  // namespace support
