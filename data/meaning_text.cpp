#include "data/meaning_text.h"

namespace data {

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
