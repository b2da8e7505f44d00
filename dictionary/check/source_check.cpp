// The facts are gathered while the source is read, by the builder or by the command "check", and
// compared with the tables in memory: the rows of a headword are found by binary search, which
// takes the order of the table as given, since another rule checks it.

#include "dictionary/check/source_check.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "dictionary/check/schema_check.h"
#include "dictionary/console.h"
#include "dictionary/database/row_io.h"
#include "dictionary/database/schema.h"
#include "dictionary/source/characters.h"
#include "dictionary/source/cleanup.h"
#include "dictionary/translation/inflection.h"
#include "text/order.h"
#include "text/strings.h"
#include "text/utf.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// What the source calls commands of DOS, before a colon and what they do.
constexpr std::array kCommandLabels = {u"DOS内部命令"sv, u"DOS外部命令"sv,     u"DOS批处理命令"sv,
                                       u"DOS命令"sv,     u"DOS设备驱动程序"sv, u"DOS驱动程序"sv};

/// Marks between the pieces of a translation.
constexpr std::u16string_view kSeparators = u",，;；、";

/// Whether the text at `position` is inside of round brackets.
bool isInNote(std::u16string_view text, std::size_t position) {
  int depth = 0;
  for (const char16_t unit : text.substr(0, position)) {
    if (unit == u'(' || unit == u'（') ++depth;
    if ((unit == u')' || unit == u'）') && depth > 0) --depth;
  }
  return depth > 0;
}

/// "<<可兰经>>" tells 可兰经; a title with another inside is left out.
void addTitles(const std::u16string& headword, std::u16string_view line, SourceFacts& facts) {
  for (std::size_t begin = line.find(u"<<"); begin != std::u16string_view::npos;
       begin = line.find(u"<<", begin + 2)) {
    const std::size_t end = line.find(u">>", begin);
    if (end == std::u16string_view::npos) return;
    const std::u16string_view title = line.substr(begin + 2, end - begin - 2);
    if (std::ranges::all_of(title, isHan) && !isInNote(line, begin)) {
      facts.titles.push_back({headword, std::u16string(title)});
    }
  }
}

/// Adds the pieces after a command's label, unless the line has them before it as well.
void addDescriptions(const std::u16string& headword, std::u16string_view line, SourceFacts& facts) {
  for (const std::u16string_view label : kCommandLabels) {
    const std::size_t at = line.find(label);
    if (at == std::u16string_view::npos) continue;
    std::u16string_view rest = line.substr(at + label.size());
    if (!rest.starts_with(u':') && !rest.starts_with(u'：')) continue;
    rest.remove_prefix(1);
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find_first_of(kSeparators), rest.size());
      const std::u16string_view piece = text::trimBlanks(rest.substr(0, end));
      if (!piece.empty() && line.substr(0, at).find(piece) == std::u16string_view::npos) {
        facts.descriptions.push_back({headword, std::u16string(piece)});
      }
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
  }
}

/// The general dictionary by English headwords.
class Rows {
 public:
  explicit Rows(const GeneralTables& tables) : tables_(tables) {}

  /// Returns the Chinese headwords of an English one.
  [[nodiscard]] std::vector<std::u16string> of(std::u16string_view headword) const {
    const auto& words = tables_.edict.words;
    std::vector<std::u16string> meanings;
    auto row = std::ranges::partition_point(
        words, [&](const std::u16string& word) { return text::compare(word, headword) < 0; });
    for (; row != words.end() && text::equal(*row, headword); ++row) {
      const auto link = static_cast<std::size_t>(
          tables_.edict.links[static_cast<std::size_t>(row - words.begin())] - 1);
      if (link < tables_.cdict.words.size()) meanings.push_back(tables_.cdict.words[link]);
    }
    return meanings;
  }

 private:
  const GeneralTables& tables_;
};

std::string named(const SourceText& fact) {
  return "«" + text::toUtf8(fact.headword) + "»: «" + text::toUtf8(fact.text) + "»";
}

void checkImportant(const SourceFacts& facts, const Rows& rows, Findings& findings) {
  for (const std::u16string& word : facts.important) {
    const std::vector<std::u16string> meanings = rows.of(word);
    const std::string place = "«" + text::toUtf8(word) + "»";
    if (meanings.empty()) {
      findings.add(Rule::kImportantWords, place);
    } else if (std::ranges::all_of(meanings, isReference)) {
      findings.add(Rule::kOwnMeanings, place + " has only «" + text::toUtf8(meanings[0]) + "»");
    }
  }
}

/// Of words that the source does not translate, only their number is reported: for some of them the
/// dictionary has a translation of its own, but it cannot have one for any word.
void countUntranslated(const SourceFacts& facts, const Rows& rows, CheckResult& result) {
  result.untranslatedWords = facts.untranslated.size();
  result.untranslatedWithoutRow = static_cast<std::size_t>(std::ranges::count_if(
      facts.untranslated, [&](const std::u16string& word) { return rows.of(word).empty(); }));
}

void checkDescriptions(const SourceFacts& facts, const Rows& rows, Findings& findings) {
  for (const SourceText& fact : facts.descriptions) {
    const std::vector<std::u16string> meanings = rows.of(fact.headword);
    if (std::ranges::find(meanings, fact.text) != meanings.end()) {
      findings.add(Rule::kCommands, named(fact));
    }
  }
}

