#include "dictionary/gloss/descriptions.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using dictionary::isDescription;
using dictionary::isUsageNote;
using dictionary::labelsItsWord;

// "萑 | a kind of reed", "二手车 | used car", "语气助词 | modal particle"
TEST(GlossDescription, TellsDescriptionsFromTranslations) {
  for (const std::u16string_view gloss :
       {u"a kind of reed", u"coins, badges etc", u"surname Li", u"place name"}) {
    EXPECT_TRUE(isDescription(gloss));
  }
  for (const std::u16string_view gloss :
       {u"used car", u"indicator", u"modal particle", u"particle accelerator", u"kind of",
        u"exclamation mark", u"radical reform", u"transliteration"}) {
    EXPECT_FALSE(isDescription(gloss));
  }
}

// "艘 | classifier for ships", "灞 | name of a river", "垞 | used in place names", "鄮 | ancient
// place name …", "蛵 | less common word for dragonfly", "两宋 | refers to the Northern …", "嘧 | as
// in 嘧啶[mi4 ding4], pyrimidine", "林卡 | transliteration of Tibetan lingka: garden",
// "皿 | radical no. 108", "岒 | character used in place names", "罢了 | a modal particle indicating
// …"
TEST(GlossDescription, KnowsNotesOfUse) {
  for (const std::u16string_view gloss :
       {u"classifier for ships", u"name of a river", u"used in place names", u"ancient place name",
        u"used in female names", u"less common word for dragonfly", u"refers to the Northern Song",
        u"last line of the poem by Du Fu", u"as in pyrimidine", u"sometimes called hieroglyph",
        u"transliteration of Tibetan lingka: garden", u"radical no. 108", u"interj.",
        u"character used in place names", u"comes at the end of the sentence to indicate a degree",
        u"a modal particle indicating, ok", u"classifier for: ingots", u"meaning uncertain"}) {
    EXPECT_TRUE(isUsageNote(gloss));
  }
  for (const std::u16string_view gloss :
       {u"used car", u"used to", u"classifier", u"as in the past", u"sometimes", u"name",
        u"place name", u"transliteration", u"modal particle", u"a particle", u"radical", u"verb",
        u"interjection"}) {
    EXPECT_FALSE(isUsageNote(gloss));
  }
}

// "太平 | place name", "地名 | place name; toponym", "末 | … (suffix)", "后缀 | suffix", "嘅 |
// possessive particle (Cantonese)", "攸 | adverbial prefix", "坋粒 | silt particle"
TEST(GlossDescription, KnowsWhatLabelsItsWord) {
  EXPECT_TRUE(labelsItsWord(u"place name", u"太平"));
  EXPECT_FALSE(labelsItsWord(u"place name", u"地名"));
  EXPECT_TRUE(labelsItsWord(u"suffix", u"末"));
  EXPECT_FALSE(labelsItsWord(u"suffix", u"后缀"));
  EXPECT_FALSE(labelsItsWord(u"end", u"末"));
  EXPECT_TRUE(labelsItsWord(u"possessive particle", u"嘅"));
  EXPECT_TRUE(labelsItsWord(u"adverbial prefix", u"攸"));
  EXPECT_TRUE(labelsItsWord(u"phonetic ga", u"噶"));
  EXPECT_FALSE(labelsItsWord(u"silt particle", u"坋粒"));
  EXPECT_FALSE(labelsItsWord(u"phonetic loan", u"假借"));
}

}  // namespace
