// Dynamic programming over the cuts in order: for every candidate of a cut, the least loss of the
// blocks before it is the minimum, over the candidates of the cut before, of their loss plus that
// of the block between. Each candidate remembers which one gave its minimum, so that the cuts are
// traced back from the last one, which is the end of the sequence. Candidates are the unit
// boundaries near the cut's natural place, where it would be if all units used the same share of
// their spare pairs; that keeps the time at blocks times candidates squared. Losses are integers,
// so that every machine finds the same cuts.

#include "dictionary/arrange/block_cuts.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace dictionary {
namespace {

constexpr std::uint64_t kImpossible = std::numeric_limits<std::uint64_t>::max();

/// Largest distance of a cut from its natural place in the first search, in rows; widened where it
/// gives no solution. The time grows with its square, and cuts further away lose more than they
/// gain: their blocks deviate by as many spare pairs.
constexpr std::size_t kReach = 40;

/// The loss of a block that uses one spare pair more or less than its share; a power of two, in
/// whose fractions shares are computed. The loss grows with the square of that deviation.
constexpr std::int64_t kUnit = 1024;
/// Losses of a wanted pair left out, a reserve pair kept, two blocks joined: as bad as a deviation
/// by fourteen, three and twenty spare pairs.
constexpr std::uint64_t kWantedLoss = 200 * kUnit;
constexpr std::uint64_t kReserveLoss = 10 * kUnit;
constexpr std::uint64_t kJoinLoss = 400 * kUnit;
/// The loss of a cut that costs 1.
constexpr std::uint64_t kCostLoss = 40 * kUnit;

std::uint64_t total(const TierCounts& counts) {
  return counts.wanted + counts.spare + counts.reserve;
}

/// One search for the cuts of least loss. The counts must outlive it. Cut i ends block i; cut 0 is
/// the beginning of the sequence.
class CutSearch {
 public:
  CutSearch(const PrefixCounts& counts, const CutCosts& costs, std::size_t blocks,
            std::size_t blockRows, std::size_t maxJoined)
      : counts_(counts),
        costs_(costs),
        blocks_(blocks),
        blockRows_(blockRows),
        maxJoined_(maxJoined) {
    const TierCounts& all = counts.back();
    const std::uint64_t rows = blocks * blockRows;
    spare_ = std::max<std::uint64_t>(all.spare, 1);
    needed_ = std::min(rows > all.wanted ? rows - all.wanted : 0, spare_);
  }

  /// The cuts of least loss, each at most `reach` rows from its natural place or at the first unit
  /// boundary beyond on either side; empty if there are none.
  std::vector<BlockCut> run(std::size_t reach);

 private:
  /// Candidates for one cut: the cut may precede units first to first + loss.size() - 1. The three
  /// lists have one element for each.
  struct Candidates {
    std::size_t first = 0;
    std::vector<std::uint64_t> loss;      ///< least loss of all blocks before the cut
    std::vector<std::uint32_t> previous;  ///< candidate of the cut before that gives it
    std::vector<std::uint8_t> joined;     ///< how many blocks are one between the two cuts
  };

  /// Rows before a unit if every unit uses the same share of its spare pairs, times `spare_`.
  [[nodiscard]] std::uint64_t scaledRows(const TierCounts& before) const {
    return before.wanted * spare_ + before.spare * needed_;
  }
  [[nodiscard]] Candidates candidatesAround(std::uint64_t row, std::size_t reach) const;
  [[nodiscard]] std::uint64_t blockLoss(std::size_t first, std::size_t last,
                                        std::size_t joined) const;
  void extend(const Candidates& from, Candidates& to, std::size_t joined) const;
  [[nodiscard]] std::vector<BlockCut> trace(const std::vector<Candidates>& cuts) const;

  /// The loss of a cut before unit `unit`, whatever the blocks at its sides are.
  [[nodiscard]] std::uint64_t cutLoss(std::size_t unit) const {
    return costs_.empty() ? 0 : costs_[unit] * kCostLoss;
  }

