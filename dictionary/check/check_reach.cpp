#include "dictionary/check/check_reach.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "dictionary/check/bound_step.h"

namespace dictionary {
namespace {

/// Most headwords in a list.
constexpr std::size_t kListLength = 75;

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
                            (window ? describeWindow(run, *window) : ", behind the whole index"));
  }
}

/// Whether the list of the headword runs[first] ends within a headword's rows.
bool endsCut(const std::vector<HeadwordRun>& runs, std::size_t first, const RowWindow& window) {
  const auto upper = static_cast<std::size_t>(std::max<std::int64_t>(window.upper, 0));
  const std::size_t listEnd = std::min(first + kListLength, runs.size());
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

void checkReach(const GeneralTables& tables, CheckResult& result) {
  checkEnglish(tables, result);
  checkChinese(tables, result);
}

}  // namespace dictionary