/// All meanings that subject dictionaries have for the headwords of titles, one text for each, in
/// lower case.
std::unordered_map<std::u16string, std::u16string> subjectMeanings(sqlite3* connection,
                                                                   const SourceFacts& facts) {
  std::unordered_map<std::u16string, std::u16string> meanings;
  for (const SourceText& fact : facts.titles) meanings.try_emplace(text::toLower(fact.headword));
  if (meanings.empty()) return meanings;
  for (const std::string& table : tableNames(connection)) {
    const bool fixed = std::ranges::any_of(
        kFixedTables, [&](std::string_view name) { return sameName(table, name); });
    if (fixed || table.find(']') != std::string::npos) continue;
    RowReader reader(connection, "select * from [" + table + "]");
    while (reader.next()) {
      const auto found = meanings.find(text::toLower(text::toUtf16(reader.text(0))));
      if (found != meanings.end()) found->second += text::toUtf16(reader.text(1));
    }
  }
  return meanings;
}

void checkTitles(sqlite3* connection, const SourceFacts& facts, const Rows& rows,
                 Findings& findings) {
  const auto inSubjects = subjectMeanings(connection, facts);
  for (const SourceText& fact : facts.titles) {
    std::vector<std::u16string> meanings = rows.of(fact.headword);
    meanings.push_back(inSubjects.at(text::toLower(fact.headword)));
    const bool kept = std::ranges::any_of(meanings, [&](const std::u16string& meaning) {
      return meaning.find(fact.text) != std::u16string::npos;
    });
    if (!kept) findings.add(Rule::kTitles, named(fact));
  }
}

}  // namespace

void SourceFacts::add(const SourceEntry& entry) {
  const std::optional<std::u16string> word = headword(text::toUtf16(entry.word));
  if (!word) return;
  const std::u16string translation = text::toUtf16(entry.translation);
  if (entry.important) {
    (std::ranges::any_of(translation, isHan) ? important : untranslated).push_back(*word);
  }
  if (entry.rank > 0 && entry.rank <= kFrequentRank) frequent.push_back(*word);
  std::u16string_view rest = translation;
  while (!rest.empty()) {
    constexpr std::u16string_view kLineBreak = u"\\n";  // two characters in the source
    const std::size_t end = std::min(rest.find(kLineBreak), rest.size());
    addTitles(*word, rest.substr(0, end), *this);
    addDescriptions(*word, rest.substr(0, end), *this);
    rest.remove_prefix(std::min(end + kLineBreak.size(), rest.size()));
  }
}

SourceFacts readSourceFacts(const std::filesystem::path& source) {
  requireFile(source);
  std::ifstream stream(source, std::ios::binary);
  if (!stream) throw Failure("cannot read " + displayName(source));
  SourceReader reader(stream);
  SourceFacts facts;
  for (;;) {
    const SourceReader::Result result = reader.next();
    if (result == SourceReader::Result::kEnd) return facts;
    if (result == SourceReader::Result::kEntry) facts.add(reader.entry());
  }
}

bool isLabel(std::u16string_view word) {
  constexpr std::array kAlone = {u"人名"sv,   u"亦作"sv,   u"又作"sv, u"略作"sv,
                                 u"之缩写"sv, u"的缩写"sv, u"尤指"sv, u"特指"sv};
  constexpr std::array kBrands = {u"服装名牌"sv, u"世界名车"sv};
  // "海宁全名: Justine Henin"; 全名 itself is what "full name" means.
  constexpr std::array kAfterName = {u"全名"sv, u"总部所在地"sv};
  return std::ranges::find(kAlone, word) != kAlone.end() ||
         std::ranges::find(kCommandLabels, word) != kCommandLabels.end() ||
         std::ranges::any_of(kBrands, [&](auto brand) { return word.ends_with(brand); }) ||
         std::ranges::any_of(kAfterName, [&](auto label) {
           return word.size() > label.size() && word.ends_with(label);
         });
}

void checkLabels(const HeadwordTable& cdict, Findings& findings) {
  // Words of the language as well, which mean "especially", "personal name".
  constexpr std::array kWords = {u"人名"sv, u"亦作"sv, u"略作"sv, u"尤指"sv, u"特指"sv};
  // A label that is taken for an equivalent has the rows of many words.
  constexpr std::size_t kMaxRowsOfWord = 3;
  for (const HeadwordRun& run : headwordRuns(cdict)) {
    const std::u16string& word = cdict.words[run.first];
    const bool isWord = std::ranges::find(kWords, word) != kWords.end();
    if (!isLabel(word) || (isWord && run.end - run.first <= kMaxRowsOfWord)) continue;
    findings.add(Rule::kLabels, rowName("cdict", run.first, word));
  }
}

void checkSourceFacts(sqlite3* connection, const SourceFacts& facts, const GeneralTables& tables,
                      CheckResult& result) {
  const Rows rows(tables);
  checkImportant(facts, rows, result.findings);
  countUntranslated(facts, rows, result);
  checkDescriptions(facts, rows, result.findings);
  checkTitles(connection, facts, rows, result.findings);
}

}  // namespace dictionary
