#include "forms/widget.h"
#include "tests/support/window/frm_sub_test.h"

namespace support {
namespace {

class FrmSubLoading : public FrmSubTest {};

TEST_F(FrmSubLoading, OpensOnTheWordsFromA) {
  frmSub& form = open();
  EXPECT_EQ(form.bounds().lower, -100);
  EXPECT_EQ(form.bounds().upper, 100);
  EXPECT_EQ(list(), expectedList(u"a"));
  EXPECT_EQ(list().size(), 75U);
  EXPECT_EQ(form.TreeView1.selected(), 1U);
  EXPECT_EQ(form.txtOut.text(), meaningOf(list()[0]));
  EXPECT_EQ(form.txtInput.text(), u"");
}

TEST_F(FrmSubLoading, HasItsCaptionsAndStandsAboveAll) {
  frmSub& form = open();
  EXPECT_EQ(forms::windowText(form.handle()), u"速查 V1.3");
  EXPECT_EQ(forms::windowText(form.Label1.handle()), u"输入：");
  EXPECT_EQ(forms::windowText(form.cmdExit.handle()), u"退出");
  EXPECT_TRUE(isTopmost(form.handle()));
  EXPECT_EQ(GetMenu(form.handle()), nullptr);
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(form.txtInput.handle(), WM_GETFONT, 0, 0)),
             sizeof font, &font);
  EXPECT_STREQ(font.lfFaceName, L"宋体");
}

TEST_F(FrmSubLoading, TakesTheSharedConnection) {
  frmSub& form = open();
  form.Adodc1.setRecordSource(u"select edict.word as Word from [edict]");
  form.Adodc1.refresh();
  EXPECT_FALSE(form.Adodc1.recordset().empty());
}

TEST_F(FrmSubLoading, OpenedAgainItStartsAnew) {
  open().txtInput.setText(u"data");
  EXPECT_EQ(list()[0], u"data");
  sub().unload();
  forms::doEvents();
  frmSub& form = open();
  EXPECT_EQ(form.txtInput.text(), u"");
  EXPECT_EQ(form.bounds().lower, -100);
  EXPECT_EQ(list(), expectedList(u"a"));
}

TEST_F(FrmSubLoading, WithoutAnIndexTheListStaysEmpty) {
  user::IdxWords.clear();
  frmSub& form = open();
  EXPECT_EQ(form.bounds().lower, 0);
  EXPECT_EQ(form.bounds().upper, 0);
  EXPECT_TRUE(list().empty());
  EXPECT_EQ(form.txtOut.text(), u"");
}

TEST_F(FrmSubLoading, ShowingItTwiceKeepsWhatItShows) {
  open().txtInput.setText(u"data");
  sub().show();
  awaitActive(sub());
  EXPECT_EQ(sub().txtInput.text(), u"data");
  EXPECT_EQ(list()[0], u"data");
}

TEST_F(FrmSubLoading, AMissingDatabaseIsToldAndTheWindowStays) {
  user::ConnectionString = u"Provider=x;Data Source=C:\\no such folder\\kk.dat;";
  settings::write(L"WindowWidth", L"7000");
  frmSub& form = open();
  const auto seen = boxes.take();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].icon, Icon::kError);
  EXPECT_EQ(seen[0].title, u"");
  EXPECT_FALSE(seen[0].text.empty());
  EXPECT_TRUE(IsWindowVisible(form.handle()));
  EXPECT_TRUE(list().empty());
  form.txtInput.setText(u"data");
  form.txtInput.setText(u"数据");
  EXPECT_EQ(boxes.count(), 0U);
  form.unload();
  EXPECT_EQ(settings::read(L"WindowWidth"), L"7000");
}

}  // namespace
}  // namespace support
