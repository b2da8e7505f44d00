#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "dictionary/arrange/vocabulary.h"

namespace dictionary {

/// The blocks of one language: the one to which each pair belongs, and the rows of each.
struct BlockPlan {
  std::vector<std::uint32_t> blockOf;  ///< by pair
  std::vector<std::uint32_t> rows;     ///< by block
};

/// Fills the blocks of both languages at once: maximum flow by Dinic's algorithm in the bipartite
/// graph English block - pair - Chinese block. A kept pair is a saturated edge. Sources are the
/// English blocks with fewer pairs than rows, sinks the Chinese ones; an augmenting path adds a
/// pair on each step from English to Chinese and removes one on each step back, so that only the
/// blocks at its ends gain a row. Among paths of equal length, those that add the most valuable and
/// remove the least valuable pairs are tried first.
class MaxFlow {
 public:
  /// Starts with the pairs whose flag in `kept` is set; run() and fillEnglish() change the flags.
  /// No block may have more of them than rows. Keeps references to all arguments.
  MaxFlow(const std::vector<Pair>& pairs, const BlockPlan& english, const BlockPlan& chinese,
          std::vector<bool>& kept);

  /// Adds and removes pairs of tiers from `first` to `last` until no augmenting path is left. May
  /// be called again with other tiers, and continues with the pairs kept so far. A pair whose flag
  /// in `excluded` is set is neither added nor removed.
  void run(Tier first, Tier last, const std::vector<bool>& excluded);

  /// Returns whether all English blocks are full. Both languages have the same number of rows, so
  /// that the Chinese ones are full then as well.
  [[nodiscard]] bool done() const { return englishDeficit_ == 0; }

  /// Fills the English blocks with the most valuable pairs that are left, without regard to the
  /// Chinese ones. To be called last: the deficits of the Chinese blocks are wrong afterwards.
  void fillEnglish(const std::vector<bool>& excluded);

 private:
  /// Level of a node that is not in the level graph.
  static constexpr std::uint32_t kUnreached = 0xFFFFFFFF;

  /// Adjacency lists of one language's blocks: those of block b are pairs[begin[b] .. begin[b +
  /// 1]).
  struct Edges {
    std::vector<std::uint32_t> begin;
    std::vector<std::uint32_t> pairs;
  };

  [[nodiscard]] Edges edgesOf(const BlockPlan& plan,
                              const std::vector<std::uint32_t>& usable) const;
  bool buildLevelGraph();
  bool augment(std::uint32_t node);

  [[nodiscard]] bool isEnglish(std::uint32_t node) const { return node < english_.rows.size(); }
  [[nodiscard]] std::uint32_t otherEnd(std::uint32_t node, std::uint32_t pair) const;

  const std::vector<Pair>& pairs_;
  const BlockPlan& english_;
  const BlockPlan& chinese_;
  std::vector<bool>& kept_;
  /// Rows without a pair by node. Nodes are the English blocks, then the Chinese ones.
  std::vector<std::uint32_t> deficit_;
  std::size_t englishDeficit_ = 0;      ///< of all English blocks
  std::vector<std::uint32_t> byValue_;  ///< all pairs, the most valuable first

  Edges englishEdges_;                   ///< the most valuable pairs first: they are added
  Edges chineseEdges_;                   ///< the least valuable pairs first: they are removed
  std::vector<std::uint32_t> level_;     ///< distance of each node from a source
  std::vector<std::uint32_t> nextEdge_;  ///< of each node, the first edge that is no dead end yet
};

}  // namespace dictionary
