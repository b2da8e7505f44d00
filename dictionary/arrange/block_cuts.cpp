#include "dictionary/arrange/block_cuts.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace dictionary {
namespace {

constexpr std::uint64_t kImpossible = std::numeric_limits<std::uint64_t>::max();

/// How far from its natural place a cut is looked for, in rows; widened where that is not enough.
constexpr std::size_t kReach = 40;

/// The unit of losses: a block that uses one spare pair more or less than its share.
constexpr std::int64_t kUnit = 1024;
/// Losses of a wanted pair given up, a reserve pair used, a cut left out.
constexpr std::uint64_t kWantedLoss = 50 * kUnit;
constexpr std::uint64_t kReserveLoss = 10 * kUnit;
constexpr std::uint64_t kJoinLoss = 400 * kUnit;

std::uint64_t total(const PairStock& stock) { return stock.wanted + stock.spare + stock.reserve; }

/// What is to be divided: the sequence, the rows of a block, the share of spare pairs needed.
class CutSearch {
 public:
  CutSearch(const StockBefore& stock, std::size_t blocks, std::size_t blockRows,
            std::size_t mostJoined)
      : stock_(stock), blocks_(blocks), blockRows_(blockRows), mostJoined_(mostJoined) {
    const PairStock& all = stock.back();
    const std::uint64_t rows = blocks * blockRows;
    spare_ = std::max<std::uint64_t>(all.spare, 1);
    needed_ = std::min(rows > all.wanted ? rows - all.wanted : 0, spare_);
  }

  /// The best cuts, each at most `reach` rows from its natural place; nothing if there are none.
  std::vector<BlockCut> run(std::size_t reach);

 private:
  /// Places where one cut may be: before units first .. first + loss.size() - 1, with the least
  /// loss of all blocks before it and the place of the cut before that gives it.
  struct Places {
    std::size_t first = 0;
    std::vector<std::uint64_t> loss;
    std::vector<std::uint32_t> previous;
    std::vector<std::uint8_t> joined;
  };

  [[nodiscard]] std::uint64_t naturalRows(const PairStock& before) const {
    return before.wanted * spare_ + before.spare * needed_;
  }
  [[nodiscard]] Places placesAround(std::uint64_t row, std::size_t reach) const;
  [[nodiscard]] std::uint64_t blockLoss(std::size_t first, std::size_t last,
                                        std::size_t joined) const;
  void extend(const Places& from, Places& to, std::size_t joined) const;
  [[nodiscard]] std::vector<BlockCut> trace(const std::vector<Places>& cuts) const;

