// Dinic's algorithm: build the level graph by breadth-first search, then augment along its paths by
// depth-first search until none is left (a blocking flow), and repeat until no sink is reached. An
// edge is skipped for good in a phase once it has led to a dead end (nextEdge_). All capacities are
// 1, so that a path moves one pair on each of its edges. The order of the edges, by value, decides
// between equal solutions and so the bytes of the database: it must not depend on the machine.

#include "dictionary/arrange/max_flow.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace dictionary {

MaxFlow::MaxFlow(const std::vector<Pair>& pairs, const BlockPlan& english, const BlockPlan& chinese,
                 std::vector<bool>& kept)
    : pairs_(pairs), english_(english), chinese_(chinese), kept_(kept), deficit_(english.rows) {
  deficit_.insert(deficit_.end(), chinese.rows.begin(), chinese.rows.end());
  const auto firstChinese = static_cast<std::uint32_t>(english.rows.size());
  for (std::size_t pair = 0; pair < pairs.size(); ++pair) {
    if (!kept[pair]) continue;
    --deficit_[english.blockOf[pair]];
    --deficit_[firstChinese + chinese.blockOf[pair]];
  }
  englishDeficit_ =
      std::accumulate(deficit_.begin(), deficit_.begin() + firstChinese, std::size_t{0});
  // A total order: `pair` itself decides between pairs of equal value.
  byValue_.resize(pairs.size());
  std::iota(byValue_.begin(), byValue_.end(), 0U);
  std::ranges::sort(byValue_, {}, [&](std::uint32_t pair) {
    return std::tuple(pairs[pair].tier, pairs[pair].position, pair);
  });
}

/// The node at the other end of a pair's edge.
std::uint32_t MaxFlow::otherEnd(std::uint32_t node, std::uint32_t pair) const {
  if (!isEnglish(node)) return english_.blockOf[pair];
  return static_cast<std::uint32_t>(english_.rows.size()) + chinese_.blockOf[pair];
}

/// Counting sort of the usable pairs by block, which keeps their order within a block.
MaxFlow::Edges MaxFlow::edgesOf(const BlockPlan& plan,
                                const std::vector<std::uint32_t>& usable) const {
  Edges edges;
  edges.begin.assign(plan.rows.size() + 1, 0);
  for (const std::uint32_t pair : usable) ++edges.begin[plan.blockOf[pair] + 1];
  std::partial_sum(edges.begin.begin(), edges.begin.end(), edges.begin.begin());
  std::vector<std::uint32_t> free = edges.begin;  // of each block, the next element to be filled
  edges.pairs.resize(usable.size());
  for (const std::uint32_t pair : usable) edges.pairs[free[plan.blockOf[pair]]++] = pair;
  return edges;
}

/// Breadth-first search from all sources: the level of a node is its distance from the nearest one.
/// Returns whether a sink was reached. An edge leads from English to Chinese if its pair can be
/// added, back if it can be removed.
bool MaxFlow::buildLevelGraph() {
  level_.assign(deficit_.size(), kUnreached);
  std::vector<std::uint32_t> queue;
  for (std::uint32_t node = 0; node < english_.rows.size(); ++node) {
    if (deficit_[node] == 0) continue;
    level_[node] = 0;
    queue.push_back(node);
  }
  bool found = false;
  const auto firstChinese = static_cast<std::uint32_t>(english_.rows.size());
  for (std::size_t i = 0; i < queue.size(); ++i) {
    const std::uint32_t node = queue[i];
    const bool english = isEnglish(node);
    const Edges& edges = english ? englishEdges_ : chineseEdges_;
    const std::uint32_t block = english ? node : node - firstChinese;
    found = found || (!english && deficit_[node] > 0);
    for (std::uint32_t e = edges.begin[block]; e < edges.begin[block + 1]; ++e) {
      const std::uint32_t other = otherEnd(node, edges.pairs[e]);
      if (kept_[edges.pairs[e]] == english || level_[other] != kUnreached) continue;
      level_[other] = level_[node] + 1;
      queue.push_back(other);
    }
  }
  return found;
}

/// Depth-first search for one augmenting path from `node` to a sink in the level graph. Flips the
/// pairs on the path and takes one from the sink's deficit; returns whether there was a path. Calls
/// itself once for each step: a shortest path visits no block twice, so that the depth is at most
/// the number of blocks of both languages.
bool MaxFlow::augment(std::uint32_t node) {
  const bool english = isEnglish(node);
  if (!english && deficit_[node] > 0) {
    --deficit_[node];
    return true;
  }
  const Edges& edges = english ? englishEdges_ : chineseEdges_;
  const auto firstChinese = static_cast<std::uint32_t>(english_.rows.size());
  const std::uint32_t block = english ? node : node - firstChinese;
  for (; nextEdge_[node] < edges.begin[block + 1]; ++nextEdge_[node]) {
    const std::uint32_t pair = edges.pairs[nextEdge_[node]];
    const std::uint32_t other = otherEnd(node, pair);
    if (kept_[pair] == english || level_[other] != level_[node] + 1) continue;
    if (!augment(other)) continue;
    kept_[pair] = english;
    return true;
  }
  return false;
}

void MaxFlow::run(Tier first, Tier last, const std::vector<bool>& excluded) {
  std::vector<std::uint32_t> usable;
  for (const std::uint32_t pair : byValue_) {
    const Tier tier = pairs_[pair].tier;
    if (tier >= first && tier <= last && !excluded[pair]) usable.push_back(pair);
  }
  englishEdges_ = edgesOf(english_, usable);
  std::ranges::reverse(usable);
  chineseEdges_ = edgesOf(chinese_, usable);
  while (englishDeficit_ > 0 && buildLevelGraph()) {
    // A phase: every node begins with its first edge again. The lists' last elements are ends.
    nextEdge_ = englishEdges_.begin;
    nextEdge_.pop_back();
    nextEdge_.insert(nextEdge_.end(), chineseEdges_.begin.begin(), chineseEdges_.begin.end() - 1);
    for (std::uint32_t node = 0; node < english_.rows.size(); ++node) {
      while (deficit_[node] > 0 && augment(node)) {
        --deficit_[node];
        --englishDeficit_;
      }
    }
  }
}

void MaxFlow::fillEnglish(const std::vector<bool>& excluded) {
  for (const std::uint32_t pair : byValue_) {
    std::uint32_t& deficit = deficit_[english_.blockOf[pair]];
    if (kept_[pair] || excluded[pair] || deficit == 0) continue;
    kept_[pair] = true;
    --deficit;
    --englishDeficit_;
  }
}

}  // namespace dictionary
