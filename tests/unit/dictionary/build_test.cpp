#include "dictionary/build.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "dictionary/check/check.h"
#include "dictionary/console.h"
#include "tests/support/data/sample_database.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/temp_folder.h"
#include "tests/support/data/unprivileged.h"

namespace {

using support::TempFolder;

std::string build(const std::filesystem::path& source, const std::filesystem::path& target) {
  std::ostringstream log;
  dictionary::buildDatabase({source}, target, log);
  return log.str();
}

std::string failureOf(const std::filesystem::path& source, const std::filesystem::path& target) {
  try {
    build(source, target);
  } catch (const dictionary::Failure& failure) {
    return failure.what();
  }
  return "";
}

TEST(BuildDatabase, KeepsEveryRule) {
  const dictionary::CheckResult result = dictionary::checkDatabase(support::smallDatabase());
  std::ostringstream findings;
  result.findings.print(findings);
  EXPECT_EQ(findings.str(), "");
  EXPECT_EQ(result.dictionaries, 24U);
  EXPECT_GE(result.pairs, 1000U);
  EXPECT_EQ(result.pairs % 100, 0U);
}

TEST(BuildDatabase, WritesTheSameBytesForTheSameSource) {
  const TempFolder folder;
  build(support::smallSource(), folder.file(u"again.dat"));
  EXPECT_EQ(support::readFile(folder.file(u"again.dat")),
            support::readFile(support::smallDatabase()));
}

TEST(BuildDatabase, LeavesNothingBesideTheTarget) {
  const TempFolder folder;
  build(support::smallSource(), folder.file(u"kk.dat"));
  EXPECT_EQ(support::entryCount(folder.path()), 1);
}

TEST(BuildDatabase, ReplacesAFormerDatabase) {
  const TempFolder folder;
  support::writeFile(folder.file(u"kk.dat"), "former");
  build(support::smallSource(), folder.file(u"kk.dat"));
  EXPECT_EQ(support::readFile(folder.file(u"kk.dat")), support::readFile(support::smallDatabase()));
}

TEST(BuildDatabase, KeepsTheFormerDatabaseWhenTheSourceIsBad) {
  const TempFolder folder;
  support::writeFile(folder.file(u"kk.dat"), "former");
  support::writeFile(folder.file(u"empty.csv"), "");
  support::writeFile(folder.file(u"header.csv"), "word,meaning\na,b\n");
  support::writeFile(folder.file(u"short.csv"),
                     "word,translation,collins,oxford,tag,bnc,frq,exchange\na,甲,,,,0,0,\n");
  EXPECT_NE(failureOf(folder.file(u"none.csv"), folder.file(u"kk.dat")), "");
  EXPECT_NE(failureOf(folder.path(), folder.file(u"kk.dat")), "");
  EXPECT_NE(failureOf(folder.file(u"empty.csv"), folder.file(u"kk.dat")), "");
  EXPECT_NE(failureOf(folder.file(u"header.csv"), folder.file(u"kk.dat")), "");
  EXPECT_NE(failureOf(folder.file(u"short.csv"), folder.file(u"kk.dat")), "");
  EXPECT_EQ(support::readFile(folder.file(u"kk.dat")), "former");
  EXPECT_EQ(support::entryCount(folder.path()), 4);
}

TEST(PublishDatabase, RefusesContentThatBreaksARule) {
  const TempFolder folder;
  support::writeFile(folder.file(u"kk.dat"), "former");
  dictionary::DatabaseContent content;
  content.vocabulary.english = {u"zoo", u"ant"};
  content.vocabulary.chinese = {u"动物园", u"蚁"};
  content.general.edict = {{0, 1}, {1, 2}};
  content.general.cdict = {{0, 1}, {1, 2}};
  std::ostringstream log;
  dictionary::Progress progress(log);
  EXPECT_THROW(dictionary::publishDatabase(content, {}, folder.file(u"kk.dat"), log, progress),
               dictionary::Failure);
  EXPECT_NE(log.str().find(dictionary::describe(dictionary::Rule::kOrder)), std::string::npos);
  EXPECT_EQ(support::readFile(folder.file(u"kk.dat")), "former");
  EXPECT_EQ(support::entryCount(folder.path()), 1);
}

// An important word whose only equivalent is a reference to another word.
TEST(BuildDatabase, RefusesWhatLacksAFactOfTheSource) {
  const TempFolder folder;
  std::string source = support::readFile(support::smallSource());
  source += "zyzzyvas,,,zyzzyva的变体,,5,1,gre,1,1,,,\n";
  support::writeFile(folder.file(u"source.csv"), source);
  std::ostringstream log;
  EXPECT_THROW(dictionary::buildDatabase({folder.file(u"source.csv")}, folder.file(u"kk.dat"), log),
               dictionary::Failure);
  EXPECT_NE(log.str().find(dictionary::describe(dictionary::Rule::kOwnMeanings)),
            std::string::npos);
  EXPECT_NE(log.str().find("«zyzzyvas» has only «zyzzyva的变体»"), std::string::npos);
}

TEST(BuildDatabase, KeepsATargetThatCannotBeReplaced) {
  const TempFolder folder;
  std::filesystem::create_directory(folder.file(u"kk.dat"));
  support::writeFile(folder.file(u"kk.dat") / "inside", "x");
  EXPECT_NE(failureOf(support::smallSource(), folder.file(u"kk.dat")), "");
  EXPECT_EQ(support::readFile(folder.file(u"kk.dat") / "inside"), "x");
  EXPECT_EQ(support::entryCount(folder.path()), 1);
}

TEST(BuildDatabase, FailsIfTheTargetsFolderDoesNotExist) {
  const TempFolder folder;
  EXPECT_NE(failureOf(support::smallSource(), folder.file(u"none") / "kk.dat"), "");
}

TEST(BuildDatabase, ReportsBadLinesByTheirNumbersAndReadsOn) {
  const TempFolder folder;
  std::string source = support::readFile(support::smallSource());
  source += "bad,\"line\n";
  source += "worse\xFF,,,,,,,,,,,,\n";
  source += "zyzzyva,,,象鼻虫,,5,1,gre,1,1,,,\n";
  support::writeFile(folder.file(u"source.csv"), source);
  const std::string log = build(folder.file(u"source.csv"), folder.file(u"kk.dat"));
  const auto lines = std::count(source.begin(), source.end(), '\n');
  EXPECT_NE(log.find("line " + std::to_string(lines - 2) + " skipped: a quoted field"),
            std::string::npos);
  EXPECT_NE(log.find("line " + std::to_string(lines - 1) + " skipped: it is not UTF-8"),
            std::string::npos);
  data::DataControl rows =
      support::opened(folder.file(u"kk.dat"), u"select word from edict where word='zyzzyva'");
  EXPECT_FALSE(rows.recordset().empty());
}

TEST(BuildDatabase, ReportsEveryBadLineByItsNumber) {
  const TempFolder folder;
  std::string source = support::readFile(support::smallSource());
  const auto good = std::count(source.begin(), source.end(), '\n');
  for (int i = 0; i < 30; ++i) source += "bad,\"line\n";
  source += "zyzzyva,,,象鼻虫,,5,1,gre,1,1,,,\n";
  source += "worse\xFF,,,,,,,,,,,,\n";
  source += "bad,\"line\n";
  support::writeFile(folder.file(u"source.csv"), source);
  const std::string log = build(folder.file(u"source.csv"), folder.file(u"kk.dat"));
  EXPECT_NE(log.find("line " + std::to_string(good + 20) + " skipped: a quoted field"),
            std::string::npos);
  EXPECT_NE(log.find("lines " + std::to_string(good + 21) + '-' + std::to_string(good + 30) + ", " +
                     std::to_string(good + 33) + " skipped: a quoted field"),
            std::string::npos);
  EXPECT_NE(log.find("line " + std::to_string(good + 32) + " skipped: it is not UTF-8"),
            std::string::npos);
}

TEST(BuildDatabase, ReportsTimeAndMemory) {
  const TempFolder folder;
  const std::string log = build(support::smallSource(), folder.file(u"kk.dat"));
  const std::size_t line = log.rfind("\n[") + 1;
  EXPECT_NE(log.find(" s] done with at most ", line), std::string::npos);
  EXPECT_TRUE(log.ends_with(" MiB of memory\n"));
}

TEST(BuildDatabase, ReportsStepsAndCounts) {
  const TempFolder folder;
  const std::string log = build(support::smallSource(), folder.file(u"kk.dat"));
  for (const std::string part :
       {"entries read", "database checked", "English and", "left out: further web equivalents",
        "Subject dictionaries:", "med"}) {
    EXPECT_NE(log.find(part), std::string::npos) << part;
  }
}

TEST(BuildDatabase, FillsTheCatalogue) {
  data::DataControl control = support::opened(
      support::smallDatabase(), u"select * from  [Index]  where Isshow = 1 order by Cname");
  data::RecordSet& rows = control.recordset();
  EXPECT_EQ(rows.recordCount(), 24U);
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    EXPECT_EQ(rows.field(1).text, rows.field(u"TableName").text);
    EXPECT_EQ(rows.field(2).text, rows.field(u"cname").text);
    EXPECT_EQ(rows.field(3).integer, 1);
    EXPECT_EQ(rows.field(4).integer, rows.field(2).text == u"医学" ? 1 : 0);
  }
}

