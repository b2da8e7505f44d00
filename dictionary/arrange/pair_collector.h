#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "dictionary/arrange/vocabulary.h"
#include "dictionary/translation/entry.h"

namespace dictionary {

/// Gathers the pairs of entries and puts them in order.
class PairCollector {
 public:
  /// Adds the entry's pairs; returns how many there are. An entry that has none but refers to
  /// another headword gets the first few of that one's in the end.
  std::size_t add(const Entry& entry);

  /// Everything gathered, sorted; words that differ in case only become one.
  [[nodiscard]] Vocabulary finish() &&;

 private:
  /// A headword that means the same as others, given in lower case.
  struct Reference {
    std::u16string headword;
    std::vector<std::u16string> others;
    bool important = false;
  };

  void followReferences();
  void addPair(const std::u16string& chinese, Tier tier, std::size_t position);

  std::vector<std::u16string> english_;
  std::vector<std::u16string> chinese_;
  std::unordered_map<std::u16string, std::uint32_t> chineseIds_;
  std::vector<Pair> pairs_;
  std::vector<Reference> references_;
};

}  // namespace dictionary
