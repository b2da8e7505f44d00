#include "query/catalogue.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

#include "data/database.h"
#include "data/record_set.h"
#include "tests/support/data/file_layer.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/valid_database.h"
#include "tests/support/data/window_queries.h"

namespace {

using support::clickDictionary;
using support::storedDefaults;
using Rows = std::vector<std::size_t>;
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

class DefaultFlag : public testing::Test {
 protected:
  /// Four dictionaries; in the order of their names 化学, 计算机, 数学, 医学.
  DefaultFlag() {
    support::makeDatabase(
        file_,
        "create table [Index] (id integer primary key, TableName text collate lexilo,"
        " Cname text collate lexilo, Isshow integer, [default] integer);"
        "insert into [Index] values (1,'med','医学',1,1),(2,'chem','化学',1,0),"
        "(3,'math','数学',0,0),(4,'comp','计算机',1,0)");
  }
  void store(const std::string& sql) { support::Writer(file_).run(sql); }

  support::TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
};

TEST_F(DefaultFlag, MovesToTheChosenRow) {
  ASSERT_EQ(storedDefaults(file_), (Rows{4}));
  for (const std::size_t row : {1U, 3U, 2U, 4U}) {
    clickDictionary(file_, row);
    EXPECT_EQ(storedDefaults(file_), (Rows{row}));
  }
}

// The engine leaves a file alone whose content stays the same, but asks for the right to write.
TEST_F(DefaultFlag, IsWrittenAgainToTheRowThatHasIt) {
  data::DataControl control = support::opened(file_, query::kAllDictionaries);
  support::Writer other(file_);
  other.run("begin immediate");
  EXPECT_THROW(query::chooseDefault(control.recordset(), 4), data::Error);
  other.run("commit");
  query::chooseDefault(control.recordset(), 4);
  EXPECT_EQ(storedDefaults(file_), (Rows{4}));
}

TEST_F(DefaultFlag, LeavesNothingElseChanged) {
  clickDictionary(file_, 4);
  const std::string before = support::readFile(file_).substr(100);
  clickDictionary(file_, 4);
  EXPECT_EQ(support::readFile(file_).substr(100), before);
  EXPECT_EQ(support::entryCount(folder_.path()), 1);
}

TEST_F(DefaultFlag, SeveralAreReducedToTheChosenOne) {
  store("update [Index] set [default]=1");
  data::DataControl control = support::opened(file_, query::kAllDictionaries);
  EXPECT_EQ(query::lastDefault(control.recordset()), 4U);
  clickDictionary(file_, 2);
  EXPECT_EQ(storedDefaults(file_), (Rows{2}));
}

TEST_F(DefaultFlag, ValuesThatAreNoFlagStay) {
  store("update [Index] set [default]=5 where id=3");
  clickDictionary(file_, 1);
  EXPECT_EQ(support::Writer(file_).number("select [default] from [Index] where id=3"), 5);
  EXPECT_EQ(storedDefaults(file_), (Rows{1}));
}

TEST_F(DefaultFlag, NoneIsFlagged) {
  store("update [Index] set [default]=0");
  data::DataControl control = support::opened(file_, query::kAllDictionaries);
  EXPECT_EQ(query::lastDefault(control.recordset()), 0U);
}

TEST_F(DefaultFlag, ARowNumberThatDoesNotExistLeavesNoDefault) {
  clickDictionary(file_, 9);
  EXPECT_EQ(storedDefaults(file_), Rows{});
}

TEST_F(DefaultFlag, ALockedFileFailsWithNothingChanged) {
  const auto database = std::make_shared<data::Database>(
      support::utf8Path(file_),
      data::Timeouts{std::chrono::milliseconds(5000), std::chrono::milliseconds(50)});
  data::RecordSet rows(database, text::toUtf8(query::kAllDictionaries));
  support::Writer other(file_);
  other.run("begin immediate");
  try {
    query::chooseDefault(rows, 1);
    ADD_FAILURE() << "no error";
  } catch (const data::Error& error) {
    EXPECT_STREQ(error.engineText(), "database is locked");
  }
  EXPECT_EQ(query::lastDefault(rows), 4U);
  other.run("commit");
  EXPECT_EQ(storedDefaults(file_), (Rows{4}));
}

TEST_F(DefaultFlag, AFullDiskFailsWithNothingChanged) {
  data::DataControl control = support::opened(file_, query::kAllDictionaries);
  const std::string before = support::readFile(file_);
  {
    const support::FileLayer full([] { return SQLITE_FULL; });
    try {
      query::chooseDefault(control.recordset(), 1);
      ADD_FAILURE() << "no error";
    } catch (const data::Error& error) {
      EXPECT_STREQ(error.engineText(), "database or disk is full");
    }
  }
  EXPECT_EQ(query::lastDefault(control.recordset()), 4U);
  EXPECT_EQ(support::readFile(file_), before);
  query::chooseDefault(control.recordset(), 1);
  EXPECT_EQ(storedDefaults(file_), (Rows{1}));
}

// The disk may fill up, or fail, between any two changes of a file.
TEST_F(DefaultFlag, ADiskThatFailsAtAnyMomentCostsNothingButTheFlag) {
  for (int failing = 1;; ++failing) {
    clickDictionary(file_, 4);
    int changes = 0;
    bool failed = false;
    {
      const support::FileLayer layer([&] {
        failed = ++changes == failing;
        return failed || changes > failing ? SQLITE_FULL : SQLITE_OK;
      });
      try {
        clickDictionary(file_, 1);
      } catch (const data::Error&) {
        failed = true;
      }
    }
    const Rows flagged = storedDefaults(file_);
    EXPECT_TRUE(flagged == Rows{4} || flagged == (Rows{1, 4}) || flagged == Rows{1}) << failing;
    if (changes < failing) break;
    clickDictionary(file_, 2);
    EXPECT_EQ(storedDefaults(file_), (Rows{2}));
    ASSERT_LT(failing, 200);
  }
}

// What another program that copies the folder may catch: both files between any two changes.
class DefaultFlagCopied : public DefaultFlag {
 protected:
  DefaultFlagCopied() { std::filesystem::copy_file(support::smallDatabase(), whole_); }

