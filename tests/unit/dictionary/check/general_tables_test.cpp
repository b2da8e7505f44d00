#include "dictionary/check/general.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "dictionary/check/check.h"
#include "tests/support/data/sample_database.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/temp_folder.h"

namespace {

/// How many values of the small dictionary are improper after `sql`.
std::size_t improperAfter(const std::string& sql) {
  const support::TempFolder folder;
  std::filesystem::copy_file(support::smallDatabase(), folder.file(u"kk.dat"));
  support::Writer(folder.file(u"kk.dat")).run(sql);
  return dictionary::checkDatabase(folder.file(u"kk.dat"))
      .findings.count(dictionary::Rule::kValues);
}

TEST(CheckValues, RefusesTextsThatAreNotUtf8) {
  EXPECT_EQ(improperAfter("update cdict set word=word||cast(x'ff' as text) where cid=5"), 1U);
  EXPECT_EQ(improperAfter("update edict set word=word||cast(x'c3' as text) where eid=5"), 1U);
  EXPECT_EQ(improperAfter("update med set meaning=meaning||cast(x'e4b8' as text) "
                          "where word='anemia'"),
            1U);
  EXPECT_EQ(improperAfter("update med set word=word||cast(x'80' as text) where word='anemia'"), 1U);
}

TEST(CheckValues, RefusesNumbersBeyond32Bits) {
  EXPECT_EQ(improperAfter("update edict set cid=2147483647 where eid=5"), 0U);
  EXPECT_EQ(improperAfter("update edict set cid=2147483648 where eid=5"), 1U);
  EXPECT_EQ(improperAfter("update edict set cid=-2147483648 where eid=5"), 0U);
  EXPECT_EQ(improperAfter("update edict set cid=-2147483649 where eid=5"), 1U);
}

}  // namespace
