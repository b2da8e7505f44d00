// The sentences describe the format of kk.dat, together with its schema (database/schema.h); the
// comments say what would go wrong otherwise. The numbers are those of data/lookup_sql.h.

#include "dictionary/check/rules.h"

#include <algorithm>

#include "dictionary/console.h"

namespace dictionary {

std::string_view describe(Rule rule) {
  switch (rule) {
    case Rule::kUndamaged:
      return "the file is undamaged";
    case Rule::kTables:
      return "the database has the fixed tables, those of its catalogue, and no others";
    // The windows read fields by position or name and rely on the order of texts
    // (schema_check.cpp).
    case Rule::kColumns:
      return "every table has its columns, in their order, of their type and text order";
    case Rule::kValues:
      return "numbers are 32-bit integers and texts are UTF-8 and not empty";
    // Bounds are row numbers computed from block numbers: a gap shifts all rows after it.
    case Rule::kRowNumbers:
      return "row numbers run from 1 upward without gaps";
    // A range of row numbers would not be a range of headwords.
    case Rule::kOrder:
      return "headwords ascend in the text order";
    // "select distinct" shows one of several spellings, and which one is not defined.
    case Rule::kSpelling:
      return "all rows of a headword spell it alike";
    // Rows after the last index row are found by no English search, rows after the upper bound of a
    // search without one by no Chinese search.
    case Rule::kRowCount:
      return "[edict] and [cdict] have the same number of rows, a multiple of 100 and at most "
             "1,060,000";
    // A meaning query joins both tables by the links.
    case Rule::kLinks:
      return "every row links to a row of the other table that links back";
    case Rule::kDistinctPairs:
      return "no pair of words occurs twice";
    case Rule::kEnglishIndex:
      return "row k of [edictidx] is the headword of [edict] row 100 k";
    case Rule::kChineseIndex:
      return "row k of [cdictidx] is number k and the headword of [cdict] row 100 k";
    // The language class of the typed text decides which table is searched, so that a headword in
    // the other one is never found.
    case Rule::kEnglishHeadwords:
      return "English headwords have only characters below U+0100";
    case Rule::kChineseHeadwords:
      return "Chinese headwords have a character from U+0100 upward";
    // A wildcard in a headword is replaced in its search key, and the halves of a surrogate pair
    // sort apart from the Han characters. As the last row of [cdictidx] either would spoil lookups
    // of other words as well.
    case Rule::kSearchable:
      return "no headword holds a wildcard (% _) or a character beyond U+FFFF";
    case Rule::kCharacters:
      return "no text holds controls, invisible or uncomposed marks, box drawing, private-use or "
             "compatibility characters, characters beyond U+FFFF, specials or noncharacters";
    case Rule::kMarkup:
      return "no text holds tags or entity codes";
    // The English bound step compares the index in this order, not in the text order.
    case Rule::kIndexOrder:
      return "English headwords ascend by the code units of their lower case";
    // What the rules above are for: the bound step is repeated for every headword (reach.h).
    case Rule::kEnglishReach:
      return "an English headword typed in full finds all its rows";
    // The doubled apostrophe of the search key sorts before the words with a single one.
    case Rule::kApostropheReach:
      return "an English headword with an apostrophe, which is doubled, finds all its rows";
    case Rule::kChineseReach:
      return "a Chinese headword typed in full finds all its rows";
    // The windows put the name into SQL texts without brackets or quotes.
    case Rule::kCatalogueTables:
      return "the catalogue names each table once, by ASCII letters and digits and no word of SQL";
    case Rule::kCatalogueNames:
      return "the catalogue gives every dictionary a Chinese name of its own";
    case Rule::kCatalogueFlags:
      return "Isshow is a number, default is 0 or 1";
    // A hidden default, or none, would leave the multi-dictionary window without a chosen one.
    case Rule::kCatalogueDefault:
      return "exactly one dictionary is the default, and it is shown";
    case Rule::kSubjectRows:
      return "a subject dictionary has rows, each with a headword and a meaning";
    // Results are listed in this order, and a headword has one line.
    case Rule::kSubjectOrder:
      return "a subject dictionary has its headwords in the text order, each once";
    // What readers would be misled by or miss. That the words of running text are found is what
    // the choice of pairs is for (arrange/vocabulary.h).
    case Rule::kLabels:
      return "no Chinese headword is only a label";
    case Rule::kImportantWords:
      return "every headword that the source marks as important has a row";
    case Rule::kOwnMeanings:
      return "no important headword has only references to other words";
    case Rule::kTitles:
      return "titles in << >> of the source are kept";
    case Rule::kCommands:
      return "what the source says that a command does is no Chinese headword";
    case Rule::kCount:
      break;
  }
  return "";
}

void Findings::add(Rule rule, std::string example) {
  Breaches& breaches = breaches_[static_cast<std::size_t>(rule)];
  ++breaches.count;
  if (breaches.examples.size() < kMaxExamples) breaches.examples.push_back(std::move(example));
}

bool Findings::empty() const {
  return std::ranges::all_of(breaches_,
                             [](const Breaches& breaches) { return breaches.count == 0; });
}

void Findings::print(std::ostream& out) const {
  for (std::size_t i = 0; i < breaches_.size(); ++i) {
    if (breaches_[i].count == 0) continue;
    out << "broken " << grouped(breaches_[i].count) << " times: " << describe(static_cast<Rule>(i))
        << '\n';
    for (const std::string& example : breaches_[i].examples) out << "    " << example << '\n';
  }
}

}  // namespace dictionary