  const PrefixCounts& counts_;
  const CutCosts& costs_;
  std::size_t blocks_;
  std::size_t blockRows_;
  std::size_t maxJoined_;
  std::uint64_t needed_ = 0;  ///< spare pairs that are to be kept
  std::uint64_t spare_ = 1;   ///< all spare pairs, at least 1
};

/// Cuts with about `row` rows before them if every unit uses the same share of its spare pairs.
CutSearch::Candidates CutSearch::candidatesAround(std::uint64_t row, std::size_t reach) const {
  const auto rowsBefore = [this](const TierCounts& before) { return scaledRows(before); };
  const std::uint64_t low = row > reach ? (row - reach) * spare_ : 0;
  const std::uint64_t high = (row + reach) * spare_;
  const auto begin = counts_.begin();
  const auto lowest = std::ranges::lower_bound(counts_, low, {}, rowsBefore) - begin;
  const auto highest = std::ranges::upper_bound(counts_, high, {}, rowsBefore) - begin;
  Candidates candidates;
  candidates.first = static_cast<std::size_t>(std::max<std::ptrdiff_t>(lowest - 1, 0));
  const auto last = std::min(static_cast<std::size_t>(highest), counts_.size() - 1);
  const std::size_t count = last + 1 - candidates.first;
  candidates.loss.assign(count, kImpossible);
  candidates.previous.assign(count, 0);
  candidates.joined.assign(count, 0);
  return candidates;
}

/// The loss of `joined` blocks that have units `first` to before `last`: kImpossible if these have
/// fewer pairs than rows.
std::uint64_t CutSearch::blockLoss(std::size_t first, std::size_t last, std::size_t joined) const {
  const TierCounts& before = counts_[first];
  const TierCounts& after = counts_[last];
  const std::uint64_t rows = joined * blockRows_;
  const std::uint64_t wanted = after.wanted - before.wanted;
  const std::uint64_t spare = after.spare - before.spare;
  if (total(after) - total(before) < rows) return kImpossible;
  std::uint64_t loss = (joined - 1) * kJoinLoss;
  if (wanted > rows) loss += (wanted - rows) * kWantedLoss;
  const std::uint64_t open = wanted < rows ? rows - wanted : 0;
  if (open > spare) loss += (open - spare) * kReserveLoss;
  const auto used = static_cast<std::int64_t>(std::min(open, spare));
  const auto share = static_cast<std::int64_t>(spare * needed_ * kUnit / spare_);
  const std::int64_t deviation = used * kUnit - share;
  return loss + static_cast<std::uint64_t>(deviation * deviation / kUnit);
}

/// Improves the candidates of one cut by blocks that begin at those of another, `joined` cuts
/// before. Ties keep the candidate found first.
void CutSearch::extend(const Candidates& from, Candidates& to, std::size_t joined) const {
  for (std::size_t t = 0; t < to.loss.size(); ++t) {
    const std::size_t last = to.first + t;
    if (last <= from.first) continue;
    const std::size_t count = std::min(from.loss.size(), last - from.first);
    const std::uint64_t atCut = cutLoss(last);
    for (std::size_t f = 0; f < count; ++f) {
      if (from.loss[f] >= to.loss[t]) continue;  // losses are not negative
      const std::uint64_t loss = blockLoss(from.first + f, last, joined);
      if (loss == kImpossible || from.loss[f] + loss + atCut >= to.loss[t]) continue;
      to.loss[t] = from.loss[f] + loss + atCut;
      to.previous[t] = static_cast<std::uint32_t>(f);
      to.joined[t] = static_cast<std::uint8_t>(joined);
    }
  }
}

/// Follows `previous` back from the end of the sequence.
std::vector<BlockCut> CutSearch::trace(const std::vector<Candidates>& cuts) const {
  std::vector<BlockCut> chosen;
  std::size_t index = 0;
  for (std::size_t i = blocks_; i > 0;) {
    chosen.push_back({cuts[i].first + index, i * blockRows_});
    const std::size_t joined = cuts[i].joined[index];
    index = cuts[i].previous[index];
    i -= joined;
  }
  chosen.push_back({0, 0});
  std::ranges::reverse(chosen);
  return chosen;
}

std::vector<BlockCut> CutSearch::run(std::size_t reach) {
  std::vector<Candidates> cuts(blocks_ + 1);
  cuts[0] = {0, {0}, {0}, {0}};
  for (std::size_t i = 1; i <= blocks_; ++i) {
    const std::uint64_t row = std::uint64_t{i} * blockRows_;
    cuts[i] = candidatesAround(row, reach);
    if (i == blocks_) cuts[i] = {counts_.size() - 1, {kImpossible}, {0}, {0}};
    for (std::size_t joined = 1; joined <= std::min(maxJoined_, i); ++joined) {
      extend(cuts[i - joined], cuts[i], joined);
    }
  }
  return cuts[blocks_].loss[0] == kImpossible ? std::vector<BlockCut>() : trace(cuts);
}

}  // namespace

// Greedy: each run ends as early as it can.
std::size_t maxBlocks(const PrefixCounts& counts, std::size_t blockRows) {
  std::size_t blocks = 0;
  std::size_t first = 0;
  for (std::size_t unit = 1; unit < counts.size(); ++unit) {
    if (total(counts[unit]) - total(counts[first]) < blockRows) continue;
    ++blocks;
    first = unit;
  }
  return blocks;
}

std::vector<BlockCut> chooseCuts(const PrefixCounts& counts, std::size_t blocks,
                                 std::size_t blockRows, const CutCosts& costs) {
  if (blocks == 0) throw std::invalid_argument("no block to be cut");
  CutSearch search(counts, costs, blocks, blockRows, 1);
  for (std::size_t reach = kReach;; reach *= 4) {
    std::vector<BlockCut> cuts = search.run(reach);
    if (!cuts.empty()) return cuts;
    // Every division was a candidate.
    if (reach >= total(counts.back())) throw std::invalid_argument("too many blocks to be cut");
  }
}

std::vector<BlockCut> chooseCutsJoining(const PrefixCounts& counts, std::size_t blocks,
                                        std::size_t blockRows) {
  // A Chinese headword has up to 201 rows, so that it may cross two cuts, between three blocks.
  constexpr std::size_t kMaxJoined = 3;
  std::vector<BlockCut> cuts = CutSearch(counts, {}, blocks, blockRows, kMaxJoined).run(kReach);
  if (cuts.empty()) cuts = {{0, 0}, {counts.size() - 1, blocks * blockRows}};
  return cuts;
}

}  // namespace dictionary
