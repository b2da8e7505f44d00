#include "data/index_words.h"

#include <cstdint>
#include <limits>
#include <stdexcept>

#include "text/order.h"

namespace data {

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

}  // namespace data
