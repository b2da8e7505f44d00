#include "dictionary/arrange/row_exchange.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace dictionary {

RowExchange::RowExchange(const std::vector<Pair>& pairs, const BlockPlan& english,
                         const BlockPlan& chinese, std::vector<bool>& kept)
    : pairs_(pairs), english_(english), chinese_(chinese), kept_(kept), missing_(english.rows) {
  missing_.insert(missing_.end(), chinese.rows.begin(), chinese.rows.end());
  const auto firstChinese = static_cast<std::uint32_t>(english.rows.size());
  for (std::size_t pair = 0; pair < pairs.size(); ++pair) {
    if (!kept[pair]) continue;
    --missing_[english.blockOf[pair]];
    --missing_[firstChinese + chinese.blockOf[pair]];
  }
  open_ = std::accumulate(missing_.begin(), missing_.begin() + firstChinese, std::size_t{0});
  byValue_.resize(pairs.size());
  std::iota(byValue_.begin(), byValue_.end(), 0U);
  std::ranges::sort(byValue_, {}, [&](std::uint32_t pair) {
    return std::tuple(pairs[pair].tier, pairs[pair].position, pair);
  });
}

std::uint32_t RowExchange::otherEnd(std::uint32_t node, std::uint32_t pair) const {
  if (!isEnglish(node)) return english_.blockOf[pair];
  return static_cast<std::uint32_t>(english_.rows.size()) + chinese_.blockOf[pair];
}

RowExchange::Edges RowExchange::edgesOf(const BlockPlan& plan,
                                        const std::vector<std::uint32_t>& usable) const {
  Edges edges;
  edges.begin.assign(plan.rows.size() + 1, 0);
  for (const std::uint32_t pair : usable) ++edges.begin[plan.blockOf[pair] + 1];
  std::partial_sum(edges.begin.begin(), edges.begin.end(), edges.begin.begin());
  std::vector<std::uint32_t> free = edges.begin;
  edges.pairs.resize(usable.size());
  for (const std::uint32_t pair : usable) edges.pairs[free[plan.blockOf[pair]]++] = pair;
  return edges;
}

/// Finds how many exchanges every block lies behind an English block that is short; whether a
/// Chinese one that is short is among them.
bool RowExchange::findLevels() {
  level_.assign(missing_.size(), kUnreached);
  std::vector<std::uint32_t> queue;
  for (std::uint32_t node = 0; node < english_.rows.size(); ++node) {
    if (missing_[node] == 0) continue;
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
    found = found || (!english && missing_[node] > 0);
    for (std::uint32_t e = edges.begin[block]; e < edges.begin[block + 1]; ++e) {
      const std::uint32_t other = otherEnd(node, edges.pairs[e]);
      if (kept_[edges.pairs[e]] == english || level_[other] != kUnreached) continue;
      level_[other] = level_[node] + 1;
      queue.push_back(other);
    }
  }
  return found;
}

/// Exchanges along one way of rising levels to a Chinese block that is short.
bool RowExchange::pushFrom(std::uint32_t node) {
  const bool english = isEnglish(node);
  if (!english && missing_[node] > 0) {
    --missing_[node];
    return true;
  }
  const Edges& edges = english ? englishEdges_ : chineseEdges_;
  const auto firstChinese = static_cast<std::uint32_t>(english_.rows.size());
  const std::uint32_t block = english ? node : node - firstChinese;
  for (; next_[node] < edges.begin[block + 1]; ++next_[node]) {
    const std::uint32_t pair = edges.pairs[next_[node]];
    const std::uint32_t other = otherEnd(node, pair);
    if (kept_[pair] == english || level_[other] != level_[node] + 1) continue;
    if (!pushFrom(other)) continue;
    kept_[pair] = english;
    return true;
  }
  return false;
}

void RowExchange::run(Tier first, Tier last, const std::vector<bool>& barred) {
  std::vector<std::uint32_t> usable;
  for (const std::uint32_t pair : byValue_) {
    const Tier tier = pairs_[pair].tier;
    if (tier >= first && tier <= last && (kept_[pair] || !barred[pair])) usable.push_back(pair);
  }
  englishEdges_ = edgesOf(english_, usable);
  std::ranges::reverse(usable);
  chineseEdges_ = edgesOf(chinese_, usable);
  while (open_ > 0 && findLevels()) {
    next_ = englishEdges_.begin;
    next_.pop_back();
    next_.insert(next_.end(), chineseEdges_.begin.begin(), chineseEdges_.begin.end() - 1);
    for (std::uint32_t node = 0; node < english_.rows.size(); ++node) {
      while (missing_[node] > 0 && pushFrom(node)) {
        --missing_[node];
        --open_;
      }
    }
  }
}

void RowExchange::fillEnglish(const std::vector<bool>& barred) {
  for (const std::uint32_t pair : byValue_) {
    std::uint32_t& missing = missing_[english_.blockOf[pair]];
    if (kept_[pair] || barred[pair] || missing == 0) continue;
    kept_[pair] = true;
    --missing;
    --open_;
  }
}

}  // namespace dictionary
