#include "tests/support/window/query_test.h"

namespace support {
namespace {

class FrmMainSearching : public QueryTest {
 protected:
  FrmMainSearching() { open(); }

  static void choose(std::size_t dictionary) {
    form().TreeView1.select(dictionary);
    form().TreeView1.onNodeClick.raise(dictionary);
  }
  /// The SQL text of the last search.
  static std::u16string sql() { return form().Adodc1.recordSource(); }
};

TEST_F(FrmMainSearching, EasyFindsWhatBeginsWithTheText) {
  easy(u"heart");
  // Mean of 5, 10 and 7, and ten.
  EXPECT_EQ(lines(),
            (Texts{u"heart            心脏", u"heart beat       心搏", u"heart's          心的"}));
  EXPECT_EQ(sql(), u"select top 100 word,meaning from med where word like 'heart%' order by word");
}

TEST_F(FrmMainSearching, ComplexFindsWhatContainsTheText) {
  complex(u"heart");
  EXPECT_EQ(lines().size(), 4U);
  EXPECT_EQ(lines()[3], u"sweetheart        心上人");
  EXPECT_EQ(sql(), u"select top 200 word,meaning from med where word like '%heart%' order by word");
}

TEST_F(FrmMainSearching, AChineseTextSearchesTheMeaningsAndStandsFirst) {
  easy(u"心");
  // Mean of 4, 4, 6 and 4 with its half to even, and ten.
  EXPECT_EQ(lines(), (Texts{u"心搏          heart beat", u"心的          heart's",
                            u"心上人        sweetheart", u"心脏          heart"}));
  EXPECT_EQ(sql(),
            u"select top 100 word as meaning,meaning as word from med where meaning like '心%'"
            u" order by meaning");
  complex(u"上");
  EXPECT_EQ(lines(), (Texts{u"心上人          sweetheart"}));
}

TEST_F(FrmMainSearching, KnowsInWhichColumnItLookedLast) {
  EXPECT_EQ(form().lastColumn(), u"");
  easy(u"心");
  EXPECT_EQ(form().lastColumn(), u"meaning");
  complex(u"heart");
  EXPECT_EQ(form().lastColumn(), u"word");
  complex(u"上");
  EXPECT_EQ(form().lastColumn(), u"meaning");
  easy(u"heart");
  EXPECT_EQ(form().lastColumn(), u"word");
}

TEST_F(FrmMainSearching, TakesTheUsersWildcards) {
  easy(u"h*t b?a");
  EXPECT_EQ(lines(), (Texts{u"heart beat          心搏"}));
  EXPECT_EQ(form().txtInput.text(), u"h*t b?a");
}

TEST_F(FrmMainSearching, AQuoteIsAnOrdinaryCharacter) {
  easy(u"heart'");
  EXPECT_EQ(lines(), (Texts{u"heart's          心的"}));
}

TEST_F(FrmMainSearching, NothingTypedIsTold) {
  easy(u"liver");
  easy(u"");
  expectBox(kNoText, Icon::kWarning);
  complex(u"");
  expectBox(kNoText, Icon::kWarning);
  EXPECT_EQ(lines().size(), 1U);
}

TEST_F(FrmMainSearching, BlanksAreSearchedAsTyped) {
  complex(u" ");
  EXPECT_EQ(lines(), (Texts{u"heart beat          心搏"}));
  easy(u" ");
  expectBox(kNothing, Icon::kInformation);
}

TEST_F(FrmMainSearching, NothingFoundIsToldAndLeavesTheNodesEmpty) {
  easy(u"heart");
  easy(u"zzz");
  expectBox(kNothing, Icon::kInformation);
  EXPECT_EQ(lines(), Texts(3));
  easy(u"liver");
  EXPECT_EQ(lines(), (Texts{u"liver          肝"}));
}

TEST_F(FrmMainSearching, SurplusLinesGo) {
  complex(u"e");
  ASSERT_EQ(lines().size(), 5U);
  easy(u"heart");
  EXPECT_EQ(lines().size(), 3U);
}

TEST_F(FrmMainSearching, EasyShowsAHundredAndComplexTwoHundred) {
  choose(2);
  easy(u"bit");
  EXPECT_EQ(lines().size(), 100U);
  EXPECT_EQ(lines().back(), u"bit199          位199");
  complex(u"bit");
  EXPECT_EQ(lines().size(), 200U);
  easy(u"位");
  EXPECT_EQ(lines().size(), 100U);
}

TEST_F(FrmMainSearching, ALongerWordAfterTheSampleGetsTwoBlanks) {
  store("insert into comp values ('bit29999 longer than its column','长')");
  choose(2);
  complex(u"bit2");
  EXPECT_EQ(lines().back(), u"bit29999 longer than its column  长");
  EXPECT_EQ(lines()[lines().size() - 2], u"bit299          位299");
}

TEST_F(FrmMainSearching, AMissingTableIsToldAndTheLinesStay) {
  easy(u"heart");
  const Texts before = lines();
  store("drop table med");
  easy(u"liver");
  expectBox(kUnexpected, Icon::kError);
  complex(u"liver");
  expectBox(kUnexpected, Icon::kError);
  EXPECT_EQ(lines(), before);
  choose(1);
  easy(u"heat");
  EXPECT_EQ(lines().size(), 2U);
}

TEST_F(FrmMainSearching, TheLinesStartAtTheTopAgain) {
  choose(2);
  easy(u"bit");
  form().TreeView2.select(90);
  easy(u"bit2");
  forms::doEvents();
  EXPECT_TRUE(treeNodeRect(form().TreeView2.handle(), 0).has_value());
  EXPECT_EQ(form().TreeView2.selected(), 90U);
}

TEST_F(FrmMainSearching, LinesAreWrittenToAnyTreeUpToALimit) {
  choose(2);
  easy(u"bit");
  form().MakeTree(form().Adodc1, form().TreeView2, 7);
  EXPECT_EQ(lines().size(), 7U);
}

/// A tree whose third node takes no text.
class BrittleTree : public forms::TreeView {
 public:
  using TreeView::TreeView;
  void setText(std::size_t number, const std::u16string& text) override {
    if (number == 3) throw std::runtime_error("no text here");
    TreeView::setText(number, text);
  }
};

TEST_F(FrmMainSearching, LinesWrittenUpToAnErrorStay) {
  BrittleTree tree(form(), {0, 0, 3000, 3000});
  for (int i = 0; i < 4; ++i) tree.add(u"old");
  form().Adodc1.setRecordSource(u"select word,meaning from med order by word");
  form().Adodc1.refresh();
  form().MakeTree(form().Adodc1, tree, 100);
  EXPECT_TRUE(tree.text(1).starts_with(u"heart "));
  EXPECT_TRUE(tree.text(2).starts_with(u"heart beat"));
  EXPECT_EQ(tree.text(3), u"old");
  EXPECT_EQ(tree.text(4), u"old");
  EXPECT_EQ(boxes.count(), 0U);
}

TEST_F(FrmMainSearching, AnErrorWhileLinesAreWrittenEndsSilently) {
  easy(u"heart");
  const Texts before = lines();
  form().Adodc1.setRecordSource(u"select word from med");
  form().Adodc1.refresh();
  form().MakeTree(form().Adodc1, form().TreeView2, 100);
  EXPECT_EQ(lines(), before);
  // The width overflows: the word is longer than 16 bits count.
  store("insert into med values ('" + std::string(33'000, 'x') + "','m')");
  easy(u"xxx");
  EXPECT_EQ(lines(), before);
}

}  // namespace
}  // namespace support
