#include "tests/support/window/frm_sub_test.h"

namespace support {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

/// While it lives, the index has as many blocks as no dictionary has; `last` is the last one's
/// word.
class EndlessIndex {
 public:
  explicit EndlessIndex(std::u16string_view last)
      : former_(std::exchange(user::IdxWords, data::IndexWords())) {
    constexpr std::size_t kBlocks = 21'474'837;  // the last row of the last is beyond 2^31
    for (std::size_t block = 0; block < kBlocks; ++block) user::IdxWords.push_back({});
    user::IdxWords.push_back(last);
  }
  ~EndlessIndex() { user::IdxWords = std::move(former_); }
  EndlessIndex(const EndlessIndex&) = delete;
  EndlessIndex& operator=(const EndlessIndex&) = delete;

 private:
  data::IndexWords former_;
};

class FrmSubMeaning : public FrmSubTest {
 protected:
  static std::u16string show(std::u16string word) { return sub().showMeaning(word, sub().Adodc1); }

  /// Red for the first line with its end, which the control counts once, blue for the rest.
  static std::vector<COLORREF> expectedColours(const std::u16string& text) {
    std::vector<COLORREF> colours;
    const std::size_t head = text.find(u'\n');
    for (std::size_t at = 0; at < text.size(); ++at) {
      if (text[at] != u'\r') colours.push_back(at <= head ? kRed : kBlue);
    }
    return colours;
  }
  static std::vector<COLORREF> colours() { return richTextColours(sub().txtOut.handle()); }
};

TEST_F(FrmSubMeaning, OneTranslationHasNoSemicolon) {
  frmSub& form = open();
  EXPECT_EQ(show(u"data"), u" data\r\n 数据");
  EXPECT_EQ(form.txtOut.text(), u" data\r\n 数据");
  EXPECT_EQ(form.txtOut.selStart(), 1U);
  EXPECT_EQ(form.txtOut.selLength(), 0U);
  EXPECT_EQ(colours(), expectedColours(u" data\r\n 数据"));
}

TEST_F(FrmSubMeaning, SeveralStandOneBelowTheOther) {
  open();
  const std::u16string expected = meaningOf(u"bit");
  EXPECT_NE(expected.find(u"；\r\n 位；\r\n "), expected.npos);
  EXPECT_EQ(show(u"bit"), expected);
  EXPECT_EQ(colours(), expectedColours(expected));
  EXPECT_EQ(sub().txtOut.selStart(), 1U);
}

TEST_F(FrmSubMeaning, TheCallersWordIsEscapedAndSoIsTheHeadword) {
  open();
  std::u16string word = u"it's";
  EXPECT_EQ(sub().showMeaning(word, sub().Adodc1), u" it''s\r\n 它是");
  EXPECT_EQ(word, u"it''s");
  EXPECT_EQ(colours(), expectedColours(u" it''s\r\n 它是"));
}

TEST_F(FrmSubMeaning, AnEnglishWordFindsItsBoundsAnew) {
  open();
  ASSERT_EQ(sub().bounds().lower, -100);
  show(u"data");
  EXPECT_GT(sub().bounds().upper, 100);
}

TEST_F(FrmSubMeaning, AChineseWordUsesTheBoundsOfItsList) {
  frmSub& form = open();
  form.txtInput.setText(u"数据");
  const data::Bounds bounds = form.bounds();
  EXPECT_EQ(show(u"数据"), u" 数据\r\n data；\r\n datum");
  EXPECT_EQ(form.bounds().lower, bounds.lower);
  EXPECT_EQ(form.bounds().upper, bounds.upper);
  form.txtInput.setText(u"a");
  EXPECT_EQ(form.findword(u"C", u"数据"),
            u"select cdict.word as Word,edict.word as Meaning from [edict],[cdict] where "
            u"cdict.cid>=-100 and cdict.cid<=100 and edict.eid=cdict.eid and cdict.word = '数据' "
            u"order by edict.word");
}

TEST_F(FrmSubMeaning, AWordWithoutRowsLeavesThePane) {
  frmSub& form = open();
  const std::u16string before = show(u"data");
  EXPECT_EQ(show(u"no such word"), u"");
  EXPECT_EQ(form.txtOut.text(), before);
  EXPECT_EQ(boxes.count(), 0U);
}

TEST_F(FrmSubMeaning, AFailedQueryIsTold) {
  frmSub& form = open();
  const std::u16string before = show(u"data");
  form.Adodc1.setConnectionString(u"Provider=x;Data Source=C:\\no such folder\\kk.dat;");
  EXPECT_EQ(show(u"bit"), u"");
  const auto seen = boxes.take();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, u"显示词义出错！");
  EXPECT_EQ(seen[0].icon, Icon::kError);
  EXPECT_EQ(seen[0].title, u"");
  EXPECT_EQ(form.txtOut.text(), before);
}

TEST_F(FrmSubMeaning, AFailedSearchForTheBoundsIsTold) {
  frmSub& form = open();
  const std::u16string pane = form.txtOut.text();
  {
    // A word so far down the index that its row number does not fit into 32 bits.
    const EndlessIndex index(u"zzzz");
    EXPECT_EQ(form.findword(u"E", u"zzz"), u"");
  }
  const auto seen = boxes.take();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, u"查词出错！");
  EXPECT_EQ(seen[0].icon, Icon::kError);
  EXPECT_EQ(seen[0].title, u"");
  EXPECT_EQ(form.txtOut.text(), pane);
  show(u"data");
  EXPECT_EQ(form.txtOut.text(), u" data\r\n 数据");
}

TEST_F(FrmSubMeaning, NeitherEnglishNorChineseYieldsNoQuery) {
  open();
  EXPECT_EQ(sub().findword(u"X", u"data"), u"");
}

}  // namespace
}  // namespace support
