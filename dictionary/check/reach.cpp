// Deliberate: a second implementation of the bound step (data/headword_lookup.cpp), which runs
// queries and scans its index from the start: for 760,000 English and 720,000 Chinese headwords
// that would take far longer than the whole build. Here the index is prepared once, and each
// headword takes a binary search or two. Both use the numbers and keys of data/lookup_sql.h, and a
// test compares their windows.
//
// Prefix maxima and suffix minima replace the index itself in the binary searches. They ascend for
// any index, and give what the linear scan gives: the first index word that is not less than a key
// is the first prefix maximum that is not less; the last one that is not greater is the last suffix
// minimum that is not greater.

#include "dictionary/check/reach.h"

#include <algorithm>

#include "data/lookup_sql.h"
#include "text/order.h"
#include "text/query_text.h"

namespace dictionary {
namespace {

using data::withoutWildcards;

/// The word as the lookups search it: apostrophes doubled.
std::u16string escaped(std::u16string_view word) {
  std::u16string text(word);
  return user::escapeQuote(text);
}

/// The lookups search no further than kWindowRows rows after the lower end.
RowWindow clamped(RowWindow window) {
  window.upper = std::min(window.upper, window.lower + data::kWindowRows);
  return window;
}

/// Number of the last row of the block, which is counted from 1.
std::int64_t blockEnd(std::ptrdiff_t block) {
  return static_cast<std::int64_t>(block) * data::kBlockRows;
}

/// The rows of a headword and those that are searched, for a finding.
std::string describeWindow(const HeadwordRun& run, const RowWindow& window) {
  return ", rows " + std::to_string(run.first + 1) + "-" + std::to_string(run.end) + ", searched " +
         std::to_string(window.lower) + "-" + std::to_string(window.upper);
}

bool holdsRun(const RowWindow& window, const HeadwordRun& run) {
  return window.holds(static_cast<std::int64_t>(run.first + 1), static_cast<std::int64_t>(run.end));
}

void checkEnglish(const GeneralTables& tables, CheckResult& result) {
  const EnglishBoundStep step(tables.englishIndex);
  for (const HeadwordRun& run : headwordRuns(tables.edict)) {
    ++result.englishHeadwords;
    const std::u16string& word = tables.edict.words[run.first];
    const std::optional<RowWindow> window = step.window(word);
    if (window && holdsRun(*window, run)) continue;
    const bool apostrophe = word.find(u'\'') != std::u16string::npos;
    result.findings.add(apostrophe ? Rule::kApostropheReach : Rule::kEnglishReach,
                        rowName("edict", run.first, word) +
                            (window ? describeWindow(run, *window) : ", after the whole index"));
  }
}

/// Returns whether the list for the headword runs[first] ends with a headword of which not all rows
/// are searched. Choosing that headword shows some of its meanings only, since the quick lookup
/// window keeps the bounds of the list.
bool endsCut(const std::vector<HeadwordRun>& runs, std::size_t first, const RowWindow& window) {
  const auto upper = static_cast<std::size_t>(std::max<std::int64_t>(window.upper, 0));
  const std::size_t listEnd = std::min(first + std::size_t{data::kListLength}, runs.size());
  for (std::size_t i = first; i < listEnd && runs[i].first < upper; ++i) {
    if (runs[i].end > upper) return true;
  }
  return false;
}

void checkChinese(const GeneralTables& tables, CheckResult& result) {
  const ChineseBoundStep step(tables.chineseIndex);
  const std::vector<HeadwordRun> runs = headwordRuns(tables.cdict);
  result.chineseHeadwords = runs.size();
  result.chineseLists = runs.size();
  for (std::size_t i = 0; i < runs.size(); ++i) {
    const std::u16string& word = tables.cdict.words[runs[i].first];
    const RowWindow window = step.window(word);
    if (!holdsRun(window, runs[i])) {
      result.findings.add(Rule::kChineseReach,
                          rowName("cdict", runs[i].first, word) + describeWindow(runs[i], window));
    } else if (endsCut(runs, i, window)) {
      ++result.cutLists;
    }
  }
}

}  // namespace

EnglishBoundStep::EnglishBoundStep(const std::vector<std::u16string>& index) {
  for (const std::u16string& word : index) {
    std::u16string lower = text::toLower(word);
    greatest_.push_back(greatest_.empty() ? lower : std::max(lower, greatest_.back()));
  }
}

std::optional<RowWindow> EnglishBoundStep::window(std::u16string_view word) const {
  const std::u16string low = text::toLower(withoutWildcards(escaped(word), data::kLowSubstitute));
  const auto found = std::ranges::lower_bound(greatest_, low);
  if (found == greatest_.end()) return std::nullopt;
  const std::int64_t upper = blockEnd(found - greatest_.begin() + 1);
  return clamped({upper - data::kReachBack, upper});
}

ChineseBoundStep::ChineseBoundStep(const std::vector<std::u16string>& index)
    : greatest_(index), least_(index) {
  for (std::size_t i = 1; i < index.size(); ++i) {
    if (text::compare(greatest_[i - 1], greatest_[i]) > 0) greatest_[i] = greatest_[i - 1];
    const std::size_t back = index.size() - 1 - i;
    if (text::compare(least_[back + 1], least_[back]) < 0) least_[back] = least_[back + 1];
  }
}

RowWindow ChineseBoundStep::window(std::u16string_view word) const {
  // The last index row that is not after the word.
  const std::u16string typed = escaped(word);
  const std::u16string low = withoutWildcards(typed, data::kLowSubstitute);
  const auto after = std::ranges::partition_point(
      least_, [&](const std::u16string& least) { return text::compare(least, low) <= 0; });
  const std::ptrdiff_t before = after - least_.begin();

  // The first index row that is not before the upper key.
  std::u16string high = withoutWildcards(typed, data::kChineseHighSubstitute);
  high += data::kChineseHighSuffix;
  const auto first = std::ranges::partition_point(
      greatest_, [&](const std::u16string& greatest) { return text::compare(greatest, high) < 0; });

  RowWindow window;
  window.lower = before > 0 ? blockEnd(before) - data::kReachBack : 0;
  window.upper =
      first == greatest_.end() ? data::kLastRow : blockEnd(first - greatest_.begin() + 1);
  return clamped(window);
}

std::vector<std::size_t> listLengths(const GeneralTables& tables,
                                     const std::vector<std::u16string>& words) {
  const EnglishBoundStep step(tables.englishIndex);
  const std::vector<HeadwordRun> runs = headwordRuns(tables.edict);
  std::vector<std::size_t> lengths;
  for (const std::u16string& word : words) {
    const auto first = std::ranges::partition_point(runs, [&](const HeadwordRun& run) {
      return text::compare(tables.edict.words[run.first], word) < 0;
    });
    const std::optional<RowWindow> window = step.window(word);
    if (first == runs.end() || !window || !text::equal(tables.edict.words[first->first], word)) {
      continue;
    }
    const auto upper = static_cast<std::size_t>(window->upper);
    const auto end = std::partition_point(
        first, runs.end(), [&](const HeadwordRun& run) { return run.first < upper; });
    lengths.push_back(
        std::min(static_cast<std::size_t>(end - first), std::size_t{data::kListLength}));
  }
  std::ranges::sort(lengths);
  return lengths;
}

void checkReach(const GeneralTables& tables, CheckResult& result) {
  checkEnglish(tables, result);
  checkChinese(tables, result);
}

}  // namespace dictionary
