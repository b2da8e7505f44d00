#include "dictionary/arrange/pair_sequence.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <tuple>

#include "text/order.h"

namespace dictionary {
namespace {

/// Whether two headwords that follow each other must stay in one block. The bound step searches
/// with every apostrophe doubled, which sorts before all words that are the same up to the first.
bool sharesApostrophe(std::u16string_view a, std::u16string_view b) {
  const std::size_t apostrophe = a.find(u'\'');
  return apostrophe != std::u16string_view::npos &&
         text::equal(a.substr(0, apostrophe + 1), b.substr(0, apostrophe + 1));
}

}  // namespace

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

}  // namespace dictionary