TEST(BuildDatabase, FillsSubjectDictionaries) {
  data::DataControl control = support::opened(
      support::smallDatabase(), u"select * from chem where word='2,4-dinitrobenzene'");
  data::RecordSet& rows = control.recordset();
  ASSERT_EQ(rows.recordCount(), 1U);
  rows.moveFirst();
  EXPECT_EQ(rows.field(u"meaning").text, u"2,4-二硝基苯；间二硝基苯");
}

TEST(BuildDatabase, ReportsWhatItSkipped) {
  const TempFolder folder;
  std::string source = support::readFile(support::smallSource());
  for (int i = 0; i < 21; ++i) source += "bad,\"line\n";
  for (int i = 0; i < 2; ++i) source += "100%,,,百分之百,,,,,0,0,,,\n";
  support::writeFile(folder.file(u"source.csv"), source);
  const std::string log = build(folder.file(u"source.csv"), folder.file(u"kk.dat"));
  EXPECT_NE(log.find("         21  lines skipped: a quoted field does not end\n"),
            std::string::npos);
  EXPECT_NE(log.find("          2  entries left out: the word cannot be looked up\n"),
            std::string::npos);
  EXPECT_NE(log.find("\nfurther bad lines are named when all is read\n"), std::string::npos);
}

// "endothelioma dural | [医] 硬脑[脊]膜内皮瘤"
TEST(BuildDatabase, AddsShortFormsThatAreWords) {
  const TempFolder folder;
  support::writeFile(folder.file(u"source.csv"),
                     support::readFile(support::smallSource()) +
                         "endothelioma dural,,,[医] 硬脑[脊]膜内皮瘤,,5,1,gre,1,1,,,\n"
                         "dural tumour,,,[医] 硬脑膜内皮瘤,,5,1,gre,1,1,,,\n");
  build(folder.file(u"source.csv"), folder.file(u"kk.dat"));
  data::DataControl control = support::opened(
      folder.file(u"kk.dat"), u"select word from cdict where word like '硬脑%' order by word");
  EXPECT_EQ(support::column(control.recordset(), u"word"),
            (std::vector<std::u16string>{u"硬脑脊膜内皮瘤", u"硬脑膜内皮瘤", u"硬脑膜内皮瘤"}));
}

