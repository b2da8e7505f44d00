#include "text/utf.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "tests/support/data/random_text.h"

namespace {

using text::toUtf16;
using text::toUtf8;

constexpr std::string_view kInvalid = "\xEF\xBF\xBD";  // U+FFFD

std::u16string replacements(std::size_t count) {
  std::u16string text;
  return text.append(count, u'\uFFFD');
}

TEST(ToUtf8, WritesTheShortestSequence) {
  EXPECT_EQ(toUtf8(u""), "");
  EXPECT_EQ(toUtf8(u"abc"), "abc");
  EXPECT_EQ(toUtf8(std::u16string_view(u"a\0b", 3)), std::string_view("a\0b", 3));
  EXPECT_EQ(toUtf8(u"\u007F\u0080"), "\x7F\xC2\x80");
  EXPECT_EQ(toUtf8(u"\u07FF\u0800"), "\xDF\xBF\xE0\xA0\x80");
  EXPECT_EQ(toUtf8(u"\uD7FF\uE000"), "\xED\x9F\xBF\xEE\x80\x80");
  EXPECT_EQ(toUtf8(u"\uFFFF"), "\xEF\xBF\xBF");
  EXPECT_EQ(toUtf8(u"\U00010000\U0010FFFF"), "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(ToUtf8, ReplacesUnpairedSurrogates) {
  const std::string invalid(kInvalid);
  EXPECT_EQ(toUtf8(u"\xD800"), invalid);
  EXPECT_EQ(toUtf8(u"\xDC00"), invalid);
  EXPECT_EQ(toUtf8(u"a\xDBFFz"), "a" + invalid + "z");
  EXPECT_EQ(toUtf8(u"\xDC00\xD800"), invalid + invalid);
  EXPECT_EQ(toUtf8(u"\xD800\xD800\xDC00"), invalid + "\xF0\x90\x80\x80");
  EXPECT_EQ(toUtf8(u"\xD800\xDC00\xDC00"), "\xF0\x90\x80\x80" + invalid);
}

TEST(ToUtf16, ReadsEveryLength) {
  EXPECT_EQ(toUtf16(""), u"");
  EXPECT_EQ(toUtf16("abc"), u"abc");
  EXPECT_EQ(toUtf16(std::string_view("a\0b", 3)), std::u16string_view(u"a\0b", 3));
  EXPECT_EQ(toUtf16("café"), u"café");
  EXPECT_EQ(toUtf16("中文词典"), u"中文词典");
  EXPECT_EQ(toUtf16("a😀b"),
            u"a\xD83D\xDE00"
            u"b");
  EXPECT_EQ(toUtf16("\xF4\x8F\xBF\xBF"), u"\xDBFF\xDFFF");
}

TEST(ToUtf16, ReplacesEachStrayByte) {
  EXPECT_EQ(toUtf16("\x80"), replacements(1));
  EXPECT_EQ(toUtf16("a\xBF\xBFz"), u"a" + replacements(2) + u"z");
  EXPECT_EQ(toUtf16("\xF5\xFE\xFF"), replacements(3));
  EXPECT_EQ(toUtf16("中\x80"), u"中" + replacements(1));
  EXPECT_EQ(toUtf16("😀\x98\x80"), u"\xD83D\xDE00" + replacements(2));
}

TEST(ToUtf16, ReplacesEachByteOfACutOffSequence) {
  EXPECT_EQ(toUtf16("\xC3"), replacements(1));
  EXPECT_EQ(toUtf16("\xE4\xB8"), replacements(2));
  EXPECT_EQ(toUtf16("\xF0\x9F\x98"), replacements(3));
  EXPECT_EQ(toUtf16("\xE4\xB8z"), replacements(2) + u"z");
  EXPECT_EQ(toUtf16("\xE4中"), replacements(1) + u"中");
  EXPECT_EQ(toUtf16("\xF0\x9F\x98中"), replacements(3) + u"中");
}

TEST(ToUtf16, ReadsNothingPastTheTextsEnd) {
  constexpr std::string_view kLonger = "é中😀";
  EXPECT_EQ(toUtf16(kLonger.substr(0, 1)), replacements(1));
  EXPECT_EQ(toUtf16(kLonger.substr(2, 1)), replacements(1));
  EXPECT_EQ(toUtf16(kLonger.substr(2, 2)), replacements(2));
  EXPECT_EQ(toUtf16(kLonger.substr(5, 3)), replacements(3));
  EXPECT_EQ(toUtf16(kLonger.substr(3, 2)), replacements(2));
}

TEST(ToUtf16, ReplacesEachByteOfAnOverlongSequence) {
  EXPECT_EQ(toUtf16("\xC0\x80"), replacements(2));
  EXPECT_EQ(toUtf16("\xC1\xBF"), replacements(2));
  EXPECT_EQ(toUtf16("\xE0\x80\xAF"), replacements(3));
  EXPECT_EQ(toUtf16("\xE0\x9F\xBF"), replacements(3));
  EXPECT_EQ(toUtf16("\xF0\x80\x80\xAF"), replacements(4));
  EXPECT_EQ(toUtf16("\xF0\x8F\xBF\xBF"), replacements(4));
}

TEST(ToUtf16, ReplacesEachByteOfAnEncodedSurrogate) {
  EXPECT_EQ(toUtf16("\xED\xA0\x80"), replacements(3));
  EXPECT_EQ(toUtf16("\xED\xBF\xBF"), replacements(3));
  EXPECT_EQ(toUtf16("\xED\xA0\xBD\xED\xB8\x80"), replacements(6));
}

TEST(ToUtf16, ReplacesEachByteBeyondTheLastCharacter) {
  EXPECT_EQ(toUtf16("\xF4\x90\x80\x80"), replacements(4));
  for (int lead = 0xF5; lead <= 0xFF; ++lead) {
    EXPECT_EQ(toUtf16(static_cast<char>(lead) + std::string("\x80\x80\x80")), replacements(4));
    EXPECT_EQ(toUtf16(static_cast<char>(lead) + std::string("\xBF\xBF\xBF")), replacements(4));
  }
}

TEST(Utf, RoundTripsEveryCharacter) {
  for (char32_t character = 0; character <= 0x10FFFF; ++character) {
    if (character == 0xD800) {
      character = 0xE000;
    }
    std::u16string utf16;
    if (character <= 0xFFFF) {
      utf16 = static_cast<char16_t>(character);
    } else {
      utf16 += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
      utf16 += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
    ASSERT_EQ(toUtf16(toUtf8(utf16)), utf16) << std::uint32_t{character};
  }
}

TEST(Utf, MakesValidTextsOfAnyBytes) {
  RandomText random(4);
  for (int round = 0; round < 20000; ++round) {
    const std::string bytes = random.any<char>(12);
    const std::u16string once = toUtf16(bytes);
    ASSERT_LE(once.size(), bytes.size());
    ASSERT_EQ(toUtf16(toUtf8(once)), once);
  }
}

TEST(Utf, MakesValidTextsOfAnyUnits) {
  RandomText random(5);
  for (int round = 0; round < 20000; ++round) {
    const std::u16string units = random.from<char16_t>(u"a中\xD83D\xDE00\xDBFF\xDC00", 8);
    const std::string once = toUtf8(units);
    ASSERT_EQ(toUtf16(once).size(), units.size());
    ASSERT_EQ(toUtf8(toUtf16(once)), once);
  }
}

}  // namespace
