#include "bench/native/subject_searches.h"

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "bench/native/search_patterns.h"
#include "bench/native/yardsticks.h"
#include "bench/timings.h"
#include "data/data_control.h"
#include "text/query_text.h"
#include "text/utf.h"

namespace bench {
namespace {

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

Search englishSearch(std::u16string_view top, std::u16string pattern) {
  std::u16string inSql = pattern;
  user::escapeQuote(inSql);
  return {u"select top " + std::u16string(top) + u" word,meaning from med where word like '" +
              inSql + u"' order by word",
          std::move(pattern),
          {}};
}

Search chineseSearch(std::u16string_view top, std::u16string pattern) {
  std::u16string inSql = pattern;
  user::escapeQuote(inSql);
  return {u"select top " + std::u16string(top) +
              u" word as meaning,meaning as word from med where meaning like '" + inSql +
              u"' order by meaning",
          {},
          std::move(pattern)};
}

Search twoFragments(const Typed& typed) {
  const std::u16string english = u"%" + wildcards(typed.english) + u"%";
  const std::u16string chinese = u"%" + wildcards(typed.chinese) + u"%";
  return {u"select top 200 word,meaning from med where  word like '" + english +
              u"' and meaning like '" + chinese + u"'",
          english, chinese};
}

const Kind kKinds[] = {
    {"English beginning", true, "word", kEnglishBeginningShare,
     [](const Typed& typed) { return englishSearch(u"100", wildcards(typed.english) + u"%"); }},
    {"English part", false, "word", kShare,
     [](const Typed& typed) {
       return englishSearch(u"200", u"%" + wildcards(typed.english) + u"%");
     }},
    {"Chinese beginning", true, "meaning", kShare,
     [](const Typed& typed) { return chineseSearch(u"100", wildcards(typed.chinese) + u"%"); }},
    {"Chinese part", false, "meaning", kShare,
     [](const Typed& typed) {
       return chineseSearch(u"200", u"%" + wildcards(typed.chinese) + u"%");
     }},
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
  control.setConnectionString(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" +
                              text::toUtf16(file) + u";Persist Security Info=False");
  const std::vector<Entry> entries = readEntries(control);
  const Yardsticks yardsticks(file, entries);
  for (const Kind& kind : kKinds) timeKind(kind, entries, yardsticks, control);
}

}  // namespace bench
