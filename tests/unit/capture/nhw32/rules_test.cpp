#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "capture/nhw32/ansi_word.h"
#include "capture/nhw32/choose_way.h"
#include "capture/nhw32/controls/edit_index.h"
#include "capture/nhw32/controls/rich_edit_layout.h"

namespace nhw32 {
namespace {

TEST(EditIndex, IsTheFirstFromTheBaseThatEndsInTheBits) {
  static_assert(unwrapped(0, 0) == 0);
  static_assert(unwrapped(0, 0xFFFF) == 0xFFFF);
  static_assert(unwrapped(10, 12) == 12);
  static_assert(unwrapped(0xFFFF, 0xFFFF) == 0xFFFF);
  static_assert(unwrapped(0xFFFF, 0) == 0x10000);
  static_assert(unwrapped(0x10000, 5) == 0x10005);
  static_assert(unwrapped(0x1FFF0, 0x10) == 0x20010);
  static_assert(unwrapped(407'000, static_cast<std::uint16_t>(407'664)) == 407'664);
  for (const std::size_t base : {0U, 65'535U, 65'536U, 400'000U}) {
    for (std::size_t index = base; index < base + 0x10000; index += 97) {
      ASSERT_EQ(unwrapped(base, static_cast<std::uint16_t>(index)), index);
    }
  }
}

std::vector<int> numbers(const std::vector<std::byte>& bytes) {
  std::vector<int> numbers(bytes.size());
  std::ranges::transform(bytes, numbers.begin(),
                         [](std::byte byte) { return std::to_integer<int>(byte); });
  return numbers;
}

TEST(RichEditLayout, FollowsTheBitnessOfTheTarget) {
  EXPECT_EQ(numbers(textRangeBytes(Bitness::bits64, 1, 0x1234, 0x1122334455667788)),
            (std::vector<int>{1, 0, 0, 0, 0x34, 0x12, 0, 0, 0x88, 0x77, 0x66, 0x55, 0x44, 0x33,
                              0x22, 0x11}));
  EXPECT_EQ(numbers(textRangeBytes(Bitness::bits32, 1, 0x1234, 0x55667788)),
            (std::vector<int>{1, 0, 0, 0, 0x34, 0x12, 0, 0, 0x88, 0x77, 0x66, 0x55}));
  EXPECT_EQ(numbers(textRangeBytes(Bitness::bits32, 0, -1, 0)),
            (std::vector<int>{0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0}));
}

TEST(ChooseWay, KnowsTheWindowsThatAreProbed) {
  const std::map<std::u16string_view, Way> ways{
      {u"ttyGrab", Way::automation},
      {u"AVL_AVView", Way::automation},
      {u"tty", Way::automation},
      {u"_WwG", Way::automation},
      {u"ConsoleWindowClass", Way::automation},
      {u"EXCEL6", Way::automation},
      {u"EXCEL7", Way::automation},
      {u"EXCEL<", Way::automation},
      {u"ThunderRT6TextBox", Way::edit},
      {u"ThunderRT5TextBox", Way::edit},
      {u"ThunderTextBox", Way::edit},
      {u"HTML_Internet Explorer", Way::automation},
      {u"RichEdit20W", Way::richEdit},
      {u"RichEdit20A", Way::richEdit},
      {u"RichEdit", Way::richEdit},
      {u"Internet Explorer_Server", Way::automation},
      {u"Edit", Way::edit},
  };
  EXPECT_EQ(ways.size(), 17U);
  for (const auto& [name, way] : ways) {
    EXPECT_EQ(wayFor(name, name), way);
  }
}

TEST(ChooseWay, RichEditControlsMayHaveMoreInTheirNames) {
  for (const std::u16string_view name : {u"TRichEdit", u"RichEdit20W.1", u"RichEditD2DPT"}) {
    EXPECT_EQ(wayFor(name, name), Way::richEdit);
  }
}

TEST(ChooseWay, AnEditControlIsOneByItsRealClassNotByItsName) {
  for (const std::u16string_view name : {u"TMyEditor", u"TLogEdit", u"Edit0", u"TRichEdit"}) {
    for (const std::u16string_view real : {u"Edit", u"EDIT", u"edit"}) {
      EXPECT_EQ(wayFor(name, real), Way::edit);
    }
  }
  for (const std::u16string_view name : {u"TMyEditor", u"TLogEdit", u"Edit0", u"MyEdit"}) {
    for (const std::u16string_view real :
         {name, std::u16string_view(u"RichEdit20W"), std::u16string_view()}) {
      EXPECT_EQ(wayFor(name, real), Way::automation);
    }
  }
}

TEST(ChooseWay, WithoutARealClassTheWholeNameTells) {
  for (const std::u16string_view name : {u"Edit", u"EDIT", u"edit", u"ThunderRT6TextBox"}) {
    EXPECT_EQ(wayFor(name, u""), Way::edit);
  }
  EXPECT_EQ(wayFor(u"MyThunderTextBox", u"MyThunderTextBox"), Way::automation);
  EXPECT_EQ(wayFor(u"Richedit", u"Richedit"), Way::automation);
  EXPECT_EQ(wayFor(u"", u""), Way::automation);
}

/// A buffer into which a control wrote `text` and the NUL behind it.
template <class Unit>
std::vector<std::byte> writtenAs(std::basic_string<Unit> text) {
  std::vector<std::byte> buffer(40, kUnwritten);
  std::memcpy(buffer.data(), text.c_str(), (text.size() + 1) * sizeof(Unit));
  return buffer;
}

TEST(RichEditText, IsWideWhereItsNulIs) {
  for (const std::u16string text : {u"a", u"word", u"字典", u"\u0100\u0200"}) {
    EXPECT_TRUE(isWideText(writtenAs<char16_t>(text), text.size()));
  }
  for (const std::string text : {"a", "ab", "word", "\xD7\xD6\xB5\xE4", "a\xD7\xD6"}) {
    for (std::size_t count = 1; count <= text.size(); ++count) {
      EXPECT_FALSE(isWideText(writtenAs<char>(text), count)) << text << ", said to be " << count;
    }
  }
}

TEST(RichEditText, IsNotReadBeyondItsBuffer) {
  const std::vector<std::byte> nuls(40);
  EXPECT_TRUE(isWideText(nuls, 19));
  for (const std::size_t count : {20U, 21U, 0x7FFFFFFFU}) EXPECT_FALSE(isWideText(nuls, count));
  EXPECT_FALSE(isWideText({}, 0));
}

/// A code page in which the Chinese character that it has takes two bytes and pairs four.
std::optional<std::string> bytesOf(std::u16string_view character) {
  if (character.size() == 2) return "PAIR";
  if (character[0] < 0x80) return std::string{static_cast<char>(character[0])};
  if (character == u"典") return "DD";
  return std::nullopt;
}

TEST(AnsiWord, WithACharacterThatTheCodePageLacksIsNone) {
  EXPECT_EQ(ansiWord(u"字", 100, bytesOf), "");
  EXPECT_EQ(ansiWord(u"word\u0416", 100, bytesOf), "");
  EXPECT_EQ(ansiWord(u"\xD840", 4, bytesOf), "");
}

TEST(AnsiWord, IsCutAtAWholeCharacter) {
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
