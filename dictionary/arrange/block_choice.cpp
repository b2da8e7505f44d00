#include "dictionary/arrange/block_choice.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>

#include "dictionary/arrange/block_cuts.h"
#include "dictionary/arrange/pair_sequence.h"
#include "dictionary/arrange/row_exchange.h"
#include "dictionary/console.h"

namespace dictionary {
namespace {

constexpr Tier kLastTier = static_cast<Tier>(kTierCount - 1);

/// One choice on its way.
class Choice {
 public:
  Choice(const Vocabulary& vocabulary, const LookupLimits& limits)
      : pairs_(vocabulary.pairs),
        limits_(limits),
        english_(englishSequence(vocabulary)),
        chinese_(chineseSequence(vocabulary)),
        barred_(pairs_.size()),
        kept_(pairs_.size()) {}

  std::vector<bool> run();

 private:
  void barBeyond(const PairSequence& sequence, std::size_t limit);
  std::vector<PairIndex> beyondBest(std::vector<PairIndex> group, std::size_t limit) const;
  [[nodiscard]] Tier tierAtRow(std::size_t rows) const;
  [[nodiscard]] StockBefore stockOf(const PairSequence& sequence, Tier spare) const;
  BlockPlan planOf(const PairSequence& sequence, const std::vector<BlockCut>& cuts);

  const std::vector<Pair>& pairs_;
  LookupLimits limits_;
  PairSequence english_;
  PairSequence chinese_;
  std::vector<bool> barred_;  ///< pairs that can have no row
  std::vector<bool> kept_;
};

/// All but the `limit` most valuable pairs of a group.
std::vector<PairIndex> Choice::beyondBest(std::vector<PairIndex> group, std::size_t limit) const {
  if (group.size() <= limit) return {};
  std::ranges::sort(group, {}, [&](PairIndex index) {
    return std::tuple(pairs_[index].tier, pairs_[index].position, index);
  });
  group.erase(group.begin(), group.begin() + static_cast<std::ptrdiff_t>(limit));
  return group;
}

/// Bars what any unit has beyond `limit` pairs.
void Choice::barBeyond(const PairSequence& sequence, std::size_t limit) {
  for (std::size_t unit = 0; unit < sequence.unitCount(); ++unit) {
    if (sequence.unit(unit).size() <= limit) continue;
    std::vector<PairIndex> group;
    for (const PairIndex index : sequence.unit(unit)) {
      if (!barred_[index]) group.push_back(index);
    }
    for (const PairIndex index : beyondBest(std::move(group), limit)) barred_[index] = true;
  }
}

/// Tier of the last row if the most valuable pairs of all took `rows` rows.
Tier Choice::tierAtRow(std::size_t rows) const {
  std::array<std::size_t, kTierCount> counts{};
  for (std::size_t i = 0; i < pairs_.size(); ++i) {
    if (!barred_[i]) ++counts[static_cast<std::size_t>(pairs_[i].tier)];
  }
  std::size_t tier = 0;
  for (std::size_t taken = counts[0]; taken < rows && tier + 1 < kTierCount;) {
    taken += counts[++tier];
  }
  return static_cast<Tier>(tier);
}

/// What stands before each unit: pairs above the tier `spare` are wanted, those below in reserve.
StockBefore Choice::stockOf(const PairSequence& sequence, Tier spare) const {
  StockBefore stock = {PairStock()};
  stock.reserve(sequence.unitBegins.size());
  for (std::size_t unit = 0; unit < sequence.unitCount(); ++unit) {
    PairStock before = stock.back();
    for (const PairIndex index : sequence.unit(unit)) {
      if (barred_[index]) continue;
      const Tier tier = pairs_[index].tier;
      ++(tier < spare ? before.wanted : tier == spare ? before.spare : before.reserve);
    }
    stock.push_back(before);
  }
  return stock;
}

/// The blocks between the cuts; what is kept beyond their rows goes.
BlockPlan Choice::planOf(const PairSequence& sequence, const std::vector<BlockCut>& cuts) {
  BlockPlan plan;
  plan.blockOf.resize(pairs_.size());
  for (std::size_t block = 0; block + 1 < cuts.size(); ++block) {
    const std::size_t rows = cuts[block + 1].rows - cuts[block].rows;
    plan.rows.push_back(static_cast<std::uint32_t>(rows));
    std::vector<PairIndex> group;
    for (std::size_t unit = cuts[block].unit; unit < cuts[block + 1].unit; ++unit) {
      for (const PairIndex index : sequence.unit(unit)) {
        plan.blockOf[index] = static_cast<std::uint32_t>(block);
        if (kept_[index]) group.push_back(index);
      }
    }
    for (const PairIndex index : beyondBest(std::move(group), rows)) kept_[index] = false;
  }
  return plan;
}

std::vector<bool> Choice::run() {
  barBeyond(chinese_, limits_.maxChineseRows);
  barBeyond(english_, limits_.blockRows);
  const std::size_t blocks = std::min(mostBlocks(stockOf(english_, kLastTier), limits_.blockRows),
                                      limits_.maxRows / limits_.blockRows);
  if (blocks == 0) {
    throw Failure("the source has not enough pairs of words to fill one block of " +
                  std::to_string(limits_.blockRows) + " rows");
  }
  const Tier spare = tierAtRow(blocks * limits_.blockRows);
  for (std::size_t i = 0; i < pairs_.size(); ++i) kept_[i] = !barred_[i] && pairs_[i].tier < spare;
  const BlockPlan english =
      planOf(english_, chooseCuts(stockOf(english_, spare), blocks, limits_.blockRows));
  const BlockPlan chinese =
      planOf(chinese_, chooseCutsJoining(stockOf(chinese_, spare), blocks, limits_.blockRows));

  RowExchange exchange(pairs_, english, chinese, kept_);
  exchange.run(spare, spare, barred_);
  for (auto first = static_cast<std::uint8_t>(spare) + 1; first-- > 0 && !exchange.done();) {
    exchange.run(static_cast<Tier>(first), kLastTier, barred_);
  }
  exchange.fillEnglish(barred_);
  return kept_;
}

}  // namespace

std::vector<bool> choosePairs(const Vocabulary& vocabulary, const LookupLimits& limits) {
  return Choice(vocabulary, limits).run();
}

}  // namespace dictionary
