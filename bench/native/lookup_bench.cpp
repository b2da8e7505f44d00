// How long the lookups of the quick lookup window and the searches of the multi-dictionary window
// take on a full dictionary, without the drawing of the windows.
//
//   lookup_bench KK.DAT [ENGLISH.TXT CHINESE.TXT]
//
// The word lists hold one word a line in UTF-8; without them 5,000 English and 2,000 Chinese
// headwords, evenly spread, are taken from the dictionary itself.

#include <cstdio>
#include <exception>
#include <fstream>
#include <string>
#include <vector>

#include "bench/native/subject_searches.h"
#include "bench/timings.h"
#include "data/data_control.h"
#include "data/headword_lookup.h"
#include "text/query_text.h"
#include "text/readings.h"
#include "text/strings.h"
#include "text/utf.h"

namespace {

using bench::Timings;
using Words = std::vector<std::u16string>;

constexpr std::size_t kEnglishWords = 5000;
constexpr std::size_t kChineseWords = 2000;

/// What a keystroke may take at the median, in ms.
constexpr double kEnglishAim = 0.2;
constexpr double kChineseAim = 1;
/// What the readings of one word may take at the median, in ms.
constexpr double kReadingsAim = 1;

data::RecordSet& run(data::DataControl& control, std::u16string_view sql) {
  control.setRecordSource(sql);
  control.refresh();
  return control.recordset();
}

/// The words of all rows, as a list takes them over.
Words takeWords(data::RecordSet& rows) {
  Words words;
  if (rows.empty()) return words;
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    words.push_back(rows.field(u"word").text);
  }
  return words;
}

Words readWords(const char* file) {
  std::ifstream input(file);
  Words words;
  for (std::string line; std::getline(input, line);) {
    if (!line.empty()) words.push_back(text::toUtf16(line));
  }
  return words;
}

/// `count` headwords of `table`, evenly spread over its rows numbered by `number`.
Words spreadWords(data::DataControl& control, const std::u16string& table,
                  const std::u16string& number, std::size_t count) {
  const std::u16string every = u"select * from " + table;
  data::RecordSet& all = run(control, every);
  all.moveLast();
  const auto rows = static_cast<std::size_t>(all.field(number).integer);
  const std::u16string one = every + u" where " + number + u"=";
  Words words;
  for (std::size_t i = 0; i < count; ++i) {
    const auto row = static_cast<std::int64_t>(1 + (i * (rows - 1) / count));
    data::RecordSet& found = run(control, one + text::decimal(row));
    if (!found.empty()) words.push_back(found.field(u"word").text);
  }
  return words;
}

/// The steps of one keystroke, each with its times.
struct Keystroke {
  Keystroke(const std::string& side, double aim)
      : whole(side + ": keystroke, from text to meaning", aim),
        sql(side + ": bounds and SQL of the list"),
        list(side + ": list"),
        meaning(side + ": meaning of the first word") {}

  void print() const { bench::printWithParts(whole, {&sql, &list, &meaning}); }

  Timings whole;
  Timings sql;
  Timings list;
  Timings meaning;
};

class Typist {
 public:
  Typist(data::DataControl& control, const data::IndexWords& indexWords)
      : control_(control), lookup_(indexWords, {}) {}

  /// Types each word letter by letter.
  void type(const Words& words, Keystroke& times) {
    for (const std::u16string& word : words) {
      for (std::size_t length = 1; length <= word.size(); ++length) {
        times.whole.time([&] { press(word.substr(0, length), times); });
      }
    }
  }

 private:
  void press(std::u16string text, Keystroke& times) {
    const std::u16string_view side = user::getEorC(text);
    user::escapeQuote(text);
    const std::u16string sql =
        times.sql.time([&] { return lookup_.makeStrSql(side, text, control_); });
    Words list = times.list.time([&] { return takeWords(run(control_, sql)); });
    if (!list.empty()) times.meaning.time([&] { return show(list.front()); });
  }

  data::MeaningText show(std::u16string& word) {
    const std::u16string_view side = user::getEorC(word);
    user::escapeQuote(word);
    data::RecordSet& rows = run(control_, lookup_.findword(side, word, control_));
    return data::meaningLines(word, data::readMeanings(rows));
  }

  data::DataControl& control_;
  data::HeadwordLookup lookup_;
};

void timeStart(const char* file) {
  Timings start("open the file and read the index words");
  for (int i = 0; i < 20; ++i) {
    start.time([&] {
      data::DataControl control;
      control.setConnectionString(data::connectionString(text::toUtf16(file)));
      return data::readIndexWords(control);
    });
  }
  start.print();
}

/// The readings of one word under the pointer, of which only the last one is a headword.
void timeReadings(const char* file, const data::IndexWords& indexWords, const Words& words) {
  data::KnownHeadwords headwords(indexWords);
  headwords.setConnectionString(data::connectionString(text::toUtf16(file)));
  Timings readings("eight readings, none of them a headword", kReadingsAim);
  for (const std::u16string& word : words) {
    if (word.size() < text::kMaxReadings) continue;
    readings.time([&] {
      bool known = false;
      for (std::size_t i = 0; i < text::kMaxReadings; ++i) {
        known = headwords.has(word.substr(0, word.size() - i) + u"q") || known;
      }
      return known;
    });
  }
  readings.print();
}

int runAll(const std::vector<const char*>& arguments) {
  const char* file = arguments.front();
  data::DataControl control;
  control.setConnectionString(data::connectionString(text::toUtf16(file)));
  const data::IndexWords indexWords = data::readIndexWords(control);
  const bool listed = arguments.size() == 3;
  const Words english =
      listed ? readWords(arguments[1]) : spreadWords(control, u"edict", u"eid", kEnglishWords);
  const Words chinese =
      listed ? readWords(arguments[2]) : spreadWords(control, u"cdict", u"cid", kChineseWords);
  std::printf("%zu English and %zu Chinese words; times in ms\n", english.size(), chinese.size());

  Timings::printHeading("Start");
  timeStart(file);

  Timings::printHeading("Quick lookup");
  Typist typist(control, indexWords);
  Keystroke englishTimes("English", kEnglishAim);
  typist.type(english, englishTimes);
  englishTimes.print();
  Keystroke chineseTimes("Chinese", kChineseAim);
  typist.type(chinese, chineseTimes);
  chineseTimes.print();

  Timings::printHeading("Words under the pointer");
  timeReadings(file, indexWords, english);

  Timings::printHeading("Search in the largest subject dictionary");
  bench::timeSearches(file);
  return 0;
}

}  // namespace

int main(int count, char** values) {
  const std::vector<const char*> arguments(values + 1, values + count);
  if (arguments.size() != 1 && arguments.size() != 3) {
    std::fputs("usage: lookup_bench KK.DAT [ENGLISH.TXT CHINESE.TXT]\n", stderr);
    return 2;
  }
  try {
    return runAll(arguments);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "lookup_bench: %s\n", error.what());
    return 1;
  }
}
