#include "dictionary/commands.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "dictionary/console.h"
#include "dictionary/translation/subjects.h"
#include "tests/support/data/sample_database.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/temp_folder.h"

namespace {

struct Outcome {
  dictionary::ExitCode code = dictionary::kSuccess;
  std::string out;
  std::string err;
};

Outcome run(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  Outcome outcome;
  outcome.code = dictionary::runCommand(arguments, out, err);
  outcome.out = out.str();
  outcome.err = err.str();
  return outcome;
}

std::string small() { return support::utf8Path(support::smallDatabase()); }

TEST(Commands, ShowHowTheyAreUsed) {
  const Outcome help = run({"--help"});
  EXPECT_EQ(help.code, dictionary::kSuccess);
  EXPECT_NE(help.out.find("kkbuild build SOURCE.csv OUTPUT"), std::string::npos);
  for (const std::vector<std::string>& wrong : {std::vector<std::string>{},
                                                {"build"},
                                                {"build", "a"},
                                                {"check"},
                                                {"lookup", "a"},
                                                {"coverage"},
                                                {"coverage", "a"},
                                                {"make"},
                                                {"check", "a", "b", "c"},
                                                {"build", "a", "b", "c"},
                                                {"lookup", "a", "b", "c"}}) {
    const Outcome outcome = run(wrong);
    EXPECT_EQ(outcome.code, dictionary::kMisused);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find("kkbuild check FILE [SOURCE.csv]"), std::string::npos);
  }
}

TEST(Commands, BuildThenCheck) {
  const support::TempFolder folder;
  const std::string target = support::utf8Path(folder.file(u"词 kk.dat"));
  const Outcome built = run({"build", support::utf8Path(support::smallSource()), target});
  EXPECT_EQ(built.code, dictionary::kSuccess);
  EXPECT_EQ(built.out, "");
  const Outcome checked = run({"check", target});
  EXPECT_EQ(checked.code, dictionary::kSuccess);
  EXPECT_NE(checked.out.find("all other rules are kept"), std::string::npos);
  EXPECT_NE(checked.out.find("24 subject dictionaries"), std::string::npos);
  EXPECT_NE(checked.out.find("not checked without it"), std::string::npos);
}

TEST(Commands, CheckComparesWithTheSource) {
  const support::TempFolder folder;
  const std::string source = support::utf8Path(folder.file(u"source.csv"));
  support::writeFile(folder.file(u"source.csv"), support::readFile(support::smallSource()));
  const Outcome same = run({"check", small(), source});
  EXPECT_EQ(same.code, dictionary::kSuccess);
  EXPECT_EQ(same.out.find("not checked"), std::string::npos);
  EXPECT_NE(same.out.find("0 important words have no Chinese text in the source; 0 of them"),
            std::string::npos);
  support::writeFile(folder.file(u"source.csv"), support::readFile(support::smallSource()) +
                                                     "cooty,,,n. =cootie,,5,1,gre,1,1,,,\n");
  const Outcome untranslated = run({"check", small(), source});
  EXPECT_EQ(untranslated.code, dictionary::kSuccess);
  EXPECT_NE(
      untranslated.out.find("1 important words have no Chinese text in the source; 1 of them"),
      std::string::npos);
  support::writeFile(folder.file(u"source.csv"), support::readFile(support::smallSource()) +
                                                     "zyzzyva,,,象鼻虫,,5,1,gre,1,1,,,\n");
  const Outcome other = run({"check", small(), source});
  EXPECT_EQ(other.code, dictionary::kFailed);
  EXPECT_NE(other.out.find("marks as important has a row\n    «zyzzyva»"), std::string::npos);
  EXPECT_EQ(run({"check", small(), small()}).code, dictionary::kFailed) << "no source";
}

TEST(Commands, SayInOneSentenceWhatFailed) {
  const support::TempFolder folder;
  const std::string target = support::utf8Path(folder.file(u"kk.dat"));
  const Outcome built = run({"build", support::utf8Path(folder.file(u"none.csv")), target});
  EXPECT_EQ(built.code, dictionary::kFailed);
  EXPECT_EQ(built.err.find("kkbuild: there is no file"), 0U);
  EXPECT_EQ(std::count(built.err.begin(), built.err.end(), '\n'), 1);
  EXPECT_EQ(run({"check", target}).code, dictionary::kFailed);
  EXPECT_EQ(run({"lookup", target, "a"}).code, dictionary::kFailed);
  support::writeFile(folder.file(u"kk.dat"), "no database at all, but long enough to be read");
  const Outcome lookedUp = run({"lookup", target, "a"});
  EXPECT_EQ(lookedUp.code, dictionary::kFailed);
  EXPECT_EQ(lookedUp.err,
            "kkbuild: \"" + target + "\" cannot be read as a dictionary: file is not a database\n");
}

TEST(Commands, CheckFailsForABrokenRule) {
  const support::TempFolder folder;
  std::filesystem::copy_file(support::smallDatabase(), folder.file(u"kk.dat"));
  support::Writer(folder.file(u"kk.dat")).run("update edict set cid=3 where eid=9");
  const Outcome outcome = run({"check", support::utf8Path(folder.file(u"kk.dat"))});
  EXPECT_EQ(outcome.code, dictionary::kFailed);
  EXPECT_NE(outcome.out.find("links back"), std::string::npos);
  EXPECT_NE(outcome.out.find("[edict] row 9"), std::string::npos);
  EXPECT_NE(outcome.out.find("breaks the rules above"), std::string::npos);
}

