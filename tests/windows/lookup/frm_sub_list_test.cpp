#include "tests/support/window/frm_sub_test.h"

namespace support {
namespace {

class FrmSubList : public FrmSubTest {
 protected:
  static void query(std::u16string_view sql) { sub().Query(sql, sub().Adodc1, sub().TreeView1); }
};

TEST_F(FrmSubList, AsksForTheWordsInsideItsBounds) {
  frmSub& form = open();
  const std::u16string sql = form.makeStrSql(u"E", u"data");
  const auto [lower, upper] = form.bounds();
  EXPECT_EQ(upper - lower, 200);
  EXPECT_EQ(upper % 100, 0);
  const auto digits = [](int number) {
    const std::string text = std::to_string(number);
    return std::u16string(text.begin(), text.end());
  };
  EXPECT_EQ(sql, u"select distinct top 75 edict.word as Word from [edict]where edict.eid>=" +
                     digits(lower) + u" and edict.eid<=" + digits(upper) +
                     u"  and edict.word >= 'data' order by word");
  EXPECT_EQ(form.makeStrSql(u"X", u"data"), u"");
}

TEST_F(FrmSubList, ShrinksFromSeventyFiveToTen) {
  open();
  ASSERT_EQ(list().size(), 75U);
  query(
      u"select distinct top 10 edict.word as Word from [edict] where edict.word>='d' order by "
      u"word");
  const auto shown = list();
  ASSERT_EQ(shown.size(), 10U);
  EXPECT_EQ(shown[0].front(), u'd');
  EXPECT_EQ(sub().TreeView1.selected(), 1U);
  EXPECT_EQ(sub().TreeView1.count(), 10U);
}

TEST_F(FrmSubList, ReusesItsNodes) {
  open();
  const auto root = [] {
    return SendMessageW(sub().TreeView1.handle(), TVM_GETNEXTITEM, TVGN_ROOT, 0);
  };
  const LRESULT first = root();
  query(
      u"select distinct top 3 edict.word as Word from [edict] where edict.word>='d' order by word");
  EXPECT_EQ(root(), first);
}

TEST_F(FrmSubList, AnEmptyResultKeepsAll) {
  frmSub& form = open();
  form.TreeView1.select(4);
  const auto before = list();
  const std::u16string meaning = form.txtOut.text();
  query(u"select edict.word as Word from [edict] where edict.eid<0");
  EXPECT_EQ(list(), before);
  EXPECT_EQ(form.TreeView1.selected(), 4U);
  EXPECT_EQ(form.txtOut.text(), meaning);
}

TEST_F(FrmSubList, TakesAHundredRowsAtMost) {
  open();
  query(u"select edict.word as Word from [edict] where edict.eid<=120 order by eid");
  EXPECT_EQ(list().size(), 100U);
}

TEST_F(FrmSubList, AnEmptyFirstWordHasNoMeaning) {
  frmSub& form = open();
  form.TreeView1.select(2);
  const std::u16string meaning = form.txtOut.text();
  query(u"select '' as Word from [edict] where edict.eid<=3");
  EXPECT_EQ(list(), std::vector<std::u16string>(3));
  EXPECT_EQ(form.txtOut.text(), meaning);
  EXPECT_EQ(form.TreeView1.selected(), 2U);
}

TEST_F(FrmSubList, AnErrorOnTheWayEndsSilently) {
  frmSub& form = open();
  const auto before = list();
  query(u"select eid from [edict] where edict.eid<=3");
  EXPECT_EQ(list(), before);
  EXPECT_EQ(boxes.count(), 0U);
  // The list repaints again afterwards.
  form.txtInput.setText(u"data");
  EXPECT_EQ(list()[0], u"data");
  forms::doEvents();
  EXPECT_FALSE(GetUpdateRect(form.TreeView1.handle(), nullptr, FALSE));
}

TEST_F(FrmSubList, AnErrorInTheQueryItselfGoesToTheCaller) {
  open();
  EXPECT_THROW(query(u"select nothing from nowhere"), std::exception);
}

TEST_F(FrmSubList, WithoutTheMeaningTheWordsAreThereAndTheMessageSaysSo) {
  // Only the list's table is there: what fails is the meaning of the first word.
  const OtherDictionary other(
      "create table edict (eid integer primary key, word text, cid integer);"
      "create table edictidx (word text);insert into edictidx values ('zz');"
      "insert into edict values (1,'aa',1),(2,'ab',2)");
  user::IdxWords = {u"", u"zz"};
  open();
  EXPECT_EQ(list(), (std::vector<std::u16string>{u"aa", u"ab"}));
  const auto seen = boxes.take();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, u"显示词义出错！");
  EXPECT_EQ(sub().TreeView1.selected(), 1U);
  sub().unload();
  forms::doEvents();
}

}  // namespace
}  // namespace support
