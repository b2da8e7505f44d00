#include "capture/nhw32/word_text.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

namespace nhw32 {
namespace {

/// The word at `index`, "" for none.
std::u16string at(std::u16string_view text, std::size_t index) {
  const auto range = wordAt(text, index);
  return range ? std::u16string(text.substr(range->begin, range->end - range->begin)) : u"";
}

TEST(WordAt, IsTheRunOfLettersAroundTheIndex) {
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(at(u"hello world", i), u"hello");
  for (std::size_t i = 6; i < 11; ++i) EXPECT_EQ(at(u"hello world", i), u"world");
  EXPECT_EQ(wordAt(u"hello world", 8), (Range{6, 11}));
}

TEST(WordAt, IsNothingOnBlanksDigitsAndPunctuation) {
  constexpr std::u16string_view kText = u" \t\r\n0\u00A09.,;:!?\"()_/@\u3000\u00D7\u00F7\uFFFC，。";
  for (std::size_t i = 0; i < kText.size(); ++i) EXPECT_EQ(at(kText, i), u"") << i;
  EXPECT_EQ(at(u"ab 12 cd", 2), u"");
  EXPECT_EQ(at(u"ab12cd", 3), u"");
  EXPECT_EQ(at(u"ab12cd", 1), u"ab");
  EXPECT_EQ(at(u"snake_case", 7), u"case");
}

TEST(WordAt, HyphensAndApostrophesBetweenLettersBelongToIt) {
  for (std::size_t i = 0; i < 10; ++i) EXPECT_EQ(at(u"well-known", i), u"well-known");
  EXPECT_EQ(at(u"don't", 4), u"don't");
  EXPECT_EQ(at(u"don\u2019t", 3), u"don\u2019t");
  EXPECT_EQ(at(u"non\u2010stop \u2011", 3), u"non\u2010stop");
  EXPECT_EQ(at(u"mother-in-law's", 0), u"mother-in-law's");
}

TEST(WordAt, HyphensAndApostrophesAtItsEdgesDoNot) {
  EXPECT_EQ(at(u"'quoted'", 3), u"quoted");
  EXPECT_EQ(at(u"'quoted'", 0), u"");
  EXPECT_EQ(at(u"'quoted'", 7), u"");
  EXPECT_EQ(at(u"-a-", 1), u"a");
  EXPECT_EQ(at(u"wait--no", 2), u"wait");
  EXPECT_EQ(at(u"wait--no", 4), u"");
  EXPECT_EQ(at(u"10-fold", 5), u"fold");
  EXPECT_EQ(at(u"10-fold", 2), u"");
}

TEST(WordAt, LettersWithAccentsAreLetters) {
  EXPECT_EQ(at(u"na\u00EFve caf\u00E9", 2), u"na\u00EFve");
  EXPECT_EQ(at(u"cafe\u0301!", 1), u"cafe\u0301");
  EXPECT_EQ(at(u"\u0141\u00F3d\u017A", 3), u"\u0141\u00F3d\u017A");
  EXPECT_EQ(at(u"\u1EA5m", 1), u"\u1EA5m");
}

TEST(WordAt, EnglishBesideChineseIsAWordOfItsOwn) {
  constexpr std::u16string_view kText = u"我的computer坏了";
  EXPECT_EQ(at(kText, 0), u"我的");
  EXPECT_EQ(at(kText, 2), u"computer");
  EXPECT_EQ(at(kText, 9), u"computer");
  EXPECT_EQ(at(kText, 10), u"坏了");
  EXPECT_EQ(at(u"中-文", 1), u"");
  EXPECT_EQ(at(u"字，典", 1), u"");
  EXPECT_EQ(at(u"字a-", 2), u"");
}

TEST(WordAt, OtherScriptsAreNoWords) {
  EXPECT_EQ(at(u"\u0414\u0430", 0), u"");
  EXPECT_EQ(at(u"\u304B\u306A", 0), u"");
  EXPECT_EQ(at(u"\U00020000", 0), u"");
}

TEST(WordAt, ALongRunIsNoWord) {
  const std::u16string longest(kMaxWord, u'a');
  EXPECT_EQ(at(longest, 0), longest);
  EXPECT_EQ(at(longest, kMaxWord - 1), longest);
  EXPECT_EQ(at(u" " + longest + u" ", kMaxWord / 2), longest);
  const std::u16string longer = longest + u'a';
  for (const std::size_t index : {std::size_t{0}, kMaxWord / 2, kMaxWord}) {
    EXPECT_EQ(at(longer, index), u"");
  }
  EXPECT_EQ(at(std::u16string(1'000'000, u'a'), 500'000), u"");
}

TEST(WordAt, AWordHas128CharactersAtMost) {
  EXPECT_EQ(at(std::u16string(128, u'a'), 64).size(), 128U);
  EXPECT_EQ(at(std::u16string(129, u'a'), 64), u"");
}

TEST(WordAt, NothingIsReadOutsideTheText) {
  EXPECT_EQ(at(u"", 0), u"");
  EXPECT_EQ(at(u"ab", 2), u"");
  EXPECT_EQ(at(u"ab", 99), u"");
  EXPECT_EQ(at(u"ab", std::u16string_view::npos), u"");
  // Copies of exact size, so that the address sanitizer sees a step too far.
  for (const std::u16string_view text : {u"a", u"-", u"'a", u"a'", u"字"}) {
    const auto copy = std::make_unique<char16_t[]>(text.size());
    text.copy(copy.get(), text.size());
    for (std::size_t i = 0; i <= text.size(); ++i) wordAt({copy.get(), text.size()}, i);
  }
}

/// A code page in which the Chinese character that it has takes two bytes and pairs four.
std::optional<std::string> bytesOf(std::u16string_view character) {
  if (character.size() == 2) return "PAIR";
  if (character[0] < 0x80) return std::string{static_cast<char>(character[0])};
  if (character == u"典") return "DD";
  return std::nullopt;
}

TEST(AnsiWord, IsEmptyIfTheCodePageLacksACharacter) {
  EXPECT_EQ(ansiWord(u"字", 100, bytesOf), "");
  EXPECT_EQ(ansiWord(u"word\u0416", 100, bytesOf), "");
  EXPECT_EQ(ansiWord(u"\xD840", 4, bytesOf), "");
}

TEST(AnsiWord, IsTruncatedAtACharacterBoundary) {
  EXPECT_EQ(ansiWord(u"word", 100, bytesOf), "word");
  EXPECT_EQ(ansiWord(u"word", 4, bytesOf), "word");
  EXPECT_EQ(ansiWord(u"word", 3, bytesOf), "wor");
  EXPECT_EQ(ansiWord(u"word", 0, bytesOf), "");
  EXPECT_EQ(ansiWord(u"典典", 3, bytesOf), "DD");
  EXPECT_EQ(ansiWord(u"a典典", 3, bytesOf), "aDD");
  EXPECT_EQ(ansiWord(u"典a", 1, bytesOf), "");
  EXPECT_EQ(ansiWord(u"\U00020000b", 5, bytesOf), "PAIRb");
  EXPECT_EQ(ansiWord(u"\U00020000b", 3, bytesOf), "");
  EXPECT_EQ(ansiWord(u"", 100, bytesOf), "");
}

TEST(AnsiWord, HasPlainHyphensAndApostrophes) {
  EXPECT_EQ(ansiWord(u"don\u2019t", 100, bytesOf), "don't");
  EXPECT_EQ(ansiWord(u"non\u2010stop\u2011er", 100, bytesOf), "non-stop-er");
}

}  // namespace
}  // namespace nhw32
