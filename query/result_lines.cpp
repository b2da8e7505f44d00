#include "query/result_lines.h"

#include "data/record_set.h"
#include "forms/geometry.h"
#include "text/query_text.h"

namespace query {
namespace {

constexpr std::size_t kGap = 10;

std::size_t roundedMean(std::size_t sum, std::size_t count) {
  const std::size_t whole = sum / count;
  const std::size_t twiceRest = 2 * (sum % count);
  if (twiceRest == count) return whole + (whole % 2);
  return twiceRest > count ? whole + 1 : whole;
}

}  // namespace

std::int16_t lineWidth(std::size_t columns, std::size_t rows) {
  return forms::toInt16(static_cast<std::int64_t>(roundedMean(columns, rows) + kGap));
}

std::int16_t sampleWidth(data::RecordSet& rows) {
  std::size_t columns = 0;
  std::size_t counted = 0;
  rows.moveFirst();
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