/// The small source and one of each other kind.
dictionary::SourceFiles allSources(const TempFolder& folder, const std::string& terms) {
  support::writeFile(folder.file(u"all.js"),
                     "export default {\"all\":[[\"基站\",\"基站\",\"ji1 zhan4\","
                     "[\"base station\",\"(computing) cell site\"],[],[]]]}");
  support::writeFile(folder.file(u"frequencies.txt"), "基站 9 n\n");
  std::filesystem::create_directory(folder.file(u"terms"));
  support::writeFile(folder.file(u"terms") / "law.csv", terms);
  return {support::smallSource(), folder.file(u"all.js"), folder.file(u"frequencies.txt"),
          folder.file(u"terms")};
}

TEST(BuildDatabase, TakesPairsOfAllSources) {
  const TempFolder folder;
  std::ostringstream log;
  dictionary::buildDatabase(allSources(folder, "data controller,数据控制者\n"),
                            folder.file(u"kk.dat"), log);
  EXPECT_NE(log.str().find("1 Chinese entries and 1 terms read"), std::string::npos);
  const auto rows = [&](const std::u16string& query) {
    data::DataControl control = support::opened(folder.file(u"kk.dat"), query);
    return support::column(control.recordset(), u"word");
  };
  EXPECT_EQ(rows(u"select word from edict where word in ('base station', 'cell site', "
                 u"'data controller') order by word"),
            (std::vector<std::u16string>{u"base station", u"cell site", u"data controller"}));
  EXPECT_EQ(rows(u"select word from comp where meaning='基站'"),
            std::vector<std::u16string>{u"cell site"});
  EXPECT_EQ(rows(u"select word from law where meaning='数据控制者'"),
            std::vector<std::u16string>{u"data controller"});
}

