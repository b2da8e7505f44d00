#include "dictionary/check/check.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "dictionary/check/general.h"
#include "dictionary/console.h"
#include "tests/support/data/sample_database.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/temp_folder.h"

namespace {

using dictionary::CheckResult;
using dictionary::Findings;
using dictionary::Rule;

/// One way to break a rule of the small dictionary.
struct Damage {
  Rule rule;
  std::string sql;
};

/// The rows of [edict] from `first` to `last` get one headword, and the index follows.
std::string joinRows(const std::string& table, const std::string& number, int first, int last) {
  const std::string word =
      "(select word from " + table + " where " + number + "=" + std::to_string(first) + ")";
  const std::string rows = " between " + std::to_string(first) + " and " + std::to_string(last);
  const std::string place = table == "edict" ? "rowid" : "id";
  return "update " + table + " set word=" + word + " where " + number + rows + ";update " + table +
         "idx set word=" + word + " where " + place + "*100" + rows;
}

const std::vector<Damage> kDamages = {
    {Rule::kTables, "drop table edictidx"},
    {Rule::kTables, "drop table med"},
    {Rule::kTables, "create table stray (word text collate lexilo, meaning text collate lexilo)"},
    {Rule::kTables, "create view stray as select 1 as word, 2 as meaning"},
    {Rule::kColumns, "alter table edict rename column cid to kid"},
    {Rule::kColumns, "alter table cdict add column more integer"},
    {Rule::kColumns, "alter table [Index] rename column Cname to title"},
    {Rule::kColumns, "alter table [Index] rename column Isshow to shown"},
    {Rule::kColumns, "alter table [Index] rename column [default] to standard"},
    {Rule::kColumns, "alter table [Index] drop column [default]"},
    {Rule::kColumns, "alter table [Index] drop column Isshow"},
    {Rule::kColumns,
     "alter table [Index] drop column Isshow;"
     "alter table [Index] add column more text;"
     "alter table [Index] add column Isshow text"},
    {Rule::kColumns, "drop table edictidx;create table edictidx (word text not null)"},
    {Rule::kColumns,
     "drop table med;create table med (meaning text collate lexilo, word text collate lexilo)"},
    {Rule::kValues, "update edict set cid='x' where eid=5"},
    {Rule::kValues, "update edict set cid=4294967297 where eid=5"},
    {Rule::kValues, "update cdict set word=x'ff' where cid=5"},
    {Rule::kValues, "update edict set word='' where eid=1"},
    {Rule::kValues, "update med set meaning=x'41' where word='anemia'"},
    {Rule::kRowNumbers, "update edict set eid=eid+10000 where eid>1100"},
    {Rule::kRowNumbers, "update cdict set cid=-1 where cid=1"},
    {Rule::kOrder, "update edict set word='zzz' where eid=500"},
    {Rule::kOrder, "update cdict set word='做做' where cid=500"},
    {Rule::kSpelling,
     "update edict set word=upper(word) where eid=(select min(eid) from edict where word='data')"},
    {Rule::kRowCount, "delete from edict where eid>1150"},
    {Rule::kRowCount, "delete from edict where eid>1150;delete from cdict where cid>1150"},
    {Rule::kRowCount, "delete from edict;delete from cdict"},
    {Rule::kLinks, "update edict set cid=cid%1200+1 where eid=7"},
    {Rule::kLinks, "update cdict set eid=0 where cid=7"},
    {Rule::kLinks, "update cdict set eid=100000 where cid=7"},
    {Rule::kDistinctPairs,
     "update cdict set word='重复' where cid in (select cid from edict where word='bit')"},
    {Rule::kEnglishIndex, "update edictidx set word='aaa' where rowid=3"},
    {Rule::kEnglishIndex, "delete from edictidx where rowid=12"},
    {Rule::kEnglishIndex, "insert into edictidx values ('zzzz')"},
    {Rule::kChineseIndex, "update cdictidx set word='啊' where id=7"},
    {Rule::kChineseIndex, "update cdictidx set id=13 where id=12"},
    {Rule::kChineseIndex, "delete from cdictidx where id=1"},
    {Rule::kEnglishHeadwords, "update edict set word='数据' where eid=1200"},
    {Rule::kChineseHeadwords, "update cdict set word='1' where cid=1"},
    {Rule::kSearchable, "update edict set word='100%' where eid=1"},
    {Rule::kSearchable, "update edict set word='z_z' where eid=1200"},
    {Rule::kSearchable, "update cdict set word='做' || char(0x2a922) where cid=1200"},
    {Rule::kSearchable, "update med set word='a%' where word='anemia'"},
    {Rule::kCharacters, "update cdict set word='做' || char(0xe23c) where cid=1200"},
    {Rule::kCharacters, "update med set meaning='酸' || char(0x2523) where word='anemia'"},
    {Rule::kCharacters, "update med set meaning='a' || char(9) || 'b' where word='anemia'"},
    {Rule::kCharacters, "update [Index] set Cname='医' || char(1) where TableName='med'"},
    {Rule::kCharacters, "update med set meaning='酸' || char(0x200b) where word='anemia'"},
    {Rule::kCharacters, "update med set meaning='a' || char(0x301) where word='anemia'"},
    {Rule::kCharacters, "update med set meaning='酸' || char(0xf91f) where word='anemia'"},
    {Rule::kCharacters, "update med set meaning='酸' || char(0x1f600) where word='anemia'"},
    {Rule::kCharacters, "update med set meaning='酸' || char(0xfffd) where word='anemia'"},
    {Rule::kCharacters, "update med set meaning='酸' || char(0xfdd0) where word='anemia'"},
    {Rule::kMarkup, "update med set meaning='贫血&beta;' where word='anemia'"},
    {Rule::kMarkup, "update med set meaning='贫血<br />' where word='anemia'"},
    {Rule::kMarkup, "update med set meaning='贫血\\n血' where word='anemia'"},
    {Rule::kMarkup, "update med set meaning='维生素A&-{2}' where word='anemia'"},
    {Rule::kMarkup, "update med set meaning='内<&14&>动脉' where word='anemia'"},
    {Rule::kIndexOrder,
     "update edict set word='AB' where eid=1;update edict set word='a-' where eid=2"},
    {Rule::kEnglishReach, joinRows("edict", "eid", 100, 101)},
    {Rule::kEnglishReach, "delete from edictidx where rowid=12"},
    {Rule::kApostropheReach,
     "update edict set word=word || '''a' where eid=100;"
     "update edictidx set word=(select word from edict where eid=100) where rowid=1;"
     "update edict set word=replace((select word from edict where eid=100), '''a', '''b') "
     "where eid=101"},
    {Rule::kChineseReach, joinRows("cdict", "cid", 199, 400)},
    {Rule::kCatalogueTables, "update [Index] set TableName='select' where TableName='med'"},
    {Rule::kCatalogueTables, "update [Index] set TableName='EDICT' where TableName='med'"},
    {Rule::kCatalogueTables, "update [Index] set TableName='1a' where TableName='med'"},
    {Rule::kCatalogueTables, "update [Index] set TableName='a b' where TableName='med'"},
    {Rule::kCatalogueTables, "update [Index] set TableName='' where TableName='med'"},
    {Rule::kCatalogueTables, "update [Index] set TableName='CHEM' where TableName='med'"},
    {Rule::kCatalogueNames, "update [Index] set Cname='' where TableName='med'"},
    {Rule::kCatalogueNames, "update [Index] set Cname='med' where TableName='med'"},
    {Rule::kCatalogueNames, "update [Index] set Cname='法律' where TableName='med'"},
    {Rule::kCatalogueFlags, "update [Index] set Isshow='yes' where TableName='law'"},
    {Rule::kCatalogueFlags, "update [Index] set [default]=2 where TableName='law'"},
    {Rule::kCatalogueDefault, "update [Index] set [default]=1 where TableName='law'"},
    {Rule::kCatalogueDefault, "update [Index] set [default]=0"},
    {Rule::kCatalogueDefault, "update [Index] set Isshow=0 where TableName='med'"},
    {Rule::kSubjectRows, "update med set meaning='' where word='anemia'"},
    {Rule::kSubjectRows, "update med set word='' where word='anemia'"},
    {Rule::kSubjectRows, "delete from med"},
    {Rule::kSubjectOrder,
     "drop table math;create table math (word text collate lexilo, meaning text collate lexilo);"
     "insert into math values ('b', '乙'), ('a', '甲')"},
    {Rule::kSubjectOrder,
     "drop table math;create table math (word text collate lexilo, meaning text collate lexilo);"
     "insert into math values ('a', '甲'), ('A', '乙')"},
    {Rule::kLabels, "update cdict set word='法国服装名牌' where cid=5"},
    {Rule::kLabels, "update cdict set word='DOS外部命令' where cid=5"},
};

class CheckDatabase : public testing::Test {
 protected:
  CheckDatabase() : file_(folder_.file(u"kk.dat")) {
    std::filesystem::copy_file(support::smallDatabase(), file_);
  }

