#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "dictionary/arrange/senses.h"
#include "dictionary/arrange/vocabulary.h"
#include "dictionary/translation/entry.h"

/// From entries to the pairs that could be rows of the general dictionary.
namespace dictionary {

/// Makes the vocabulary: takes the entries one by one, rates their pairs and sorts them in the end.
class PairCollector {
 public:
  /// Adds the entry's pairs and returns their number. Copies the texts. An entry that has no
  /// ordinary equivalent but refers to other headwords gets the first four pairs of each of these
  /// in finish(). An entry that is a form of another word gets that one's first equivalents there,
  /// unless its own translation gives them, which then are as important as that word, or is what
  /// readers most often mean by it.
  std::size_t add(const Entry& entry);

  /// Returns everything added, as PairList::finish() does. Ends the use of the collector.
  [[nodiscard]] Vocabulary finish() &&;

 private:
  /// An entry that gives other headwords, here in lower case, as its meaning.
  struct Reference {
    std::u16string headword;
    std::vector<std::u16string> others;
    std::uint32_t rank = 0;
    bool important = false;
  };

  /// A headword that is a form of another one.
  struct FormEntry {
    std::uint32_t english = 0;  ///< index of the headword; its pairs are added
    Inflection inflection;
    std::u16string note = {};   ///< "take的过去分词"; empty if an equivalent names the form
    bool noted = false;         ///< whether the translation names the form
    bool alone = false;         ///< whether it gives nothing else
    bool given = false;         ///< whether it gives the form's own meaning
    std::size_t next = 0;       ///< position after those of its own pairs
    std::size_t firstPair = 0;  ///< index of its first own pair; there are `next`
  };

  /// A pair of a word that others refer to.
  struct Meaning {
    std::uint32_t chinese = 0;
    PartOfSpeechSet parts = 0;
  };

  /// Such a word; of several that differ in case only, the best of all.
  struct Referred {
    std::uint32_t rank = 0;
    bool important = false;
    bool common = false;
    std::vector<Meaning> meanings;
  };
  using ReferredWords = std::unordered_map<std::u16string, Referred>;

  void recordForms(const Entry& entry);
  void addMissingForms();
  [[nodiscard]] static FormEntry formOf(const Entry& entry, const std::vector<Sense>& senses);
  void recordForm(FormEntry form, std::size_t pairs);
  std::size_t addBareForm(const Entry& entry);
  void collectMeanings(ReferredWords& words) const;
  void followReferences();
  void followForms();
  void followForm(const FormEntry& form, const Referred& lemma);
  void raiseForm(const FormEntry& form, const Referred& lemma);
  [[nodiscard]] bool hides(const FormEntry& form, const Referred& lemma) const;

  PairList list_;
  std::vector<Reference> references_;
  std::vector<FormEntry> forms_;
  std::map<std::u16string, Inflection> listedForms_;  ///< of important words, by the form
};

}  // namespace dictionary
