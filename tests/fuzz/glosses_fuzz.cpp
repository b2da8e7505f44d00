/// Taking the glosses of the Chinese-English source apart. Input: a record a line, its forms,
/// pinyin and glosses separated by tabs.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "dictionary/check/general.h"
#include "dictionary/gloss/cedict.h"
#include "dictionary/source/cleanup.h"
#include "tests/fuzz/fuzz_input.h"
#include "text/utf.h"

namespace {

dictionary::CedictRecord recordOf(const std::string& line) {
  std::istringstream fields(line);
  std::vector<std::u16string> texts;
  for (std::string field; std::getline(fields, field, '\t');) texts.push_back(text::toUtf16(field));
  texts.resize(std::max<std::size_t>(texts.size(), 4));
  return {texts[0], texts[1], texts[2], {texts.begin() + 3, texts.end()}};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream lines{std::string(FuzzInput(data, size).rest())};
  std::vector<dictionary::CedictRecord> records;
  for (std::string line; std::getline(lines, line);) records.push_back(recordOf(line));
  dictionary::Findings findings;
  for (const dictionary::ChineseEntry& entry : dictionary::chineseEntries(records)) {
    require(!entry.word.empty() && entry.word.size() <= 20 && !entry.glosses.empty());
    dictionary::checkSearchable(entry.word, "", findings);
    dictionary::checkText(entry.word, "", findings);
    for (const dictionary::Gloss& gloss : entry.glosses) {
      require(dictionary::headword(gloss.english) == gloss.english);
      require(gloss.words >= 1);
    }
  }
  require(findings.empty());
  return 0;
}