  static std::filesystem::path journal(std::filesystem::path file) {
    return file.concat("-journal");
  }

  /// Moves the default and copies the files before change number `moment`; false without one.
  bool copyInMove(std::size_t from, std::size_t to, int moment) {
    clickDictionary(whole_, from);
    int changes = 0;
    const support::FileLayer layer([&] {
      if (++changes == moment) {
        support::writeFile(copy_, support::readFile(whole_));
        support::writeFile(journal(copy_), support::readFile(journal(whole_)));
      }
      return SQLITE_OK;
    });
    clickDictionary(whole_, to);
    return changes >= moment;
  }

  /// Tries every moment before the last change is done; the defaults are seen in each of `states`
  /// and in no other.
  void tryMove(std::size_t from, std::size_t to, const std::vector<Rows>& states) {
    std::set<Rows> seen;
    int withJournal = 0;
    for (int moment = 1; copyInMove(from, to, moment); ++moment) {
      SCOPED_TRACE(moment);
      if (std::filesystem::file_size(journal(copy_)) > 0) ++withJournal;
      support::expectEveryWindowReads(copy_);
      support::expectValidExceptDefault(copy_);
      seen.insert(storedDefaults(copy_));
      clickDictionary(copy_, 2);
      EXPECT_EQ(storedDefaults(copy_), (Rows{2}));
      EXPECT_FALSE(std::filesystem::exists(journal(copy_)));
      ASSERT_LT(moment, 200);
    }
    EXPECT_EQ(seen, std::set<Rows>(states.begin(), states.end()));
    EXPECT_GT(withJournal, 5);
  }

  std::filesystem::path whole_ = folder_.file(u"whole.dat");
  std::filesystem::path copy_ = folder_.file(u"copy.dat");
};

TEST_F(DefaultFlagCopied, DownTheListTheFormerDefaultIsResetFirst) { tryMove(4, 7, {{4}, {}}); }

TEST_F(DefaultFlagCopied, UpTheListTheNewDefaultIsSetFirst) { tryMove(7, 4, {{7}, {4, 7}}); }

}  // namespace
