#include "data/lookup_sql.h"

#include <gtest/gtest.h>

namespace {

TEST(LookupSql, ListQueries) {
  EXPECT_EQ(data::englishListSql({247900, 248100}, u"data"),
            u"select distinct top 75 edict.word as Word from [edict]where edict.eid>=247900 and "
            u"edict.eid<=248100  and edict.word >= 'data' order by word");
  EXPECT_EQ(data::chineseListSql({-100, 400}, u"数据"),
            u"select distinct top 75 cdict.word as Word from [cdict] where cdict.cid>=-100 and "
            u"cdict.cid<=400  and cdict.word >= '数据' order by word");
  EXPECT_EQ(data::englishListSql({0, 0}, u"it''s"),
            u"select distinct top 75 edict.word as Word from [edict]where edict.eid>=0 and "
            u"edict.eid<=0  and edict.word >= 'it''s' order by word");
}

TEST(LookupSql, MeaningQueries) {
  EXPECT_EQ(data::englishMeaningSql({-100, 100}, u"bit"),
            u"select edict.word as Word,cdict.word as Meaning from [edict],[cdict] where "
            u"edict.eid>=-100 and edict.eid<=100 and edict.cid=cdict.cid and edict.word = 'bit' "
            u"order by cdict.word");
  EXPECT_EQ(data::chineseMeaningSql({100, 600}, u"位"),
            u"select cdict.word as Word,edict.word as Meaning from [edict],[cdict] where "
            u"cdict.cid>=100 and cdict.cid<=600 and edict.eid=cdict.eid and cdict.word = '位' "
            u"order by edict.word");
}

TEST(LookupSql, IndexQueries) {
  EXPECT_EQ(data::indexRowsUpToSql(u"数0"), u"select * from [cdictidx] where word<='数0' ");
  EXPECT_EQ(data::indexRowsFromSql(u"数做"), u"select * from [cdictidx] where word>= '数做做做'");
}

}  // namespace
