#include "dictionary/report.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

using dictionary::BuildReport;
using dictionary::LineFault;
using dictionary::Tier;

TEST(LineRanges, JoinsConsecutiveLines) {
  dictionary::LineRanges lines;
  EXPECT_EQ(lines.count(), 0U);
  lines.add(7);
  EXPECT_EQ(lines.text(), "line 7");
  lines.add(8);
  EXPECT_EQ(lines.text(), "lines 7-8");
  lines.add(9);
  lines.add(12);
  lines.add(20);
  lines.add(21);
  EXPECT_EQ(lines.text(), "lines 7-9, 12, 20-21");
  EXPECT_EQ(lines.count(), 6U);
}

/// The part of the report that begins with `title`.
std::string part(const BuildReport& report, const std::string& title) {
  std::ostringstream out;
  report.print(out);
  const std::size_t begin = out.str().find(title);
  if (begin == std::string::npos) return "";
  // A title is the only line that begins with a letter.
  const std::size_t next = out.str().find_first_of("GS", begin + title.size());
  return out.str().substr(begin, next - begin);
}

TEST(BuildReport, CountsTheSource) {
  const auto entry = [](const std::string& translation) {
    return dictionary::extractEntry({"word", translation}).value();
  };
  BuildReport report;
  for (int i = 0; i < 2; ++i) report.addBadLine(LineFault::kInvalidUtf8);
  for (int i = 0; i < 1234; ++i) report.addBadLine(LineFault::kOpenQuote);
  for (int i = 0; i < 3; ++i) report.addBadHeadword();
  for (int i = 0; i < 5; ++i) report.addEntry(entry(""), 0);
  for (int i = 0; i < 4; ++i) report.addEntry(entry("= bleak"), 0);
  for (int i = 0; i < 6; ++i) report.addEntry(entry("10%溶液"), 0);
  report.addEntry(entry("n. 甲\\n= bleak"), 1);
  report.addEntry(entry("n. 位, 比特, 酸┏, 人名"), 2);
  EXPECT_EQ(part(report, "Source:"),
            "Source:\n"
            "         17  entries read\n"
            "          2  lines skipped: it is not UTF-8\n"
            "      1,234  lines skipped: a quoted field does not end\n"
            "          3  entries left out: the word cannot be looked up\n"
            "          5  entries left out: no translation\n"
            "          4  entries that only refer to another headword\n"
            "          6  entries left out: no equivalent could be used\n"
            "          5  equivalents left out: no Han character\n"
            "          0  equivalents left out: longer than 20 Han characters\n"
            "          6  equivalents left out: punctuation left over\n"
            "          1  equivalents left out: a character lost in the source\n"
            "          1  equivalents left out: a label or a bare particle\n"
            "          0  equivalents left out: explains a name\n");
}

/// Seven pairs of four English and five Chinese headwords, of which the first four are chosen.
dictionary::DatabaseContent content() {
  dictionary::DatabaseContent content;
  content.vocabulary.english = {u"a", u"b", u"c", u"d"};
  content.vocabulary.chinese = {u"丙", u"丁", u"甲", u"乙", u"做"};
  content.vocabulary.pairs = {{0, 0, Tier::kImportantFirst, 0},
                              {0, 1, Tier::kImportant, 1},
                              {0, 2, Tier::kWeb, 2},
                              {1, 0, Tier::kWeb, 0},
                              {2, 1, Tier::kWeb, 1},
                              {2, 3, Tier::kFirst, 0},
                              {3, 3, Tier::kOnly, 0}};
  content.general.edict = {{0, 1}, {0, 3}, {0, 4}, {1, 2}};
  content.general.cdict = {{0, 1}, {0, 4}, {1, 2}, {2, 3}};
  content.subjects[0] = {{u"a", u"甲"}, {u"b", u"乙"}};
  content.subjects[5] = {{u"a", u"甲"}};
  return content;
}

const std::vector<bool> kChosen = {true, true, true, true, false, false, false};

TEST(BuildReport, CountsThePairsBeforeAndAfterTheChoice) {
  BuildReport report;
  report.addContent(content(), kChosen);
  report.addTerms(1'200, 3);
  EXPECT_EQ(
      part(report, "General dictionary:"),
      "General dictionary:\n"
      "          7  pairs of 4 English and 5 Chinese headwords gathered\n"
      "          4  pairs of 2 English and 3 Chinese headwords taken\n"
      "          1  English headwords left out that have a first equivalent\n"
      "          3  of 1,200 terms of the own list left out\n"
      "          0  of 1 left out: important words, first equivalent\n"
      "          0  of 1 left out: important words, further equivalents\n"
      "          1  of 1 left out: other words, first equivalent\n"
      "          0  of 0 left out: several words, first equivalent\n"
      "          0  of 0 left out: other words, equivalent of a subject that is a known word\n"
      "          0  of 0 left out: other Chinese headwords, first row\n"
      "          0  of 0 left out: other words, further equivalents of subjects\n"
      "          0  of 0 left out: other words, further equivalents\n"
      "          0  of 0 left out: forms of other words, further equivalents\n"
      "          1  of 1 left out: first equivalent of words that have only names or web "
      "equivalents\n"
      "          0  of 0 left out: first web equivalent of other words\n"
      "          0  of 0 left out: further names\n"
      "          1  of 3 left out: further web equivalents\n");
}

TEST(BuildReport, CountsTheRowsOfSubjects) {
  BuildReport report;
  report.addContent(content(), kChosen);
  const std::string subjects = part(report, "Subject dictionaries:");
  EXPECT_EQ(subjects.find("Subject dictionaries:\n"
                          "          3  rows in all\n"
                          "          2  med\n"
                          "          0  chem\n"),
            0U);
  EXPECT_NE(subjects.find("          1  elec\n"), std::string::npos);
}

}  // namespace
