#include "tests/unit/support/hostile_texts.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>

#include "data/cursor.h"
#include "data/database.h"
#include "data/lookup_sql.h"
#include "tests/unit/support/small_dictionary.h"
#include "tests/unit/support/window_queries.h"
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
    database_ = std::make_shared<data::Database>(support::utf8Path(file_),
                                                 data::Patience{kPatience, milliseconds(1000)});
  }

  /// Runs what a box makes of a text, which must end in time with rows of the dictionary or with an
  /// error.
  void run(const std::u16string& sql, std::size_t columns = 2) {
    const auto start = std::chrono::steady_clock::now();
    try {
      data::RecordSet rows(std::make_unique<data::Cursor>(database_, text::toUtf8(sql)));
      ASSERT_LE(rows.recordCount(), 200U);
      for (; !rows.endOfFile(); rows.moveNext()) {
        for (std::size_t i = 0; i < columns; ++i) expectDictionaryText(rows.field(i).text);
      }
      ++answered_;
    } catch (const data::Error&) {
      ++refused_;
    }
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_LT(took, kPatience + milliseconds(1500))
        << std::chrono::duration_cast<milliseconds>(took).count() << " ms";
  }

  static void expectDictionaryText(const std::u16string& value) {
    for (const std::u16string_view foreign : {u"zzmarker", u"CREATE", u"create ", u"sqlite"}) {
      EXPECT_EQ(value.find(foreign), value.npos) << text::toUtf8(value);
    }
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
