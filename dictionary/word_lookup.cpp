#include "dictionary/word_lookup.h"

#include "data/data_control.h"
#include "data/error.h"
#include "data/headword_lookup.h"
#include "data/index_words.h"
#include "dictionary/console.h"
#include "text/query_text.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// Column "word" of all rows.
std::vector<std::u16string> readHeadwords(data::RecordSet& rows) {
  std::vector<std::u16string> words;
  if (rows.empty()) return words;
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    words.push_back(rows.field(u"word").text);
  }
  return words;
}

/// Runs a query; its rows are in control.recordset() afterwards.
void run(data::DataControl& control, const std::u16string& sql) {
  control.setRecordSource(sql);
  control.refresh();
}

/// The window's steps: read the index, list query, meaning query for the first headword. The index
/// is read anew for each lookup, which the window does once.
LookupResult lookUpIn(const std::filesystem::path& database, const user::TypedText& typed) {
  data::DataControl control;
  control.setConnectionString(u"Data Source=" + text::toUtf16(utf8Path(database)));
  const data::IndexWords index = data::readIndexWords(control);
  data::HeadwordLookup lookup(index, data::LookupOptions());

  LookupResult result;
  run(control, lookup.makeStrSql(typed.language, typed.word, control));
  result.headwords = readHeadwords(control.recordset());
  if (result.headwords.empty()) return result;

  // The language is that of the chosen headword, not of the typed text.
  std::u16string chosen = result.headwords.front();
  const std::u16string_view language = user::getEorC(chosen);
  // Deliberate: the meaning begins with the headword as it is searched, apostrophes doubled,
  // because the window shows it so.
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
  const user::TypedText typed = user::readTyped(word);
  if (typed.kind == user::Typed::kNothing) throw Failure("there is nothing to look up");
  if (typed.kind == user::Typed::kRefused) {
    throw Failure("an English word to look up may not begin with a wildcard (* _ ? %)");
  }
  try {
    return lookUpIn(database, typed);
  } catch (const data::Error& error) {
    throwUnreadable(database, error);
  }
}

}  // namespace dictionary
