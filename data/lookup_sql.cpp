// These texts are sent unchanged: two text fragments without a blank between them ("[edict]"
// and "where"), doubled blanks and a blank at the end are required. The dialect accepts them all.
// Wildcards in `word` are ordinary characters here, since no text uses LIKE; only the keys of the
// bound step replace them.

#include "data/lookup_sql.h"

#include "text/query_text.h"
#include "text/strings.h"

namespace data {

using text::decimal;
using text::joined;

std::u16string withoutWildcards(std::u16string_view word, std::u16string_view replacement) {
  return user::replaceStr(user::replaceStr(word, u"%", replacement), u"_", replacement);
}

std::u16string englishListSql(Bounds bounds, std::u16string_view word) {
  return joined({u"select distinct top ", decimal(kListLength), u" edict.word as Word from [edict]",
                 u"where edict.eid>=", decimal(bounds.lower), u" and edict.eid<=",
                 decimal(bounds.upper), u"  and edict.word >= '", word, u"' order by word"});
}

std::u16string chineseListSql(Bounds bounds, std::u16string_view word) {
  return joined({u"select distinct top ", decimal(kListLength), u" cdict.word as Word from [cdict]",
                 u" where cdict.cid>=", decimal(bounds.lower), u" and cdict.cid<=",
                 decimal(bounds.upper), u"  and cdict.word >= '", word, u"' order by word"});
}

std::u16string englishMeaningSql(Bounds bounds, std::u16string_view word) {
  return joined({u"select edict.word as Word,cdict.word as Meaning from [edict],[cdict] where ",
                 u"edict.eid>=", decimal(bounds.lower), u" and edict.eid<=", decimal(bounds.upper),
                 u" and edict.cid=cdict.cid and edict.word = '", word, u"' order by cdict.word"});
}

std::u16string chineseMeaningSql(Bounds bounds, std::u16string_view word) {
  return joined({u"select cdict.word as Word,edict.word as Meaning from [edict],[cdict] where ",
                 u"cdict.cid>=", decimal(bounds.lower), u" and cdict.cid<=", decimal(bounds.upper),
                 u" and edict.eid=cdict.eid and cdict.word = '", word, u"' order by edict.word"});
}

std::u16string indexRowsUpToSql(std::u16string_view low) {
  return joined({u"select * from [cdictidx] where word<='", low, u"' "});
}

std::u16string indexRowsFromSql(std::u16string_view high) {
  return joined({u"select * from [cdictidx] where word>= '", high, kChineseHighSuffix, u"'"});
}

}  // namespace data
