#include <gtest/gtest.h>

#include "tests/unit/support/sample_database.h"

namespace {

using Texts = std::vector<std::u16string>;

/// The catalogue as the two windows that show dictionaries ask for it.
class Catalogue : public testing::Test {
 protected:
  Catalogue() {
    support::makeDatabase(
        file_,
        "create table [Index] (id integer, TableName text collate lexilo,"
        " Cname text collate lexilo, Isshow integer, [default] integer);"
        "insert into [Index] values (1,'med','医学',1,1),(2,'law','法律',0,0),"
        "(3,'comp','计算机',1,0),(4,'zool','动物学',2,0),(5,'bot','植物学',null,0)");
  }

  data::DataControl shown() {
    return support::opened(file_, u"select * from  [Index]  where Isshow = 1 order by Cname");
  }
  data::DataControl all() {
    return support::opened(file_, u"select * from [index] order by Cname");
  }

 private:
  support::TempFolder folder_;

 protected:
  std::filesystem::path file_ = folder_.file(u"kk.dat");
};

TEST_F(Catalogue, AHiddenDictionaryIsInTheSettingsListOnly) {
  data::DataControl offered = shown();
  EXPECT_EQ(offered.recordset().recordCount(), 2U);
  EXPECT_EQ(support::column(offered.recordset(), u"cname"), (Texts{u"计算机", u"医学"}));
  data::DataControl listed = all();
  EXPECT_EQ(listed.recordset().recordCount(), 5U);
  EXPECT_EQ(support::column(listed.recordset(), u"cname"),
            (Texts{u"动物学", u"法律", u"计算机", u"医学", u"植物学"}));
}

TEST_F(Catalogue, IsReadByPositionAndByName) {
  data::DataControl offered = shown();
  data::RecordSet& rows = offered.recordset();
  rows.moveLast();
  EXPECT_EQ(rows.field(1).text, u"med");
  EXPECT_EQ(rows.field(2).text, u"医学");
  EXPECT_EQ(rows.field(4).integer, 1);
  EXPECT_EQ(rows.field(u"default").integer, 1);
  EXPECT_EQ(rows.field(u"ISSHOW").integer, 1);
}

TEST_F(Catalogue, MayHaveNoDictionaryToShow) {
  support::Writer(file_).run("update [Index] set Isshow=0");
  EXPECT_TRUE(shown().recordset().empty());
  EXPECT_EQ(all().recordset().recordCount(), 5U);
}

}  // namespace
