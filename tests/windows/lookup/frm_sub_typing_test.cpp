#include "tests/support/window/frm_sub_test.h"
#include "tests/support/window/scoped_import.h"

extern "C" decltype(&MessageBeep) __imp_MessageBeep;

namespace support {
namespace {

class FrmSubTyping : public FrmSubTest {};

TEST_F(FrmSubTyping, EveryLetterShowsItsWords) {
  frmSub& form = open();
  input::type(L"data");
  ASSERT_TRUE(eventually([&] { return form.txtInput.text() == u"data"; }));
  EXPECT_EQ(list(), expectedList(u"data"));
  EXPECT_EQ(list()[0], u"data");
  EXPECT_EQ(form.TreeView1.selected(), 1U);
  EXPECT_EQ(form.txtOut.text(), u" data\r\n 数据");
  EXPECT_EQ(GetFocus(), form.txtInput.handle());
}

TEST_F(FrmSubTyping, CaseDoesNotMatter) {
  frmSub& form = open();
  form.txtInput.setText(u"DATA");
  EXPECT_EQ(list()[0], u"data");
  form.txtInput.setText(u"data b");
  EXPECT_EQ(list()[0], u"Data bank");
  EXPECT_EQ(form.txtOut.text(), u" Data bank\r\n 数据库");
}

TEST_F(FrmSubTyping, BlanksAroundAreNotLookedUp) {
  frmSub& form = open();
  form.txtInput.setText(u"   data  ");
  EXPECT_EQ(list()[0], u"data");
  EXPECT_EQ(form.txtInput.text(), u"   data  ");
}

TEST_F(FrmSubTyping, AnEmptyTextOrBlanksDoNothing) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  const auto before = list();
  const data::Bounds bounds = form.bounds();
  form.txtInput.setText(u"");
  form.txtInput.setText(u"    ");
  EXPECT_EQ(list(), before);
  EXPECT_EQ(form.bounds().lower, bounds.lower);
  EXPECT_EQ(form.txtOut.text(), u" data\r\n 数据");
}

TEST_F(FrmSubTyping, ChineseIsLookedUpAmongTheChinese) {
  frmSub& form = open();
  input::type(L"数据");
  ASSERT_TRUE(eventually([&] { return form.txtInput.text() == u"数据"; }));
  EXPECT_EQ(list(), expectedList(u"数据"));
  EXPECT_EQ(list()[0], u"数据");
  EXPECT_EQ(form.txtOut.text(), u" 数据\r\n data；\r\n datum");
}

TEST_F(FrmSubTyping, OneChineseCharacterMakesItChinese) {
  frmSub& form = open();
  form.txtInput.setText(u"a数");
  ASSERT_FALSE(list().empty());
  EXPECT_GE(list()[0].front(), char16_t{256});
}

TEST_F(FrmSubTyping, AnApostropheIsLookedUp) {
  frmSub& form = open();
  input::type(L"it's");
  ASSERT_TRUE(eventually([&] { return form.txtInput.text() == u"it's"; }));
  EXPECT_EQ(list()[0], u"it's");
  EXPECT_EQ(form.txtOut.text(), u" it''s\r\n 它是");
  EXPECT_EQ(boxes.count(), 0U);
}

TEST_F(FrmSubTyping, AWildcardInFrontIsRefused) {
  frmSub& form = open();
  int beeps = 0;
  form.beep = [&beeps] { ++beeps; };
  int refusals = 0;
  for (const char16_t* refused : {u"?abc", u"*", u"_data", u"%a", u"  ?x"}) {
    form.txtInput.setText(u"data");
    const auto before = list();
    form.txtInput.setText(refused);
    EXPECT_EQ(form.txtInput.text(), u"");
    EXPECT_EQ(form.txtOut.text(), u"");
    EXPECT_EQ(list(), before);
    EXPECT_EQ(beeps, ++refusals);
  }
}

TEST_F(FrmSubTyping, ARefusalEmptiesTheBoxThenBeepsThenEmptiesThePane) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  std::u16string boxAtBeep = u"none";
  std::u16string paneAtBeep;
  form.beep = [&] {
    boxAtBeep = form.txtInput.text();
    paneAtBeep = form.txtOut.text();
  };
  form.txtInput.setText(u"?x");
  EXPECT_EQ(boxAtBeep, u"");
  EXPECT_EQ(paneAtBeep, meaningOf(u"data"));
  EXPECT_EQ(form.txtOut.text(), u"");
}

