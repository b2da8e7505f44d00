#include "dictionary/arrange/term_check.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <unordered_set>

#include "text/order.h"

namespace dictionary {
namespace {

/// Pairs by their texts, English ones without regard to case.
class PairTexts {
 public:
  void add(const std::u16string& english, const std::u16string& chinese) {
    keys_.insert(key(english, chinese));
  }
  [[nodiscard]] bool contains(const std::u16string& english, const std::u16string& chinese) const {
    return keys_.contains(key(english, chinese));
  }

 private:
  static std::u16string key(const std::u16string& english, const std::u16string& chinese) {
    return text::toLower(english) + u'\n' + chinese;
  }

  std::unordered_set<std::u16string> keys_;
};

PairTexts textsOf(const std::vector<Term>& terms) {
  PairTexts texts;
  for (const Term& term : terms) texts.add(term.english, term.chinese);
  return texts;
}

}  // namespace

std::vector<Term> misplacedTerms(const Vocabulary& vocabulary, const ChineseSources& sources) {
  const PairTexts wanted = textsOf(sources.terms);  // so that few of the pairs are copied
  PairTexts given;
  const auto record = [&](const std::u16string& english, const std::u16string& chinese) {
    if (wanted.contains(english, chinese)) given.add(english, chinese);
  };
  for (const Pair& pair : vocabulary.pairs) {
    record(vocabulary.english[pair.english], vocabulary.chinese[pair.chinese]);
  }
  for (const ChineseEntry& entry : sources.entries) {
    for (const Gloss& gloss : entry.glosses) record(gloss.english, entry.word);
  }
  std::vector<Term> misplaced;
  std::ranges::copy_if(sources.terms, std::back_inserter(misplaced), [&](const Term& term) {
    return term.given != given.contains(term.english, term.chinese);
  });
  return misplaced;
}

std::vector<Term> termsWithoutRow(const std::vector<Term>& terms, const Vocabulary& vocabulary,
                                  const std::vector<bool>& chosen) {
  const PairTexts wanted = textsOf(terms);
  PairTexts rows;
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    const std::u16string& english = vocabulary.english[vocabulary.pairs[i].english];
    const std::u16string& chinese = vocabulary.chinese[vocabulary.pairs[i].chinese];
    if (chosen[i] && wanted.contains(english, chinese)) rows.add(english, chinese);
  }
  std::vector<Term> without;
  std::ranges::copy_if(terms, std::back_inserter(without), [&](const Term& term) {
    return !rows.contains(term.english, term.chinese);
  });
  return without;
}

}  // namespace dictionary
