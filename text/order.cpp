// Pinyin ranks: kPinyinOrder lists the Han characters by pinyin. At compile time the list is
// inverted into a table that is indexed by character, so that comparing two texts takes one table
// read for each character in which they differ. The order is the dictionary's own and part of every
// database file: ICU's or Windows' would differ from one version to the next, and tables sorted by
// one could not be searched by another.

#include "text/order.h"

#include <algorithm>
#include <array>

#include "text/characters.h"
#include "text/pinyin_order.h"
#include "text/utf.h"

namespace text {
namespace {

/// Weight of rank 0: above every other unit's.
constexpr std::uint32_t kHanBase = 0x10000;
/// Rank of what has none: units outside the ranges, and unassigned ones within.
constexpr std::uint16_t kNotHan = 0xFFFF;

/// The table has the unified ideographs, the compatibility ideographs, 〇, and one element for all
/// other units.
constexpr std::size_t kHanCount = kLastHan - kFirstHan + 1;
constexpr std::size_t kCompatibilityCount = kLastCompatibilityHan - kFirstCompatibilityHan + 1;
constexpr std::size_t kZeroIndex = kHanCount + kCompatibilityCount;

/// Index of a unit's rank in the table of ranks; kZeroIndex + 1 for a unit that is no Han
/// character.
constexpr std::size_t rankIndex(char16_t unit) {
  if (unit >= kFirstHan && unit <= kLastHan) {
    return std::size_t{unit} - kFirstHan;
  }
  if (unit >= kFirstCompatibilityHan && unit <= kLastCompatibilityHan) {
    return kHanCount + (std::size_t{unit} - kFirstCompatibilityHan);
  }
  return unit == kHanZero ? kZeroIndex : kZeroIndex + 1;
}

using Ranks = std::array<std::uint16_t, kZeroIndex + 2>;
static_assert(kPinyinOrder.size() < kNotHan);

constexpr Ranks makeRanks() {
  Ranks ranks{};
  for (std::uint16_t& rank : ranks) {
    rank = kNotHan;
  }
  std::uint16_t next = 0;
  for (const char16_t unit : kPinyinOrder) {
    ranks[rankIndex(unit)] = next++;
  }
  return ranks;
}

/// Computed by the compiler, so that it takes no time at start-up.
constexpr Ranks kRanks = makeRanks();

/// Equal units are passed over without looking their weights up; they are most of those compared.
template <typename Units>
int compareUnits(Units a, Units b) {
  std::size_t offsetA = 0;
  std::size_t offsetB = 0;
  while (offsetA < a.size() && offsetB < b.size()) {
    const Unit unitA = a.at(offsetA);
    const Unit unitB = b.at(offsetB);
    offsetA += unitA.length;
    offsetB += unitB.length;
    if (unitA.value == unitB.value) {
      continue;
    }
    const std::uint32_t weightA = weight(unitA.value);
    const std::uint32_t weightB = weight(unitB.value);
    if (weightA != weightB) {
      return weightA < weightB ? -1 : 1;
    }
  }
  return static_cast<int>(offsetA < a.size()) - static_cast<int>(offsetB < b.size());
}

}  // namespace

std::uint32_t weight(char16_t unit) {
  // Below the first Han character, which is 〇, no table is needed.
  if (unit < kHanZero) {
    return foldCase(unit);
  }
  const std::uint16_t rank = kRanks[rankIndex(unit)];
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
