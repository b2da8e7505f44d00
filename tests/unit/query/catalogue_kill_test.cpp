// Processes that are killed while they write the default flag. Needs fork.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <utility>
#include <vector>

#include "tests/support/data/file_layer.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/valid_database.h"
#include "tests/support/data/window_queries.h"

namespace {

constexpr int kKills = 300;
constexpr std::size_t kDictionaries = 24;
constexpr std::size_t kPageSize = 4096;

/// Chooses a dictionary in a process of its own, which is killed right before its change number
/// `moment` to a file. Whether it was.
bool killedInClick(const std::filesystem::path& file, std::size_t node, int moment) {
  const pid_t child = fork();
  if (child == 0) {
    int changes = 0;
    const support::FileLayer layer([&] {
      if (++changes == moment) raise(SIGKILL);
      return SQLITE_OK;
    });
    support::clickDictionary(file, node);
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

/// How many pages of two versions of a file differ.
std::size_t changedPages(const std::string& before, const std::string& after) {
  EXPECT_EQ(before.size(), after.size());
  std::size_t changed = 0;
  for (std::size_t at = 0; at < before.size(); at += kPageSize) {
    if (before.compare(at, kPageSize, after, at, kPageSize) != 0) ++changed;
  }
  return changed;
}

/// All of the catalogue but the default.
std::vector<std::u16string> catalogue(const std::filesystem::path& file) {
  data::DataControl control = support::opened(file, query::kAllDictionaries);
  std::vector<std::u16string> texts;
  for (const char16_t* name : {u"TableName", u"Cname", u"Isshow"}) {
    for (std::u16string& value : support::column(control.recordset(), name)) {
      texts.push_back(std::move(value));
    }
  }
  return texts;
}

TEST(DefaultFlagKilled, AtAnyMomentEveryWindowReadsAndTheNextClickRepairs) {
  const support::TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  std::filesystem::copy_file(support::smallDatabase(), file);
  const std::string before = support::readFile(file);
  const std::vector<std::u16string> dictionaries = catalogue(file);
  ASSERT_EQ(dictionaries.size(), 3 * kDictionaries);
  std::size_t stored = 1;
  support::clickDictionary(file, stored);
  int moment = 1;
  int journals = 0;
  for (int kills = 0; kills < kKills;) {
    // Sometimes before the former default in the list, sometimes after it.
    const std::size_t node = 1 + ((stored + 7) % kDictionaries);
    if (!killedInClick(file, node, moment++)) {
      ASSERT_GT(moment, 10) << "the click made hardly any changes";
      moment = 1;
      stored = node;
      continue;
    }
    ++kills;
    if (std::filesystem::exists(std::filesystem::path(file).concat("-journal"))) ++journals;
    support::expectEveryWindowReads(file);
    EXPECT_LE(support::storedDefaults(file).size(), 2U);
    // The catalogue and the head of the file, which counts the changes.
    EXPECT_LE(changedPages(before, support::readFile(file)), 2U);
    EXPECT_EQ(catalogue(file), dictionaries);
    if (kills % 15 == 0) support::expectValidExceptDefault(file);
    stored = 1 + ((node + 3) % kDictionaries);
    support::clickDictionary(file, stored);
    EXPECT_EQ(support::storedDefaults(file), std::vector<std::size_t>{stored});
    if (HasFailure()) FAIL() << "kill " << kills << " at moment " << moment - 1;
  }
  EXPECT_GT(journals, kKills / 2);
  EXPECT_TRUE(dictionary::checkDatabase(file).findings.empty());
}

}  // namespace

#endif
