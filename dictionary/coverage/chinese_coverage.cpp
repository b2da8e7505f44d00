#include "dictionary/coverage/chinese_coverage.h"

#include <algorithm>
#include <chrono>

#include "data/connection.h"
#include "data/error.h"
#include "dictionary/console.h"
#include "dictionary/database/row_io.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// Missing words that are printed.
constexpr std::size_t kMaxPrinted = 100;
/// Wait for programs that hold the file, as in the program itself (data::Timeouts).
constexpr std::chrono::seconds kLockWait{1};

std::unordered_set<std::u16string> readHeadwords(const std::filesystem::path& database) {
  try {
    const data::Connection connection =
        data::openConnection(utf8Path(database), data::Access::kRead, kLockWait);
    RowReader rows(connection.get(), "select word from [cdict]");
    std::unordered_set<std::u16string> headwords;
    while (rows.next()) headwords.insert(text::toUtf16(rows.text(0)));
    return headwords;
  } catch (const data::Error& error) {
    throwUnreadable(database, error);
  }
}

}  // namespace

std::size_t ChineseCoverage::missingAmong(std::size_t first) const {
  return static_cast<std::size_t>(std::ranges::upper_bound(ranks, first) - ranks.begin());
}

ChineseCoverage chineseCoverage(const std::vector<WordFrequency>& words,
                                const std::unordered_set<std::u16string>& headwords) {
  ChineseCoverage coverage;
  for (const WordFrequency& entry : words) {
    if (coverage.words == kChineseShares.back()) break;
    if (entry.personalName || entry.word.size() < 2) continue;
    ++coverage.words;
    if (headwords.contains(entry.word)) continue;
    coverage.missing.push_back(entry.word);
    coverage.ranks.push_back(coverage.words);
  }
  return coverage;
}

void printChineseCoverage(const ChineseCoverage& coverage, std::ostream& out) {
  for (const std::size_t first : kChineseShares) {
    if (first > coverage.words) break;
    const std::size_t missing = coverage.missingAmong(first);
    out << "of the " << grouped(first) << " most frequent Chinese words " << grouped(missing)
        << " have no row (" << percentage(missing, first) << ")\n";
  }
  out << "the most frequent ones without a row:";
  for (std::size_t i = 0; i < std::min(coverage.missing.size(), kMaxPrinted); ++i) {
    out << ' ' << text::toUtf8(coverage.missing[i]);
  }
  out << '\n';
}

void reportChineseCoverage(const std::filesystem::path& database, const std::filesystem::path& list,
                           std::ostream& out) {
  requireFile(database);
  printChineseCoverage(chineseCoverage(readWordFrequencies(list), readHeadwords(database)), out);
}

}  // namespace dictionary
