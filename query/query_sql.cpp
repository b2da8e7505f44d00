#include "query/query_sql.h"

#include "text/query_text.h"
#include "text/strings.h"

namespace query {

using text::joined;

Search makeQuerySql(std::u16string& text, std::u16string_view mode, std::u16string_view table) {
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

}  // namespace query