TEST(BuildDatabase, RefusesTermsThatASourceGives) {
  const TempFolder folder;
  std::ostringstream log;
  EXPECT_THROW(dictionary::buildDatabase(allSources(folder, "abacus,算盘\ncell site,基站\n"),
                                         folder.file(u"kk.dat"), log),
               dictionary::Failure);
  EXPECT_NE(log.str().find("a source gives the term \"abacus\", 算盘\n"), std::string::npos);
  EXPECT_NE(log.str().find("a source gives the term \"cell site\", 基站\n"), std::string::npos);
  EXPECT_EQ(log.str().find("no source gives"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(folder.file(u"kk.dat")));
}

TEST(BuildDatabase, RefusesAsGivenTermsThatNoSourceGives) {
  const TempFolder folder;
  std::ostringstream log;
  const dictionary::SourceFiles sources = allSources(folder, "data controller,数据控制者\n");
  std::filesystem::create_directory(sources.terms / "given");
  support::writeFile(sources.terms / "given" / "comp.csv", "cell site,基站\ncell tower,基站\n");
  EXPECT_THROW(dictionary::buildDatabase(sources, folder.file(u"kk.dat"), log),
               dictionary::Failure);
  EXPECT_NE(log.str().find("no source gives the term \"cell tower\", 基站\n"), std::string::npos);
  EXPECT_EQ(log.str().find("cell site"), std::string::npos);
}

#ifndef _WIN32  // where permissions do not keep a file from being read

TEST(BuildDatabase, SaysThatASourceCannotBeRead) {
  const TempFolder folder;
  const auto source = folder.file(u"source.csv");
  support::writeFile(source, "word,translation\n");
  std::filesystem::permissions(source, std::filesystem::perms::none);
  EXPECT_TRUE(support::passesUnprivileged([&] {
    EXPECT_EQ(failureOf(source, folder.file(u"kk.dat")),
              "cannot read " + dictionary::displayName(source));
  }));
}

#endif

}  // namespace
