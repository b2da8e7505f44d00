// The bound step. The dictionary's tables are too large to be searched as a whole at every
// keystroke, and have no index on their words. An index table names the headword of each hundredth
// row instead: if index row k is the first one that is not less than the typed word, the word's
// rows are in the block that ends with row 100 k, and the search takes rows 100 k - 200 to 100 k.
// For English the index is in memory (IndexWords) and compared by code units in lower case, which
// is the order of [edict]. For Chinese it is asked by two queries in the text order: the last index
// row that is not after the word gives the lower bound, the first one after the words that begin
// with it the upper bound, so that the range holds those words as far as its width allows.
// The dictionary is built so that no headword is cut off by these bounds (dictionary/arrange), and
// checked by the same arithmetic (dictionary/check/reach.h).

#include "data/headword_lookup.h"

#include <limits>
#include <stdexcept>

#include "text/order.h"
#include "text/query_text.h"

namespace data {
namespace {

/// The width above which makeStrSql narrows an English list's bounds.
constexpr std::int32_t kListWindow = 1000;

/// Row numbers are 32 bits wide in the bounds and in the SQL texts; those of an index are not
/// trusted to be.
std::int32_t rowNumber(std::int64_t number) {
  if (number < std::numeric_limits<std::int32_t>::min() ||
      number > std::numeric_limits<std::int32_t>::max()) {
    throw std::overflow_error("row number beyond 32 bits");
  }
  return static_cast<std::int32_t>(number);
}

/// The number of a block's last row, plus `offset`. Blocks are counted from 1.
std::int32_t rowFromBlock(std::int64_t block, std::int64_t offset) {
  return rowNumber((std::int64_t{rowNumber(block)} * kBlockRows) + offset);
}

/// Runs `sql` and returns its rows, which the control owns until its next refresh.
RecordSet& rowsOf(DataControl& control, std::u16string_view sql) {
  control.setRecordSource(sql);
  control.refresh();
  return control.recordset();
}

}  // namespace

IndexWords readIndexWords(DataControl& control) {
  control.setRecordSource(kIndexQuery);
  control.refresh();
  return readIndexWords(control.recordset());
}

IndexWords readIndexWords(RecordSet& rows) {
  const std::size_t count = rows.recordCount();
  if (count > std::numeric_limits<std::int16_t>::max()) {
    throw std::overflow_error("more index words than a 16-bit number can count");
  }
  IndexWords words;
  words.push_back({});  // slot 0: the slots count like the index rows, from 1
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    words.push_back(text::toLower(rows.field(u"word").text));
  }
  words.shrink_to_fit();
  return words;
}

HeadwordLookup::HeadwordLookup(const IndexWords& indexWords, LookupOptions options)
    : indexWords_(indexWords), options_(options) {}

void HeadwordLookup::getBound(std::u16string_view word, DataControl& control) {
  if (user::getEorC(word) == user::kEnglish) {
    getEnglishBound(word);
  } else {
    getChineseBound(word, control);
  }
  clampWidth(kWindowRows);
}

void HeadwordLookup::getEnglishBound(std::u16string_view word) {
  const std::u16string low = text::toLower(withoutWildcards(word, kLowSubstitute));
  // Deliberate: the quick lookup window uses the lower key for both ends.
  const std::u16string high =
      options_.lambdaUpperKey ? text::toLower(withoutWildcards(word, kEnglishHighSubstitute)) : low;
  const bool oneKey = high == low;
  // Deliberate: linear, not a binary search. With two keys the lower bound moves on until the upper
  // key is reached, and the bounds are those required for an index out of order as well.
  for (std::size_t i = 1; i < indexWords_.size(); ++i) {
    const std::u16string_view indexWord = indexWords_[i];
    const bool reached = low <= indexWord;
    if (reached) bounds_.lower = rowFromBlock(static_cast<std::int64_t>(i), -kReachBack);
    if (oneKey ? reached : high <= indexWord) {
      bounds_.upper = rowFromBlock(static_cast<std::int64_t>(i), 0);
      break;
    }
  }
}

