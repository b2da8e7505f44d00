#include "dictionary/coverage/coverage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "dictionary/build.h"
#include "dictionary/console.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/temp_folder.h"

namespace {

using dictionary::Coverage;
using dictionary::Shown;

/// The small dictionary with two forms of other words, of which one is nothing else.
const std::filesystem::path& database() {
  static const support::TempFolder folder;
  static const std::filesystem::path file = [] {
    support::writeFile(folder.file(u"source.csv"), support::readFile(support::smallSource()) +
                                                       "took,,,take的过去式,,,,,0,0,,,\n"
                                                       "felt,,,\"n. 毛毡\\nfeel的过去式\",,3,,zk,"
                                                       "101,0,,,\n");
    std::ostringstream log;
    dictionary::buildDatabase({folder.file(u"source.csv")}, folder.file(u"kk.dat"), log);
    return folder.file(u"kk.dat");
  }();
  return file;
}

Coverage coverageOf(std::u16string_view text) {
  dictionary::PopupLookup lookup(database());
  return dictionary::coverageOf(text, lookup);
}

std::size_t count(const Coverage& coverage, Shown shown, const std::u16string& word) {
  const auto& words = coverage.words.at(static_cast<std::size_t>(shown));
  const auto found = words.find(word);
  return found == words.end() ? 0 : found->second;
}

std::string printed(const Coverage& coverage) {
  std::ostringstream out;
  dictionary::printCoverage(coverage, out);
  return out.str();
}

TEST(CoverageOf, CountsEachWordByWhatIsShown) {
  const Coverage coverage = coverageOf(u"Data took bits, “data” wordless; wordless Wordless's I q");
  EXPECT_EQ(coverage.all, (Coverage::Counts{2, 1, 1, 5}));
  EXPECT_EQ(coverage.lowerCase, (Coverage::Counts{1, 1, 1, 2}));
  EXPECT_EQ(count(coverage, Shown::kMeaning, u"Data"), 1U);
  EXPECT_EQ(count(coverage, Shown::kMeaning, u"data"), 1U);
  EXPECT_EQ(count(coverage, Shown::kShortened, u"bits"), 1U);
  EXPECT_EQ(count(coverage, Shown::kReference, u"took"), 1U);
  EXPECT_EQ(count(coverage, Shown::kNothing, u"wordless"), 2U);
  EXPECT_EQ(count(coverage, Shown::kNothing, u"Wordless"), 1U);
  EXPECT_EQ(count(coverage, Shown::kNothing, u"I"), 1U);
}

TEST(CoverageOf, TakesTheReadingThatIsAHeadword) {
  const Coverage coverage = coverageOf(u"bit's heat-wave data-\nbase river- bank dätum o'clock.");
  EXPECT_EQ(coverage.all, (Coverage::Counts{8, 0, 0, 0}));
  for (const std::u16string word :
       {u"bit", u"heat", u"wave", u"database", u"river", u"bank", u"datum", u"o'clock"}) {
    EXPECT_EQ(count(coverage, Shown::kMeaning, word), 1U);
  }
}

TEST(CoverageOf, CountsLettersWithDigitsApart) {
  const Coverage coverage = coverageOf(u"1st 2nd 1st 42 10-bit B12's 2,4-dinitrobenzene bits' CO₂");
  EXPECT_EQ(coverage.all, (Coverage::Counts{2, 1, 0, 0}));
  EXPECT_EQ(count(coverage, Shown::kMeaning, u"2,4-dinitrobenzene"), 1U);
  EXPECT_EQ(coverage.unread,
            (Coverage::Words{{u"1st", 2}, {u"2nd", 1}, {u"B12's", 1}, {u"CO2", 1}}));
}

TEST(CoverageOf, CountsAFormWithAMeaningOfItsOwnAsFound) {
  const Coverage coverage = coverageOf(u"felt took");
  EXPECT_EQ(coverage.all, (Coverage::Counts{1, 0, 1, 0}));
  EXPECT_EQ(count(coverage, Shown::kMeaning, u"felt"), 1U);
}

TEST(CoverageOf, LeavesApostrophesAroundLettersWithDigitsOut) {
  EXPECT_EQ(coverageOf(u"'1st' 2nd'").unread, (Coverage::Words{{u"1st", 1}, {u"2nd", 1}}));
}

TEST(CoverageOf, CountsNothingInOtherTexts) {
  for (const std::u16string_view text : {u"", u" \r\n", u"42 — 7%", u"\U00020000", u"Жук"}) {
    EXPECT_EQ(coverageOf(text).all, Coverage::Counts{});
    EXPECT_TRUE(coverageOf(text).unread.empty());
  }
}

TEST(PrintCoverage, ShowsSharesAndTheMostFrequentWords) {
  EXPECT_EQ(printed(coverageOf(u"data Data bit bits took another xyzzy xyzzy MP3x")),
            "  8 words, 7 of them in lower case with two or more letters\n"
            "                                       all lower case\n"
            "  found                            37.50 %    28.57 %\n"
            "  found without the last letter    12.50 %    14.29 %\n"
            "  only a reference                 12.50 %    14.29 %\n"
            "  not found                        37.50 %    42.86 %\n"
            "  1 places with letters and digits but no word\n"
            "  found without the last letter, 1 different:\n"
            "         1  bits\n"
            "  only a reference, 1 different:\n"
            "         1  took\n"
            "  not found, 2 different:\n"
            "         2  xyzzy\n"
            "         1  another\n"
            "  letters and digits but no word, 1 different:\n"
            "         1  MP3x\n");
}

TEST(PrintCoverage, SortsEquallyFrequentWordsInTheTextOrder) {
  std::vector<std::u16string> words = {u"xyzzy", u"Zeta", u"Xyzzy", u"yota", u"XYZZY"};
  for (int order = 0; order < 2; ++order) {  // the hash table keeps them in either order
    Coverage coverage;
    for (const std::u16string& word : words) {
      coverage.words.at(static_cast<std::size_t>(Shown::kNothing))[word] = 1;
    }
    coverage.unread = {{u"1st", 2}, {u"2nd", 1}};
    const std::string text = printed(coverage);
    EXPECT_NE(text.find("5 different:\n"
                        "         1  XYZZY\n"
                        "         1  Xyzzy\n"
                        "         1  xyzzy\n"
                        "         1  yota\n"
                        "         1  Zeta\n"),
              std::string::npos);
    EXPECT_NE(text.find("  3 places with letters and digits but no word\n"), std::string::npos);
    std::ranges::reverse(words);
  }
}

TEST(PrintCoverage, ShowsFortyWordsOfAList) {
  Coverage coverage;
  auto& words = coverage.words.at(static_cast<std::size_t>(Shown::kNothing));
  for (std::size_t i = 0; i < 41; ++i) words[std::u16string(i + 2, u'x')] = 1;
  coverage.all = {0, 0, 0, 41};
  const std::string text = printed(coverage);
  EXPECT_NE(text.find("  not found                       100.00 %          -\n"),
            std::string::npos);
  EXPECT_NE(text.find("not found, 41 different:\n"), std::string::npos);
  EXPECT_NE(text.find(" " + std::string(41, 'x') + "\n"), std::string::npos);
  EXPECT_EQ(text.find(std::string(42, 'x')), std::string::npos);
}

#ifndef _WIN32

TEST(ReportCoverage, ShowsEachTextAndAllTogether) {
  const support::TempFolder folder;
  support::writeFile(folder.file(u"a.txt"), "data bits");
  support::writeFile(folder.file(u"文.html"), "<p>bits<p>wordless 1st");
  std::ostringstream out;
  dictionary::reportCoverage(database(), {folder.file(u"a.txt"), folder.file(u"文.html")}, out);
  const std::string a = '"' + support::utf8Path(folder.file(u"a.txt")) + "\"\n  2 words, 2 of them";
  EXPECT_EQ(out.str().find(a), 0U);
  EXPECT_NE(out.str().find("文.html\"\n  2 words, 2 of them"), std::string::npos);
  const std::size_t all = out.str().find("all 2 texts\n  4 words, 4 of them");
  ASSERT_NE(all, std::string::npos);
  const std::string total = out.str().substr(all);
  EXPECT_NE(total.find("         2  bits\n"), std::string::npos);
  EXPECT_NE(total.find("  found                            25.00 %    25.00 %\n"),
            std::string::npos);
  EXPECT_NE(total.find("         1  1st\n"), std::string::npos);

  std::ostringstream single;
  dictionary::reportCoverage(database(), {folder.file(u"a.txt")}, single);
  EXPECT_EQ(single.str().find("all 1"), std::string::npos);
}

#endif

/// What the report of these texts fails with.
std::string failure(const std::filesystem::path& dictionary,
                    const std::vector<std::filesystem::path>& texts) {
  std::ostringstream out;
  try {
    dictionary::reportCoverage(dictionary, texts, out);
  } catch (const dictionary::Failure& error) {
    return error.what();
  }
  return "none";
}

TEST(ReportCoverage, SaysWhatCannotBeRead) {
  const support::TempFolder folder;
  const auto none = folder.file(u"none");
  const auto text = folder.file(u"text");
  support::writeFile(text, "this is no database at all, but long enough to be read");
  EXPECT_EQ(failure(none, {text}), "there is no file " + dictionary::displayName(none));
  EXPECT_EQ(failure(database(), {text, none}), "there is no file " + dictionary::displayName(none));
  EXPECT_EQ(failure(database(), {folder.path()}),
            "there is no file " + dictionary::displayName(folder.path()));
  EXPECT_EQ(failure(text, {text}), dictionary::displayName(text) +
                                       " cannot be read as a dictionary: file is not a database");
#ifdef _WIN32
  EXPECT_EQ(failure(database(), {text}),
            "kkbuild for Windows cannot read texts such as " + dictionary::displayName(text));
#else
  support::writeFile(text, "42 -- 7");
  EXPECT_EQ(failure(database(), {text}), dictionary::displayName(text) + " contains no word");
#endif
}

}  // namespace
