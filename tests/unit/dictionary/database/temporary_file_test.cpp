#include "dictionary/database/temporary_file.h"

#include <gtest/gtest.h>

#include "dictionary/console.h"
#include "tests/support/data/temp_folder.h"

namespace {

// A folder that is not empty takes the place to which the second of the three files is to be moved.
TEST(TemporaryFile, PutsBackWhatItMovedAsideBeforeItFailed) {
  const support::TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  support::writeFile(file, "former");
  support::writeFile(folder.file(u"kk.dat-journal"), "journal");
  support::writeFile(folder.file(u"kk.dat-wal"), "wal");
  std::filesystem::create_directory(folder.file(u"kk.dat.old-wal"));
  support::writeFile(folder.file(u"kk.dat.old-wal") / "inside", "x");
  {
    const dictionary::TemporaryFile temporary(file);
    support::writeFile(temporary.path(), "new");
    EXPECT_THROW(temporary.replace(file), dictionary::Failure);
  }
  EXPECT_EQ(support::readFile(file), "former");
  EXPECT_EQ(support::readFile(folder.file(u"kk.dat-journal")), "journal");
  EXPECT_EQ(support::readFile(folder.file(u"kk.dat-wal")), "wal");
  EXPECT_EQ(support::entryCount(folder.path()), 4);
}

}  // namespace
