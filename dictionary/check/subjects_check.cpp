#include "dictionary/check/subjects_check.h"

#include <sqlite3.h>

#include <algorithm>
#include <string>
#include <vector>

#include "dictionary/check/general.h"
#include "dictionary/check/schema_check.h"
#include "dictionary/database/row_io.h"
#include "dictionary/database/schema.h"
#include "dictionary/source/characters.h"
#include "text/order.h"
#include "text/utf.h"

namespace dictionary {
namespace {

bool isKnown(const std::vector<std::string>& names, std::string_view name) {
  return std::ranges::any_of(names,
                             [&](const std::string& known) { return sameName(known, name); });
}

/// Returns whether the name can be used unquoted in SQL texts, as the windows do: ASCII letters and
/// digits, no leading digit, no keyword, none of the fixed tables.
bool isPlainName(const std::string& name) {
  const auto isLetterOrDigit = [](char byte) {
    const auto unit = static_cast<char16_t>(static_cast<unsigned char>(byte));
    return isAsciiLetter(unit) || isDigit(unit);
  };
  return !name.empty() && !isDigit(static_cast<unsigned char>(name.front())) &&
         std::ranges::all_of(name, isLetterOrDigit) &&
         sqlite3_keyword_check(name.data(), static_cast<int>(name.size())) == 0 &&
         std::ranges::none_of(kFixedTables,
                              [&](std::string_view fixed) { return sameName(name, fixed); });
}

/// Checks the catalogue row by row: addRow() for each, then finish().
class Catalogue {
 public:
  /// `isshow` is the index of that column.
  Catalogue(int isshow, Findings& findings) : isshow_(isshow), findings_(findings) {}

  void addRow(const RowReader& reader);
  void finish();

  /// The proper table names, each once.
  [[nodiscard]] const std::vector<std::string>& tables() const { return tables_; }

 private:
  void checkName(const RowReader& reader, const std::string& table);
  void checkFlags(const RowReader& reader, const std::string& table);

  int isshow_;
  Findings& findings_;
  std::vector<std::string> tables_;
  std::vector<std::u16string> names_;
  std::size_t defaults_ = 0;
};

/// A table that is named wrongly or twice is not read: its name is not put into an SQL text here
/// either.
void Catalogue::addRow(const RowReader& reader) {
  const std::string table(reader.text(kTableNameColumn));
  if (!isPlainName(table) || isKnown(tables_, table)) {
    findings_.add(Rule::kCatalogueTables, "table name «" + table + "»");
  } else {
    tables_.push_back(table);
  }
  checkName(reader, table);
  checkFlags(reader, table);
}

/// A name is the caption of a node in the windows' tree, by which the user knows the dictionary.
void Catalogue::checkName(const RowReader& reader, const std::string& table) {
  const std::u16string name = text::toUtf16(reader.text(kCnameColumn));
  const bool repeated = std::ranges::any_of(
      names_, [&](const std::u16string& other) { return text::equal(other, name); });
  if (repeated || std::ranges::none_of(name, isHan)) {
    findings_.add(Rule::kCatalogueNames, "[" + table + "] is called «" + text::toUtf8(name) + "»");
  }
  checkText(name, "the name of [" + table + "]", findings_);
  names_.push_back(name);
}

/// Isshow may be any number: the windows offer a dictionary if it is 1. The kinds of the values are
/// asked for before the values, which may convert them.
void Catalogue::checkFlags(const RowReader& reader, const std::string& table) {
  const bool integers = reader.isInteger(isshow_) && reader.isInteger(kDefaultColumn);
  const bool isDefault = reader.number(kDefaultColumn) == 1;
  if (!integers || (!isDefault && reader.number(kDefaultColumn) != 0)) {
    findings_.add(Rule::kCatalogueFlags, "[" + table + "] has Isshow " +
                                             std::string(reader.text(isshow_)) + " and default " +
                                             std::string(reader.text(kDefaultColumn)));
  }
  if (!isDefault) return;
  ++defaults_;
  if (reader.number(isshow_) != 1)
    findings_.add(Rule::kCatalogueDefault, "[" + table + "] is hidden");
}

void Catalogue::finish() {
  if (defaults_ != 1) {
    findings_.add(Rule::kCatalogueDefault, std::to_string(defaults_) + " dictionaries are default");
  }
}

/// Checks the rows of one subject dictionary and counts them. They come in the order of the primary
/// key, so that rows in a wrong order mean a table that was declared otherwise or damaged.
void checkRows(sqlite3* connection, const std::string& table, CheckResult& result) {
  Findings& findings = result.findings;
  std::size_t rows = 0;
  std::u16string before;
  RowReader reader(connection, "select * from [" + table + "]");
  while (reader.next()) {
    const bool texts = reader.isText(0) && reader.isText(1);
    const std::u16string word = text::toUtf16(reader.text(0));
    const std::u16string meaning = text::toUtf16(reader.text(1));
    const std::string place = "[" + table + "] «" + text::toUtf8(word) + "»";
    if (!texts || !isUtf8(reader.text(0)) || !isUtf8(reader.text(1))) {
      findings.add(Rule::kValues, place);
    }
    if (word.empty() || meaning.empty()) findings.add(Rule::kSubjectRows, place + " lacks a text");
    if (rows > 0 && text::compare(before, word) >= 0) findings.add(Rule::kSubjectOrder, place);
    checkSearchable(word, place, findings);
    checkText(word, place, findings);
    checkText(meaning, place, findings);
    before = word;
    ++rows;
  }
  if (rows == 0) findings.add(Rule::kSubjectRows, "[" + table + "] is empty");
  result.subjectRows += rows;
}

}  // namespace

void checkSubjects(sqlite3* connection, CheckResult& result) {
  RowReader reader(connection, "select * from [Index]");
  Catalogue catalogue(findColumn(reader, kIsshowName), result.findings);
  while (reader.next()) catalogue.addRow(reader);
  catalogue.finish();

  const std::vector<std::string> present = tableNames(connection);
  for (const std::string& table : catalogue.tables()) {
    if (!isKnown(present, table)) {
      result.findings.add(Rule::kTables, "there is no table [" + table + "]");
    } else if (checkSubjectTable(connection, table, result.findings)) {
      checkRows(connection, table, result);
    }
  }
  result.dictionaries = catalogue.tables().size();
  for (const std::string& table : present) {
    const bool fixed = std::ranges::any_of(
        kFixedTables, [&](std::string_view name) { return sameName(table, name); });
    if (!fixed && !isKnown(catalogue.tables(), table)) {
      result.findings.add(Rule::kTables, "[" + table + "] is not in the catalogue");
    }
  }
}

}  // namespace dictionary
