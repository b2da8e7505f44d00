#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace support {

/// What costly texts pad a dictionary's texts with.
inline constexpr char16_t kPadding = u'\u00A4';

inline std::u16string repeated(std::u16string_view part, std::size_t times) {
  std::u16string whole;
  for (std::size_t i = 0; i < times; ++i) whole += part;
  return whole;
}

/// Those among the hostile texts that make single steps of the engine long, or its memory full.
inline std::vector<std::u16string> costlyTexts() {
  const std::u16string padding(30'000, kPadding);
  return {
      // A long pattern that nearly stands at every place of a long text.
      u"zzz' or '" + repeated(u"a", 16'000) + u"'||word like '%" + repeated(u"a", 8'000) + u"b' --",
      u"zzz' or '" + repeated(u"a", 16'000) + u"'||word like '%" + repeated(u"a_", 4'000) +
          u"b' --",
      // Long rows that have to be sorted, by short texts and by long ones.
      u"' union all select word||'" + padding + u"',meaning from med order by 2 --",
      u"' union all select '" + padding + u"'||word,meaning from med order by 1 --",
      u"' union select word,meaning from med group by '" + padding.substr(0, 1'000) +
          u"'||word collate nocase --",
  };
}

/// Those that only the clock ends, however small the dictionary.
inline std::vector<std::u16string> endlessTexts() {
  return {
      u"zzz' or (select w||w||w||w||w||w from (select '" + repeated(u"a", 15'000) +
          u"' w))||word like '%" + repeated(u"a", 12'000) + u"b' --",
  };
}

/// What somebody might type into a box in order to change the database, to read what is none of
/// the dictionaries, or to keep the program busy, but for the costly and the
/// endless texts.
inline std::vector<std::u16string> briefHostileTexts() {
  std::vector<std::u16string> texts{
      // Statements after the query.
      u"'; delete from med; --",
      u"'; drop table med; --",
      u"'; update [Index] set [default]=0; --",
      u"'; insert into med values ('x','y'); --",
      u"'; create table x (a); --",
      u"'; vacuum; --",
      u"'; begin exclusive; --",
      u"'; pragma writable_schema=on; --",
      u"'; attach 'x.db' as x; --",
      u"'; select * from sqlite_master; --",
      u"';",
      u"' ; ; --",
      // Tables that are none of the dictionary's.
      u"' union select name,sql from sqlite_master --",
      u"' union all select type,sql from main.sqlite_schema --",
      u"' union select name,sql from \"sqlite_master\" --",
      u"' union select name,sql from [sqlite_master] --",
      u"' union select name,sql from `sqlite_master` --",
      u"' union select name,sql from temp.sqlite_master --",
      u"' union select name,sql from sqlite_temp_schema --",
      u"' union select name,seq from sqlite_sequence --",
      u"' union select tbl,stat from sqlite_stat1 --",
      u"' union select name,file from pragma_database_list --",
      u"' union select name,type from pragma_table_info('med') --",
      u"' union select key,value from json_each('[1]') --",
      u"' union select path,name from dbstat --",
      u"' union select sql,1 from sqlite_stmt --",
      u"' union select input,token from fts3tokenize('simple','a b') --",
      u"' or exists (select 1 from sqlite_master where sql like '%') --",
      u"' or (select count(*) from sqlite_master)>0 --",
      u"' or (select sql from sqlite_master limit 1) like 'create%' --",
      u"' union select rootpage,sql from sqlite_master order by 1 --",
      // Functions that do more than compare.
      u"' union select sqlite_version(),sqlite_source_id() --",
      u"' or load_extension('x') --",
      u"' union select readfile('kk.dat'),writefile('x','y') --",
      u"' or length(hex(zeroblob(900000000)))>0 --",
      u"' or length(randomblob(900000000))>0 --",
      u"' union select printf('%.*c',900000000,'x'),1 --",
      u"' union select group_concat(word,meaning),1 from med --",
      u"' or replace(word,'a',word) like '%a%' --",
      u"' or abs(-9223372036854775808) --",
      u"' union select quote(word),char(0) from med --",
      u"' or word glob '*' --",
      u"' or word regexp '.' or word match 'a' --",
      u"' escape 'x' --",
      u"' or raise(abort,'x') --",
      // Work without end.
      u"' union with recursive n(i) as (select 1 union all select i+1 from n) select i,i from n --",
      u"' or exists (with recursive n(i) as (select 1 union all select i+1 from n) select 1 from n"
      u" where i<0) --",
      u"' or (select count(*) from med a,med b,med c,med d,med e,med f where a.word=f.meaning)>0 "
      u"--",
      u"' union select a.word,b.word from med a,med b,med c,med d,med e,med f order by 1 --",
      u"' or exists (select 1 from med a,med b,med c,med d,med e,med f where a.word like '%'||"
      u"f.meaning||'%x%y%z%') --",
      // Comments, brackets and quotes that do not close.
      u"'",
      u"''",
      u"'''",
      u"\"",
      u"[",
      u"`",
      u"' /*",
      u"' --",
      u"*/",
      u"' /* */ --",
      u"\\'",
      u"%' or '1'='1",
      u"' or 1=1 --",
      u"' limit -1 --",
      u"' order by 1 limit 100000 --",
      u"' group by word having count(*)>0 --",
      u"' collate nocase --",
      u"' union select * from [Index] --",
      u"?1",
      u":a @b $c",
      u"' or ?1 --",
      // Patterns.
      u"%",
      u"_",
      u"*",
      u"%_%_%_%_%_%_%_%_%_%_%_%_%_%_%_%_%_%_%_%",
      u"[a-z]",
      // Characters.
      u"\u0001\u0002\u001F",
      u"\r\n\t",
      u"\u2019\uFF07\u02BC",
      u"\uFEFF\u200B\u202E",
      u"\U0001F600",
      u"é' or 1=1 --",
      u"心' or 1=1 --",
      u"心' union select name,sql from sqlite_master --",
  };
  texts.push_back(repeated(u"'", 1001));
  texts.push_back(repeated(u"%a", 15'000));
  texts.push_back(repeated(u"_", 30'000));
  texts.push_back(repeated(u"心", 30'000));
  texts.push_back(u"' or " + repeated(u"(", 5'000) + u"1" + repeated(u")", 5'000) + u" --");
  texts.push_back(u"' or " + repeated(u"not ", 5'000) + u"1 --");
  texts.push_back(u"'" + repeated(u" or 1", 5'000) + u" --");
  texts.push_back(u"' or word in (1" + repeated(u",1", 10'000) + u") --");
  texts.push_back(u"'" + repeated(u" union select word,meaning from med", 500) + u" --");
  texts.push_back(u"' or exists (select 1 from med a" + repeated(u" join med using (word)", 40) +
                  u") --");
  texts.push_back(u"zzz' or exists (select 1 from med" + repeated(u",med", 60) + u") --");
  // Each name is twice the one before.
  std::u16string doubling = u"' or exists (with a0 as (select word w from med)";
  for (char16_t c = u'a'; c < u'y'; ++c) {
    const std::u16string from = c == u'a' ? u"a0" : std::u16string(2, static_cast<char16_t>(c - 1));
    doubling +=
        u"," + std::u16string(2, c) + u" as (select 1 w from " + from + u" x," + from + u" y)";
  }
  texts.push_back(doubling + u" select 1 from xx) --");
  return texts;
}

/// All of them.
inline std::vector<std::u16string> hostileTexts() {
  std::vector<std::u16string> texts = briefHostileTexts();
  for (const std::u16string& costly : costlyTexts()) texts.push_back(costly);
  for (const std::u16string& endless : endlessTexts()) texts.push_back(endless);
  return texts;
}

}  // namespace support