TEST(Commands, LookupShowsListAndMeaning) {
  const Outcome outcome = run({"lookup", small(), " bit"});
  EXPECT_EQ(outcome.code, dictionary::kSuccess);
  EXPECT_EQ(outcome.out.find("bit\nbite\n"), 0U);
  EXPECT_NE(outcome.out.find("\n\n bit\n 比特；\n 位\n"), std::string::npos);
}

TEST(Commands, CoverageCountsWords) {
  const support::TempFolder folder;
  const std::string text = support::utf8Path(folder.file(u"text"));
  EXPECT_EQ(run({"coverage", small(), text}).err, "kkbuild: there is no file \"" + text + "\"\n");
  support::writeFile(folder.file(u"text"), "data bits");
  const Outcome outcome = run({"coverage", small(), text});
#ifdef _WIN32
  EXPECT_EQ(outcome.code, dictionary::kFailed);
  EXPECT_EQ(outcome.err.find("kkbuild: kkbuild for Windows cannot read texts"), 0U);
#else
  EXPECT_EQ(outcome.code, dictionary::kSuccess);
  EXPECT_EQ(outcome.out.find("\"" + text + "\"\n  2 words, 2 of them"), 0U);
  EXPECT_EQ(outcome.err, "");
#endif
}

TEST(Commands, LookupFindsNothingBehindTheLastWord) {
  const Outcome outcome = run({"lookup", small(), "zzz"});
  EXPECT_EQ(outcome.code, dictionary::kFailed);
  EXPECT_EQ(outcome.out, "");
}

TEST(Commands, LookupSaysWhatTheWindowWouldNotLookUp) {
  for (const std::string word : {"%abc", "*", "  ?x", "_data"}) {
    const Outcome outcome = run({"lookup", small(), word});
    EXPECT_EQ(outcome.code, dictionary::kFailed) << word;
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err,
              "kkbuild: an English word to look up may not begin with a wildcard (* _ ? %)\n");
  }
  for (const std::string word : {"", "   "}) {
    const Outcome outcome = run({"lookup", small(), word});
    EXPECT_EQ(outcome.code, dictionary::kFailed);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "kkbuild: there is nothing to look up\n");
  }
  EXPECT_EQ(run({"lookup", small(), "?数"}).err.find("wildcard"), std::string::npos);
}

/// A query for the number of rows of each subject dictionary.
std::string rowCounts() {
  std::string sql;
  for (const dictionary::SubjectInfo& subject : dictionary::kSubjectInfos) {
    if (!sql.empty()) sql += " union all ";
    sql += "select count(*) as rows from " + std::string(subject.table);
  }
  return sql;
}

TEST(Commands, CheckCountsWhatItRead) {
  const support::TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  std::filesystem::copy_file(support::smallDatabase(), file);
  support::Writer database(file);
  const auto number = [&](const std::string& sql) {
    return dictionary::grouped(static_cast<std::size_t>(database.number(sql)));
  };
  const std::string counts = number("select count(*) from edict") + " pairs of " +
                             number("select count(distinct word) from edict") + " English and " +
                             number("select count(distinct word) from cdict") +
                             " Chinese headwords; 24 subject " + "dictionaries with " +
                             number("select sum(rows) from (" + rowCounts() + ")") + " rows\n";
  EXPECT_EQ(run({"check", support::utf8Path(file)}).out.find(counts), 0U) << counts;

  database.run("delete from cdict;delete from cdictidx");
  EXPECT_NE(run({"check", support::utf8Path(file)}).out.find("0 of 0 Chinese lists (0.0 %) end"),
            std::string::npos);
}

TEST(Commands, CheckPrintsTheLengthsOfListsWithTheSource) {
  const Outcome checked = run({"check", small(), support::utf8Path(support::smallSource())});
  EXPECT_NE(checked.out.find(" frequent English words: "), std::string::npos) << checked.out;
  EXPECT_NE(checked.out.find(" % with fewer than 10, "), std::string::npos);
  EXPECT_EQ(run({"check", small()}).out.find("frequent English words"), std::string::npos);
}

TEST(Commands, CountFrequentChineseWords) {
  const support::TempFolder folder;
  std::string list = "算盘 9 n\n";
  for (int i = 0; i < 999; ++i) list += "无此词 1 n\n";
  support::writeFile(folder.file(u"list.txt"), list);
  const Outcome counted =
      run({"coverage", "--chinese", small(), support::utf8Path(folder.file(u"list.txt"))});
  EXPECT_EQ(counted.code, dictionary::kSuccess);
  EXPECT_NE(counted.out.find("of the 1,000 most frequent Chinese words 999 have no row (99.9 %)"),
            std::string::npos);
}

TEST(Commands, BuildFromAllSources) {
  const support::TempFolder folder;
  support::writeFile(folder.file(u"all.js"),
                     "export default {\"all\":[[\"基站\",\"基站\",\"\",\"base station\"]]}");
  support::writeFile(folder.file(u"list.txt"), "基站 9 n\n");
  std::filesystem::create_directory(folder.file(u"terms"));
  const auto path = [&](std::u16string_view name) { return support::utf8Path(folder.file(name)); };
  const Outcome built = run({"build", support::utf8Path(support::smallSource()), path(u"all.js"),
                             path(u"list.txt"), path(u"terms"), path(u"kk.dat")});
  EXPECT_EQ(built.code, dictionary::kSuccess) << built.err;
  EXPECT_EQ(run({"lookup", path(u"kk.dat"), "base station"}).out.find("base station\n"), 0U);
}

}  // namespace
