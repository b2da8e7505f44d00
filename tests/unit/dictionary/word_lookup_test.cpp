#include "dictionary/word_lookup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/support/data/sample_dictionary.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/unprivileged.h"

namespace {

using std::filesystem::perms;

constexpr perms kReading = perms::owner_read | perms::group_read | perms::others_read;
constexpr perms kEntering = perms::owner_exec | perms::group_exec | perms::others_exec;

/// A read-only dictionary in a read-only folder.
class LookUpInUnwritableFolder : public testing::Test {
 protected:
  LookUpInUnwritableFolder() {
    support::SampleDictionary().writeTo(file_);
    std::filesystem::permissions(file_, kReading);
    std::filesystem::permissions(folder_.path(), kReading | kEntering);
  }
  ~LookUpInUnwritableFolder() override {
    std::filesystem::permissions(folder_.path(), perms::owner_write, kAdd);
    std::filesystem::permissions(file_, perms::owner_write, kAdd);
  }

  [[nodiscard]] bool canWrite() const {
    return std::ofstream(file_, std::ios::app).is_open() ||
           std::ofstream(folder_.file(u"probe")).is_open();
  }

  static constexpr auto kAdd = std::filesystem::perm_options::add;
  support::TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
};

TEST_F(LookUpInUnwritableFolder, ReadsWithoutWritingAnything) {
  const std::string before = support::readFile(file_);
  const bool passed = support::passesUnprivileged([this] {
#ifndef _WIN32
    // Windows' own attributes keep nobody from making a file in a folder.
    EXPECT_FALSE(canWrite());
#endif
    const dictionary::LookupResult english = dictionary::lookUp(file_, u"data");
    ASSERT_FALSE(english.headwords.empty());
    EXPECT_EQ(english.headwords.front(), u"data");
    EXPECT_EQ(english.meaning, u" data\r\n 数据");
    const dictionary::LookupResult chinese = dictionary::lookUp(file_, u"数据");
    ASSERT_FALSE(chinese.headwords.empty());
    EXPECT_EQ(chinese.headwords.front(), u"数据");
    EXPECT_EQ(chinese.meaning, u" 数据\r\n data；\r\n datum");
  });
  EXPECT_TRUE(passed);
  EXPECT_EQ(support::entryCount(folder_.path()), 1);
  EXPECT_EQ(support::readFile(file_), before);
}

TEST(LookUp, DoublesTheApostropheAsTheWindowDoes) {
  const dictionary::LookupResult result = dictionary::lookUp(support::smallDatabase(), u"it's");
  ASSERT_FALSE(result.headwords.empty());
  EXPECT_EQ(result.headwords.front(), u"it's");
  EXPECT_EQ(result.meaning, u" it''s\r\n 它是；\r\n 它有");
}

TEST(LookUp, FindsChineseWords) {
  const dictionary::LookupResult result = dictionary::lookUp(support::smallDatabase(), u"数据");
  ASSERT_FALSE(result.headwords.empty());
  EXPECT_EQ(result.headwords.front(), u"数据");
  EXPECT_EQ(result.meaning, u" 数据\r\n data；\r\n datum");
}

}  // namespace
