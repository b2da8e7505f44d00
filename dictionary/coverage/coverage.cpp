#include "dictionary/coverage/coverage.h"

#include <algorithm>
#include <iomanip>
#include <numeric>
#include <sstream>
#include <utility>

#include "dictionary/console.h"
#include "dictionary/coverage/running_text.h"
#include "text/order.h"
#include "text/readings.h"
#include "text/utf.h"
#include "text/word_characters.h"

namespace dictionary {
namespace {

bool isLetterOrDigit(char16_t unit) {
  const text::UnitKind kind = text::unitKind(unit);
  return kind == text::UnitKind::kLetter || kind == text::UnitKind::kDigit;
}

bool isLetter(char16_t unit) { return text::unitKind(unit) == text::UnitKind::kLetter; }

/// Returns the letters and digits from `begin` on, with apostrophes between them.
std::u16string_view lettersFrom(std::u16string_view text, std::size_t begin) {
  std::size_t end = begin;
  while (end < text.size()) {
    const bool isJoint = text::unitKind(text[end]) == text::UnitKind::kApostrophe && end > begin &&
                         end + 1 < text.size() && isLetterOrDigit(text[end + 1]);
    if (!isJoint && !isLetterOrDigit(text[end])) break;
    ++end;
  }
  return text.substr(begin, end - begin);
}

bool isLowerCase(std::u16string_view word) {
  return std::count_if(word.begin(), word.end(), isLetter) >= 2 && text::toLower(word) == word;
}

void countWord(const std::u16string& word, Shown shown, Coverage& coverage) {
  const auto index = static_cast<std::size_t>(shown);
  ++coverage.all.at(index);
  if (isLowerCase(word)) ++coverage.lowerCase.at(index);
  ++coverage.words.at(index)[word];
}

std::size_t sum(const Coverage::Counts& counts) {
  return std::accumulate(counts.begin(), counts.end(), std::size_t{0});
}

/// A share as " 95.12 %", in 10 columns; "-" of nothing.
std::string share(std::size_t part, std::size_t whole) {
  std::ostringstream text;
  if (whole == 0) {
    text << std::setw(10) << '-';
  } else {
    text << std::fixed << std::setprecision(2) << std::setw(8)
         << 100.0 * static_cast<double>(part) / static_cast<double>(whole) << " %";
  }
  return text.str();
}

/// The most frequent words first; those equally frequent in the text order.
void printWords(std::string_view title, const Coverage::Words& words, std::ostream& out) {
  if (words.empty()) return;
  std::vector<std::pair<std::u16string, std::size_t>> sorted(words.begin(), words.end());
  std::sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) {
    if (a.second != b.second) return a.second > b.second;
    const int order = text::compare(a.first, b.first);
    return order != 0 ? order < 0 : a.first < b.first;
  });
  out << "  " << title << ", " << grouped(sorted.size()) << " different:\n";
  if (sorted.size() > kShownWords) sorted.resize(kShownWords);
  for (const auto& [word, count] : sorted) {
    std::ostringstream line;
    line << std::setw(10) << grouped(count) << "  " << text::toUtf8(word) << '\n';
    out << line.str();
  }
}

struct Row {
  Shown shown;
  std::string_view name;
};
constexpr std::array<Row, kShownCount> kRows{{{Shown::kMeaning, "found"},
                                              {Shown::kShortened, "found without the last letter"},
                                              {Shown::kReference, "only a reference"},
                                              {Shown::kNothing, "not found"}}};

}  // namespace

Coverage& Coverage::operator+=(const Coverage& other) {
  for (std::size_t i = 0; i < kShownCount; ++i) {
    all.at(i) += other.all.at(i);
    lowerCase.at(i) += other.lowerCase.at(i);
    for (const auto& [word, count] : other.words.at(i)) words.at(i)[word] += count;
  }
  for (const auto& [letters, count] : other.unread) unread[letters] += count;
  return *this;
}

Coverage coverageOf(std::u16string_view text, PopupLookup& lookup) {
  Coverage coverage;
  const auto isHeadword = [&](std::u16string_view word) { return lookup.isHeadword(word); };
  for (std::size_t i = 0; i < text.size();) {
    const std::u16string_view letters = lettersFrom(text, i);
    if (letters.empty()) {
      ++i;
      continue;
    }
    const auto reading = text::chooseReading(text::readingsAt(text, i), isHeadword);
    if (reading) {
      countWord(reading->word, lookup.shown(reading->word), coverage);
    } else if (std::any_of(letters.begin(), letters.end(), isLetter)) {
      ++coverage.unread[text::spelled(letters)];
    }
    i = reading ? reading->end : i + letters.size();
  }
  return coverage;
}

void printCoverage(const Coverage& coverage, std::ostream& out) {
  const std::size_t words = sum(coverage.all);
  const std::size_t lowerCase = sum(coverage.lowerCase);
  std::size_t unread = 0;
  for (const auto& [letters, count] : coverage.unread) unread += count;
  out << "  " << grouped(words) << " words, " << grouped(lowerCase)
      << " of them in lower case with two or more letters\n"
      << "                                       all lower case\n";
  for (const Row& row : kRows) {
    const auto index = static_cast<std::size_t>(row.shown);
    std::ostringstream name;
    name << "  " << std::left << std::setw(30) << row.name;
    out << name.str() << share(coverage.all.at(index), words) << ' '
        << share(coverage.lowerCase.at(index), lowerCase) << '\n';
  }
  out << "  " << grouped(unread) << " places with letters and digits but no word\n";
  for (const Row& row : kRows) {
    if (row.shown == Shown::kMeaning) continue;
    printWords(row.name, coverage.words.at(static_cast<std::size_t>(row.shown)), out);
  }
  printWords("letters and digits but no word", coverage.unread, out);
}

void reportCoverage(const std::filesystem::path& database,
                    const std::vector<std::filesystem::path>& texts, std::ostream& out) {
  requireFile(database);
  std::for_each(texts.begin(), texts.end(), requireFile);
  try {
    PopupLookup lookup(database);
    Coverage total;
    for (const std::filesystem::path& path : texts) {
      const Coverage coverage = coverageOf(readRunningText(path), lookup);
      if (sum(coverage.all) == 0) throw Failure(displayName(path) + " contains no word");
      out << displayName(path) << '\n';
      printCoverage(coverage, out);
      out << std::flush;
      total += coverage;
    }
    if (texts.size() == 1) return;
    out << "all " << grouped(texts.size()) << " texts\n";
    printCoverage(total, out);
  } catch (const data::Error& error) {
    throwUnreadable(database, error);
  }
}

}  // namespace dictionary
