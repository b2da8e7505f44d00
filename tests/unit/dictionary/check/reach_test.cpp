#include "dictionary/check/reach.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "data/data_control.h"
#include "data/headword_lookup.h"
#include "data/index_words.h"
#include "tests/support/data/sample_database.h"
#include "tests/support/data/small_dictionary.h"
#include "text/query_text.h"

namespace {

using dictionary::ChineseBoundStep;
using dictionary::EnglishBoundStep;
using dictionary::RowWindow;
using Words = std::vector<std::u16string>;

const Words kEnglish = {u"Cat", u"dog", u"o'clock", u"tree"};

TEST(EnglishBoundStep, EndsAtTheFirstIndexWordThatIsNotLess) {
  const EnglishBoundStep step(kEnglish);
  const std::optional<RowWindow> first = step.window(u"ant");
  ASSERT_TRUE(first.has_value());
  EXPECT_EQ(first->lower, -100);
  EXPECT_EQ(first->upper, 100);
  EXPECT_EQ(step.window(u"CAT")->upper, 100);
  EXPECT_EQ(step.window(u"cats")->upper, 200);
  EXPECT_EQ(step.window(u"dog")->upper, 200);
  EXPECT_EQ(step.window(u"dog")->lower, 0);
}

TEST(EnglishBoundStep, ReturnsNothingAfterTheIndex) {
  EXPECT_FALSE(EnglishBoundStep(kEnglish).window(u"zebra").has_value());
  EXPECT_FALSE(EnglishBoundStep({}).window(u"a").has_value());
}

TEST(EnglishBoundStep, SearchesWithDoubledApostrophes) {
  const EnglishBoundStep step(Words{u"o''", u"o'a", u"o'z"});
  EXPECT_EQ(step.window(u"o'x")->upper, 200);  // "o''x" sorts before "o'a"
}

TEST(EnglishBoundStep, FindsTheFirstMatchInAnUnorderedIndex) {
  const EnglishBoundStep step(Words{u"m", u"a", u"z"});
  EXPECT_EQ(step.window(u"b")->upper, 100);
  EXPECT_EQ(step.window(u"n")->upper, 300);
}

TEST(ChineseBoundStep, SpansTheIndexWordsAroundTheWord) {
  const ChineseBoundStep step(Words{u"爱", u"大", u"人", u"中"});
  EXPECT_EQ(step.window(u"啊").lower, 0);
  EXPECT_EQ(step.window(u"大").lower, 0);
  EXPECT_EQ(step.window(u"人").lower, 100);
  EXPECT_EQ(step.window(u"大").upper, 300);
  EXPECT_EQ(step.window(u"作").lower, 200);
  EXPECT_EQ(step.window(u"作").upper, 700);  // nothing follows: 500 rows at most
  EXPECT_EQ(ChineseBoundStep({}).window(u"作").upper, 500);
}

/// The bound step that is repeated here must be that of the windows.
TEST(BoundStep, EqualsThatOfTheLookups) {
  data::DataControl control;
  control.setConnectionString(support::connectionStringFor(support::smallDatabase()));
  const data::IndexWords index = data::readIndexWords(control);
  data::HeadwordLookup lookup(index, data::LookupOptions());
  Words words;
  for (std::size_t slot = 1; slot < index.size(); ++slot) words.emplace_back(index[slot]);
  const EnglishBoundStep english(std::move(words));

  data::DataControl rows =
      support::opened(support::smallDatabase(), u"select distinct word from edict");
  for (const std::u16string& word : support::column(rows.recordset(), u"word")) {
    std::u16string typed = word;
    lookup.getBound(user::escapeQuote(typed), control);
    const std::optional<RowWindow> window = english.window(word);
    ASSERT_TRUE(window.has_value());
    EXPECT_EQ(lookup.bounds().lower, window->lower);
    EXPECT_EQ(lookup.bounds().upper, window->upper);
  }

  data::DataControl indexRows =
      support::opened(support::smallDatabase(), u"select word from cdictidx");
  const Words chineseIndex = support::column(indexRows.recordset(), u"word");
  const ChineseBoundStep chinese(chineseIndex);
  data::DataControl chineseRows =
      support::opened(support::smallDatabase(), u"select distinct word from cdict");
  for (const std::u16string& word : support::column(chineseRows.recordset(), u"word")) {
    if (user::getEorC(word) != user::kChinese) continue;
    lookup.getBound(word, control);
    EXPECT_EQ(lookup.bounds().lower, chinese.window(word).lower);
    EXPECT_EQ(lookup.bounds().upper, chinese.window(word).upper);
  }
}

}  // namespace
