#include "dictionary/arrange/general_dictionary.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <tuple>

namespace dictionary {

GeneralDictionary arrange(const Vocabulary& vocabulary, const std::vector<bool>& chosen) {
  std::vector<Pair> pairs;
  for (std::size_t i = 0; i < vocabulary.pairs.size(); ++i) {
    if (chosen[i]) pairs.push_back(vocabulary.pairs[i]);
  }
  std::vector<std::uint32_t> byChinese(pairs.size());
  std::iota(byChinese.begin(), byChinese.end(), 0U);
  std::ranges::sort(byChinese, {},
                    [&](std::uint32_t index) { return std::tuple(pairs[index].chinese, index); });

  GeneralDictionary general;
  general.edict.resize(pairs.size());
  general.cdict.reserve(pairs.size());
  for (const std::uint32_t index : byChinese) {
    general.cdict.push_back({pairs[index].chinese, index + 1});
    general.edict[index] = {pairs[index].english, static_cast<std::uint32_t>(general.cdict.size())};
  }
  return general;
}

}  // namespace dictionary