void HeadwordLookup::getChineseBound(std::u16string_view word, DataControl& control) {
  // Deliberate: not in lower case, unlike the English key; the text order ignores case.
  RecordSet& before = rowsOf(control, indexRowsUpToSql(withoutWildcards(word, kLowSubstitute)));
  if (before.empty()) {
    bounds_.lower = 0;
  } else {
    before.moveLast();
    bounds_.lower = rowFromBlock(before.field(u"id").integer, -kReachBack);
  }
  // The control holds one record set: `before` and `after` are the same object.
  RecordSet& after =
      rowsOf(control, indexRowsFromSql(withoutWildcards(word, kChineseHighSubstitute)));
  if (after.empty()) {
    bounds_.upper = kLastRow;
  } else {
    after.moveFirst();
    bounds_.upper = rowFromBlock(after.field(u"id").integer, 0);
  }
}

/// Where the bounds are more than `widest` rows apart, moves the upper one to kWindowRows after the
/// lower one.
void HeadwordLookup::clampWidth(std::int32_t widest) {
  const std::int64_t width = std::int64_t{bounds_.upper} - bounds_.lower;
  if (width > widest) bounds_.upper = rowNumber(std::int64_t{bounds_.lower} + kWindowRows);
}

std::u16string HeadwordLookup::makeStrSql(std::u16string_view EorC, std::u16string_view word,
                                          DataControl& control) {
  getBound(word, control);
  if (EorC == user::kEnglish) {
    // Deliberate: never acts, since getBound has clamped the width to kWindowRows already.
    clampWidth(kListWindow);
    return englishListSql(bounds_, word);
  }
  if (EorC == user::kChinese) {
    // Deliberate: the bounds are found a second time, with the same result. The control holds the
    // rows of the last index query either way.
    getBound(word, control);
    return chineseListSql(bounds_, word);
  }
  return {};
}

std::u16string HeadwordLookup::findword(std::u16string_view EorC, std::u16string_view word,
                                        DataControl& control) {
  // Deliberate: the quick lookup window keeps the bounds of the list for a Chinese headword, which
  // was chosen from that list. The popup shows no list, so that it has to find them.
  if (EorC == user::kEnglish || options_.chineseMeaningFindsBounds) getBound(word, control);
  if (EorC == user::kEnglish) return englishMeaningSql(bounds_, word);
  if (EorC == user::kChinese) return chineseMeaningSql(bounds_, word);
  return {};
}

KnownHeadwords::KnownHeadwords(const IndexWords& indexWords)
    : lookup_(indexWords, {.lambdaUpperKey = true, .chineseMeaningFindsBounds = true}) {
  // Of the cache that a connection may use by default, a few words need little.
  constexpr int kCacheKiB = 256;
  control_.setCacheKiB(kCacheKiB);
}

void KnownHeadwords::setConnectionString(std::u16string_view connectionString) {
  control_.setConnectionString(connectionString);
}

bool KnownHeadwords::has(std::u16string_view word) {
  if (word.empty() || user::getEorC(word) != user::kEnglish) return false;
  std::u16string escaped(word);
  user::escapeQuote(escaped);
  control_.setRecordSource(lookup_.findword(user::kEnglish, escaped, control_));
  control_.refresh();
  return control_.recordset().recordCount() > 0;
}

std::vector<std::u16string> readMeanings(RecordSet& rows) {
  std::vector<std::u16string> meanings;
  // The count reads all rows at once; they would be read one by one otherwise.
  meanings.reserve(rows.recordCount());
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    meanings.push_back(rows.field(u"Meaning").text);
  }
  return meanings;
}

MeaningText meaningLines(std::u16string_view escapedWord,
                         const std::vector<std::u16string>& meanings) {
  MeaningText text;
  text.body.append(u" ").append(escapedWord).append(u"\r\n");
  text.headLength = text.body.size();
  for (std::size_t i = 0; i < meanings.size(); ++i) {
    text.body.append(u" ").append(meanings[i]);
    if (i + 1 < meanings.size()) text.body.append(u"；\r\n");
  }
  return text;
}

}  // namespace data
