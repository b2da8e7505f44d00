#include "dictionary/gloss/names/dates.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using dictionary::withoutRoughDate;
using dictionary::withoutYears;

// "亚罗号事件 | the Arrow Incident of 1856 (…)", "七七事变 | Marco Polo Bridge Incident of 7th July
// 1937, …", "华北事变 | North China Incident of October-December 1935, …", "长平之战 | Battle of
// Changping of 260 BC, …", "马噶尔尼使团 | the Macartney mission to Qing China in 1793", "中俄边界
// 协议 | Sino-Russian Border Agreement of 1991"
TEST(WithoutYears, CutsTheDateOfAnEvent) {
  EXPECT_EQ(withoutYears(u"Arrow Incident of 1856"), u"Arrow Incident");
  EXPECT_EQ(withoutYears(u"Marco Polo Bridge Incident of 7th July 1937"),
            u"Marco Polo Bridge Incident");
  EXPECT_EQ(withoutYears(u"North China Incident of October-December 1935"),
            u"North China Incident");
  EXPECT_EQ(withoutYears(u"Battle of Changping of 260 BC"), u"Battle of Changping");
  EXPECT_EQ(withoutYears(u"Macartney mission to Qing China in 1793"),
            u"Macartney mission to Qing China");
  EXPECT_EQ(withoutYears(u"Sino-Russian Border Agreement of 1991"),
            u"Sino-Russian Border Agreement");
}

// "巴黎公社 | Paris Commune 1871, …", "方法论 | Discours de la méthode by René Descartes …, 1637",
// "东汉 | Eastern or later Han dynasty, 25-220", "皖系军阀 | Anhui faction of Northern Warlords
// 1911-c.1929"
TEST(WithoutYears, CutsYearsAlone) {
  EXPECT_EQ(withoutYears(u"Paris Commune 1871"), u"Paris Commune");
  EXPECT_EQ(withoutYears(u"Discours by Rene Descartes, 1637"), u"Discours by Rene Descartes");
  EXPECT_EQ(withoutYears(u"Eastern or later Han dynasty, 25-220"), u"Eastern or later Han dynasty");
  EXPECT_EQ(withoutYears(u"Anhui faction of Northern Warlords 1911-c.1929"),
            u"Anhui faction of Northern Warlords");
}

// "反分裂法 | anti-secession law of 2005 (…)", "周王朝 | the Zhou dynasty from 1027 BC",
// "四项基本原 则 | the Four Cardinal Principles enunciated by Deng Xiaoping … in 1979: …", "韩 |
// Korea from the fall of the Joseon dynasty in 1897", "中国制造2025 | Made in China 2025, …"
TEST(WithoutYears, LeavesOtherNumbers) {
  for (const std::u16string_view gloss :
       {u"anti-secession law of 2005", u"Zhou dynasty from 1027 BC", u"Boeing 747", u"Group of 77",
        u"Four Cardinal Principles enunciated by Deng Xiaoping in 1979", u"Year 1900", u"In 1900",
        u"Korea from the fall of the Joseon dynasty in 1897", u"Made in China 2025",
        u"Tiananmen Incident of June 4", u"Top 25-100", u"1871", u"AD", u"X"}) {
    EXPECT_EQ(withoutYears(gloss), gloss);
  }
}

// "周文王 | King Wen of Zhou state (c. 1152-1056 BC), reigned c. 1099-1056 BC as king of …",
// "乌齐雅 | Uzziah … before c. 750 BC"
TEST(WithoutRoughDate, CutsWhatLeadsToTheDate) {
  EXPECT_EQ(withoutRoughDate(u"King Wen of Zhou state, reigned c. 1099-1056 BC as king"),
            u"King Wen of Zhou state");
  EXPECT_EQ(withoutRoughDate(u"Uzziah before c. 750 BC"), u"Uzziah before c. 750 BC");
}

}  // namespace
