#include "text/pasted_text.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

std::u16string clean(std::u16string_view pasted) { return text::pastedWord(pasted, nullptr); }

TEST(PastedWord, TakesOffWhatIsAroundAWord) {
  for (const std::u16string_view pasted : {u"network",       u"network.",
                                           u"“network”",     u"‘network’,",
                                           u"\"network\"?",  u"(network)",
                                           u"([network]).",  u"network)",
                                           u"(network",      u"<network>;",
                                           u"«network»",     u"network…",
                                           u"...network...", u"  network\t",
                                           u"\tnetwork\r\n", u"\u00A0network\u3000",
                                           u": network!",    u"\u200Bnetwork\uFEFF",
                                           u"「network」",   u"network。",
                                           u"（network），", u"'network'"}) {
    EXPECT_EQ(clean(pasted), u"network");
  }
}

TEST(PastedWord, TakesOffWhatIsAroundAChineseWord) {
  for (const std::u16string_view pasted :
       {u"数据", u"“数据”", u"《数据》。", u"（数据）", u"【数据】：", u"『数据』、", u"，数据；",
        u"数据……", u"\r\n数据 "}) {
    EXPECT_EQ(clean(pasted), u"数据");
  }
}

TEST(PastedWord, LeavesAWordAsItIs) {
  for (const std::u16string same :
       {u"data bank", u"it's",        u"well-known",     u"C++",    u"C#",
        u".NET",      u"e.g.",        u"U.S.",           u"AT&T",   u"TCP/IP",
        u"-able",     u"chiral(ity)", u"(chloro)ethane", u"(数)据", u"data (plural)",
        u"100%",      u"a?bc",        u"*data",          u"%",      u"B·B·金",
        u"α-氨基",    u"🙂"}) {
    EXPECT_EQ(clean(same), same);
  }
}

TEST(PastedWord, KeepsTheFinalStopOfAnAbbreviationOnly) {
  EXPECT_EQ(clean(u"(e.g.)"), u"e.g.");
  EXPECT_EQ(clean(u"e.g.,"), u"e.g.");
  EXPECT_EQ(clean(u"etc."), u"etc");
  EXPECT_EQ(clean(u"It is 3.5 m long."), u"It is 3.5 m long");
  EXPECT_EQ(clean(u"e.g..."), u"e.g");
}

TEST(PastedWord, TakesBracketsOffWithTheirPartners) {
  EXPECT_EQ(clean(u"(data) bank."), u"(data) bank");
  EXPECT_EQ(clean(u"(data).)"), u"data");
  EXPECT_EQ(clean(u"《红楼梦》研究"), u"《红楼梦》研究");
  EXPECT_EQ(clean(u"“红楼梦”（小说）。"), u"“红楼梦”(小说)");
  EXPECT_EQ(clean(u")data("), u"data");
}

TEST(PastedWord, HasSingleBlanksForBlanksTabsAndLineEnds) {
  EXPECT_EQ(clean(u"data\r\nbank"), u"data bank");
  EXPECT_EQ(clean(u" data \n \t bank\u00A0\u3000of\vwords "), u"data bank of words");
}

TEST(PastedWord, IsSpelledAsInADictionary) {
  EXPECT_EQ(clean(u"ｎｅｔｗｏｒｋ　ＣＡＲＤ"), u"network CARD");
  EXPECT_EQ(clean(u"it’s"), u"it's");
  EXPECT_EQ(clean(u"well‐known"), u"well-known");
  EXPECT_EQ(clean(u"Ｂ超"), u"B超");
  EXPECT_EQ(clean(u"net\u00ADwork"), u"network");
}

TEST(PastedWord, TakesAccentsOffWhereTheWordIsNoHeadword) {
  std::vector<std::u16string> asked;
  const auto has = [&](std::u16string_view word) {
    asked.emplace_back(word);
    return word == u"café";
  };
  EXPECT_EQ(text::pastedWord(u"“café”", has), u"café");
  EXPECT_EQ(text::pastedWord(u"naïve.", has), u"naive");
  EXPECT_EQ(asked, (std::vector<std::u16string>{u"café", u"naïve"}));
  EXPECT_EQ(text::pastedWord(u"cafe\u0301", has), u"cafe");
  EXPECT_EQ(text::pastedWord(u"café", nullptr), u"cafe");
  EXPECT_EQ(text::pastedWord(u"a \u0301 b\u0301 \u0301", nullptr), u"a b");
  EXPECT_EQ(text::pastedWord(u"café", [](auto) -> bool { throw std::runtime_error("none"); }),
            u"cafe");
}

TEST(PastedWord, AsksForNoWordWithoutAccents) {
  const auto fails = [](std::u16string_view) -> bool { throw std::logic_error("asked"); };
  EXPECT_EQ(text::pastedWord(u"network.", fails), u"network");
  EXPECT_EQ(text::pastedWord(u"café的", fails), u"café的");
}

TEST(PastedWord, ReturnsATextOfMarksAsItIs) {
  for (const std::u16string same :
       {u"", u" ", u"\t", u"“”", u"...", u"。", u"()", u"(", u")", u"\u0301"}) {
    EXPECT_EQ(clean(same), same);
  }
}

TEST(PastedWord, TakesLittleTimeForManyBrackets) {
  EXPECT_EQ(clean(std::u16string(3'000, u'(') + u"a"), u"a");
  const std::u16string pairs = std::u16string(3'000, u'(') + std::u16string(3'000, u')');
  EXPECT_EQ(clean(pairs), pairs);
}

}  // namespace
