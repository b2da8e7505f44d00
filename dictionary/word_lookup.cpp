#include "dictionary/word_lookup.h"

#include "data/data_control.h"
#include "data/error.h"
#include "data/headword_lookup.h"
#include "data/index_words.h"
#include "data/meaning_text.h"
#include "dictionary/paths.h"
#include "text/query_text.h"
#include "text/utf.h"

namespace dictionary {
namespace {

std::u16string trimmed(std::u16string_view text) {
  const std::size_t first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return std::u16string(text.substr(first, text.find_last_not_of(u' ') - first + 1));
}

std::vector<std::u16string> readHeadwords(data::RecordSet& rows) {
  std::vector<std::u16string> words;
  if (rows.empty()) return words;
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    words.push_back(rows.field(u"word").text);
  }
  return words;
}

void run(data::DataControl& control, const std::u16string& sql) {
  control.setRecordSource(sql);
  control.refresh();
}

LookupResult lookUpIn(const std::filesystem::path& database, std::u16string_view word) {
  data::DataControl control;
  control.setConnectionString(u"Data Source=" + text::toUtf16(utf8Path(database)));
  const data::IndexWords index = data::readIndexWords(control);
  data::HeadwordLookup lookup(index, data::LookupRules());

  LookupResult result;
  std::u16string typed = trimmed(word);
  user::escapeQuote(typed);
  run(control, lookup.makeStrSql(user::getEorC(typed), typed, control));
  result.headwords = readHeadwords(control.recordset());
  if (result.headwords.empty()) return result;

  std::u16string chosen = result.headwords.front();
  const std::u16string_view language = user::getEorC(chosen);
  user::escapeQuote(chosen);
  run(control, lookup.findword(language, chosen, control));
  if (!control.recordset().empty()) {
    result.meaning = data::meaningLines(chosen, data::readMeanings(control.recordset())).body;
  }
  return result;
}

}  // namespace

LookupResult lookUp(const std::filesystem::path& database, std::u16string_view word) {
  requireFile(database);
  try {
    return lookUpIn(database, word);
  } catch (const data::Error& error) {
    throwUnreadable(database, error);
  }
}

}  // namespace dictionary