TEST_F(FrmSubTyping, ARefusalBeepsAsTheSystemDoes) {
  static std::vector<UINT> beeps;
  beeps.clear();
  const ScopedImport<decltype(&MessageBeep)> import(__imp_MessageBeep, [](UINT kind) -> BOOL {
    beeps.push_back(kind);
    return TRUE;
  });
  open().txtInput.setText(u"?x");
  EXPECT_EQ(beeps, std::vector<UINT>{MB_OK});
}

TEST_F(FrmSubTyping, OnlyRefusedInputBeeps) {
  frmSub& form = open();
  int beeps = 0;
  form.beep = [&beeps] { ++beeps; };
  for (const char16_t* text : {u"data", u"a?bc", u"?数", u"", u"   ", u"zzzz", u"数据"}) {
    form.txtInput.setText(text);
  }
  EXPECT_EQ(beeps, 0);
}

TEST_F(FrmSubTyping, ARefusedKeyLeavesTheBoxReadyForTheNext) {
  frmSub& form = open();
  input::type(L"?data");
  ASSERT_TRUE(eventually([&] { return form.txtInput.text() == u"data"; }));
  EXPECT_EQ(list()[0], u"data");
}

TEST_F(FrmSubTyping, AWildcardFurtherBackIsLookedUpAsItIs) {
  frmSub& form = open();
  form.txtInput.setText(u"a?bc");
  EXPECT_EQ(form.txtInput.text(), u"a?bc");
  EXPECT_EQ(list(), expectedList(u"a?bc"));
  form.txtInput.setText(u"da%");
  EXPECT_EQ(list(), expectedList(u"da%"));
}

TEST_F(FrmSubTyping, AWildcardBeforeChineseIsChinese) {
  frmSub& form = open();
  form.txtInput.setText(u"?数");
  EXPECT_EQ(form.txtInput.text(), u"?数");
}

TEST_F(FrmSubTyping, AfterTheLastWordTheListStays) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  const auto before = list();
  const data::Bounds bounds = form.bounds();
  form.txtInput.setText(u"zzzz");
  EXPECT_EQ(list(), before);
  EXPECT_EQ(form.bounds().lower, bounds.lower);
  EXPECT_EQ(form.bounds().upper, bounds.upper);
  EXPECT_EQ(form.txtOut.text(), u" data\r\n 数据");
}

TEST_F(FrmSubTyping, AnErrorEndsQuietly) {
  frmSub& form = open();
  const auto before = list();
  form.Adodc1.setConnectionString(u"Provider=x;Data Source=C:\\no such folder\\kk.dat;");
  input::type(L"data");
  ASSERT_TRUE(eventually([&] { return form.txtInput.text() == u"data"; }));
  form.txtInput.setText(u"数据");
  EXPECT_EQ(boxes.count(), 0U);
  EXPECT_EQ(list(), before);
}

TEST_F(FrmSubTyping, AnythingMayBeTyped) {
  frmSub& form = open();
  for (const char16_t* text : {u"'", u"''", u"';drop table edict;--", u"a' /*", u"a\"b", u"[x]",
                               u"\\", u"🙂", u"\u0301", u"a\tb", u"İ", u"﹪做_%"}) {
    form.txtInput.setText(text);
    EXPECT_EQ(form.txtInput.text(), text);
  }
  form.txtInput.setText(std::u16string(30'000, u'a'));
  form.txtInput.setText(std::u16string(30'000, u'做'));
  EXPECT_EQ(boxes.count(), 0U);
  form.txtInput.setText(u"data");
  EXPECT_EQ(list()[0], u"data");
}

}  // namespace
}  // namespace support
