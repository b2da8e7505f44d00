#include "text/order.h"

#include <algorithm>
#include <array>

#include "text/pinyin_order.h"
#include "text/units.h"

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
  if (unit >= kFirstHan && unit <= kLastHan) {
    return std::size_t{unit} - kFirstHan;
  }
  if (unit >= kFirstCompatibility && unit <= kLastCompatibility) {
    return kHanCount + (std::size_t{unit} - kFirstCompatibility);
  }
  return unit == kHanZero ? kZeroPlace : kZeroPlace + 1;
}

using Ranks = std::array<std::uint16_t, kZeroPlace + 2>;
static_assert(kPinyinOrder.size() < kNotHan);

constexpr Ranks makeRanks() {
  Ranks ranks{};
  for (std::uint16_t& rank : ranks) {
    rank = kNotHan;
  }
  std::uint16_t next = 0;
  for (const char16_t unit : kPinyinOrder) {
    ranks[placeOf(unit)] = next++;
  }
  return ranks;
}

/// Made by the compiler, so that it costs nothing at start-up.
constexpr Ranks kRanks = makeRanks();

template <typename Units>
int compareUnits(Units a, Units b) {
  std::size_t placeA = 0;
  std::size_t placeB = 0;
  while (placeA < a.size() && placeB < b.size()) {
    const Unit unitA = a.at(placeA);
    const Unit unitB = b.at(placeB);
    placeA += unitA.length;
    placeB += unitB.length;
    if (unitA.value == unitB.value) {
      continue;
    }
    const std::uint32_t weightA = weight(unitA.value);
    const std::uint32_t weightB = weight(unitB.value);
    if (weightA != weightB) {
      return weightA < weightB ? -1 : 1;
    }
  }
  return static_cast<int>(placeA < a.size()) - static_cast<int>(placeB < b.size());
}

}  // namespace

std::uint32_t weight(char16_t unit) {
  if (unit < kHanZero) {
    return foldCase(unit);
  }
  const std::uint16_t rank = kRanks[placeOf(unit)];
  return rank == kNotHan ? unit : kHanBase + rank;
}

int compare(std::u16string_view a, std::u16string_view b) {
  return compareUnits(Utf16Units(a), Utf16Units(b));
}

int compareUtf8(std::string_view a, std::string_view b) {
  return compareUnits(Utf8Units(a), Utf8Units(b));
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