  const StockBefore& stock_;
  std::size_t blocks_;
  std::size_t blockRows_;
  std::size_t mostJoined_;
  std::uint64_t needed_ = 0;  ///< of the spare pairs
  std::uint64_t spare_ = 1;
};

/// Units before which about `row` rows lie if every unit uses the same share of its spare pairs.
CutSearch::Places CutSearch::placesAround(std::uint64_t row, std::size_t reach) const {
  const auto rowsBefore = [this](const PairStock& before) { return naturalRows(before); };
  const std::uint64_t low = row > reach ? (row - reach) * spare_ : 0;
  const std::uint64_t high = (row + reach) * spare_;
  const auto begin = stock_.begin();
  const auto lowest = std::ranges::lower_bound(stock_, low, {}, rowsBefore) - begin;
  const auto highest = std::ranges::upper_bound(stock_, high, {}, rowsBefore) - begin;
  Places places;
  places.first = static_cast<std::size_t>(std::max<std::ptrdiff_t>(lowest - 1, 0));
  const auto last = std::min(static_cast<std::size_t>(highest), stock_.size() - 1);
  const std::size_t count = last + 1 - places.first;
  places.loss.assign(count, kImpossible);
  places.previous.assign(count, 0);
  places.joined.assign(count, 0);
  return places;
}

std::uint64_t CutSearch::blockLoss(std::size_t first, std::size_t last, std::size_t joined) const {
  const PairStock& before = stock_[first];
  const PairStock& behind = stock_[last];
  const std::uint64_t rows = joined * blockRows_;
  const std::uint64_t wanted = behind.wanted - before.wanted;
  const std::uint64_t spare = behind.spare - before.spare;
  if (total(behind) - total(before) < rows) return kImpossible;
  std::uint64_t loss = (joined - 1) * kJoinLoss;
  if (wanted > rows) loss += (wanted - rows) * kWantedLoss;
  const std::uint64_t open = wanted < rows ? rows - wanted : 0;
  if (open > spare) loss += (open - spare) * kReserveLoss;
  const auto used = static_cast<std::int64_t>(std::min(open, spare));
  const auto share = static_cast<std::int64_t>(spare * needed_ * kUnit / spare_);
  const std::int64_t deviation = used * kUnit - share;
  return loss + static_cast<std::uint64_t>(deviation * deviation / kUnit);
}

void CutSearch::extend(const Places& from, Places& to, std::size_t joined) const {
  for (std::size_t t = 0; t < to.loss.size(); ++t) {
    const std::size_t last = to.first + t;
    if (last <= from.first) continue;
    const std::size_t count = std::min(from.loss.size(), last - from.first);
    for (std::size_t f = 0; f < count; ++f) {
      if (from.loss[f] >= to.loss[t]) continue;
      const std::uint64_t loss = blockLoss(from.first + f, last, joined);
      if (loss == kImpossible || from.loss[f] + loss >= to.loss[t]) continue;
      to.loss[t] = from.loss[f] + loss;
      to.previous[t] = static_cast<std::uint32_t>(f);
      to.joined[t] = static_cast<std::uint8_t>(joined);
    }
  }
}

std::vector<BlockCut> CutSearch::trace(const std::vector<Places>& cuts) const {
  std::vector<BlockCut> chosen;
  std::size_t place = 0;
  for (std::size_t i = blocks_; i > 0;) {
    chosen.push_back({cuts[i].first + place, i * blockRows_});
    const std::size_t joined = cuts[i].joined[place];
    place = cuts[i].previous[place];
    i -= joined;
  }
  chosen.push_back({0, 0});
  std::ranges::reverse(chosen);
  return chosen;
}

std::vector<BlockCut> CutSearch::run(std::size_t reach) {
  std::vector<Places> cuts(blocks_ + 1);
  cuts[0] = {0, {0}, {0}, {0}};
  for (std::size_t i = 1; i <= blocks_; ++i) {
    cuts[i] = placesAround(std::uint64_t{i} * blockRows_, reach);
    if (i == blocks_) cuts[i] = {stock_.size() - 1, {kImpossible}, {0}, {0}};
    for (std::size_t joined = 1; joined <= std::min(mostJoined_, i); ++joined) {
      extend(cuts[i - joined], cuts[i], joined);
    }
  }
  return cuts[blocks_].loss[0] == kImpossible ? std::vector<BlockCut>() : trace(cuts);
}

}  // namespace

std::size_t mostBlocks(const StockBefore& stock, std::size_t blockRows) {
  std::size_t blocks = 0;
  std::size_t first = 0;
  for (std::size_t unit = 1; unit < stock.size(); ++unit) {
    if (total(stock[unit]) - total(stock[first]) < blockRows) continue;
    ++blocks;
    first = unit;
  }
  return blocks;
}

std::vector<BlockCut> chooseCuts(const StockBefore& stock, std::size_t blocks,
                                 std::size_t blockRows) {
  CutSearch search(stock, blocks, blockRows, 1);
  std::vector<BlockCut> cuts;
  for (std::size_t reach = kReach; cuts.empty(); reach *= 4) cuts = search.run(reach);
  return cuts;
}

std::vector<BlockCut> chooseCutsJoining(const StockBefore& stock, std::size_t blocks,
                                        std::size_t blockRows) {
  constexpr std::size_t kMostJoined = 3;
  std::vector<BlockCut> cuts = CutSearch(stock, blocks, blockRows, kMostJoined).run(kReach);
  if (cuts.empty()) cuts = {{0, 0}, {stock.size() - 1, blocks * blockRows}};
  return cuts;
}

}  // namespace dictionary
