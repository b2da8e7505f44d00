#include "dictionary/report.h"

#include <iomanip>
#include <numeric>
#include <string_view>

#include "dictionary/console.h"

namespace dictionary {
namespace {

/// By Tier (vocabulary.h), in the words of a report.
constexpr std::array<std::string_view, kTierCount> kTierNames = {
    "important words, first equivalent",
    "important words, further equivalents",
    "other words, first equivalent",
    "several words, first equivalent",
    "other words, equivalent of a subject that is a known word",
    "other Chinese headwords, first row",
    "other words, further equivalents of subjects",
    "other words, further equivalents",
    "forms of other words, further equivalents",
    "first equivalent of words that have only names or web equivalents",
    "first web equivalent of other words",
    "further names",
    "further web equivalents",
};

/// Width of the column of counts; the largest has nine characters ("1,060,000").
constexpr int kNumberWidth = 11;

void printCount(std::ostream& out, std::size_t count, std::string_view what) {
  out << std::setw(kNumberWidth) << grouped(count) << "  " << what << '\n';
}

/// Number of headwords in rows that are sorted by headword.
template <typename Rows>
std::size_t distinctWords(const Rows& rows) {
  std::size_t distinct = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i == 0 || rows[i].word != rows[i - 1].word) ++distinct;
  }
  return distinct;
}

/// Number of English headwords that have a first equivalent, but no row.
std::size_t missedWords(const Vocabulary& vocabulary, const std::vector<bool>& chosen) {
  std::vector<bool> hasFirst(vocabulary.english.size());
  std::vector<bool> hasRow(vocabulary.english.size());
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    const Pair& pair = vocabulary.pairs[i];
    if (pair.tier <= Tier::kFirstOfPhrase) hasFirst[pair.english] = true;
    if (chosen[i]) hasRow[pair.english] = true;
  }
  std::size_t missed = 0;
  for (std::size_t i = 0; i < hasRow.size(); ++i) missed += hasFirst[i] && !hasRow[i] ? 1 : 0;
  return missed;
}

}  // namespace

void LineRanges::add(std::size_t line) {
  ++count_;
  if (!ranges_.empty() && ranges_.back().last + 1 == line) {
    ranges_.back().last = line;
  } else {
    ranges_.push_back({line, line});
  }
}

std::string LineRanges::text() const {
  std::string text = count_ == 1 ? "line " : "lines ";
  for (const Range& range : ranges_) {
    if (&range != &ranges_.front()) text += ", ";
    text += std::to_string(range.first);
    if (range.last != range.first) text += '-' + std::to_string(range.last);
  }
  return text;
}

/// Every entry is counted in one class at most, so that the classes add up. Pieces are counted with
/// their fault, or with PieceFault::kNone, which is not printed.
void BuildReport::addEntry(const Entry& entry, std::size_t pairs) {
  ++entries_;
  if (entry.lines.empty()) {
    ++emptyEntries_;
  } else if (pairs == 0 && !entry.references.empty()) {
    ++referringEntries_;
  } else if (pairs == 0) {
    ++entriesWithoutPairs_;
  }
  for (const TranslationLine& line : entry.lines) {
    for (const Piece& piece : line.pieces) {
      ++pieces_[static_cast<std::size_t>(piece.equivalent.fault)];
    }
  }
}

void BuildReport::addContent(const DatabaseContent& content, const std::vector<bool>& chosen) {
  pairs_ = content.vocabulary.pairs.size();
  rows_ = content.general.edict.size();
  english_ = content.vocabulary.english.size();
  chinese_ = content.vocabulary.chinese.size();
  englishKept_ = distinctWords(content.general.edict);
  chineseKept_ = distinctWords(content.general.cdict);
  for (std::size_t i = 0; i < pairs_; ++i) {
    const auto tier = static_cast<std::size_t>(content.vocabulary.pairs[i].tier);
    ++gathered_[tier];
    if (chosen[i]) ++kept_[tier];
  }
  missed_ = missedWords(content.vocabulary, chosen);
  for (std::size_t i = 0; i < kSubjectCount; ++i) subjectRows_[i] = content.subjects[i].size();
}

void BuildReport::addTerms(std::size_t terms, std::size_t withoutRow) {
  terms_ = terms;
  termsWithoutRow_ = withoutRow;
}

void BuildReport::printSource(std::ostream& out) const {
  out << "Source:\n";
  printCount(out, entries_, "entries read");
  for (const auto& [fault, count] : badLines_) {
    printCount(out, count, "lines skipped: " + std::string(describe(fault)));
  }
  printCount(out, badHeadwords_, "entries left out: the word cannot be looked up");
  printCount(out, emptyEntries_, "entries left out: no translation");
  printCount(out, referringEntries_, "entries that only refer to another headword");
  printCount(out, entriesWithoutPairs_, "entries left out: no equivalent could be used");
  // From 1: 0 is PieceFault::kNone.
  for (std::size_t i = 1; i < pieces_.size(); ++i) {
    const std::string_view fault = describe(static_cast<PieceFault>(i));
    printCount(out, pieces_[i], "equivalents left out: " + std::string(fault));
  }
}

void BuildReport::printPairs(std::ostream& out) const {
  out << "General dictionary:\n";
  printCount(out, pairs_,
             "pairs of " + grouped(english_) + " English and " + grouped(chinese_) +
                 " Chinese headwords gathered");
  printCount(out, rows_,
             "pairs of " + grouped(englishKept_) + " English and " + grouped(chineseKept_) +
                 " Chinese headwords taken");
  printCount(out, missed_, "English headwords left out that have a first equivalent");
  printCount(out, termsWithoutRow_, "of " + grouped(terms_) + " terms of the own list left out");
  for (std::size_t i = 0; i < kTierCount; ++i) {
    printCount(out, gathered_[i] - kept_[i],
               "of " + grouped(gathered_[i]) + " left out: " + std::string(kTierNames[i]));
  }
}

void BuildReport::printSubjects(std::ostream& out) const {
  const std::size_t all = std::accumulate(subjectRows_.begin(), subjectRows_.end(), std::size_t{0});
  out << "Subject dictionaries:\n";
  printCount(out, all, "rows in all");
  for (std::size_t i = 0; i < kSubjectCount; ++i) {
    printCount(out, subjectRows_[i], kSubjectInfos[i].table);
  }
}

void BuildReport::print(std::ostream& out) const {
  printSource(out);
  printPairs(out);
  printSubjects(out);
}

}  // namespace dictionary
