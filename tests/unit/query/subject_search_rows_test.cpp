#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/database/schema.h"
#include "query/subject_search.h"
#include "tests/support/data/random_text.h"
#include "tests/support/data/sample_database.h"
#include "text/like.h"
#include "text/order.h"
#include "text/query_text.h"
#include "text/utf.h"

namespace {

/// One line of a result: what is searched, and its other side.
struct Line {
  std::u16string word;
  std::u16string meaning;

  bool operator==(const Line&) const = default;
};

void PrintTo(const Line& line, std::ostream* out) {
  *out << text::toUtf8(line.word) << " = " << text::toUtf8(line.meaning);
}

constexpr std::u16string_view kEnglish = u"aAbBcz '-(5é";
constexpr std::u16string_view kChinese = u"心性病热做(A1 、";

/// A subject dictionary of made-up rows, few texts of which differ much, and searches in it by
/// the windows' SQL texts and by trying every row.
class SubjectSearch : public testing::Test {
 protected:
  static constexpr std::size_t kRows = 3000;

  SubjectSearch() {
    makeRows();
    support::makeDatabase(file_, "create table med" + std::string(dictionary::kSubjectColumns));
    support::Writer writer(file_);
    writer.run("begin");
    for (const Line& row : rows_) {
      writer.run("insert into med values ('" + quoted(row.word) + "','" + quoted(row.meaning) +
                 "')");
    }
    writer.run("commit");
    control_.setConnectionString(support::connectionStringFor(file_));
  }

  /// Rows in the order of their words, which all differ; their meanings repeat.
  void makeRows() {
    while (rows_.size() < kRows) {
      const std::size_t wanted = rows_.size() + kRows / 4;
      while (rows_.size() < wanted) {
        rows_.push_back({random_.from(kEnglish, 9), random_.from(kChinese, 5)});
      }
      const auto compare = [](const Line& a, const Line& b) {
        return text::compare(a.word, b.word) < 0;
      };
      const auto same = [](const Line& a, const Line& b) { return text::equal(a.word, b.word); };
      std::ranges::stable_sort(rows_, compare);
      rows_.erase(std::unique(rows_.begin(), rows_.end(), same), rows_.end());
    }
  }

  static std::string quoted(std::u16string text) { return text::toUtf8(user::escapeQuote(text)); }

  /// A pattern that a search takes for English or for Chinese.
  std::u16string typed(bool english) {
    while (true) {
      std::u16string text = pattern(english);
      if ((user::getEorC(text) == user::kEnglish) == english) return text;
    }
  }

  /// A pattern, typed or copied from a row, perhaps with wildcards and capitals of its own.
  std::u16string pattern(bool english) {
    const Line& row = rows_[random_.below(rows_.size())];
    std::u16string text = english ? row.word : row.meaning;
    if (random_.below(4) == 0) text = random_.from(english ? kEnglish : kChinese, 4);
    text = text.substr(random_.below(text.size() + 1), random_.below(8));
    for (char16_t& unit : text) {
      if (random_.below(6) == 0) unit = u"%_Zb"[random_.below(4)];
    }
    return text;
  }

  /// The rows whose searched side is like `pattern`, in the order of that side; of those that are
  /// alike there, in the order of their words.
  [[nodiscard]] std::vector<Line> tried(bool english, const std::u16string& pattern,
                                        std::size_t limit) const {
    std::vector<Line> lines;
    for (const Line& row : rows_) {
      const Line line = english ? row : Line{row.meaning, row.word};
      if (text::like(pattern, line.word)) lines.push_back(line);
    }
    std::ranges::stable_sort(
        lines, [](const Line& a, const Line& b) { return text::compare(a.word, b.word) < 0; });
    lines.resize(std::min(lines.size(), limit));
    return lines;
  }

  std::vector<Line> searched(const std::u16string& sql) {
    control_.setRecordSource(sql);
    control_.refresh();
    data::RecordSet& found = control_.recordset();
    std::vector<Line> lines;
    for (found.moveFirst(); !found.endOfFile(); found.moveNext()) {
      lines.push_back({found.field(u"word").text, found.field(u"Meaning").text});
    }
    return lines;
  }

  void expectSameLines(bool english, std::u16string_view mode, std::size_t limit) {
    std::size_t lines = 0;
    for (int round = 0; round < 400; ++round) {
      std::u16string text = typed(english);
      const std::u16string like = (mode == query::kComplex ? u"%" : u"") + text + u"%";
      const std::vector<Line> found = searched(query::makeQuerySql(text, mode, u"med").sql);
      ASSERT_EQ(found, tried(english, like, limit)) << text::toUtf8(like);
      lines += found.size();
    }
    EXPECT_GT(lines, 5000U);  // most patterns are found
  }

  RandomText random_{77};
  std::vector<Line> rows_;
  support::TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
  data::DataControl control_;
};

TEST_F(SubjectSearch, FindsEnglishByBeginning) { expectSameLines(true, query::kEasy, 100); }

TEST_F(SubjectSearch, FindsEnglishByPart) { expectSameLines(true, query::kComplex, 200); }

TEST_F(SubjectSearch, FindsChineseByBeginning) { expectSameLines(false, query::kEasy, 100); }

TEST_F(SubjectSearch, FindsChineseByPart) { expectSameLines(false, query::kComplex, 200); }

TEST_F(SubjectSearch, FindsTwoFragmentsInTheOrderOfTheWords) {
  std::size_t lines = 0;
  for (int round = 0; round < 400; ++round) {
    std::u16string english = pattern(true);
    std::u16string chinese = pattern(false);
    std::erase(english, u'\'');
    const std::vector<Line> found = searched(query::specialSql(u"med", english, chinese));
    std::vector<Line> expected;
    for (const Line& row : rows_) {
      if (text::like(u"%" + english + u"%", row.word) &&
          text::like(u"%" + chinese + u"%", row.meaning) && expected.size() < 200) {
        expected.push_back(row);
      }
    }
    ASSERT_EQ(found, expected) << text::toUtf8(english) << " / " << text::toUtf8(chinese);
    lines += found.size();
  }
  EXPECT_GT(lines, 5000U);
}

}  // namespace
