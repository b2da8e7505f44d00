#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>

#include "dictionary/build.h"
#include "dictionary/check/check.h"
#include "dictionary/console.h"
#include "dictionary/database/temporary_file.h"
#include "tests/support/data/file_layer.h"
#include "tests/support/data/plain_read.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/window_queries.h"

namespace {

constexpr const char* kCompanions[] = {"-journal", "-wal", "-shm"};

std::filesystem::path with(std::filesystem::path file, const char* ending) {
  return file.concat(ending);
}

void build(const std::filesystem::path& source, const std::filesystem::path& target) {
  std::ostringstream log;
  dictionary::buildDatabase({source}, target, log);
}

/// A source with other words than the small one, whose pages therefore differ.
std::filesystem::path otherSource(const support::TempFolder& folder) {
  const auto source = folder.file(u"other.csv");
  support::writeFile(source, support::readFile(support::smallSource()) +
                                 "abaft,,,在船尾,,5,1,gre,1,1,,,\n"
                                 "zyzzyva,,,象鼻虫,,5,1,gre,1,1,,,\n");
  return source;
}

/// Makes `file` the small dictionary as a program leaves it that is killed right before change
/// number `moment` of moving the default. Whether its journal waits to be rolled back.
bool interruptUpdate(const support::TempFolder& folder, const std::filesystem::path& file,
                     int moment) {
  const auto whole = folder.file(u"whole.dat");
  support::writeFile(whole, support::readFile(support::smallDatabase()));
  {
    int changes = 0;
    const support::FileLayer layer([&] {
      if (++changes == moment) {
        support::writeFile(file, support::readFile(whole));
        support::writeFile(with(file, "-journal"), support::readFile(with(whole, "-journal")));
      }
      return SQLITE_OK;
    });
    support::clickDictionary(whole, 4);
    EXPECT_GE(changes, moment) << "no journal ever waited";
  }
  std::filesystem::remove(whole);
  return support::plainRead(file) == SQLITE_READONLY_ROLLBACK;
}

TEST(ReplacedDatabase, AnInterruptedUpdateOfTheOldOneDoesNotReachTheNewOne) {
  const support::TempFolder folder;
  const auto source = otherSource(folder);
  const auto fresh = folder.file(u"fresh.dat");
  build(source, fresh);
  std::filesystem::create_directory(folder.file(u"app"));
  const auto file = folder.file(u"app") / "kk.dat";
  int moment = 1;
  while (!interruptUpdate(folder, file, moment) && !HasFailure()) ++moment;
  ASSERT_FALSE(HasFailure());

  build(source, file);
  EXPECT_EQ(support::entryCount(file.parent_path()), 1) << "something of the old one is left";
  support::expectEveryWindowReads(file);
  EXPECT_EQ(support::readFile(file), support::readFile(fresh));
  EXPECT_TRUE(dictionary::checkDatabase(file).findings.empty());
  data::DataControl rows = support::opened(file, u"select word from edict where word='zyzzyva'");
  EXPECT_FALSE(rows.recordset().empty());
}

TEST(ReplacedDatabase, TakesAlongAllThatStandsBesideTheOldOne) {
  const support::TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  support::writeFile(file, "former");
  for (const char* ending : kCompanions) support::writeFile(with(file, ending), "former");
  const dictionary::TemporaryFile temporary(file);
  support::writeFile(temporary.path(), "new");
  temporary.replace(file);
  EXPECT_EQ(support::readFile(file), "new");
  EXPECT_EQ(support::entryCount(folder.path()), 1);
}

TEST(ReplacedDatabase, KeepsItsJournalWhereItCannotBeReplaced) {
  const support::TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  support::writeFile(file, "former");
  for (const char* ending : kCompanions) support::writeFile(with(file, ending), ending);
  {
    // Nothing was written that could take its place.
    const dictionary::TemporaryFile temporary(file);
    EXPECT_THROW(temporary.replace(file), dictionary::Failure);
  }
  EXPECT_EQ(support::readFile(file), "former");
  for (const char* ending : kCompanions) {
    EXPECT_EQ(support::readFile(with(file, ending)), ending);
  }
  EXPECT_EQ(support::entryCount(folder.path()), 4);
}

}  // namespace
