#include "dictionary/block_choice.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <tuple>

#include "dictionary/block_cuts.h"
#include "dictionary/failure.h"
#include "text/order.h"

namespace dictionary {
namespace {

using PairIndex = std::uint32_t;

/// Leaves all but the `limit` most valuable of the pairs out.
void keepBest(const std::vector<Pair>& pairs, std::vector<PairIndex>& group, std::size_t limit,
              std::vector<bool>& kept) {
  if (group.size() <= limit) return;
  std::ranges::sort(group, {}, [&](PairIndex index) {
    return std::tuple(pairs[index].tier, pairs[index].position, index);
  });
  for (const PairIndex index : std::span(group).subspan(limit)) kept[index] = false;
}

void limitChineseRows(const Vocabulary& vocabulary, std::size_t limit, std::vector<bool>& kept) {
  std::vector<std::size_t> rows(vocabulary.chinese.size());
  for (const Pair& pair : vocabulary.pairs) ++rows[pair.chinese];
  std::vector<std::vector<PairIndex>> groups(vocabulary.chinese.size());
  for (PairIndex i = 0; i < vocabulary.pairs.size(); ++i) {
    const std::uint32_t chinese = vocabulary.pairs[i].chinese;
    if (rows[chinese] > limit) groups[chinese].push_back(i);
  }
  for (std::vector<PairIndex>& group : groups) keepBest(vocabulary.pairs, group, limit, kept);
}

/// Whether two headwords that follow each other must stay in one block. The bound step searches
/// with every apostrophe doubled, which sorts before all words that are the same up to the first.
bool sharesApostrophe(std::u16string_view a, std::u16string_view b) {
  const std::size_t apostrophe = a.find(u'\'');
  return apostrophe != std::u16string_view::npos &&
         text::equal(a.substr(0, apostrophe + 1), b.substr(0, apostrophe + 1));
}

/// First pair of each unit, and the end of the last.
std::vector<PairIndex> unitBegins(const Vocabulary& vocabulary) {
  std::vector<PairIndex> begins;
  const std::vector<Pair>& pairs = vocabulary.pairs;
  for (PairIndex i = 0; i < pairs.size(); ++i) {
    const bool together = i > 0 && (pairs[i].english == pairs[i - 1].english ||
                                    sharesApostrophe(vocabulary.english[pairs[i - 1].english],
                                                     vocabulary.english[pairs[i].english]));
    if (!together) begins.push_back(i);
  }
  begins.push_back(static_cast<PairIndex>(pairs.size()));
  return begins;
}

/// Kept pairs among those from `begin` to before `end`.
std::vector<PairIndex> keptPairs(PairIndex begin, PairIndex end, const std::vector<bool>& kept) {
  std::vector<PairIndex> group;
  for (PairIndex i = begin; i < end; ++i) {
    if (kept[i]) group.push_back(i);
  }
  return group;
}

PrefixCounts prefixCounts(const std::vector<Pair>& pairs, const std::vector<PairIndex>& units,
                          const std::vector<bool>& kept) {
  PrefixCounts prefix = {TierCounts{}};
  prefix.reserve(units.size());
  for (std::size_t unit = 0; unit + 1 < units.size(); ++unit) {
    TierCounts counts = prefix.back();
    for (PairIndex i = units[unit]; i < units[unit + 1]; ++i) {
      if (kept[i]) ++counts[static_cast<std::size_t>(pairs[i].tier)];
    }
    prefix.push_back(counts);
  }
  return prefix;
}

}  // namespace

std::vector<bool> choosePairs(const Vocabulary& vocabulary, const LookupLimits& limits) {
  const std::vector<Pair>& pairs = vocabulary.pairs;
  std::vector<bool> kept(pairs.size(), true);
  limitChineseRows(vocabulary, limits.maxChineseRows, kept);

  const std::vector<PairIndex> units = unitBegins(vocabulary);
  for (std::size_t unit = 0; unit + 1 < units.size(); ++unit) {
    std::vector<PairIndex> group = keptPairs(units[unit], units[unit + 1], kept);
    keepBest(pairs, group, limits.blockRows, kept);
  }

  const PrefixCounts prefix = prefixCounts(pairs, units, kept);
  const std::size_t blocks =
      std::min(mostBlocks(prefix, limits.blockRows), limits.maxRows / limits.blockRows);
  if (blocks == 0) {
    throw Failure("the source has not enough pairs of words to fill one block of " +
                  std::to_string(limits.blockRows) + " rows");
  }
  const std::vector<std::size_t> cuts = chooseCuts(prefix, blocks, limits.blockRows);
  for (std::size_t block = 0; block + 1 < cuts.size(); ++block) {
    std::vector<PairIndex> group = keptPairs(units[cuts[block]], units[cuts[block + 1]], kept);
    keepBest(pairs, group, limits.blockRows, kept);
  }
  return kept;
}

}  // namespace dictionary
