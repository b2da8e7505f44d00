// The steps, see BlockPacker::run():
// 1. Exclude the pairs that cannot have a row: those of a headword beyond what is reachable.
// 2. Find how many blocks there are, and from that the spare tier: the one of which only a part is
//    kept. More valuable tiers are wanted, less valuable ones are a reserve.
// 3. Divide each language's sequence into blocks (block_cuts.h), and remove what a block has beyond
//    its rows.
// 4. A pair belongs to an English and to a Chinese block, which were cut independently. Fill both
//    by maximum flow (max_flow.h), exchanging the spare tier first, then more and more valuable
//    tiers for as long as rows are left.
// 5. Fill the rows that are still left in English blocks, which have to be full; Chinese headwords
//    may then cross a block.

#include "dictionary/arrange/block_packing.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_set>
#include <utility>

#include "dictionary/arrange/block_cuts.h"
#include "dictionary/arrange/max_flow.h"
#include "dictionary/console.h"
#include "text/order.h"

namespace dictionary {
namespace {

/// Index of a pair in the vocabulary.
using PairIndex = std::uint32_t;

/// The pairs in one language's order, divided into units: runs that must stay in one block.
struct PairSequence {
  std::vector<PairIndex> order;
  std::vector<std::size_t> unitBegins;  ///< indexes into `order`; the last is its end

  [[nodiscard]] std::span<const PairIndex> unit(std::size_t index) const {
    return std::span(order).subspan(unitBegins[index], unitBegins[index + 1] - unitBegins[index]);
  }
  [[nodiscard]] std::size_t unitCount() const { return unitBegins.size() - 1; }
};

/// Returns whether two headwords that follow each other must stay in one block: the bound step
/// searches with every apostrophe doubled, and such a text sorts before all words that are equal up
/// to the first apostrophe.
bool sharesApostrophe(std::u16string_view a, std::u16string_view b) {
  const std::size_t apostrophe = a.find(u'\'');
  return apostrophe != std::u16string_view::npos &&
         text::equal(a.substr(0, apostrophe + 1), b.substr(0, apostrophe + 1));
}

/// By English headwords; a unit is a headword, or all headwords that are equal up to and including
/// their first apostrophe.
PairSequence englishSequence(const Vocabulary& vocabulary) {
  const std::vector<Pair>& pairs = vocabulary.pairs;
  PairSequence sequence;
  sequence.order.resize(pairs.size());
  std::iota(sequence.order.begin(), sequence.order.end(), 0U);
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    const bool together = i > 0 && (pairs[i].english == pairs[i - 1].english ||
                                    sharesApostrophe(vocabulary.english[pairs[i - 1].english],
                                                     vocabulary.english[pairs[i].english]));
    if (!together) sequence.unitBegins.push_back(i);
  }
  sequence.unitBegins.push_back(pairs.size());
  return sequence;
}

/// By Chinese headwords; a unit is a headword.
PairSequence chineseSequence(const Vocabulary& vocabulary) {
  const std::vector<Pair>& pairs = vocabulary.pairs;
  PairSequence sequence;
  sequence.order.resize(pairs.size());
  std::iota(sequence.order.begin(), sequence.order.end(), 0U);
  std::ranges::sort(sequence.order, {},
                    [&](PairIndex index) { return std::tuple(pairs[index].chinese, index); });
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    if (i == 0 || pairs[sequence.order[i]].chinese != pairs[sequence.order[i - 1]].chinese) {
      sequence.unitBegins.push_back(i);
    }
  }
  sequence.unitBegins.push_back(pairs.size());
  return sequence;
}

/// Fewer headwords than these are a short list, a very short list.
constexpr std::size_t kShortList = 20;
constexpr std::size_t kVeryShortList = 10;
/// What a cut costs for each frequent headword whose list it makes so short.
constexpr std::uint32_t kShortCost = 1;
constexpr std::uint32_t kVeryShortCost = 4;

/// Value of a pair where an apostrophe group has more pairs than a block: "one's" begins hundreds
/// of words, of which most are glosses of Chinese words.
enum class GroupValue : std::uint8_t { kImportant, kFirst, kGloss, kExplanation, kFurther };

/// `first`: the pair is the best one of its English headword.
GroupValue groupValue(const Pair& pair, bool first) {
  if (pair.tier <= Tier::kImportant) return GroupValue::kImportant;
  if (!first) return GroupValue::kFurther;
  if (pair.position >= Pair::kFirstExplanation) return GroupValue::kExplanation;
  return pair.position >= Pair::kFirstGloss ? GroupValue::kGloss : GroupValue::kFirst;
}

