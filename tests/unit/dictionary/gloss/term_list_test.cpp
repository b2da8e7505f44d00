#include "dictionary/gloss/term_list.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "dictionary/console.h"
#include "tests/support/data/temp_folder.h"
#include "text/order.h"

namespace {

using dictionary::Subject;
using dictionary::Term;

std::vector<Term> read(const std::string& text) {
  std::istringstream stream(text);
  return dictionary::readTerms(stream, Subject::kComputing, "comp.csv");
}

std::string failureOf(const std::string& text) {
  try {
    read(text);
  } catch (const dictionary::Failure& failure) {
    return failure.what();
  }
  return "";
}

/// The list of the repository.
std::filesystem::path ownList() {
  return std::filesystem::path(__FILE__)
             .parent_path()
             .parent_path()
             .parent_path()
             .parent_path()
             .parent_path() /
         "dictionary" / "terms";
}

TEST(TermList, ReadsAPairALine) {
  const std::vector<Term> terms = read("deep learning,深度学习\nX-ray laser,X射线激光\n");
  ASSERT_EQ(terms.size(), 2U);
  EXPECT_EQ(terms[0].english, u"deep learning");
  EXPECT_EQ(terms[0].chinese, u"深度学习");
  EXPECT_EQ(terms[0].subject, Subject::kComputing);
  EXPECT_EQ(terms[1].chinese, u"X射线激光");
}

TEST(TermList, NamesTheLineThatIsNoPair) {
  const std::string form = "not an English and a Chinese term";
  const std::string english = "the English term cannot be looked up";
  const std::string chinese = "the Chinese term cannot be looked up";
  const std::vector<std::pair<std::string, std::string>> lines = {
      {"deep learning", form},
      {"a,b,深度学习", form},
      {"", form},
      {"\"deep learning,深度学习", form},
      {"100%,百分之百", english},
      {" deep learning,深度学习", english},
      {"naïve Bayes,朴素贝叶斯", english},
      {"深度学习,深度学习", english},
      {"deep learning,deep", chinese},
      {"deep learning,深度 学习", chinese},
      {"deep learning,深度(学习)", chinese},
      {"deep learning,深度、学习", chinese},
      {"deep learning,深度学习深度学习深度学习深度学习深度学习深", chinese}};
  for (const auto& [line, what] : lines) {
    EXPECT_EQ(failureOf("cloud,云\n" + line + "\n"), "comp.csv, line 2: " + what) << line;
  }
}

TEST(TermList, TakesTheSubjectFromTheFileName) {
  const support::TempFolder folder;
  support::writeFile(folder.file(u"law.csv"), "privacy,隐私权\n");
  support::writeFile(folder.file(u"med.csv"), "mRNA,信使核糖核酸\n");
  support::writeFile(folder.file(u"general.csv"), "this aspect,这方面\n");
  support::writeFile(folder.file(u"README.md"), "not a list\n");
  const std::vector<Term> terms = dictionary::readTermList(folder.path());
  ASSERT_EQ(terms.size(), 3U);
  EXPECT_EQ(terms[0].english, u"this aspect");
  EXPECT_EQ(terms[0].subject, std::nullopt);
  EXPECT_EQ(terms[1].subject, Subject::kMedicine);
  EXPECT_EQ(terms[2].subject, Subject::kLaw);
}

TEST(TermList, TellsTheTermsThatASourceGivesToo) {
  const support::TempFolder folder;
  support::writeFile(folder.file(u"law.csv"), "privacy,隐私权\n");
  std::filesystem::create_directory(folder.file(u"given"));
  support::writeFile(folder.file(u"given") / "econ.csv", "carbon sink,碳汇\n");
  const std::vector<Term> terms = dictionary::readTermList(folder.path());
  ASSERT_EQ(terms.size(), 2U);
  EXPECT_FALSE(terms[0].given);
  EXPECT_EQ(terms[1].english, u"carbon sink");
  EXPECT_EQ(terms[1].subject, Subject::kEconomy);
  EXPECT_TRUE(terms[1].given);
  support::writeFile(folder.file(u"given") / "carbon.csv", "");
  EXPECT_THROW(dictionary::readTermList(folder.path()), dictionary::Failure);
}

TEST(TermList, RefusesAFileOfNoSubject) {
  const support::TempFolder folder;
  support::writeFile(folder.file(u"computers.csv"), "cloud,云\n");
  EXPECT_THROW(dictionary::readTermList(folder.path()), dictionary::Failure);
  EXPECT_THROW(dictionary::readTermList(folder.file(u"none")), dictionary::Failure);
}

// Each file is sorted as the dictionary is, so that a new term has one place, and no pair is in a
// file twice.
TEST(OwnTermList, IsSortedAndHasNoPairTwice) {
  const std::vector<Term> terms = dictionary::readTermList(ownList());
  EXPECT_GE(terms.size(), 4'000U);
  std::set<std::optional<Subject>> subjects;
  for (std::size_t i = 0; i < terms.size(); ++i) {
    subjects.insert(terms[i].subject);
    if (i == 0) continue;
    const Term& former = terms[i - 1];
    if (former.subject != terms[i].subject || former.given != terms[i].given) continue;
    const int order = text::compare(former.english, terms[i].english);
    EXPECT_TRUE(order < 0 || (order == 0 && former.chinese < terms[i].chinese))
        << "line with " << testing::PrintToString(terms[i].english);
  }
  EXPECT_GE(subjects.size(), 17U);  // 16 subjects and the words of none
}

}  // namespace