  void run(const std::string& sql) { support::Writer(file_).run(sql); }

  void overwrite(std::streamoff position, const std::string& bytes) const {
    std::fstream stream(file_, std::ios::binary | std::ios::in | std::ios::out);
    stream.seekp(position);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }

  support::TempFolder folder_;
  std::filesystem::path file_;
};

TEST_F(CheckDatabase, FindsNothingInAValidDictionary) {
  EXPECT_TRUE(dictionary::checkDatabase(file_).findings.empty());
}

TEST_F(CheckDatabase, AllowsWhatTheSettingsWindowDoes) {
  run("update [Index] set [default]=0;update [Index] set [default]=1 where TableName='law';"
      "update [Index] set Isshow=0 where TableName='zool'");
  EXPECT_TRUE(dictionary::checkDatabase(file_).findings.empty());
}

TEST_F(CheckDatabase, AllowsACatalogueWithFurtherColumnsAndIsshowAmongThem) {
  run("alter table [Index] rename to former;"
      "create table [Index] (code text, TableName text collate lexilo, Cname text collate lexilo,"
      " remark text, [default] integer, more blob, ISSHOW integer);"
      "insert into [Index] select 'x',TableName,Cname,'no number',[default],x'00',Isshow"
      " from former;drop table former");
  const CheckResult valid = dictionary::checkDatabase(file_);
  std::ostringstream text;
  valid.findings.print(text);
  EXPECT_EQ(text.str(), "");
  EXPECT_EQ(valid.dictionaries, 24U);
  run("update [Index] set Isshow=0 where TableName='med'");
  EXPECT_GT(dictionary::checkDatabase(file_).findings.count(Rule::kCatalogueDefault), 0U);
}

TEST(CheckDatabaseRules, ReportsEveryBrokenRule) {
  std::vector<bool> covered(static_cast<std::size_t>(Rule::kCount));
  for (const Damage& damage : kDamages) {
    const support::TempFolder folder;
    const std::filesystem::path file = folder.file(u"kk.dat");
    std::filesystem::copy_file(support::smallDatabase(), file);
    support::Writer(file).run(damage.sql);
    const Findings findings = dictionary::checkDatabase(file).findings;
    EXPECT_GT(findings.count(damage.rule), 0U) << damage.sql;
    EXPECT_FALSE(findings.empty());
    std::ostringstream text;
    findings.print(text);
    EXPECT_NE(text.str().find(dictionary::describe(damage.rule)), std::string::npos);
    covered[static_cast<std::size_t>(damage.rule)] = true;
  }
  covered[static_cast<std::size_t>(Rule::kUndamaged)] = true;  // a test below
  for (const Rule rule :
       {Rule::kImportantWords, Rule::kOwnMeanings, Rule::kTitles, Rule::kCommands}) {
    covered[static_cast<std::size_t>(rule)] = true;  // source_check_test.cpp
  }
  for (std::size_t rule = 0; rule < covered.size(); ++rule) {
    EXPECT_TRUE(covered[rule]) << dictionary::describe(static_cast<Rule>(rule));
  }
}

TEST(CheckRowCounts, AllowsAsManyRowsAsTheLookupsReach) {
  Findings findings;
  dictionary::checkRowCounts(100, 100, findings);
  dictionary::checkRowCounts(1'060'000, 1'060'000, findings);
  EXPECT_TRUE(findings.empty());
  dictionary::checkRowCounts(1'060'100, 1'060'100, findings);
  EXPECT_EQ(findings.count(Rule::kRowCount), 1U);
}

TEST_F(CheckDatabase, ReportsADamagedFile) {
  constexpr std::streamoff kFreePages = 36;  // number of free pages in the file's header
  overwrite(kFreePages, std::string("\0\0\0\x05", 4));
  EXPECT_GT(dictionary::checkDatabase(file_).findings.count(Rule::kUndamaged), 0U);
}

TEST_F(CheckDatabase, SurvivesAnyDamage) {
  const std::string valid = support::readFile(file_);
  for (std::size_t position = 0; position < valid.size(); position += 1511) {
    support::writeFile(file_, valid);
    overwrite(static_cast<std::streamoff>(position), std::string(64, '\xA5'));
    try {
      dictionary::checkDatabase(file_);
    } catch (const dictionary::Failure& failure) {
      EXPECT_NE(std::string(failure.what()).find("cannot be read"), std::string::npos);
    }
  }
}

TEST_F(CheckDatabase, ThrowsForFilesThatAreNoDictionary) {
  support::writeFile(file_, "this is no database, only a few words that happen to lie in a file");
  EXPECT_THROW(dictionary::checkDatabase(file_), dictionary::Failure);
  support::writeFile(file_, "");
  EXPECT_GT(dictionary::checkDatabase(file_).findings.count(Rule::kTables), 0U);
  const std::string valid = support::readFile(support::smallDatabase());
  support::writeFile(file_, valid.substr(0, valid.size() / 2));
  EXPECT_THROW(dictionary::checkDatabase(file_), dictionary::Failure);
  EXPECT_THROW(dictionary::checkDatabase(folder_.file(u"none")), dictionary::Failure);
  EXPECT_THROW(dictionary::checkDatabase(folder_.path()), dictionary::Failure);
}

TEST_F(CheckDatabase, CountsListsWhoseLastHeadwordIsCut) {
  const CheckResult before = dictionary::checkDatabase(file_);
  // One headword now crosses row 300, where the lists of the headwords before it end.
  run(joinRows("cdict", "cid", 290, 310));
  const CheckResult after = dictionary::checkDatabase(file_);
  EXPECT_GT(after.cutLists, before.cutLists);
  EXPECT_LT(after.cutLists, after.chineseLists);
}

TEST(Findings, KeepTheFirstExamples) {
  Findings findings;
  EXPECT_TRUE(findings.empty());
  for (int i = 0; i < 1234; ++i) findings.add(Rule::kOrder, "row " + std::to_string(i));
  EXPECT_EQ(findings.count(Rule::kOrder), 1234U);
  EXPECT_EQ(findings.examples(Rule::kOrder).size(), Findings::kMaxExamples);
  std::ostringstream text;
  findings.print(text);
  EXPECT_EQ(text.str().find("broken 1,234 times: headwords ascend"), 0U);
  EXPECT_NE(text.str().find("row 4"), std::string::npos);
  EXPECT_EQ(text.str().find("row 5"), std::string::npos);
}

}  // namespace
