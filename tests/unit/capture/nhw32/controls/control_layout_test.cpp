#include "capture/nhw32/controls/control_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace nhw32 {
namespace {

TEST(ExpandLow16, IsTheFirstNumberFromTheBaseWithTheseBits) {
  static_assert(expandLow16(0, 0) == 0);
  static_assert(expandLow16(0, 0xFFFF) == 0xFFFF);
  static_assert(expandLow16(10, 12) == 12);
  static_assert(expandLow16(0xFFFF, 0xFFFF) == 0xFFFF);
  static_assert(expandLow16(0xFFFF, 0) == 0x10000);
  static_assert(expandLow16(0x10000, 5) == 0x10005);
  static_assert(expandLow16(0x1FFF0, 0x10) == 0x20010);
  static_assert(expandLow16(407'000, static_cast<std::uint16_t>(407'664)) == 407'664);
  for (const std::size_t base : {0U, 65'535U, 65'536U, 400'000U}) {
    for (std::size_t index = base; index < base + 0x10000; index += 97) {
      ASSERT_EQ(expandLow16(base, static_cast<std::uint16_t>(index)), index);
    }
  }
}

std::vector<int> numbers(const std::vector<std::byte>& bytes) {
  std::vector<int> numbers(bytes.size());
  std::ranges::transform(bytes, numbers.begin(),
                         [](std::byte byte) { return std::to_integer<int>(byte); });
  return numbers;
}

TEST(TextRangeBytes, FollowTheBitnessOfTheTarget) {
  EXPECT_EQ(numbers(textRangeBytes(Bitness::kBits64, 1, 0x1234, 0x1122334455667788)),
            (std::vector<int>{1, 0, 0, 0, 0x34, 0x12, 0, 0, 0x88, 0x77, 0x66, 0x55, 0x44, 0x33,
                              0x22, 0x11}));
  EXPECT_EQ(numbers(textRangeBytes(Bitness::kBits32, 1, 0x1234, 0x55667788)),
            (std::vector<int>{1, 0, 0, 0, 0x34, 0x12, 0, 0, 0x88, 0x77, 0x66, 0x55}));
  EXPECT_EQ(numbers(textRangeBytes(Bitness::kBits32, 0, -1, 0)),
            (std::vector<int>{0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0}));
}

/// A buffer into which a control wrote `text` and the NUL after it.
template <class Unit>
std::vector<std::byte> writtenAs(std::basic_string<Unit> text) {
  std::vector<std::byte> buffer(40, kUnwritten);
  std::memcpy(buffer.data(), text.c_str(), (text.size() + 1) * sizeof(Unit));
  return buffer;
}

TEST(IsWideText, IsRecognisedByItsNul) {
  for (const std::u16string text : {u"a", u"word", u"字典", u"\u0100\u0200"}) {
    EXPECT_TRUE(isWideText(writtenAs<char16_t>(text), text.size()));
  }
  for (const std::string text : {"a", "ab", "word", "\xD7\xD6\xB5\xE4", "a\xD7\xD6"}) {
    for (std::size_t count = 1; count <= text.size(); ++count) {
      EXPECT_FALSE(isWideText(writtenAs<char>(text), count)) << text << ", said to be " << count;
    }
  }
}

TEST(IsWideText, DoesNotReadBeyondTheBuffer) {
  const std::vector<std::byte> nuls(40);
  EXPECT_TRUE(isWideText(nuls, 19));
  for (const std::size_t count : {20U, 21U, 0x7FFFFFFFU}) EXPECT_FALSE(isWideText(nuls, count));
  EXPECT_FALSE(isWideText({}, 0));
}

}  // namespace
}  // namespace nhw32
