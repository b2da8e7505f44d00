#include "bench/windows/sample_words.h"

#include <algorithm>

namespace bench {

std::vector<std::u16string> sampleWords(data::DataControl& control, const std::u16string& table,
                                        int count) {
  control.setRecordSource(u"select word from " + table);
  control.refresh();
  auto& rows = control.recordset();
  const std::size_t step =
      std::max<std::size_t>(rows.recordCount() / static_cast<unsigned>(count), 1);
  std::vector<std::u16string> words;
  std::size_t place = 0;
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    if (place++ % step == 0) words.push_back(rows.field(u"word").text);
  }
  return words;
}

}  // namespace bench
