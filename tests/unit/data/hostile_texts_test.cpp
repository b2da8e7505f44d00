#include "tests/support/data/hostile_texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <memory>
#include <set>

#include "data/database.h"
#include "data/lookup_sql.h"
#include "data/record_set.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/window_queries.h"
#include "text/query_text.h"

namespace {

using std::chrono::milliseconds;

/// A dictionary that also holds what the engine keeps for itself: "zzmarker" stands in its schema,
/// its counters and its statistics only.
class HostileTexts : public testing::Test {
 protected:
  HostileTexts() {
    std::filesystem::copy_file(support::smallDatabase(), file_);
    support::Writer(file_).run(
        "create table zzmarker (id integer primary key autoincrement, a text);"
        "create index zzmarker_a on zzmarker (a); insert into zzmarker (a) values ('x'); analyze");
    before_ = support::readFile(file_);
    dictionaryTexts_ = allTextsOf(support::smallDatabase());
    database_ = std::make_shared<data::Database>(support::utf8Path(file_),
                                                 data::Timeouts{kPatience, milliseconds(1000)});
  }

  /// Runs what a box makes of a text, which must end in time with rows of the dictionary or with an
  /// error.
  void run(const std::u16string& sql, std::size_t columns = 2) {
    // Processor time where the C library counts that: a busy machine is not the engine's fault.
    const std::clock_t start = std::clock();
    try {
      data::RecordSet rows(database_, text::toUtf8(sql));
      ASSERT_LE(rows.recordCount(), 200U);
      for (; !rows.endOfFile(); rows.moveNext()) {
        for (std::size_t i = 0; i < columns; ++i) expectDictionaryText(rows.field(i).text);
      }
      ++answered_;
    } catch (const data::Error&) {
      ++refused_;
    }
    const milliseconds took((std::clock() - start) * 1000 / CLOCKS_PER_SEC);
    EXPECT_LT(took, kPatience + milliseconds(1500)) << took.count() << " ms";
  }

  void expectDictionaryText(const std::u16string& value) {
    const std::size_t first = std::min(value.find_first_not_of(support::kPadding), value.size());
    const std::size_t last = value.find_last_not_of(support::kPadding);
    EXPECT_TRUE(dictionaryTexts_.contains(value.substr(first, last + 1 - first)))
        << text::toUtf8(value.substr(0, 120));
  }

  /// Everything that stands in the tables that a user may read.
  static std::set<std::u16string> allTextsOf(const std::filesystem::path& file) {
    std::set<std::u16string> texts{u""};
    data::Database database(support::utf8Path(file));
    for (const char* table : {"edict", "cdict", "edictidx", "cdictidx", "[Index]", "med"}) {
      for (const data::Cell& cell :
           database.read(std::string("select * from ") + table, 1'000'000).cells) {
        texts.insert(text::toUtf16(cell.text));
      }
    }
    return texts;
  }

  void expectUntouched() {
    database_.reset();
    EXPECT_EQ(support::readFile(file_), before_);
    EXPECT_EQ(support::entryCount(folder_.path()), 1);
  }

  template <class Box>
  void typeAllInto(Box sqlOf, std::size_t columns = 2) {
    const auto texts = support::hostileTexts();
    ASSERT_GE(texts.size(), 50U);
    for (const std::u16string& hostile : texts) {
      SCOPED_TRACE(text::toUtf8(hostile.substr(0, 120)));
      run(sqlOf(hostile), columns);
    }
    expectUntouched();
  }

  static constexpr milliseconds kPatience{200};
  support::TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
  std::string before_;
  std::set<std::u16string> dictionaryTexts_;
  std::shared_ptr<data::Database> database_;
  int answered_ = 0;
  int refused_ = 0;
};

TEST_F(HostileTexts, InTheInputBoxOfTheSubjectSearch) {
  for (const std::u16string_view mode : {query::kEasy, query::kComplex}) {
    const auto texts = support::hostileTexts();
    for (std::u16string hostile : texts) {
      SCOPED_TRACE(text::toUtf8(hostile.substr(0, 120)));
      run(query::makeQuerySql(hostile, mode, u"med").sql);
    }
  }
  expectUntouched();
  // A doubled quote ends no text: nothing but a pattern that is too long is refused.
  EXPECT_GE(answered_, 180);
}

TEST_F(HostileTexts, InTheEnglishBoxOfTheSpecialSearch) {
  typeAllInto(
      [](const std::u16string& hostile) { return query::specialSql(u"med", hostile, u"的"); });
  EXPECT_GE(refused_, 50);
}

TEST_F(HostileTexts, InTheChineseBoxOfTheSpecialSearch) {
  typeAllInto(
      [](const std::u16string& hostile) { return query::specialSql(u"med", u"a", hostile); });
  EXPECT_GE(refused_, 50);
}

TEST_F(HostileTexts, InBothBoxesOfTheSpecialSearch) {
  typeAllInto(
      [](const std::u16string& hostile) { return query::specialSql(u"med", hostile, hostile); });
}

TEST_F(HostileTexts, AroundTheWholeSpecialSearch) {
  // What one box opens, the other closes.
  run(query::specialSql(u"med", u"' /*", u"*/ union select name,sql from sqlite_master --"));
  run(query::specialSql(u"med", u"' union select name,'", u"' from sqlite_master --"));
  run(query::specialSql(u"med", u"' or word in (select sql from sqlite_master) or '", u"' or '1"));
  expectUntouched();
  EXPECT_EQ(refused_, 3);
}

TEST_F(HostileTexts, WhatTheEngineKeepsIsRefusedByEveryName) {
  for (const std::u16string& hostile : support::hostileTexts()) {
    const bool names = std::ranges::any_of(
        std::array{u"sqlite_", u"pragma_", u"json_each", u"dbstat", u"fts3tokenize"},
        [&](const char16_t* name) { return hostile.find(name) != hostile.npos; });
    if (!names) continue;
    SCOPED_TRACE(text::toUtf8(hostile));
    const int refused = refused_;
    run(query::specialSql(u"med", hostile, u"的"));
    EXPECT_EQ(refused_, refused + 1);
  }
  EXPECT_EQ(answered_, 0);
  EXPECT_GE(refused_, 20);
}

TEST_F(HostileTexts, InTheInputBoxOfTheQuickLookup) {
  typeAllInto(
      [](std::u16string hostile) {
        user::escapeQuote(hostile);
        const data::Bounds all{0, 1'000'000};
        return user::getEorC(hostile) == user::kChinese ? data::chineseListSql(all, hostile)
                                                        : data::englishListSql(all, hostile);
      },
      1);
  EXPECT_EQ(refused_, 0);
}

TEST_F(HostileTexts, InTheIndexQueriesOfTheQuickLookup) {
  for (const auto sqlOf : {data::indexRowsUpToSql, data::indexRowsFromSql}) {
    typeAllInto([&](std::u16string hostile) { return sqlOf(user::escapeQuote(hostile)); });
    database_ = std::make_shared<data::Database>(support::utf8Path(file_));
  }
  EXPECT_EQ(refused_, 0);
}

TEST_F(HostileTexts, AsAWordOfTheQuickLookup) {
  typeAllInto([](std::u16string hostile) {
    user::escapeQuote(hostile);
    const data::Bounds all{0, 1'000'000};
    return user::getEorC(hostile) == user::kChinese ? data::chineseMeaningSql(all, hostile)
                                                    : data::englishMeaningSql(all, hostile);
  });
  EXPECT_EQ(refused_, 0);
}

}  // namespace
