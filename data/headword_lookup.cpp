#include "data/headword_lookup.h"

#include <limits>
#include <stdexcept>

#include "text/order.h"
#include "text/query_text.h"

namespace data {
namespace {

/// The width above which a list would have to be narrowed.
constexpr std::int32_t kListWindow = 1000;

std::int32_t rowNumber(std::int64_t number) {
  if (number < std::numeric_limits<std::int32_t>::min() ||
      number > std::numeric_limits<std::int32_t>::max()) {
    throw std::overflow_error("row number beyond 32 bits");
  }
  return static_cast<std::int32_t>(number);
}

/// The row that stands `offset` rows from the last one of a block.
std::int32_t rowFromBlock(std::int64_t block, std::int64_t offset) {
  return rowNumber((std::int64_t{rowNumber(block)} * kBlockRows) + offset);
}

/// Runs `sql` and gives its rows, which the control holds.
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
  words.push_back({});
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
  const std::u16string low = text::toLower(withoutWildcards(word, u"0"));
  const std::u16string high =
      options_.lambdaUpperKey ? text::toLower(withoutWildcards(word, u"λ")) : low;
  const bool oneKey = high == low;
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
  RecordSet& before = rowsOf(control, indexRowsUpToSql(withoutWildcards(word, u"0")));
  if (before.empty()) {
    bounds_.lower = 0;
  } else {
    before.moveLast();
    bounds_.lower = rowFromBlock(before.field(u"id").integer, -kReachBack);
  }
  RecordSet& behind = rowsOf(control, indexRowsBehindSql(withoutWildcards(word, u"做")));
  if (behind.empty()) {
    bounds_.upper = kLastRow;
  } else {
    behind.moveFirst();
    bounds_.upper = rowFromBlock(behind.field(u"id").integer, 0);
  }
}

void HeadwordLookup::clampWidth(std::int32_t widest) {
  const std::int64_t width = std::int64_t{bounds_.upper} - bounds_.lower;
  if (width > widest) bounds_.upper = rowNumber(std::int64_t{bounds_.lower} + kWindowRows);
}

std::u16string HeadwordLookup::makeStrSql(std::u16string_view EorC, std::u16string_view word,
                                          DataControl& control) {
  getBound(word, control);
  if (EorC == user::kEnglish) {
    // Deliberate: never acts, since getBound has narrowed the bounds further already.
    clampWidth(kListWindow);
    return englishListSql(bounds_, word);
  }
  if (EorC == user::kChinese) {
    // Deliberate: the bounds are found a second time.
    getBound(word, control);
    return chineseListSql(bounds_, word);
  }
  return {};
}

std::u16string HeadwordLookup::findword(std::u16string_view EorC, std::u16string_view word,
                                        DataControl& control) {
  if (EorC == user::kEnglish || options_.chineseMeaningFindsBounds) getBound(word, control);
  if (EorC == user::kEnglish) return englishMeaningSql(bounds_, word);
  if (EorC == user::kChinese) return chineseMeaningSql(bounds_, word);
  return {};
}

std::vector<std::u16string> readMeanings(RecordSet& rows) {
  std::vector<std::u16string> meanings;
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
