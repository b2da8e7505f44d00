#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "dictionary/arrange/vocabulary.h"

namespace dictionary {

/// The blocks of one language: which one each pair would stand in, and how many rows each has.
struct BlockPlan {
  std::vector<std::uint32_t> blockOf;  ///< by pair
  std::vector<std::uint32_t> rows;     ///< by block
};

/// Fills the blocks of both languages at once. Every pair stands in an English and in a Chinese
/// block, so whatever is done for one is felt in the other: a pair added where an English block is
/// short may overfill a Chinese one, where another has to go, and so on. This is a flow from the
/// English blocks that are short to the Chinese ones that are, over pairs that are added (from
/// English to Chinese) and pairs that are left out (from Chinese to English).
class RowExchange {
 public:
  /// `kept` tells what is in the blocks now; no block may have more than its rows.
  RowExchange(const std::vector<Pair>& pairs, const BlockPlan& english, const BlockPlan& chinese,
              std::vector<bool>& kept);

  /// Exchanges pairs of tiers from `first` to `last` as long as that fills blocks. A pair whose
  /// flag in `barred` is set is never added.
  void run(Tier first, Tier last, const std::vector<bool>& barred);

  /// Whether all blocks are full.
  [[nodiscard]] bool done() const { return open_ == 0; }

  /// Fills up the English blocks with the most valuable pairs that are left, whatever becomes of
  /// the Chinese ones.
  void fillEnglish(const std::vector<bool>& barred);

 private:
  static constexpr std::uint32_t kUnreached = 0xFFFFFFFF;

  /// Edges of a block: the pairs that may be exchanged in it.
  struct Edges {
    std::vector<std::uint32_t> begin;
    std::vector<std::uint32_t> pairs;
  };

  [[nodiscard]] Edges edgesOf(const BlockPlan& plan,
                              const std::vector<std::uint32_t>& usable) const;
  bool findLevels();
  bool pushFrom(std::uint32_t node);

  [[nodiscard]] bool isEnglish(std::uint32_t node) const { return node < english_.rows.size(); }
  [[nodiscard]] std::uint32_t otherEnd(std::uint32_t node, std::uint32_t pair) const;

  const std::vector<Pair>& pairs_;
  const BlockPlan& english_;
  const BlockPlan& chinese_;
  std::vector<bool>& kept_;
  std::vector<std::uint32_t> missing_;  ///< rows by node: English blocks, then Chinese ones
  std::size_t open_ = 0;                ///< missing rows of all English blocks
  std::vector<std::uint32_t> byValue_;  ///< all pairs, the most valuable first

  Edges englishEdges_;  ///< the most valuable pairs first: they are added
  Edges chineseEdges_;  ///< the least valuable pairs first: they are left out
  std::vector<std::uint32_t> level_;
  std::vector<std::uint32_t> next_;  ///< first edge of each node that may still lead on
};

}  // namespace dictionary
