#include "dictionary/source/csv_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using dictionary::LineFault;
using Fields = std::vector<std::string>;
using namespace std::string_literals;

struct Split {
  LineFault fault;
  Fields fields;
};

Split split(const std::string& line) {
  Split result;
  result.fault = dictionary::splitCsvLine(line, result.fields);
  return result;
}

TEST(CsvLine, SplitsAtCommas) {
  EXPECT_EQ(split("a,b,,d").fields, (Fields{"a", "b", "", "d"}));
  EXPECT_EQ(split("").fields, (Fields{""}));
  EXPECT_EQ(split(",").fields, (Fields{"", ""}));
}

TEST(CsvLine, KeepsCommasAndDoubledQuotesInsideQuotes) {
  EXPECT_EQ(split(R"(a,"b, c",d)").fields, (Fields{"a", "b, c", "d"}));
  EXPECT_EQ(split(R"("say ""hi""",)").fields, (Fields{"say \"hi\"", ""}));
  EXPECT_EQ(split(R"("")").fields, (Fields{""}));
}

TEST(CsvLine, TakesQuotesInsidePlainFieldsAsTheyStand) {
  EXPECT_EQ(split(R"(compound "S",x)").fields, (Fields{"compound \"S\"", "x"}));
}

TEST(CsvLine, NamesWhatIsWrong) {
  EXPECT_EQ(split(R"(a,"b)").fault, LineFault::kOpenQuote);
  EXPECT_EQ(split(R"(a,"b"c,d)").fault, LineFault::kTextAfterQuote);
  EXPECT_EQ(split("a,\0,b"s).fault, LineFault::kControlCharacter);
  EXPECT_EQ(split("a,\x1b[0m,b").fault, LineFault::kControlCharacter);
  EXPECT_EQ(split("a\tb").fault, LineFault::kNone);
}

TEST(CsvLine, RefusesWhatIsNoUtf8) {
  for (const std::string bytes : {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
                                  "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xFF", "\xE4\xB8"}) {
    EXPECT_EQ(split("a," + bytes + ",b").fault, LineFault::kInvalidUtf8);
    EXPECT_FALSE(dictionary::isUtf8(bytes));
  }
  EXPECT_TRUE(dictionary::isUtf8("é 数据 \xF0\x9F\x98\x80"));
}

TEST(CsvLine, DescribesEveryFaultInItsOwnWords) {
  std::vector<std::string_view> texts;
  for (int fault = 0; fault <= static_cast<int>(LineFault::kColumnCount); ++fault) {
    texts.push_back(dictionary::describe(static_cast<LineFault>(fault)));
    EXPECT_FALSE(texts.back().empty());
    for (std::size_t i = 0; i + 1 < texts.size(); ++i) EXPECT_NE(texts[i], texts.back());
  }
}

}  // namespace