constexpr Tier kBestTier = static_cast<Tier>(0);
constexpr Tier kLastTier = static_cast<Tier>(kTierCount - 1);

/// The next more valuable tier; there must be one.
constexpr Tier before(Tier tier) { return static_cast<Tier>(static_cast<std::size_t>(tier) - 1); }

/// One call of choosePairs(). The vocabulary must outlive it.
class BlockPacker {
 public:
  BlockPacker(const Vocabulary& vocabulary, const LookupLimits& limits)
      : pairs_(vocabulary.pairs),
        ranks_(vocabulary.ranks),
        limits_(limits),
        english_(englishSequence(vocabulary)),
        chinese_(chineseSequence(vocabulary)),
        excluded_(pairs_.size()),
        kept_(pairs_.size()) {}

  std::vector<bool> run();

 private:
  void excludeBeyondReach();
  void excludeBeyondBlock();
  void sortByValue(std::vector<PairIndex>& group) const;
  std::vector<PairIndex> allButBest(std::vector<PairIndex> group, std::size_t limit) const;
  [[nodiscard]] Tier tierAtRow(std::size_t rows) const;
  [[nodiscard]] PrefixCounts countsOf(const PairSequence& sequence, Tier spare) const;
  [[nodiscard]] CutCosts englishCutCosts(Tier spare) const;
  BlockPlan planOf(const PairSequence& sequence, const std::vector<BlockCut>& cuts);

  const std::vector<Pair>& pairs_;
  const std::vector<std::uint32_t>& ranks_;
  LookupLimits limits_;
  PairSequence english_;
  PairSequence chinese_;
  std::vector<bool> excluded_;  ///< pairs that cannot have a row
  std::vector<bool> kept_;      ///< pairs that have one; the result in the end
};

/// The most valuable first.
void BlockPacker::sortByValue(std::vector<PairIndex>& group) const {
  std::ranges::sort(group, {}, [&](PairIndex index) {
    return std::tuple(pairs_[index].tier, pairs_[index].position, index);
  });
}

/// All but the `limit` most valuable pairs of a group.
std::vector<PairIndex> BlockPacker::allButBest(std::vector<PairIndex> group,
                                               std::size_t limit) const {
  if (group.size() <= limit) return {};
  sortByValue(group);
  group.erase(group.begin(), group.begin() + static_cast<std::ptrdiff_t>(limit));
  return group;
}

/// Excludes what a Chinese headword has beyond the rows that a search reaches.
void BlockPacker::excludeBeyondReach() {
  for (std::size_t unit = 0; unit < chinese_.unitCount(); ++unit) {
    const auto& pairs = chinese_.unit(unit);
    const std::vector<PairIndex> beyond =
        allButBest({pairs.begin(), pairs.end()}, limits_.maxChineseRows);
    for (const PairIndex index : beyond) excluded_[index] = true;
  }
}

/// Excludes what an English unit has beyond the rows of a block. Pairs excluded before do not
/// count.
void BlockPacker::excludeBeyondBlock() {
  for (std::size_t unit = 0; unit < english_.unitCount(); ++unit) {
    std::vector<PairIndex> group;
    for (const PairIndex index : english_.unit(unit)) {
      if (!excluded_[index]) group.push_back(index);
    }
    if (group.size() <= limits_.blockRows) continue;
    sortByValue(group);
    std::unordered_set<std::uint32_t> served;
    std::vector<std::pair<GroupValue, PairIndex>> valued;
    for (const PairIndex index : group) {
      const bool first = served.insert(pairs_[index].english).second;
      valued.emplace_back(groupValue(pairs_[index], first), index);
    }
    std::ranges::stable_sort(valued, {}, [](const auto& one) { return one.first; });
    for (std::size_t i = limits_.blockRows; i < valued.size(); ++i) {
      excluded_[valued[i].second] = true;
    }
  }
}

/// Tier of the last row if the most valuable pairs of all took `rows` rows.
Tier BlockPacker::tierAtRow(std::size_t rows) const {
  std::array<std::size_t, kTierCount> counts{};
  for (std::size_t i = 0; i < pairs_.size(); ++i) {
    if (!excluded_[i]) ++counts[static_cast<std::size_t>(pairs_[i].tier)];
  }
  std::size_t tier = 0;
  for (std::size_t taken = counts[0]; taken < rows && tier + 1 < kTierCount;) {
    taken += counts[++tier];
  }
  return static_cast<Tier>(tier);
}

