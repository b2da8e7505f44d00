#include "query/subject_search.h"

#include "data/record_set.h"
#include "forms/geometry.h"
#include "text/query_text.h"
#include "text/strings.h"

// The SQL texts are fixed, to the blank. Both searches of makeQuerySql are one text with four
// parameters: how many rows, which columns, which column is searched and sorted, and whether the
// pattern has a "%" before the text. specialSql is another text: two blanks, two patterns, no
// order.
namespace query {
namespace {

/// Columns between the mean word and the meanings.
constexpr std::size_t kGap = 10;

/// Rounds halves to even.
std::size_t roundedMean(std::size_t sum, std::size_t count) {
  const std::size_t whole = sum / count;
  const std::size_t twiceRest = 2 * (sum % count);
  if (twiceRest == count) return whole + (whole % 2);
  return twiceRest > count ? whole + 1 : whole;
}

}  // namespace

using text::joined;

Search makeQuerySql(std::u16string& text, std::u16string_view mode, std::u16string_view table) {
  // Wildcards first: neither conversion yields a character of the other.
  text = user::convertWildcard(text);
  user::escapeQuote(text);
  const bool english = user::getEorC(text) == user::kEnglish;
  const std::u16string_view column = english ? u"word" : u"meaning";
  const std::u16string_view columns =
      english ? u"word,meaning" : u"word as meaning,meaning as word";
  const auto sql = [&](std::u16string_view top, std::u16string_view before) {
    return joined({u"select top ", top, u" ", columns, u" from ", table, u" where ", column,
                   u" like '", before, text, u"%' order by ", column});
  };
  if (mode == kEasy) return {sql(u"100", u""), column};
  if (mode == kComplex) return {sql(u"200", u"%"), column};
  return {{}, column};
}

std::u16string specialSql(std::u16string_view table, std::u16string_view english,
                          std::u16string_view chinese) {
  return joined({u"select top 200 word,meaning from ", table, u" where  word like '%", english,
                 u"%' and meaning like '%", chinese, u"%'"});
}

std::u16string specialInput(std::u16string_view english, std::u16string_view chinese) {
  return joined({u"特殊查询 ", english, u"：", chinese});
}

std::int16_t lineWidth(std::size_t columns, std::size_t rows) {
  return forms::toInt16(static_cast<std::int64_t>(roundedMean(columns, rows) + kGap));
}

std::int16_t sampleWidth(data::RecordSet& rows) {
  std::size_t columns = 0;
  std::size_t counted = 0;
  rows.moveFirst();
  // The set is not empty, so there is a first row.
  do {
    columns += user::displayLength(rows.field(u"word").text);
    ++counted;
    rows.moveNext();
  } while (counted < kSampledRows && !rows.endOfFile());
  return lineWidth(columns, counted);
}

std::u16string resultLine(data::RecordSet& rows, std::int16_t width) {
  return user::padWord(rows.field(u"word").text, width) + rows.field(u"meaning").text;
}

}  // namespace query
