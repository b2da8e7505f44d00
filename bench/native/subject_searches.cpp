#include "bench/native/subject_searches.h"

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "bench/native/search_patterns.h"
#include "bench/native/yardsticks.h"
#include "bench/timings.h"
#include "data/data_control.h"
#include "data/database.h"
#include "query/subject_search.h"
#include "text/query_text.h"
#include "text/utf.h"

namespace bench {
namespace {

constexpr std::u16string_view kTable = u"med";
constexpr std::size_t kPatterns = 1200;
/// A yardstick is held to every fifth pattern.
constexpr std::size_t kPatternsPerYardstick = 5;

/// Shares of the plain scan that a search may take at the median; the 99th percentile may be twice
/// as long.
constexpr double kEnglishBeginningShare = 0.1;
constexpr double kShare = 1.6;
constexpr double kTailShare = 2;

/// What one search makes of what was typed: the patterns of its SQL text, and that text.
struct Search {
  std::u16string sql;
  std::u16string english;  ///< the pattern for the words, if any
  std::u16string chinese;  ///< the pattern for the meanings, if any
};

struct Kind {
  const char* name;
  bool fromTheBeginning;
  const char* column;
  double share;
  Search (*make)(const Typed&);
};

std::u16string wildcards(std::u16string text) { return user::convertWildcard(text); }

/// The pattern that the engine compares a column with; `mode` as for query::makeQuerySql.
std::u16string patternOf(const std::u16string& typed, std::u16string_view mode) {
  return (mode == query::kComplex ? u"%" : u"") + wildcards(typed) + u"%";
}

std::u16string sqlOf(std::u16string typed, std::u16string_view mode) {
  return query::makeQuerySql(typed, mode, kTable).sql;
}

Search englishSearch(const Typed& typed, std::u16string_view mode) {
  return {sqlOf(typed.english, mode), patternOf(typed.english, mode), {}};
}

Search chineseSearch(const Typed& typed, std::u16string_view mode) {
  return {sqlOf(typed.chinese, mode), {}, patternOf(typed.chinese, mode)};
}

// This search takes LIKE's own wildcards only.
Search twoFragments(const Typed& typed) {
  return {query::specialSql(kTable, wildcards(typed.english), wildcards(typed.chinese)),
          patternOf(typed.english, query::kComplex), patternOf(typed.chinese, query::kComplex)};
}

const Kind kKinds[] = {
    {"English beginning", true, "word", kEnglishBeginningShare,
     [](const Typed& typed) { return englishSearch(typed, query::kEasy); }},
    {"English part", false, "word", kShare,
     [](const Typed& typed) { return englishSearch(typed, query::kComplex); }},
    {"Chinese beginning", true, "meaning", kShare,
     [](const Typed& typed) { return chineseSearch(typed, query::kEasy); }},
    {"Chinese part", false, "meaning", kShare,
     [](const Typed& typed) { return chineseSearch(typed, query::kComplex); }},
    {"two fragments", false, "word", kShare, twoFragments},
};

data::RecordSet& run(data::DataControl& control, const std::u16string& sql) {
  control.setRecordSource(sql);
  control.refresh();
  return control.recordset();
}

std::vector<Entry> readEntries(data::DataControl& control) {
  data::RecordSet& rows = run(control, u"select * from med");
  std::vector<Entry> entries;
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    entries.push_back({rows.field(u"word").text, rows.field(u"meaning").text});
  }
  return entries;
}

/// All that the window asks of a search: how many rows, and their texts.
std::size_t takeLines(data::DataControl& control, const std::u16string& sql) {
  data::RecordSet& rows = run(control, sql);
  const std::size_t count = rows.recordCount();
  std::size_t units = 0;
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    units += rows.field(u"word").text.size() + rows.field(u"meaning").text.size();
  }
  return units == 0 ? 0 : count;
}

void timeKind(const Kind& kind, const std::vector<Entry>& entries, const Yardsticks& yardsticks,
              data::DataControl& control) {
  Timings whole(kind.name);
  Timings scan("  plain scan of the " + std::string(kind.column) + "s");
  Timings bytes("  byte search in memory");
  std::size_t found = 0;
  std::size_t number = 0;
  for (const Typed& typed : typedPieces(entries, kPatterns, kind.fromTheBeginning)) {
    const Search search = kind.make(typed);
    found += whole.time([&] { return takeLines(control, search.sql); }) > 0 ? 1 : 0;
    if (number++ % kPatternsPerYardstick != 0) continue;
    scan.time([&] { yardsticks.scan(kind.column); });
    bytes.time([&] {
      return yardsticks.countWords(search.english) + yardsticks.countMeanings(search.chinese);
    });
  }
  const double aim = kind.share * scan.median();
  whole.aimAt(aim, kTailShare * aim);
  whole.print();
  scan.print();
  bytes.print();
  std::printf("  %.2f of the plain scan; %zu of %zu patterns found something\n",
              whole.median() / scan.median(), found, kPatterns);
}

}  // namespace

void timeSearches(const char* file) {
  data::DataControl control;
  control.setCacheKiB(data::kSearchCacheKiB);
  control.setConnectionString(data::connectionString(text::toUtf16(file)));
  const std::vector<Entry> entries = readEntries(control);
  const Yardsticks yardsticks(file, entries);
  for (const Kind& kind : kKinds) timeKind(kind, entries, yardsticks, control);
}

}  // namespace bench