/// Counts the pairs before each unit: those more valuable than the tier `spare` are wanted, those
/// less valuable are the reserve.
PrefixCounts BlockPacker::countsOf(const PairSequence& sequence, Tier spare) const {
  PrefixCounts counts = {TierCounts()};
  counts.reserve(sequence.unitBegins.size());
  for (std::size_t unit = 0; unit < sequence.unitCount(); ++unit) {
    TierCounts before = counts.back();
    for (const PairIndex index : sequence.unit(unit)) {
      if (excluded_[index]) continue;
      const Tier tier = pairs_[index].tier;
      ++(tier < spare ? before.wanted : tier == spare ? before.spare : before.reserve);
    }
    counts.push_back(before);
  }
  return counts;
}

/// What a cut costs: a list ends with the block of its first headword, so that a cut shortens the
/// lists of the headwords before it. The headwords of an apostrophe group count as one.
CutCosts BlockPacker::englishCutCosts(Tier spare) const {
  CutCosts costs = {0};
  std::vector<bool> listed;  ///< whether the headword is frequent, for those with rows so far
  for (std::size_t unit = 0; unit < english_.unitCount(); ++unit) {
    const auto& pairs = english_.unit(unit);
    const bool hasRows = std::ranges::any_of(
        pairs, [&](PairIndex index) { return !excluded_[index] && pairs_[index].tier <= spare; });
    if (hasRows) {
      listed.push_back(std::ranges::any_of(pairs, [&](PairIndex index) {
        const std::uint32_t rank = ranks_[pairs_[index].english];
        return rank > 0 && rank <= kFrequentRank;
      }));
    }
    std::uint32_t cost = 0;
    const std::size_t last = std::min(listed.size(), kShortList - 1);
    for (std::size_t back = 1; back <= last; ++back) {
      if (listed[listed.size() - back]) cost += back < kVeryShortList ? kVeryShortCost : kShortCost;
    }
    costs.push_back(cost);
  }
  return costs;
}

/// The blocks between the cuts; removes the least valuable of the kept pairs beyond their rows.
BlockPlan BlockPacker::planOf(const PairSequence& sequence, const std::vector<BlockCut>& cuts) {
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
    const std::vector<PairIndex> beyond = allButBest(std::move(group), rows);
    for (const PairIndex index : beyond) kept_[index] = false;
  }
  return plan;
}

std::vector<bool> BlockPacker::run() {
  if (limits_.blockRows == 0 || limits_.maxRows < limits_.blockRows) {
    throw std::invalid_argument("the tables have no room for one block");
  }
  // Chinese first: what is excluded there no longer counts for an English headword.
  excludeBeyondReach();
  excludeBeyondBlock();
  const std::size_t blocks = std::min(maxBlocks(countsOf(english_, kLastTier), limits_.blockRows),
                                      limits_.maxRows / limits_.blockRows);
  if (blocks == 0) {
    throw Failure("the source has not enough pairs of words to fill one block of " +
                  std::to_string(limits_.blockRows) + " rows");
  }
  const Tier spare = tierAtRow(blocks * limits_.blockRows);
  for (std::size_t i = 0; i < pairs_.size(); ++i)
    kept_[i] = !excluded_[i] && pairs_[i].tier < spare;
  const BlockPlan english = planOf(english_, chooseCuts(countsOf(english_, spare), blocks,
                                                        limits_.blockRows, englishCutCosts(spare)));
  const BlockPlan chinese =
      planOf(chinese_, chooseCutsJoining(countsOf(chinese_, spare), blocks, limits_.blockRows));

  MaxFlow flow(pairs_, english, chinese, kept_);
  flow.run(spare, spare, excluded_);
  // Only the spare tier at first, so that no wanted pair is given up and no reserve pair taken
  // where that suffices. Then all tiers from the spare one on may be added or removed, then all
  // from the next more valuable one on, and so forth.
  for (Tier first = spare; !flow.done(); first = before(first)) {
    flow.run(first, kLastTier, excluded_);
    if (first == kBestTier) break;
  }
  flow.fillEnglish(excluded_);
  return kept_;
}

}  // namespace

std::vector<bool> choosePairs(const Vocabulary& vocabulary, const LookupLimits& limits) {
  return BlockPacker(vocabulary, limits).run();
}

}  // namespace dictionary
