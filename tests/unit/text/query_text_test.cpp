#include "text/query_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "tests/support/data/random_text.h"

namespace {

constexpr std::u16string_view kTyped = u"ab '?*_%é中！";
constexpr int kRounds = 2000;

using user::readTyped;
using user::Typed;

std::u16string escaped(std::u16string text) { return user::escapeQuote(text); }

TEST(EscapeQuote, DoublesEveryQuote) {
  EXPECT_EQ(escaped(u""), u"");
  EXPECT_EQ(escaped(u"'"), u"''");
  EXPECT_EQ(escaped(u"''"), u"''''");
  EXPECT_EQ(escaped(u"it's"), u"it''s");
  EXPECT_EQ(escaped(u"a'b'c"), u"a''b''c");
  EXPECT_EQ(escaped(u"'中'"), u"''中''");
}

TEST(EscapeQuote, LeavesEverythingElse) {
  EXPECT_EQ(escaped(u"\"`’＇;--"), u"\"`’＇;--");
  EXPECT_EQ(escaped(std::u16string(u"a\0'b", 4)), std::u16string(u"a\0''b", 5));
}

TEST(EscapeQuote, RewritesTheCallersVariable) {
  std::u16string text = u"it's";
  const std::u16string& result = user::escapeQuote(text);
  EXPECT_EQ(text, u"it''s");
  EXPECT_EQ(&result, &text);
  user::escapeQuote(text);
  EXPECT_EQ(text, u"it''''s");
}

TEST(EscapeQuote, CanBeReadBackFromAnyText) {
  RandomText random(1);
  for (int round = 0; round < kRounds; ++round) {
    const std::u16string text = random.from(kTyped, 20);
    const std::u16string result = escaped(text);
    std::u16string readBack;
    for (std::size_t i = 0; i < result.size(); ++i) {
      readBack += result[i];
      if (result[i] == u'\'') {
        ++i;
        ASSERT_TRUE(i < result.size() && result[i] == u'\'');
      }
    }
    EXPECT_EQ(readBack, text);
  }
}

TEST(GetEorC, IsChineseFromU0100On) {
  EXPECT_EQ(user::getEorC(u"abc"), u"E");
  EXPECT_EQ(user::getEorC(u"café"), u"E");
  EXPECT_EQ(user::getEorC(u"\u00FF"), u"E");
  EXPECT_EQ(user::getEorC(u"\u0100"), u"C");
  EXPECT_EQ(user::getEorC(u"ab中"), u"C");
  EXPECT_EQ(user::getEorC(u"中ab"), u"C");
  EXPECT_EQ(user::getEorC(u"！"), u"C");
  EXPECT_EQ(user::getEorC(u"\xD83D"), u"C");
}

TEST(GetEorC, IsEnglishForTextsWithoutLetters) {
  EXPECT_EQ(user::getEorC(u""), u"E");
  EXPECT_EQ(user::getEorC(u"   "), u"E");
  EXPECT_EQ(user::getEorC(std::u16string_view(u"\0\0", 2)), u"E");
}

TEST(GetEorC, LooksAtTheHighByteOnly) {
  for (std::uint32_t unit = 0; unit <= 0xFFFF; ++unit) {
    const std::u16string text(1, static_cast<char16_t>(unit));
    ASSERT_EQ(user::getEorC(text), unit < 256 ? u"E" : u"C") << unit;
  }
}

TEST(ConvertWildcard, WritesOnlyTheQuestionMarksBack) {
  std::u16string text = u"a?b*";
  EXPECT_EQ(user::convertWildcard(text), u"a_b%");
  EXPECT_EQ(text, u"a_b*");
}

TEST(ConvertWildcard, ReplacesEveryWildcard) {
  std::u16string text = u"*??*中?";
  EXPECT_EQ(user::convertWildcard(text), u"%__%中_");
  EXPECT_EQ(text, u"*__*中_");
}

TEST(ConvertWildcard, KeepsTextsWithoutWildcards) {
  std::u16string text;
  EXPECT_EQ(user::convertWildcard(text), u"");
  EXPECT_EQ(text, u"");
  text = u"50%_？＊";
  EXPECT_EQ(user::convertWildcard(text), u"50%_？＊");
  EXPECT_EQ(text, u"50%_？＊");
}

TEST(ConvertWildcard, ChangesUnitByUnitInAnyText) {
  RandomText random(2);
  for (int round = 0; round < kRounds; ++round) {
    const std::u16string typed = random.from(kTyped, 20);
    std::u16string variable = typed;
    const std::u16string result = user::convertWildcard(variable);
    std::u16string expected = typed;
    std::replace(expected.begin(), expected.end(), u'?', u'_');
    EXPECT_EQ(variable, expected);
    std::replace(expected.begin(), expected.end(), u'*', u'%');
    EXPECT_EQ(result, expected);
  }
}

TEST(ReplaceStr, ReplacesEveryOccurrence) {
  EXPECT_EQ(user::replaceStr(u"a.b.c", u".", u"-"), u"a-b-c");
  EXPECT_EQ(user::replaceStr(u"...", u".", u"-"), u"---");
  EXPECT_EQ(user::replaceStr(u"a.b.", u".", u""), u"ab");
  EXPECT_EQ(user::replaceStr(u"a.b", u".", u" -> "), u"a -> b");
  EXPECT_EQ(user::replaceStr(u"中文中", u"中", u"英"), u"英文英");
}

TEST(ReplaceStr, LeavesTextsWithoutTheSearchText) {
  EXPECT_EQ(user::replaceStr(u"abc", u".", u"-"), u"abc");
  EXPECT_EQ(user::replaceStr(u"", u".", u"-"), u"");
  EXPECT_EQ(user::replaceStr(u"ab", u"abc", u"-"), u"ab");
  EXPECT_EQ(user::replaceStr(u"abc", u"", u"-"), u"abc");
}

TEST(ReplaceStr, MindsTheCase) { EXPECT_EQ(user::replaceStr(u"aAa", u"A", u"-"), u"a-a"); }

TEST(ReplaceStr, TakesOneCharacterOutForALongerSearchText) {
  EXPECT_EQ(user::replaceStr(u"xaby", u"ab", u"-"), u"x-by");
  EXPECT_EQ(user::replaceStr(u"abab", u"ab", u""), u"bb");
}

TEST(ReplaceStr, SearchesAgainFromTheStart) {
  // What is left of "aab" matches once more, this time together with the character before.
  EXPECT_EQ(user::replaceStr(u"aab", u"ab", u""), u"b");
  EXPECT_EQ(user::replaceStr(u"axab", u"xa", u""), u"aab");
}

TEST(ReplaceStr, FollowsItsStepsForAnyText) {
  RandomText random(11);
  for (int round = 0; round < kRounds; ++round) {
    const std::u16string source = random.from<char16_t>(u"aab'", 12);
    const std::u16string search = random.from<char16_t>(u"ab", 3);
    if (search.empty()) {
      continue;
    }
    const std::u16string replacement = random.from<char16_t>(u"x-", 2);
    std::u16string expected = source;
    for (std::size_t p = expected.find(search); p != std::u16string::npos;
         p = expected.find(search)) {
      expected.replace(p, 1, replacement);
    }
    EXPECT_EQ(user::replaceStr(source, search, replacement), expected);
  }
}

TEST(PadWord, FillsUpToTheWidth) {
  EXPECT_EQ(user::padWord(u"cat", 6), u"cat   ");
  EXPECT_EQ(user::padWord(u"cat", 4), u"cat ");
  EXPECT_EQ(user::padWord(u"", 3), u"   ");
}

TEST(PadWord, AddsTwoBlanksToWhatIsWideAlready) {
  EXPECT_EQ(user::padWord(u"cat", 3), u"cat  ");
  EXPECT_EQ(user::padWord(u"cat", 2), u"cat  ");
  EXPECT_EQ(user::padWord(u"cat", 0), u"cat  ");
  EXPECT_EQ(user::padWord(u"", 0), u"  ");
  EXPECT_EQ(user::padWord(u"cat", -1), u"cat  ");
  EXPECT_EQ(user::padWord(u"cat", std::numeric_limits<std::int16_t>::min()), u"cat  ");
}

TEST(PadWord, CountsTwoColumnsForEveryUnitOfAChineseText) {
  EXPECT_EQ(user::padWord(u"中文", 6), u"中文  ");
  EXPECT_EQ(user::padWord(u"中a", 6), u"中a  ");
  EXPECT_EQ(user::padWord(u"中a", 4), u"中a  ");
  EXPECT_EQ(user::padWord(u"中", 5), u"中   ");
  EXPECT_EQ(user::padWord(u"café", 6), u"café  ");
}

TEST(PadWord, ReachesTheLargestWidth) {
  constexpr auto kWidest = std::numeric_limits<std::int16_t>::max();
  EXPECT_EQ(user::padWord(u"a", kWidest), u"a" + std::u16string(32766, u' '));
  const std::u16string wide(40000, u'中');
  EXPECT_EQ(user::padWord(wide, kWidest), wide + u"  ");
}

TEST(PadWord, IsExactlyWideEnoughForAnyText) {
  RandomText random(3);
  for (int round = 0; round < kRounds; ++round) {
    const std::u16string text = random.from(kTyped, 20);
    const auto width = static_cast<std::int16_t>(random.below(50));
    const std::u16string padded = user::padWord(text, width);
    const std::size_t columns = user::displayLength(text);
    const std::size_t blanks = padded.size() - text.size();
    ASSERT_EQ(padded, text + std::u16string(blanks, u' '));
    if (columns >= static_cast<std::size_t>(width)) {
      EXPECT_EQ(blanks, 2);
    } else {
      EXPECT_EQ(columns + blanks, static_cast<std::size_t>(width));
    }
  }
}

TEST(DisplayLength, DependsOnTheLanguage) {
  EXPECT_EQ(user::displayLength(u""), 0);
  EXPECT_EQ(user::displayLength(u"café"), 4);
  EXPECT_EQ(user::displayLength(u"中文"), 4);
  EXPECT_EQ(user::displayLength(u"中a"), 4);
}

TEST(ReadTyped, FindsNothingInBlanks) {
  for (const std::u16string_view text : {u"", u" ", u"     "}) {
    EXPECT_EQ(readTyped(text).kind, Typed::kNothing);
    EXPECT_EQ(readTyped(text).word, u"");
  }
}

TEST(ReadTyped, RefusesEnglishAfterAWildcard) {
  for (const std::u16string_view text :
       {u"?abc", u"*", u"_data", u"%abc", u"  ?x", u"%", u"?caf\u00E9"}) {
    EXPECT_EQ(readTyped(text).kind, Typed::kRefused);
    EXPECT_EQ(readTyped(text).word, u"");
  }
}

TEST(ReadTyped, TakesWildcardsFurtherBackAndBeforeChinese) {
  EXPECT_EQ(readTyped(u"a?bc").kind, Typed::kWord);
  EXPECT_EQ(readTyped(u"da%").word, u"da%");
  EXPECT_EQ(readTyped(u"?数").kind, Typed::kWord);
  EXPECT_EQ(readTyped(u"*数").language, user::kChinese);
}

TEST(ReadTyped, TrimsBlanksAndDoublesQuotes) {
  EXPECT_EQ(readTyped(u"  it's ").word, u"it''s");
  EXPECT_EQ(readTyped(u"  it's ").language, user::kEnglish);
  EXPECT_EQ(readTyped(u" 数据").word, u"数据");
  EXPECT_EQ(readTyped(u" 数据").language, user::kChinese);
  EXPECT_EQ(readTyped(u"'").word, u"''");
  EXPECT_EQ(readTyped(u"\u3000").kind, Typed::kWord);
}

}  // namespace
