#include "dictionary/arrange/tables.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "dictionary/arrange/pair_collector.h"
#include "dictionary/translation/entry.h"

namespace {

using dictionary::Entry;
using dictionary::PairCollector;
using dictionary::Subject;
using dictionary::Vocabulary;

Entry entry(const std::string& word, const std::string& translation) {
  std::optional<Entry> extracted = dictionary::extractEntry({word, translation, false});
  EXPECT_TRUE(extracted.has_value());
  return std::move(*extracted);
}

Vocabulary collect(const std::vector<Entry>& entries) {
  PairCollector collector;
  for (const Entry& one : entries) collector.add(one);
  return std::move(collector).finish();
}

TEST(Arrange, LinksBothTablesRowByRow) {
  const Vocabulary vocabulary =
      collect({entry("heat", "热, 加热"), entry("hot", "热, 热的"), entry("warm", "暖")});
  const std::vector<bool> all(vocabulary.pairs.size(), true);
  const dictionary::GeneralDictionary general = dictionary::arrange(vocabulary, all);
  ASSERT_EQ(general.edict.size(), 5U);
  ASSERT_EQ(general.cdict.size(), 5U);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(general.cdict[general.edict[i].link - 1].link, i + 1);
    EXPECT_EQ(general.edict[general.cdict[i].link - 1].link, i + 1);
    if (i > 0) {
      EXPECT_LE(general.edict[i - 1].word, general.edict[i].word);
      EXPECT_LE(general.cdict[i - 1].word, general.cdict[i].word);
      if (general.cdict[i - 1].word == general.cdict[i].word) {
        EXPECT_LT(general.cdict[i - 1].link, general.cdict[i].link) << "English words in order";
      }
    }
  }
}

TEST(Arrange, LeavesOutPairsThatAreNotChosen) {
  const Vocabulary vocabulary = collect({entry("heat", "热, 加热"), entry("warm", "暖")});
  const dictionary::GeneralDictionary general =
      dictionary::arrange(vocabulary, {true, false, true});
  EXPECT_EQ(general.edict.size(), 2U);
  EXPECT_EQ(general.cdict.size(), 2U);
}

TEST(SubjectCollector, JoinsTheLinesOfAHeadword) {
  dictionary::SubjectCollector collector;
  collector.add(entry("zone", "[医] 带, 区(域)\\n[计] 区域\\n[医] 带, 区(域)\\n[医] 层"));
  collector.add(entry("Acid", "[化] 酸"));
  collector.add(entry("acid bath", "[化] 酸浴"));
  collector.add(entry("acid", "[化] 酸性的"));
  const dictionary::SubjectTables tables = std::move(collector).finish();
  const auto& med = tables[static_cast<std::size_t>(Subject::kMedicine)];
  ASSERT_EQ(med.size(), 1U);
  EXPECT_EQ(med[0].word, u"zone");
  EXPECT_EQ(med[0].meaning, u"带，区(域)；层");
  const auto& chem = tables[static_cast<std::size_t>(Subject::kChemistry)];
  ASSERT_EQ(chem.size(), 2U);
  EXPECT_EQ(chem[0].word, u"Acid");
  EXPECT_EQ(chem[0].meaning, u"酸；酸性的");
  EXPECT_EQ(chem[1].word, u"acid bath");
}

// More than a sort without order among equals leaves in their places.
TEST(SubjectCollector, KeepsTheOrderOfManyEquivalents) {
  dictionary::SubjectCollector collector;
  std::u16string meaning;
  for (char16_t i = 0; i < 40; ++i) {
    const std::u16string equivalent = {u'第', static_cast<char16_t>(u'一' + i * 7 % 40)};
    collector.add(Subject::kLaw, u"law", equivalent);
    meaning += (i == 0 ? u"" : u"；") + equivalent;
  }
  const dictionary::SubjectTables tables = std::move(collector).finish();
  EXPECT_EQ(tables[static_cast<std::size_t>(Subject::kLaw)].at(0).meaning, meaning);
}

TEST(SubjectCollector, FindsAnEquivalentBetweenAnySeparators) {
  for (const char16_t separator : std::u16string_view(u",，;；、")) {
    dictionary::SubjectCollector collector;
    const std::u16string meaning = std::u16string(u"云彩") + separator + u" 云团";
    collector.add(Subject::kComputing, u"cloud", meaning);
    collector.add(Subject::kComputing, u"cloud", u"云彩");
    collector.add(Subject::kComputing, u"cloud", u"云团");
    const dictionary::SubjectTables tables = std::move(collector).finish();
    EXPECT_EQ(tables[static_cast<std::size_t>(Subject::kComputing)].at(0).meaning, meaning);
  }
}

TEST(SubjectCollector, AddsEquivalentsOfOtherSources) {
  dictionary::SubjectCollector collector;
  collector.add(entry("cloud", "n. 云\n[计] 云彩, 云团"));
  collector.add(Subject::kComputing, u"Cloud", u"云");
  collector.add(Subject::kComputing, u"cloud", u"云团");
  collector.add(Subject::kComputing, u"cloud", u"云");
  collector.add(Subject::kComputing, u"deep learning", u"深度学习");
  collector.add(Subject::kLaw, u"cloud", u"疑云");
  const dictionary::SubjectTables tables = std::move(collector).finish();
  const auto& computing = tables[static_cast<std::size_t>(Subject::kComputing)];
  ASSERT_EQ(computing.size(), 2U);
  EXPECT_EQ(computing[0].word, u"cloud");
  EXPECT_EQ(computing[0].meaning, u"云彩，云团；云");  // each once, also where it is a part only
  EXPECT_EQ(computing[1].meaning, u"深度学习");
  EXPECT_EQ(tables[static_cast<std::size_t>(Subject::kLaw)][0].meaning, u"疑云");
}

}  // namespace
