// How a fixed run of bytes is found in a text: a memmem by SWAR (SIMD within a register). The two
// rarest bytes of the run are compared at eight offsets at once, in 64-bit words; only where both
// may match is the whole run compared. Letters are compared with the case bit set on both sides.
//
// The run is the pattern's fixed beginning ("data%": compared at the text's beginning only) or its
// longest part without a wildcard ("%data%"). Where the pattern is no more than that, finding the
// run is the whole match; otherwise the rest of an anchored pattern is matched in turn, and any
// other pattern as a whole (likeUtf8). A search reads some 138,000 meanings, and nearly all of them
// are rejected here.
//
// U+FFFD is not fixed: any invalid byte of a text reads as it, so that its own bytes need not
// occur.

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <numeric>
#include <utility>
#include <vector>

#include "text/characters.h"
#include "text/like.h"
#include "text/order.h"
#include "text/utf.h"

namespace text {
namespace {

/// Bytes that a dictionary is full of, the most frequent first: the lead bytes of common Han
/// characters, blanks, letters. Any other byte is rarer.
constexpr std::string_view kFrequentBytes = "\xE5\xE6\xE7\xE8\xE4\xE9 eiaotnrslcdmphuygbfvkxwzqj";

/// Higher for rarer bytes.
std::size_t rarity(char byte) { return std::min(kFrequentBytes.find(byte), kFrequentBytes.size()); }

/// Probes are chosen among so many bytes at the run's beginning: enough for a rare one, and few
/// enough that short texts have room for a step of eight offsets.
constexpr std::size_t kProbedBytes = 8;

/// Offsets of a text that are compared in one step.
constexpr std::size_t kOffsetsInStep = sizeof(std::uint64_t);

constexpr std::uint64_t kLowBits = 0x0101010101010101;
constexpr std::uint64_t kHighBits = kLowBits << 7;

/// A word of eight times that byte.
std::uint64_t eightTimes(char byte) { return kLowBits * static_cast<unsigned char>(byte); }

/// The eight bytes from `bytes` on, at any alignment.
std::uint64_t eightBytes(const char* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

/// Sets the high bit of the lowest byte that is zero, and perhaps of some above it (the borrow of
/// the subtraction may reach them), where a candidate is compared in vain. 0 if no byte is zero.
std::uint64_t zeroBytes(std::uint64_t bytes) { return (bytes - kLowBits) & ~bytes & kHighBits; }

/// Index of the lowest marked byte, which is the first in memory on a little-endian machine, as
/// every machine is that the program is for.
static_assert(std::endian::native == std::endian::little);
std::ptrdiff_t firstMarked(std::uint64_t marks) { return std::countr_zero(marks) / 8; }

bool isFixed(char16_t unit) { return unit != u'%' && unit != u'_' && unit != kReplacement; }

/// Returns whether `unit` is the lower case of a capital.
bool hasCapital(char16_t unit) {
  const auto capital = static_cast<char16_t>(unit - kCaseBit);
  return foldCase(capital) == unit && capital != unit;
}

}  // namespace

LikePattern::LikePattern(std::string_view pattern) : pattern_(pattern) {
  const Utf8Units units(pattern_);
  std::size_t start = 0;
  std::size_t offset = 0;
  while (offset < pattern_.size()) {
    const Unit unit = units.at(offset);
    if (!isFixed(unit.value)) {
      offer(start, offset - start);
      start = offset + unit.length;
    }
    offset += unit.length;
  }
  offer(start, offset - start);
  foldFixed();
  chooseProbes();
  const std::size_t runs = isAnchored_ ? 1 : 2;
  isWhole_ = !fixed_.empty() && pattern_.size() == fixed_.size() + runs &&
             (isAnchored_ || pattern_.front() == '%') && pattern_.back() == '%';
  if (isAnchored_ && !isWhole_) {
    rest_ = std::make_unique<LikePattern>(std::string_view(pattern_).substr(fixed_.size()));
  }
}

void LikePattern::offer(std::size_t start, std::size_t length) {
  if (isAnchored_ || length <= fixed_.size()) return;
  fixed_ = pattern_.substr(start, length);
  isAnchored_ = start == 0;
}

/// The cases of a letter differ in its last byte only (kCaseBit): fixed_ gets that bit set, and
/// caseBits_ the bit to be set in the bytes of a text that are compared with it.
void LikePattern::foldFixed() {
  caseBits_.assign(fixed_.size(), '\0');
  const Utf8Units units(fixed_);
  for (std::size_t offset = 0; offset < fixed_.size();) {
    const Unit unit = units.at(offset);
    offset += unit.length;
    if (!hasCapital(foldCase(unit.value))) continue;
    char& last = fixed_[offset - 1];
    last = static_cast<char>(last | kCaseBit);
    caseBits_[offset - 1] = kCaseBit;
  }
}

void LikePattern::chooseProbes() {
  if (fixed_.empty()) return;
  std::vector<std::size_t> offsets(std::min(fixed_.size(), kProbedBytes));
  std::iota(offsets.begin(), offsets.end(), std::size_t{0});
  std::ranges::stable_sort(offsets, std::ranges::greater(),
                           [&](std::size_t i) { return rarity(fixed_[i]); });
  rarest_ = probeOf(offsets.front());
  // Of equally rare ones the last: far apart, two bytes of Han belong to two characters.
  const auto others = offsets.begin() + (offsets.size() > 1 ? 1 : 0);
  second_ = probeOf(*std::max_element(others, offsets.end(), [&](std::size_t a, std::size_t b) {
    return std::pair(rarity(fixed_[a]), a) < std::pair(rarity(fixed_[b]), b);
  }));
}

LikePattern::Probe LikePattern::probeOf(std::size_t offset) const {
  return {offset, eightTimes(fixed_[offset]), eightTimes(caseBits_[offset])};
}

bool LikePattern::matches(std::string_view text, StepBudget& budget) const {
  if (text.size() < fixed_.size()) return false;
  const bool found = isAnchored_ ? startsAt(text.data()) : fixed_.empty() || occursIn(text, budget);
  if (!found || isWhole_) return found;
  return rest_ ? rest_->matches(text.substr(fixed_.size()), budget)
               : likeUtf8(pattern_, text, budget);
}

/// Returns whether the run occurs in `text`, which is not shorter than it. Comparing bytes is
/// enough: UTF-8 is self-synchronising, so that the bytes of whole characters occur only as those
/// characters. The last step is moved back to end with the text, and overlaps the one before it.
bool LikePattern::occursIn(std::string_view text, StepBudget& budget) const {
  const std::size_t reach = std::max(rarest_.offset, second_.offset) + kOffsetsInStep;
  if (text.size() < reach) return occursInShort(text);
  const char* const lastStart = text.data() + (text.size() - fixed_.size());
  const char* const lastStep = text.data() + (text.size() - reach);
  for (const char* step = text.data();; step = std::min(step + kOffsetsInStep, lastStep)) {
    for (std::uint64_t marks = candidatesAmong8(step); marks != 0; marks &= marks - 1) {
      const char* const candidate = step + firstMarked(marks);
      if (candidate <= lastStart && startsAt(candidate)) return true;
      if (!budget.consume(fixed_.size())) return false;
    }
    if (step == lastStep) return false;
  }
}

/// The same for a text that is too short for one step: offset by offset. Fewer than 15 offsets,
/// so that nothing is consumed from the budget.
bool LikePattern::occursInShort(std::string_view text) const {
  const std::size_t rarest = rarest_.offset;
  const char* const end = text.data() + (text.size() - fixed_.size()) + 1;
  for (const char* start = text.data(); start != end; ++start) {
    const bool candidate = (start[rarest] | caseBits_[rarest]) == fixed_[rarest];
    if (candidate && startsAt(start)) return true;
  }
  return false;
}

/// Marks those of the eight offsets from `bytes` on at which the run may begin, since its two
/// rarest bytes are where they would be. May mark more (see zeroBytes), never fewer.
std::uint64_t LikePattern::candidatesAmong8(const char* bytes) const {
  const auto differences = [&](const Probe& probe) {
    return (eightBytes(bytes + probe.offset) | probe.caseBits) ^ probe.wanted;
  };
  return zeroBytes(differences(rarest_) | differences(second_));
}

bool LikePattern::startsAt(const char* bytes) const {
  const char* const fixed = fixed_.data();
  const char* const caseBits = caseBits_.data();
  for (std::size_t i = 0; i < fixed_.size(); ++i) {
    if ((bytes[i] | caseBits[i]) != fixed[i]) return false;
  }
  return true;
}

}  // namespace text
