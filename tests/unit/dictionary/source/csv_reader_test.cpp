#include "dictionary/source/csv_reader.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/console.h"
#include "dictionary/source/characters.h"

namespace {

using dictionary::LineFault;
using dictionary::SourceReader;
using Fields = std::vector<std::string>;
using Result = SourceReader::Result;
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

const std::string kHeader =
    "word,phonetic,definition,translation,pos,collins,oxford,tag,bnc,frq,exchange,detail,audio\n";

/// Every line of a source as "word=translation" or "N:fault".
std::vector<std::string> readAll(const std::string& bytes) {
  std::istringstream stream(bytes);
  SourceReader reader(stream);
  std::vector<std::string> lines;
  for (;;) {
    const Result result = reader.next();
    if (result == Result::kEnd) return lines;
    if (result == Result::kEntry) {
      lines.push_back(reader.entry().word + "=" + reader.entry().translation);
    } else {
      lines.push_back(std::to_string(reader.lineNumber()) + ":" +
                      std::string(dictionary::describe(reader.fault())));
    }
  }
}

std::string faultOf(LineFault fault) { return std::string(dictionary::describe(fault)); }

dictionary::SourceEntry entryOf(const std::string& line) {
  std::istringstream stream(kHeader + line);
  SourceReader reader(stream);
  EXPECT_EQ(reader.next(), Result::kEntry);
  return reader.entry();
}

bool isImportant(const std::string& line) { return entryOf(line).important; }

std::string headerFailure(const std::string& bytes) {
  std::istringstream stream(bytes);
  try {
    const SourceReader reader(stream);
  } catch (const dictionary::Failure& failure) {
    return failure.what();
  }
  return "";
}

TEST(SplitCsvLine, SplitsAtCommas) {
  EXPECT_EQ(split("a,b,,d").fields, (Fields{"a", "b", "", "d"}));
  EXPECT_EQ(split("").fields, (Fields{""}));
  EXPECT_EQ(split(",").fields, (Fields{"", ""}));
}

TEST(SplitCsvLine, KeepsCommasAndDoubledQuotesInsideQuotes) {
  EXPECT_EQ(split(R"(a,"b, c",d)").fields, (Fields{"a", "b, c", "d"}));
  EXPECT_EQ(split(R"("say ""hi""",)").fields, (Fields{"say \"hi\"", ""}));
  EXPECT_EQ(split(R"("")").fields, (Fields{""}));
}

TEST(SplitCsvLine, KeepsQuotesInsideUnquotedFields) {
  EXPECT_EQ(split(R"(compound "S",x)").fields, (Fields{"compound \"S\"", "x"}));
}

TEST(SplitCsvLine, ReturnsTheFault) {
  EXPECT_EQ(split(R"(a,"b)").fault, LineFault::kOpenQuote);
  EXPECT_EQ(split(R"(a,"b"c,d)").fault, LineFault::kTextAfterQuote);
  EXPECT_EQ(split("a,\0,b"s).fault, LineFault::kControlCharacter);
  EXPECT_EQ(split("a,\x1b[0m,b").fault, LineFault::kControlCharacter);
  EXPECT_EQ(split("a\x7F").fault, LineFault::kControlCharacter);
  EXPECT_EQ(split("a\tb~").fault, LineFault::kNone);
}

TEST(SplitCsvLine, RefusesInvalidUtf8) {
  for (const std::string bytes : {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
                                  "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xFF", "\xE4\xB8"}) {
    EXPECT_EQ(split("a," + bytes + ",b").fault, LineFault::kInvalidUtf8);
    EXPECT_FALSE(dictionary::isUtf8(bytes));
  }
  EXPECT_TRUE(dictionary::isUtf8("é 数据 \xF0\x9F\x98\x80"));
}

TEST(LineFault, HasADescriptionOfItsOwn) {
  std::vector<std::string_view> texts;
  for (int fault = 0; fault <= static_cast<int>(LineFault::kColumnCount); ++fault) {
    texts.push_back(dictionary::describe(static_cast<LineFault>(fault)));
    EXPECT_FALSE(texts.back().empty());
    for (std::size_t i = 0; i + 1 < texts.size(); ++i) EXPECT_NE(texts[i], texts.back());
  }
}

TEST(SourceReader, ReadsEntries) {
  EXPECT_EQ(readAll(kHeader + "bit,bɪt,,\"n. 位, 比特\",,,,,0,0,,,\nit's,,,它是,,,,,0,0,,,\n"),
            (std::vector<std::string>{"bit=n. 位, 比特", "it's=它是"}));
}

TEST(SourceReader, AcceptsCrLfAndAMissingLastLineFeed) {
  EXPECT_EQ(readAll(kHeader + "a,,,甲,,,,,0,0,,,\r\nb,,,乙,,,,,0,0,,,"),
            (std::vector<std::string>{"a=甲", "b=乙"}));
}

TEST(SourceReader, FindsColumnsByName) {
  EXPECT_EQ(readAll("tag,frq,bnc,oxford,collins,exchange,translation,word\n,0,0,,,,甲,a\n"),
            (std::vector<std::string>{"a=甲"}));
}

TEST(SourceReader, IgnoresAByteOrderMark) {
  EXPECT_EQ(readAll("\xEF\xBB\xBF" + kHeader + "a,,,甲,,,,,0,0,,,\n"),
            (std::vector<std::string>{"a=甲"}));
}

TEST(SourceReader, ReportsBadLinesAndReadsOn) {
  const std::string source = kHeader + "a,,,甲,,,,,0,0,,,\n" +   // 2
                             "b,,,\"乙,,,,,0,0,,,\n" +           // 3: open quote
                             "c,,,丙\n" +                        // 4: columns
                             "d,,,\xB6\xA1,,,,,0,0,,,\n" +       // 5: bytes of another encoding
                             "e\0,,,戊,,,,,0,0,,,\n"s +          // 6: NUL
                             "\n" +                              // 7: empty
                             "f,,,己,,,,,0,0,,,,\n" +            // 8: columns
                             "g,,,\"庚\"x,,,,,0,0,,,\n" +        // 9: text after a quote
                             std::string(2000000, '"') + "\n" +  // 10: too long
                             "h,,,辛,,,,,0,0,,,\n";
  EXPECT_EQ(
      readAll(source),
      (std::vector<std::string>{
          "a=甲", "3:" + faultOf(LineFault::kOpenQuote), "4:" + faultOf(LineFault::kColumnCount),
          "5:" + faultOf(LineFault::kInvalidUtf8), "6:" + faultOf(LineFault::kControlCharacter),
          "8:" + faultOf(LineFault::kColumnCount), "9:" + faultOf(LineFault::kTextAfterQuote),
          "10:" + faultOf(LineFault::kTooLong), "h=辛"}));
}

TEST(SourceReader, MarksEntriesAsImportant) {
  EXPECT_FALSE(isImportant("a,,,甲,,,,,0,0,,,\n"));
  EXPECT_FALSE(isImportant("a,,,甲,,,,,,,,,\n"));
  EXPECT_FALSE(isImportant("a,p,d,甲,n:1,,,,0,0,s:as,x,y\n"));
  EXPECT_TRUE(isImportant("a,,,甲,,3,,,0,0,,,\n"));
  EXPECT_TRUE(isImportant("a,,,甲,,,1,,0,0,,,\n"));
  EXPECT_TRUE(isImportant("a,,,甲,,,,zk,0,0,,,\n"));
  EXPECT_TRUE(isImportant("a,,,甲,,,,,5,0,,,\n"));
  EXPECT_TRUE(isImportant("a,,,甲,,,,,0,7,,,\n"));
}

TEST(SourceReader, ReadsTheBetterOfTwoRanks) {
  EXPECT_EQ(entryOf("a,,,甲,,,,,163,174,,,\n").rank, 163U);
  EXPECT_EQ(entryOf("a,,,甲,,,,,20,7,,,\n").rank, 7U);
  EXPECT_EQ(entryOf("a,,,甲,,,,,0,7,,,\n").rank, 7U);
  EXPECT_EQ(entryOf("a,,,甲,,,,,5,,,,\n").rank, 5U);
  EXPECT_EQ(entryOf("a,,,甲,,,,,0,0,,,\n").rank, 0U);
  EXPECT_EQ(entryOf("a,,,甲,,,,,5x,-3,,,\n").rank, 0U) << "no numbers";
}

TEST(SourceReader, ReadsTheFormsOfAWord) {
  EXPECT_EQ(entryOf("asked,,,问,,,,,0,0,0:ask/1:pd,,\n").exchange, "0:ask/1:pd");
}

TEST(SourceReader, ThrowsWithoutAProperHeader) {
  EXPECT_EQ(headerFailure(""), "the source is empty");
  EXPECT_NE(headerFailure("word,meaning\n").find("translation"), std::string::npos);
  EXPECT_NE(headerFailure("translation\n").find("\"word\""), std::string::npos);
  EXPECT_NE(headerFailure("a,,,甲\n").find("\"word\""), std::string::npos);
  EXPECT_NE(headerFailure("word,\"translation\n").find("header"), std::string::npos);
  EXPECT_NE(headerFailure("\xFF\xFE w o r d").find("UTF-8"), std::string::npos);
}

TEST(SourceReader, ReadsLinesOfUpToAMegabyte) {
  const std::string begin = "a,,,";
  const std::string end = ",,,,,0,0,,,";
  const std::size_t room = (std::size_t{1} << 20U) - begin.size() - end.size();
  const std::string longest = begin + std::string(room, 'b') + end + "\n";
  EXPECT_EQ(readAll(kHeader + longest), (std::vector<std::string>{"a=" + std::string(room, 'b')}));
  EXPECT_EQ(readAll(kHeader + "b" + longest),
            (std::vector<std::string>{"2:" + faultOf(LineFault::kTooLong)}));
}

}  // namespace
