// Texts that would keep the engine busy for long, on a dictionary of the largest one's size.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <memory>

#include "data/database.h"
#include "data/error.h"
#include "data/record_set.h"
#include "query/subject_search.h"
#include "tests/support/data/hostile_texts.h"
#include "tests/support/data/sample_database.h"
#include "text/utf.h"

namespace {

using std::chrono::milliseconds;

/// When a user takes a window for frozen.
constexpr milliseconds kFrozen{5000};

class CostlyTexts : public testing::Test {
 protected:
  CostlyTexts() {
    support::makeDatabase(
        file_,
        "create table med (word text collate lexilo, meaning text collate lexilo);"
        "insert into med with recursive n(i) as"
        " (select 1 union all select i+1 from n where i<140000)"
        " select 'word '||(i*7919%140000)||' of many','字'||i from n");
    database_ = std::make_shared<data::Database>(support::utf8Path(file_));
  }

  /// Searches as the special search does, in time and with no more memory than the engine may take.
  void search(const std::u16string& english) {
    sqlite3_memory_highwater(1);
    const auto start = std::chrono::steady_clock::now();
    try {
      const data::RecordSet rows(database_,
                                 text::toUtf8(query::specialSql(u"med", english, u"字")));
      ++answered_;
    } catch (const data::Error&) {
      ++refused_;
    }
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_LT(took, kFrozen) << std::chrono::duration_cast<milliseconds>(took).count() << " ms";
    EXPECT_LE(sqlite3_memory_highwater(0), data::kMaxMemory);
    EXPECT_GT(sqlite3_memory_highwater(0), 0);
  }

  support::TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
  std::shared_ptr<data::Database> database_;
  int answered_ = 0;
  int refused_ = 0;
};

TEST_F(CostlyTexts, EndInTimeWithinTheMemoryThatTheEngineMayTake) {
  std::vector<std::u16string> texts = support::costlyTexts();
  texts.push_back(support::endlessTexts().back());
  for (const std::u16string& costly : texts) {
    SCOPED_TRACE(text::toUtf8(costly.substr(0, 40)));
    search(costly);
  }
  EXPECT_GE(refused_, 5);
  // Nothing is left of it: an honest search finds what it always finds.
  answered_ = 0;
  search(u"word 77");
  EXPECT_EQ(answered_, 1);
}

}  // namespace
