#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "dictionary/check/general.h"
#include "dictionary/check/rules.h"
#include "dictionary/source/csv_reader.h"

struct sqlite3;

/// What a database must have of the source that it was built from, and must not. Found in the
/// source's raw texts, without the parsing of translations, whose mistakes are to be seen.
namespace dictionary {

/// A headword and a text in its translation.
struct SourceText {
  std::u16string headword;
  std::u16string text;
};

/// The facts of a source that are checked: some 60,000 of a full one, a few megabytes.
struct SourceFacts {
  /// Headwords with a sign of importance (SourceEntry::important) and a translation in Chinese.
  std::vector<std::u16string> important;
  std::vector<std::u16string> untranslated;  ///< with such a sign, but no Chinese text
  std::vector<std::u16string> frequent;      ///< headwords of a rank up to kFrequentRank
  std::vector<SourceText> titles;            ///< in << >> outside round brackets
  std::vector<SourceText> descriptions;      ///< pieces that say what a command of DOS does

  /// Adds what the entry tells. One whose word cannot be a headword tells nothing.
  void add(const SourceEntry& entry);
};

/// Reads the facts of a source; lines that cannot be read tell nothing. Throws Failure if the file
/// or its header cannot be read.
SourceFacts readSourceFacts(const std::filesystem::path& source);

/// Returns whether a Chinese headword is only a label that the source sets before or after what it
/// means: a kind of brand ("法国服装名牌"), "DOS内部命令", "之缩写", "海宁全名".
bool isLabel(std::u16string_view word);

/// Checks that no Chinese headword is only a label. One that is a word as well ("人名") may have
/// the few rows that a Chinese-English source gives it.
void checkLabels(const HeadwordTable& cdict, Findings& findings);

/// Checks the facts: important headwords have rows of their own, titles stand in a row of the
/// general or of a subject dictionary, descriptions of commands in none of the general one. Adds
/// what breaks a rule to the findings of `result`, and counts the words without a translation.
/// `connection` is that from which `tables` were read; throws data::Error if it cannot be read.
void checkSourceFacts(sqlite3* connection, const SourceFacts& facts, const GeneralTables& tables,
                      CheckResult& result);

}  // namespace dictionary
