/// Reading a source of the dictionary and taking its entries apart. Input: the lines after the
/// header.

#include <sstream>
#include <string>

#include "dictionary/arrange/pair_collector.h"
#include "dictionary/arrange/tables.h"
#include "dictionary/check/general.h"
#include "dictionary/source/characters.h"
#include "dictionary/source/csv_reader.h"
#include "dictionary/translation/entry.h"
#include "tests/fuzz/fuzz_input.h"

namespace {

using dictionary::SourceReader;

/// What the collectors give must be fit for the database.
void checkTexts(const dictionary::Vocabulary& vocabulary,
                const dictionary::SubjectTables& subjects) {
  dictionary::Findings findings;
  for (const std::u16string& word : vocabulary.english) {
    dictionary::checkSearchable(word, "", findings);
    dictionary::checkText(word, "", findings);
  }
  for (const std::u16string& word : vocabulary.chinese) {
    require(word.size() <= 48);
    dictionary::checkSearchable(word, "", findings);
    dictionary::checkText(word, "", findings);
  }
  for (const auto& rows : subjects) {
    for (const dictionary::SubjectRow& row : rows) {
      require(!row.word.empty() && !row.meaning.empty());
      dictionary::checkText(row.meaning, "", findings);
    }
  }
  require(findings.empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream stream("word,translation,collins,oxford,tag,bnc,frq,exchange\n" +
                            std::string(FuzzInput(data, size).rest()));
  SourceReader reader(stream);
  dictionary::PairCollector pairs;
  dictionary::SubjectCollector subjects;
  for (;;) {
    const SourceReader::Result result = reader.next();
    if (result == SourceReader::Result::kEnd) break;
    if (result == SourceReader::Result::kBadLine) {
      require(reader.fault() != dictionary::LineFault::kNone);
      continue;
    }
    if (const auto entry = dictionary::extractEntry(reader.entry())) {
      pairs.add(*entry);
      subjects.add(*entry);
    }
  }
  checkTexts(std::move(pairs).finish(), std::move(subjects).finish());
  return 0;
}
