// Each rule is one pass over the tables in memory, in a function of its own. Reading checked only
// the kinds of the values (general_tables.h): links and words may be anything here.

#include "dictionary/check/general.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "dictionary/arrange/block_packing.h"
#include "dictionary/source/characters.h"
#include "dictionary/source/markup.h"
#include "text/characters.h"
#include "text/order.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// Checks that headwords ascend and that those that are equal in the text order are spelled alike.
void checkOrder(const char* name, const HeadwordTable& table, Findings& findings) {
  for (std::size_t row = 1; row < table.words.size(); ++row) {
    const int compared = text::compare(table.words[row - 1], table.words[row]);
    if (compared > 0) {
      findings.add(Rule::kOrder, rowName(name, row, table.words[row]) + " comes after «" +
                                     text::toUtf8(table.words[row - 1]) + "»");
    } else if (compared == 0 && table.words[row - 1] != table.words[row]) {
      findings.add(Rule::kSpelling, rowName(name, row, table.words[row]) + " after «" +
                                        text::toUtf8(table.words[row - 1]) + "»");
    }
  }
}

/// Checks that each row's link leads to a row whose link leads back: then the tables hold the same
/// pairs.
void checkLinks(const char* name, const HeadwordTable& from, const HeadwordTable& to,
                Findings& findings) {
  for (std::size_t row = 0; row < from.links.size(); ++row) {
    const std::int64_t link = from.links[row];
    const bool inside = link >= 1 && link <= static_cast<std::int64_t>(to.links.size());
    if (!inside ||
        to.links[static_cast<std::size_t>(link - 1)] != static_cast<std::int64_t>(row + 1)) {
      findings.add(Rule::kLinks, rowName(name, row, from.words[row]) + " links to row " +
                                     std::to_string(link) + ", which does not link back");
    }
  }
}

/// Checks that no two rows of one English headword link to the same Chinese headword: the pane
/// would show it twice. Equal means equal in the text order.
void checkDistinctPairs(const GeneralTables& tables, Findings& findings) {
  for (const HeadwordRun& run : headwordRuns(tables.edict)) {
    std::vector<std::u16string> equivalents;
    for (std::size_t row = run.first; row < run.end; ++row) {
      const auto link = static_cast<std::size_t>(tables.edict.links[row] - 1);
      if (link < tables.cdict.words.size()) {
        equivalents.push_back(text::toLower(tables.cdict.words[link]));
      }
    }
    std::ranges::sort(equivalents);
    const auto repeated = std::ranges::adjacent_find(equivalents);
    if (repeated != equivalents.end()) {
      findings.add(Rule::kDistinctPairs, "«" + text::toUtf8(tables.edict.words[run.first]) +
                                             "» has «" + text::toUtf8(*repeated) + "» twice");
    }
  }
}

/// Checks that element k of `index`, from 0, is the headword of the last row of block k + 1.
void checkIndex(Rule rule, const char* name, const std::vector<std::u16string>& index,
                const HeadwordTable& table, Findings& findings) {
  const std::size_t step = LookupLimits().blockRows;
  if (index.size() != table.words.size() / step) {
    findings.add(rule, std::string("[") + name + "] has " + std::to_string(index.size()) +
                           " rows for " + std::to_string(table.words.size()) + " headword rows");
  }
  for (std::size_t k = 0; k < index.size() && (k + 1) * step <= table.words.size(); ++k) {
    const std::u16string& word = table.words[(k + 1) * step - 1];
    if (index[k] != word) {
      findings.add(rule, rowName(name, k, index[k]) + " should be «" + text::toUtf8(word) + "»");
    }
  }
}

/// Checks the order by which the English bound step compares: code units in lower case. For ASCII
/// it is the text order; a headword with any other character could part them.
void checkIndexOrder(const HeadwordTable& edict, Findings& findings) {
  for (std::size_t row = 1; row < edict.words.size(); ++row) {
    if (text::toLower(edict.words[row - 1]) > text::toLower(edict.words[row])) {
      findings.add(Rule::kIndexOrder, rowName("edict", row, edict.words[row]) + " comes after «" +
                                          text::toUtf8(edict.words[row - 1]) + "»");
    }
  }
}

/// Checks the characters of every headword, and that its language class (user::getEorC) is that of
/// its table: typed, it would be looked up in the other one.
void checkHeadwordTexts(const char* name, const HeadwordTable& table, bool chinese,
                        Findings& findings) {
  for (const HeadwordRun& run : headwordRuns(table)) {
    const std::u16string& word = table.words[run.first];
    const std::string place = rowName(name, run.first, word);
    const bool isChinese = std::ranges::any_of(word, text::isChinese);
    if (isChinese != chinese) {
      findings.add(chinese ? Rule::kChineseHeadwords : Rule::kEnglishHeadwords, place);
    }
    checkSearchable(word, place, findings);
    checkText(word, place, findings);
  }
}

}  // namespace

void checkText(std::u16string_view text, const std::string& place, Findings& findings) {
  if (std::ranges::any_of(text, isForbidden)) findings.add(Rule::kCharacters, place);
  if (hasMarkup(text)) findings.add(Rule::kMarkup, place);
}

void checkSearchable(std::u16string_view word, const std::string& place, Findings& findings) {
  const bool disturbing = std::ranges::any_of(word, [](char16_t unit) {
    return unit == u'%' || unit == u'_' || text::isHighSurrogate(unit) ||
           text::isLowSurrogate(unit);
  });
  if (disturbing) findings.add(Rule::kSearchable, place);
}

void checkRowCounts(std::size_t english, std::size_t chinese, Findings& findings) {
  const LookupLimits limits;
  if (english != chinese || english == 0 || english % limits.blockRows != 0 ||
      english > limits.maxRows) {
    findings.add(Rule::kRowCount, "[edict] has " + std::to_string(english) + " rows, [cdict] " +
                                      std::to_string(chinese));
  }
}

// The order is that of the reports: the tables as a whole, the pairs, the indexes, the headwords.
void checkGeneral(const GeneralTables& tables, Findings& findings) {
  checkRowCounts(tables.edict.words.size(), tables.cdict.words.size(), findings);
  checkOrder("edict", tables.edict, findings);
  checkOrder("cdict", tables.cdict, findings);
  checkLinks("edict", tables.edict, tables.cdict, findings);
  checkLinks("cdict", tables.cdict, tables.edict, findings);
  checkDistinctPairs(tables, findings);
  checkIndex(Rule::kEnglishIndex, "edictidx", tables.englishIndex, tables.edict, findings);
  checkIndex(Rule::kChineseIndex, "cdictidx", tables.chineseIndex, tables.cdict, findings);
  checkIndexOrder(tables.edict, findings);
  checkHeadwordTexts("edict", tables.edict, false, findings);
  checkHeadwordTexts("cdict", tables.cdict, true, findings);
}

}  // namespace dictionary
