#include "capture/nhw32/word_text.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace nhw32 {
namespace {

using Words = std::vector<std::u16string>;

/// What is handed over at `index` without a dictionary; "(none)" if there is no word.
std::u16string at(std::u16string_view text, std::size_t index) {
  const auto found = wordAt(text, index);
  return found ? found->text : u"(none)";
}

Words candidatesAt(std::u16string_view text, std::size_t index) {
  const auto found = wordAt(text, index);
  return found ? found->candidates : Words();
}

text::Range rangeAt(std::u16string_view text, std::size_t index) {
  const auto found = wordAt(text, index);
  return found ? found->range : text::Range();
}

TEST(WordAt, IsTheWordWithItsReadings) {
  EXPECT_EQ(at(u"the man's hat", 5), u"man");
  EXPECT_EQ(candidatesAt(u"the man's hat", 5), (Words{u"man's", u"man"}));
  EXPECT_EQ(rangeAt(u"the man's hat", 5), (text::Range{4, 9}));
}

TEST(WordAt, IsSpelledAsInADictionary) {
  EXPECT_EQ(at(u"don\u2019t", 4), u"don't");
  EXPECT_EQ(at(u"non\u2010stop", 3), u"non-stop");
  EXPECT_EQ(at(u"cafe\u0301!", 1), u"cafe");
  EXPECT_EQ(rangeAt(u"cafe\u0301!", 1), (text::Range{0, 5}));
}

TEST(WordAt, IsNothingUnaskedWhereLettersTouchDigits) {
  EXPECT_EQ(at(u"the 1st", 5), u"");
  EXPECT_EQ(candidatesAt(u"the 1st", 5), (Words{u"1st"}));
  EXPECT_EQ(rangeAt(u"of CO2.", 4), (text::Range{3, 6}));
  EXPECT_EQ(at(u"of CO2.", 4), u"");
}

TEST(WordAt, HasTheRangeOfTheWordThoughACandidateIsWider) {
  EXPECT_EQ(candidatesAt(u"and/or", 1).front(), u"and/or");
  EXPECT_EQ(at(u"and/or", 1), u"and");
  EXPECT_EQ(rangeAt(u"and/or", 1), (text::Range{0, 3}));
}

TEST(WordAt, OfAWordThatALinesEndDividesIsTheWholeOfIt) {
  EXPECT_EQ(at(u"associ-\r\nated", 9), u"associated");
  EXPECT_EQ(rangeAt(u"associ-\r\nated", 2), (text::Range{0, 13}));
}

TEST(WordAt, IsARunOfHanCharacters) {
  constexpr std::u16string_view kText = u"我的computer坏了";
  EXPECT_EQ(at(kText, 0), u"我的");
  EXPECT_EQ(at(kText, 2), u"computer");
  EXPECT_EQ(at(kText, 9), u"computer");
  EXPECT_EQ(at(kText, 10), u"坏了");
  EXPECT_EQ(candidatesAt(kText, 10), Words());
}

TEST(WordAt, IsNothingElse) {
  constexpr std::u16string_view kText = u" \t\r\n\u00A0.,;:!?\"()_@\u3000\u00D7\u00F7\uFFFC，。";
  for (std::size_t i = 0; i <= kText.size(); ++i) EXPECT_EQ(at(kText, i), u"(none)") << i;
  EXPECT_EQ(at(u"ab 12 cd", 3), u"(none)");
  EXPECT_EQ(at(u"\u0414\u0430", 0), u"(none)");
  EXPECT_EQ(at(u"\U00020000", 0), u"(none)");
  EXPECT_EQ(at(std::u16string(129, u'a'), 64), u"(none)");
  EXPECT_EQ(at(std::u16string(128, u'a'), 64).size(), 128U);
  EXPECT_EQ(at(u"ab", std::u16string_view::npos), u"(none)");
}

TEST(WordAt, ReadsNothingOutsideTheText) {
  // Copies of exact size, so that the address sanitizer sees a step too far.
  for (const std::u16string_view text : {u"a", u"-", u"'a", u"a'", u"a.", u"a-", u"字"}) {
    const auto copy = std::make_unique<char16_t[]>(text.size());
    text.copy(copy.get(), text.size());
    for (std::size_t i = 0; i <= text.size(); ++i) wordAt({copy.get(), text.size()}, i);
  }
}

/// A word with these readings.
const Word kWord{.text = u"word", .box = {}, .candidates = {u"one", u"two", u"three"}};

TEST(ChosenText, IsTheFirstCandidateThatIsAHeadword) {
  Words asked;
  const auto isHeadword = [&](std::u16string_view word) {
    asked.emplace_back(word);
    return word == u"two" || word == u"three";
  };
  EXPECT_EQ(chosenText(kWord, isHeadword), u"two");
  EXPECT_EQ(asked, (Words{u"one", u"two"})) << "nothing is asked afterwards";
}

TEST(ChosenText, IsTheWordItselfIfNoneIs) {
  EXPECT_EQ(chosenText(kWord, [](std::u16string_view) { return false; }), u"word");
  EXPECT_EQ(chosenText(kWord, nullptr), u"word");
}

// A dictionary that fails may take a second to do so.
TEST(ChosenText, AsksAFailingDictionaryOnce) {
  int asked = 0;
  const auto fails = [&](std::u16string_view /*word*/) -> bool {
    ++asked;
    throw std::runtime_error("locked");
  };
  EXPECT_EQ(chosenText(kWord, fails), u"word");
  EXPECT_EQ(asked, 1);
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

}  // namespace
}  // namespace nhw32
