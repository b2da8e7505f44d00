#include "data/dialect/dialect.h"

#include <gtest/gtest.h>

namespace {

using data::Query;
using data::translate;

std::string sqlOf(std::string_view sql) { return translate(sql).sql; }

TEST(Dialect, TurnsTopIntoALimit) {
  const Query query = translate("select top 100 word,meaning from med where word like '%a%'");
  EXPECT_EQ(query.sql, "select  word,meaning from med where word like '%a%' limit 100");
  EXPECT_EQ(query.top, 100U);
  EXPECT_EQ(sqlOf("SELECT DISTINCT TOP 3 word FROM t"), "SELECT DISTINCT  word FROM t limit 3");
  EXPECT_EQ(sqlOf("select all top 3 word from t"), "select all  word from t limit 3");
  EXPECT_EQ(translate("select top 0 word from t").top, 0U);
  EXPECT_EQ(sqlOf("select top 3 word from t;"), "select  word from t limit 3;");
}

TEST(Dialect, TranslatesTheListQuery) {
  EXPECT_EQ(sqlOf("select distinct top 75 edict.word as Word from [edict]where edict.eid>=247900 "
                  "and edict.eid<=248100  and edict.word >= 'data' order by word"),
            "select distinct  edict.word as Word from [edict]where edict.eid>=247900 "
            "and edict.eid<=248100  and edict.word >= 'data' order by [edict].word limit 75");
}

TEST(Dialect, OrdersByTheTablesColumnNotByAnAlias) {
  EXPECT_EQ(sqlOf("select top 100 word as meaning,meaning as word from med where meaning like "
                  "'热%' order by meaning"),
            "select  word as meaning,meaning as word from med where meaning like "
            "'热%' order by med.meaning limit 100");
  EXPECT_EQ(sqlOf("select a as b from t x order by b desc , [c],d collate nocase,e"),
            "select a as b from t x order by x.b desc , x.[c],x.d collate nocase,x.e");
  EXPECT_EQ(sqlOf("select a as b from t as x order by b"),
            "select a as b from t as x order by x.b");
  EXPECT_EQ(sqlOf("select * from  [Index]  where Isshow = 1 order by Cname"),
            "select * from  [Index]  where Isshow = 1 order by [Index].Cname");
}

TEST(Dialect, LeavesOtherOrdersAlone) {
  for (const char* sql :
       {"select a from t order by t.a", "select a from t order by 1",
        "select a from t order by a+b", "select a from t order by -a",
        "select a from t,u order by a", "select a from t join u order by a",
        "select a from t order by lower(a)", "select a from t union select a from u order by a",
        "select a from (select a from t) order by a", "select a from main.t order by a",
        "select 1 union select a from t order by a", "select a from t order",
        "select a from (select a from t order by a)"}) {
    EXPECT_EQ(sqlOf(sql), sql);
  }
  EXPECT_EQ(sqlOf("select edict.word as Word,cdict.word as Meaning from [edict],[cdict] where "
                  "edict.cid=cdict.cid order by cdict.word"),
            "select edict.word as Word,cdict.word as Meaning from [edict],[cdict] where "
            "edict.cid=cdict.cid order by cdict.word");
}

TEST(Dialect, LeavesTextsAloneThatAreNoTopQueries) {
  for (const char* sql : {"",
                          " ",
                          ";",
                          "select",
                          "select top",
                          "select top from t",
                          "select top x from t",
                          "select top 5x a from t",
                          "select top 5.5 a from t",
                          "select 'top 5' from t",
                          "select top 99999999999999999999 a from t",
                          "update t set a='select top 5 a from t'",
                          "select distinct",
                          "(select top 5 a from t)",
                          "with x as (select 1) select top 5 a from x",
                          "'",
                          "[",
                          "/*",
                          "--",
                          "select top 'x'"}) {
    const Query query = translate(sql);
    EXPECT_EQ(query.sql, sql);
    EXPECT_FALSE(query.top.has_value()) << sql;
  }
}

TEST(Dialect, AddsTheRangeOfALikePattern) {
  EXPECT_EQ(sqlOf("select top 100 word,meaning from med where word like 'a%b_%' order by word"),
            "select  word,meaning from med where (word like 'a%b_%' and word>='a' collate lexilo "
            "and word<'b' collate lexilo) order by med.word limit 100");
  EXPECT_EQ(sqlOf("select * from t where word like 'it''s%'"),
            "select * from t where (word like 'it''s%' and word>='it''s' collate lexilo and "
            "word<'it''t' collate lexilo)");
  EXPECT_EQ(sqlOf("select * from t where  word like 'heat%' and meaning like '%x%'"),
            "select * from t where  (word like 'heat%' and word>='heat' collate lexilo and "
            "word<'heau' collate lexilo) and meaning like '%x%'");
}

TEST(Dialect, LimitsAfterTheRangeOfALikePattern) {
  EXPECT_EQ(sqlOf("select top 5 word from med where word like 'a%'"),
            "select  word from med where (word like 'a%' and word>='a' collate lexilo and "
            "word<'b' collate lexilo) limit 5");
  EXPECT_EQ(sqlOf("select top 5 word from med where word like 'a%' --' and 1"),
            "select  word from med where (word like 'a%' and word>='a' collate lexilo and "
            "word<'b' collate lexilo) limit 5 --' and 1");
}

TEST(Dialect, LeavesOtherLikesAlone) {
  for (const char* sql :
       {"select * from t where word like '%a%'", "select * from t where word like '热%'",
        "select * from t where word like 'a%' or n=1",
        "select * from t where word like 'a%' || 'b'", "select * from t where not word like 'a%'",
        "select * from t where word not like 'a%'",
        "select * from t where word like 'a%' escape 'x'", "select * from t where n=word like 'a%'",
        "select a from t where n between 1 and w like 'a%'",
        "select * from t where t.word like 'a%'", "select * from t where word like a",
        "select * from t where word like 'a%", "select * from t where word like 'a%'=1"}) {
    EXPECT_EQ(sqlOf(sql), sql);
  }
}

TEST(Dialect, NeverTouchesQuotedText) {
  EXPECT_EQ(sqlOf("select top 2 'order by x; select top 3' from t where a='it''s; order by b'"),
            "select  'order by x; select top 3' from t where a='it''s; order by b' limit 2");
  EXPECT_EQ(sqlOf("select top 2 a from [order by x] where b='--' order by c"),
            "select  a from [order by x] where b='--' order by [order by x].c limit 2");
  EXPECT_EQ(sqlOf("select top 2 a from t where b like '%/*%' order by c"),
            "select  a from t where b like '%/*%' order by t.c limit 2");
}

TEST(Dialect, KeepsTheLimitOutOfComments) {
  EXPECT_EQ(sqlOf("select top 200 word,meaning from T where  word like '%' /*%' and meaning like "
                  "'%c%'"),
            "select  word,meaning from T where  word like '%' limit 200 /*%' and meaning like "
            "'%c%'");
  EXPECT_EQ(sqlOf("select top 200 word from T where  word like '%' --%' and meaning like '%c%'"),
            "select  word from T where  word like '%' limit 200 --%' and meaning like '%c%'");
  EXPECT_EQ(sqlOf("select/**/top/**/5 a from t"), "select/**/ a from t limit 5");
}

TEST(Dialect, LimitsTheFirstStatementOnly) {
  EXPECT_EQ(sqlOf("select top 5 a from t; delete from t"),
            "select  a from t limit 5; delete from t");
}

TEST(Dialect, TakesAMissingTableAsItIs) {
  EXPECT_EQ(sqlOf("select top 200 word,meaning from  where  word like '%a%'"),
            "select  word,meaning from  where  word like '%a%' limit 200");
}

TEST(Dialect, KnowsQueriesForWholeRows) {
  const Query query = translate("select * from [index] order by Cname");
  EXPECT_EQ(query.table, "index");
  EXPECT_EQ(query.sqlWithRowid, "select *,[index].rowid from [index] order by [index].Cname");
  EXPECT_EQ(translate("select * from t x where a=1").sqlWithRowid,
            "select *,x.rowid from t x where a=1");
  for (const char* sql :
       {"select a from t", "select *,a from t", "select distinct * from t", "select * from t,u",
        "select * from t group by a", "select t.* from t", "select * from (select 1)",
        "select top 5 * from t", "select * from t union select * from t", "select *"}) {
    EXPECT_EQ(translate(sql).table, "") << sql;
    EXPECT_EQ(translate(sql).sqlWithRowid, "") << sql;
  }
}

TEST(Dialect, KnowsPlainScans) {
  for (const char* sql :
       {"select * from [cdictidx] where word<='数据' ", "select * from [cdictidx] where word>= 'a'",
        "select * from t", "select * from t x where x.a=1 and b<'c' and [d]>=2"}) {
    EXPECT_TRUE(translate(sql).plainScan) << sql;
  }
  for (const char* sql :
       {"select * from t order by a", "select * from t where a=1 or b=2",
        "select * from t where a in (1,2)", "select * from t where a=b", "select * from t limit 3",
        "select * from t where a=lower('x')", "select * from t where (a=1)", "select a from t",
        "select * from t where a like 'x'", "select * from t where", "select * from t where a",
        "select * from t where a=1 and", "select * from t where a=", "select * from t,u",
        "select * from t where not a=1", "select top 3 * from t", "select * from t where a=1 b",
        "select * from t where a=-1", "select * from t where a=1 union select * from t"}) {
    EXPECT_FALSE(translate(sql).plainScan) << sql;
  }
}

}  // namespace
