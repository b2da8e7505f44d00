#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "dictionary/arrange/vocabulary.h"

namespace dictionary {

/// A pair's place in the vocabulary.
using PairIndex = std::uint32_t;

/// The pairs in one language's order, divided into units: runs that must stay in one block.
struct PairSequence {
  std::vector<PairIndex> order;
  std::vector<std::size_t> unitBegins;  ///< places in `order`; the last is the end of all

  [[nodiscard]] std::span<const PairIndex> unit(std::size_t index) const {
    return std::span(order).subspan(unitBegins[index], unitBegins[index + 1] - unitBegins[index]);
  }
  [[nodiscard]] std::size_t unitCount() const { return unitBegins.size() - 1; }
};

/// By English headwords; a unit is a headword, or all headwords that are the same up to their first
/// apostrophe.
PairSequence englishSequence(const Vocabulary& vocabulary);

/// By Chinese headwords; a unit is a headword.
PairSequence chineseSequence(const Vocabulary& vocabulary);

}  // namespace dictionary
