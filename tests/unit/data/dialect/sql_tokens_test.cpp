#include "data/dialect/sql_tokens.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using data::Token;
using data::tokenize;

/// One letter for the kind and the text of each part, parted by bars.
std::string cut(std::string_view sql) {
  std::string result;
  for (const Token& token : tokenize(sql)) {
    if (!result.empty()) result += '|';
    result += "WNT#SCB"[static_cast<int>(token.kind)];
    result += token.text;
  }
  return result;
}

TEST(SqlTokens, CutsWordsNumbersAndSymbols) {
  EXPECT_EQ(cut("select edict.word from T"), "Wselect|Wedict|S.|Wword|Wfrom|WT");
  EXPECT_EQ(cut("a>=-12"), "Wa|S>|S=|S-|#12");
  EXPECT_EQ(cut("5.5 7up x1 $a 词"), "#5.5|#7up|Wx1|W$a|W词");
  EXPECT_EQ(cut(" \t\r\n\f"), "");
  EXPECT_EQ(cut(""), "");
}

TEST(SqlTokens, KnowsQuotesAndBrackets) {
  EXPECT_EQ(cut("[edict]where"), "N[edict]|Wwhere");
  EXPECT_EQ(cut("'it''s'x"), "T'it''s'|Wx");
  EXPECT_EQ(cut("''"), "T''");
  EXPECT_EQ(cut("''''"), "T''''");
  EXPECT_EQ(cut("\"a\"\"b\" `c``d`"), "N\"a\"\"b\"|N`c``d`");
  EXPECT_EQ(cut("'select -- /* [' top"), "T'select -- /* ['|Wtop");
  EXPECT_EQ(cut("[a'b] 'c'"), "N[a'b]|T'c'");
}

TEST(SqlTokens, KnowsComments) {
  EXPECT_EQ(cut("a--b\nc"), "Wa|C--b\n|Wc");
  EXPECT_EQ(cut("a--b"), "Wa|C--b");
  EXPECT_EQ(cut("a/*'*/b"), "Wa|C/*'*/|Wb");
  EXPECT_EQ(cut("a/* b"), "Wa|C/* b");
  EXPECT_EQ(cut("a/*/b"), "Wa|C/*/b");
  EXPECT_EQ(cut("a/b-c"), "Wa|S/|Wb|S-|Wc");
}

TEST(SqlTokens, MarksWhatNothingCloses) {
  EXPECT_EQ(cut("a 'b"), "Wa|B'b");
  EXPECT_EQ(cut("a 'b''"), "Wa|B'b''");
  EXPECT_EQ(cut("a [b"), "Wa|B[b");
  EXPECT_EQ(cut("\""), "B\"");
}

TEST(SqlTokens, ComparesNamesWithoutCase) {
  EXPECT_TRUE(data::sameName("Meaning", "mEANING"));
  EXPECT_TRUE(data::sameName("", ""));
  EXPECT_FALSE(data::sameName("word", "words"));
  EXPECT_FALSE(data::sameName("@", "`"));
  EXPECT_EQ(data::bareName(tokenize("[Index]").front()), "Index");
  EXPECT_EQ(data::bareName(tokenize("Index").front()), "Index");
  EXPECT_FALSE(tokenize("[select]").front().isWord("select"));
}

}  // namespace
