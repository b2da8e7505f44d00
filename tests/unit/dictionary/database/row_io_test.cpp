#include "dictionary/database/row_io.h"

#include <gtest/gtest.h>

#include <chrono>

#include "data/connection.h"
#include "data/error.h"
#include "tests/support/data/sample_database.h"
#include "tests/support/data/temp_folder.h"

namespace {

class RowReader : public testing::Test {
 protected:
  RowReader() {
    support::makeDatabase(folder_.file(u"kk.dat"),
                          "create table t (n integer);insert into t values (7), "
                          "(-9223372036854775808), (9)");
    connection_ = data::openConnection(support::utf8Path(folder_.file(u"kk.dat")),
                                       data::Access::kRead, std::chrono::milliseconds(0));
  }

  support::TempFolder folder_;
  data::Connection connection_;
};

TEST_F(RowReader, ReadsRowByRow) {
  dictionary::RowReader reader(connection_.get(), "select n from t where n > 0");
  ASSERT_TRUE(reader.next());
  EXPECT_EQ(reader.number(0), 7);
  ASSERT_TRUE(reader.next());
  EXPECT_EQ(reader.number(0), 9);
  EXPECT_FALSE(reader.next());
}

TEST_F(RowReader, TakesNoErrorForTheEnd) {
  dictionary::RowReader reader(connection_.get(), "select abs(n) from t");
  ASSERT_TRUE(reader.next());
  EXPECT_EQ(reader.number(0), 7);
  EXPECT_THROW(reader.next(), data::Error) << "integer overflow";
}

}  // namespace
