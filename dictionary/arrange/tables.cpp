#include "dictionary/arrange/tables.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <tuple>
#include <utility>

#include "text/order.h"
#include "text/strings.h"

namespace dictionary {
namespace {

/// The entry's lines for the subject, each once, separated by semicolons.
std::u16string meaningOf(const Entry& entry, Subject subject) {
  std::u16string meaning;
  std::vector<std::u16string> texts;
  for (const TranslationLine& line : entry.lines) {
    std::u16string text = subjectText(line, subject);
    if (text.empty() || std::ranges::find(texts, text) != texts.end()) continue;
    if (!meaning.empty()) meaning += u'；';
    meaning += text;
    texts.push_back(std::move(text));
  }
  return meaning;
}

/// Whether an equivalent is a piece of the meaning by itself.
bool holds(std::u16string_view meaning, std::u16string_view equivalent) {
  constexpr std::u16string_view kSeparators = u",，;；、";
  for (;;) {
    const std::size_t end = std::min(meaning.find_first_of(kSeparators), meaning.size());
    if (text::trimBlanks(meaning.substr(0, end)) == equivalent) return true;
    if (end == meaning.size()) return false;
    meaning.remove_prefix(end + 1);
  }
}

/// Joins rows whose headwords are equal in the text order, which must follow each other: they
/// differ in case only, which the table's primary key ignores. The first spelling is kept.
void mergeEqual(std::vector<SubjectRow>& rows) {
  std::vector<SubjectRow> merged;
  merged.reserve(rows.size());
  for (SubjectRow& row : rows) {
    if (!merged.empty() && text::equal(merged.back().word, row.word)) {
      if (holds(merged.back().meaning, row.meaning)) continue;
      merged.back().meaning += u'；';
      merged.back().meaning += row.meaning;
    } else {
      merged.push_back(std::move(row));
    }
  }
  rows = std::move(merged);
}

}  // namespace

// The pairs are in the order of [edict] already, so that their indexes are its row numbers less 1.
// Sorting these indexes by Chinese headword gives the order of [cdict], and with it both directions
// of every link. Rows of one Chinese headword stay in the order of their English ones.
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

void SubjectCollector::add(const Entry& entry) {
  for (std::size_t i = 0; i < kSubjectCount; ++i) {
    std::u16string meaning = meaningOf(entry, static_cast<Subject>(i));
    if (!meaning.empty()) tables_[i].push_back({entry.headword, std::move(meaning)});
  }
}

void SubjectCollector::add(Subject subject, std::u16string_view word,
                           std::u16string_view equivalent) {
  tables_.at(static_cast<std::size_t>(subject))
      .push_back({std::u16string(word), std::u16string(equivalent)});
}

SubjectTables SubjectCollector::finish() && {
  for (std::vector<SubjectRow>& rows : tables_) {
    // Stable: equal headwords are joined in the order of the source.
    std::ranges::stable_sort(rows, [](const SubjectRow& a, const SubjectRow& b) {
      return text::compare(a.word, b.word) < 0;
    });
    mergeEqual(rows);
  }
  return std::move(tables_);
}

}  // namespace dictionary
