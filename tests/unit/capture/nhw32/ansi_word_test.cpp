#include "capture/nhw32/ansi_word.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace nhw32 {
namespace {

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
