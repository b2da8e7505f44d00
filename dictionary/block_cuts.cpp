#include "dictionary/block_cuts.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <numeric>

namespace dictionary {
namespace {

/// What leaving out one pair of each tier costs, relative to the others.
constexpr std::array<std::uint64_t, kTierCount> kLoss = {1000, 600, 400, 150, 60, 40,
                                                         30,   30,  8,   4,   1};

constexpr std::uint64_t kImpossible = std::numeric_limits<std::uint64_t>::max();

/// How far from its natural place a cut is looked for, in rows; widened where that is not enough.
constexpr std::size_t kReach = 40;

/// The rows before each unit if the most valuable pairs of all were taken, as multiples of
/// 1 / `denominator`, so that no rounding is needed.
struct NaturalRows {
  std::vector<std::uint64_t> before;
  std::uint64_t denominator = 1;
};

NaturalRows naturalRows(const PrefixCounts& prefix, std::uint64_t rows) {
  const TierCounts& all = prefix.back();
  std::size_t partly = 0;
  std::uint64_t left = rows;
  while (partly + 1 < kTierCount && all[partly] <= left) left -= all[partly++];
  NaturalRows natural;
  natural.denominator = std::max<std::uint64_t>(all[partly], 1);
  natural.before.reserve(prefix.size());
  for (const TierCounts& counts : prefix) {
    const std::uint64_t whole = std::accumulate(
        counts.begin(), counts.begin() + static_cast<std::ptrdiff_t>(partly), std::uint64_t{0});
    natural.before.push_back(whole * natural.denominator + left * counts[partly]);
  }
  return natural;
}

/// Loss of the block of the units from `first` to before `last`.
std::uint64_t blockLoss(const TierCounts& first, const TierCounts& last, std::size_t blockRows) {
  std::uint64_t surplus = 0;
  for (std::size_t tier = 0; tier < kTierCount; ++tier) surplus += last[tier] - first[tier];
  if (surplus < blockRows) return kImpossible;
  surplus -= blockRows;
  std::uint64_t loss = 0;
  for (std::size_t tier = kTierCount; tier-- > 0 && surplus > 0;) {
    const std::uint64_t dropped = std::min<std::uint64_t>(surplus, last[tier] - first[tier]);
    loss += dropped * kLoss[tier];
    surplus -= dropped;
  }
  return loss;
}

/// Places where one cut may be: units first .. first + loss.size() - 1, the least loss of all
/// blocks before each, and the place of the cut before that gives it.
struct CutPlaces {
  std::size_t first = 0;
  std::vector<std::uint64_t> loss;
  std::vector<std::uint32_t> previous;
};

CutPlaces placesAround(const NaturalRows& natural, std::uint64_t row, std::size_t reach) {
  const std::uint64_t low = row > reach ? (row - reach) * natural.denominator : 0;
  const std::uint64_t high = (row + reach) * natural.denominator;
  const auto begin = natural.before.begin();
  const auto lowest = std::lower_bound(begin, natural.before.end(), low) - begin;
  const auto highest = std::upper_bound(begin, natural.before.end(), high) - begin;
  CutPlaces places;
  places.first = static_cast<std::size_t>(std::max<std::ptrdiff_t>(lowest - 1, 0));
  const auto last = std::min(static_cast<std::size_t>(highest), natural.before.size() - 1);
  places.loss.assign(last + 1 - places.first, kImpossible);
  places.previous.assign(places.loss.size(), 0);
  return places;
}

/// Finds the least loss for every place of a cut from those of the cut before.
void extend(const PrefixCounts& prefix, const CutPlaces& from, CutPlaces& to,
            std::size_t blockRows) {
  for (std::size_t t = 0; t < to.loss.size(); ++t) {
    const std::size_t last = to.first + t;
    if (last <= from.first) continue;
    // The further the block reaches back, the greater its loss: what is worse than the best so far
    // only gets worse.
    for (std::size_t f = std::min(from.loss.size(), last - from.first); f-- > 0;) {
      if (from.loss[f] == kImpossible) continue;
      const std::uint64_t loss = blockLoss(prefix[from.first + f], prefix[last], blockRows);
      if (loss == kImpossible) continue;
      if (loss >= to.loss[t]) break;
      if (from.loss[f] >= to.loss[t] - loss) continue;
      to.loss[t] = from.loss[f] + loss;
      to.previous[t] = static_cast<std::uint32_t>(f);
    }
  }
}

std::vector<std::size_t> tryCuts(const PrefixCounts& prefix, std::size_t blocks,
                                 std::size_t blockRows, std::size_t reach) {
  const NaturalRows natural = naturalRows(prefix, std::uint64_t{blocks} * blockRows);
  std::vector<CutPlaces> cuts;
  cuts.push_back({0, {0}, {0}});
  for (std::size_t i = 1; i < blocks; ++i) {
    cuts.push_back(placesAround(natural, std::uint64_t{i} * blockRows, reach));
    extend(prefix, cuts[i - 1], cuts[i], blockRows);
  }
  cuts.push_back({prefix.size() - 1, {kImpossible}, {0}});
  extend(prefix, cuts[blocks - 1], cuts[blocks], blockRows);
  if (cuts[blocks].loss[0] == kImpossible) return {};

  std::vector<std::size_t> chosen(blocks + 1);
  std::size_t place = 0;
  for (std::size_t i = blocks + 1; i-- > 0;) {
    chosen[i] = cuts[i].first + place;
    place = cuts[i].previous[place];
  }
  return chosen;
}

std::size_t pairsBetween(const TierCounts& first, const TierCounts& last) {
  return std::transform_reduce(last.begin(), last.end(), first.begin(), std::size_t{0},
                               std::plus<>(), std::minus<>());
}

}  // namespace

std::size_t mostBlocks(const PrefixCounts& prefix, std::size_t blockRows) {
  std::size_t blocks = 0;
  std::size_t first = 0;
  for (std::size_t unit = 1; unit < prefix.size(); ++unit) {
    if (pairsBetween(prefix[first], prefix[unit]) < blockRows) continue;
    ++blocks;
    first = unit;
  }
  return blocks;
}

std::vector<std::size_t> chooseCuts(const PrefixCounts& prefix, std::size_t blocks,
                                    std::size_t blockRows) {
  std::vector<std::size_t> cuts;
  for (std::size_t reach = kReach; cuts.empty(); reach *= 4) {
    cuts = tryCuts(prefix, blocks, blockRows, reach);
  }
  return cuts;
}

}  // namespace dictionary
