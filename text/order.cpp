#include "text/order.h"

#include <algorithm>
#include <array>

#include "text/pinyin_order.h"
#include "text/utf8_reader.h"

namespace text {
namespace {

constexpr char16_t kFirstHan = 0x3400;
constexpr char16_t kLastHan = 0x9FFF;
constexpr char16_t kFirstCompatibility = 0xF900;
constexpr char16_t kLastCompatibility = 0xFAFF;
constexpr char16_t kHanZero = 0x3007;  // 〇, which stands apart from the other characters

constexpr std::uint32_t kHanBase = 0x10000;
constexpr std::uint16_t kNotHan = 0xFFFF;

constexpr std::size_t kHanCount = kLastHan - kFirstHan + 1;
constexpr std::size_t kCompatibilityCount = kLastCompatibility - kFirstCompatibility + 1;
constexpr std::size_t kZeroPlace = kHanCount + kCompatibilityCount;

/// Where a unit has its rank in the table of ranks; kZeroPlace + 1 for a unit without one.
constexpr std::size_t placeOf(char16_t unit) {
  if (unit >= kFirstHan && unit <= kLastHan) return std::size_t{unit} - kFirstHan;
  if (unit >= kFirstCompatibility && unit <= kLastCompatibility)
    return kHanCount + (std::size_t{unit} - kFirstCompatibility);
  return unit == kHanZero ? kZeroPlace : kZeroPlace + 1;
}

using Ranks = std::array<std::uint16_t, kZeroPlace + 2>;

constexpr Ranks makeRanks() {
  Ranks ranks{};
  for (std::uint16_t& rank : ranks) rank = kNotHan;
  std::uint16_t next = 0;
  for (const char16_t unit : kPinyinOrder) ranks[placeOf(unit)] = next++;
  return ranks;
}

/// Made by the compiler, so that it costs nothing at start-up.
constexpr Ranks kRanks = makeRanks();

template <typename Reader>
int compareUnits(Reader a, Reader b) {
  while (!a.atEnd() && !b.atEnd()) {
    const char16_t unitA = a.next();
    const char16_t unitB = b.next();
    if (unitA == unitB) continue;
    const std::uint32_t weightA = weight(unitA);
    const std::uint32_t weightB = weight(unitB);
    if (weightA != weightB) return weightA < weightB ? -1 : 1;
  }
  return static_cast<int>(!a.atEnd()) - static_cast<int>(!b.atEnd());
}

}  // namespace

char16_t foldCase(char16_t unit) {
  const bool ascii = unit >= u'A' && unit <= u'Z';
  const bool latin = unit >= 0xC0 && unit <= 0xDE && unit != 0xD7;
  return ascii || latin ? static_cast<char16_t>(unit + 0x20) : unit;
}

std::uint32_t weight(char16_t unit) {
  if (unit < kHanZero) return foldCase(unit);
  const std::uint16_t rank = kRanks[placeOf(unit)];
  return rank == kNotHan ? unit : kHanBase + rank;
}

int compare(std::u16string_view a, std::u16string_view b) {
  return compareUnits(Utf16Reader(a), Utf16Reader(b));
}

int compareUtf8(std::string_view a, std::string_view b) {
  return compareUnits(Utf8Reader(a), Utf8Reader(b));
}

bool equal(std::u16string_view a, std::u16string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char16_t x, char16_t y) { return foldCase(x) == foldCase(y); });
}

std::u16string toLower(std::u16string_view text) {
  std::u16string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), foldCase);
  return lower;
}

}  // namespace text
