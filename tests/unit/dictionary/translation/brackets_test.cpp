#include "dictionary/translation/brackets.h"

#include <gtest/gtest.h>

namespace {

TEST(WithoutNotes, DeletesBracketedNotes) {
  EXPECT_EQ(dictionary::withoutNotes(u"小脑[多发性]硬化(见下)"), u"小脑硬化");
  EXPECT_EQ(dictionary::withoutNotes(u"甲（乙(丙)丁）戊〔己〕庚【辛】<美>壬"), u"甲戊庚壬");
  EXPECT_EQ(dictionary::withoutNotes(u"甲(乙"), u"甲(乙");
  EXPECT_EQ(dictionary::withoutNotes(u"甲)乙"), u"甲)乙");
}

// "inti | n. 印锑（（秘鲁货币单位）"
TEST(WithoutNotes, TakesABracketTypedTwiceForOne) {
  EXPECT_EQ(dictionary::withoutNotes(u"印锑（（秘鲁货币单位）"), u"印锑");
  EXPECT_EQ(dictionary::withoutNotes(u"甲((乙)丙)丁"), u"甲丁");
  EXPECT_EQ(dictionary::withoutNotes(u"甲((乙"), u"甲((乙");
}

TEST(WithoutNotes, KeepsBracketsOfChemicalNames) {
  EXPECT_EQ(dictionary::withoutNotes(u"苯并[c]呋喃酮"), u"苯并[c]呋喃酮");
  EXPECT_EQ(dictionary::withoutNotes(u"茚并[1,2-b]吲哚"), u"茚并[1,2-b]吲哚");
  EXPECT_EQ(dictionary::withoutNotes(u"2-(1-萘甲基)-咪唑啉"), u"2-(1-萘甲基)-咪唑啉");
  EXPECT_EQ(dictionary::withoutNotes(u"四氯合金(III)酸钾"), u"四氯合金(III)酸钾");
  EXPECT_EQ(dictionary::withoutNotes(u"顺(式)-1,4-聚异戊二烯"), u"顺-1,4-聚异戊二烯");
  EXPECT_EQ(dictionary::withoutNotes(u"爱克斯[X]射线"), u"爱克斯射线");
}

// A note may be a sentence: "AAAS | [American Association for the Advancement of Science
// 的缩略]美国科学发展协会". One without an end is none.
TEST(ClosingPosition, IsLookedForWithinFourHundredCharacters) {
  const std::u16string longest = u'(' + std::u16string(398, u'a') + u')';
  EXPECT_EQ(dictionary::closingPosition(longest, 0), 399U);
  EXPECT_EQ(dictionary::withoutNotes(longest + u"甲"), u"甲");
  const std::u16string longer = u'(' + std::u16string(399, u'a') + u')';
  EXPECT_EQ(dictionary::closingPosition(longer, 0), std::u16string_view::npos);
}

TEST(QuotationEnd, IsLookedForWithinFourHundredCharacters) {
  const std::u16string longest = u'“' + std::u16string(398, u'甲') + u'”';
  EXPECT_EQ(dictionary::quotationEnd(longest, 0), 400U);
  const std::u16string longer = u'“' + std::u16string(399, u'甲') + u'”';
  EXPECT_EQ(dictionary::quotationEnd(longer, 0), std::u16string_view::npos);
}

}  // namespace
