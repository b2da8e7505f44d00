#include "text/readings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Words = std::vector<std::u16string>;

/// A text in which the place pointed at is marked: "the |word".
struct Pointed {
  explicit Pointed(std::u16string_view marked) : text(marked), index(text.find(u'|')) {
    text.erase(index, 1);
  }
  std::u16string text;
  std::size_t index;
};

text::Readings readings(std::u16string_view marked) {
  const Pointed pointed(marked);
  return text::readingsAt(pointed.text, pointed.index);
}

/// What is asked for, in order.
Words asked(std::u16string_view marked) {
  Words words;
  for (const text::Reading& reading : readings(marked).candidates) words.push_back(reading.word);
  return words;
}

/// What is handed over if nothing is a headword; "" for nothing.
std::u16string otherwise(std::u16string_view marked) {
  const auto reading = readings(marked).otherwise;
  return reading ? reading->word : u"";
}

/// The word handed over with these headwords; "" for none.
std::u16string chosen(std::u16string_view marked, const std::set<std::u16string>& headwords) {
  const auto reading = text::chooseReading(readings(marked), [&](std::u16string_view word) {
    return headwords.contains(std::u16string(word));
  });
  return reading ? reading->word : u"";
}

/// The text that the reading `word` stands for; "" where there is no such reading.
std::u16string covered(std::u16string_view marked, std::u16string_view word) {
  for (const text::Reading& reading : readings(marked).candidates) {
    if (reading.word != word) continue;
    return Pointed(marked).text.substr(reading.begin, reading.end - reading.begin);
  }
  return u"";
}

TEST(Readings, OfAPlainWordAreTheWord) {
  for (const std::u16string text : {u"a |plain word", u"a pl|ain word", u"a plai|n word"}) {
    EXPECT_EQ(asked(text), Words{u"plain"});
    EXPECT_EQ(otherwise(text), u"plain");
    EXPECT_EQ(covered(text, u"plain"), u"plain");
  }
}

TEST(Readings, AreNoneBesideWords) {
  for (const std::u16string text :
       {u"|",         u"a| b",        u"a |“b”",  u"“b|”",      u"|(b)",    u"(b|)",    u"b|,",
        u"b|!",       u"a |— b",      u"a|—b",    u"a|--b",     u"a|…",     u"12|34",   u"|--",
        u"|...",      u"\U00020000|", u"|Жук",    u"|かな",     u"|\u0301", u"|\u00AD", u"|_",
        u"a|\u3000b", u"a|\r\nb",     u"'|' 'x'", u"|'quoted'", u"|-a"}) {
    EXPECT_EQ(asked(text), Words{}) << testing::PrintToString(text);
    EXPECT_EQ(otherwise(text), u"") << testing::PrintToString(text);
  }
  for (const std::size_t index : {std::size_t{2}, std::size_t{99}, std::u16string_view::npos}) {
    EXPECT_TRUE(text::readingsAt(u"ab", index).candidates.empty());
    EXPECT_FALSE(text::readingsAt(u"ab", index).otherwise);
  }
  EXPECT_FALSE(text::readingsAt(u"", 0).otherwise);
}

TEST(Readings, AreNoneForOtherCharacters) {
  constexpr std::u16string_view kText = u" \t\r\n\u00A0.,;:!?\"()_@\u3000\u00D7\u00F7\uFFFC，。";
  for (std::size_t i = 0; i <= kText.size(); ++i) {
    EXPECT_TRUE(text::readingsAt(kText, i).empty()) << i;
  }
}

TEST(Readings, MarkTheWordThoughACandidateIsWider) {
  EXPECT_EQ(readings(u"the m|an's hat").range(), (text::Range{4, 9}));
  EXPECT_EQ(readings(u"a|nd/or").range(), (text::Range{0, 3}));
  EXPECT_EQ(readings(u"cafe\u0301|s").range(), (text::Range{0, 6}));
  EXPECT_EQ(readings(u"as|soci-\r\nated").range(), (text::Range{0, 13}));
  EXPECT_EQ(readings(u"我的computer坏|了").range(), (text::Range{10, 12}));
}

TEST(Readings, MarkTheFirstCandidateWhereOnlyADictionaryKnowsTheWord) {
  EXPECT_EQ(readings(u"of C|O2.").range(), (text::Range{3, 6}));
}

TEST(Readings, BeginWithTheRunBetweenBlanks) {
  for (const std::u16string run : {u"TCP/IP", u"CO2", u"MP3", u"AT&T", u"and/or", u"I/O", u"C++",
                                   u"C#", u"N,N-dimethyl", u"chiral(ity)", u"(chloro)ethane"}) {
    EXPECT_EQ(asked(u"the |" + run + u" is").at(0), run);
    EXPECT_EQ(asked(u"the “|" + run + u"”, is").at(0), run);
    EXPECT_EQ(asked(u"the (|" + run + u").").at(0), run);
    EXPECT_EQ(covered(u"the (|" + run + u").", run), run);
  }
  EXPECT_EQ(asked(u"for |.NET only"), Words{u".NET"});
  EXPECT_EQ(asked(u"for .N|ET only"), (Words{u".NET", u"NET"}));
  EXPECT_EQ(asked(u"TC|P/IP"), (Words{u"TCP/IP", u"TCP"}));
  EXPECT_EQ(asked(u"TCP|/IP"), Words{u"TCP/IP"});
  EXPECT_EQ(asked(u"|C++"), (Words{u"C++", u"C"}));
  EXPECT_EQ(asked(u"C|++"), Words{u"C++"});
}

TEST(Readings, HaveTheFullStopOfAnAbbreviationFirst) {
  EXPECT_EQ(asked(u"|e.g. so"), (Words{u"e.g.", u"e.g", u"e"}));
  EXPECT_EQ(asked(u"(|i.e., so)"), (Words{u"i.e.", u"i.e", u"i"}));
  EXPECT_EQ(asked(u"the |U.S. is").at(0), u"U.S.");
  EXPECT_EQ(asked(u"a |Ph.D. in").at(0), u"Ph.D.");
  EXPECT_EQ(asked(u"e|.g. so"), (Words{u"e.g.", u"e.g"}));
  EXPECT_EQ(asked(u"e.g|. so"), Words{u"e.g."}) << "the last stop is part of no other reading";
  EXPECT_EQ(asked(u"Ph.D|.'s").at(0), u"Ph.D.'s");
  EXPECT_EQ(chosen(u"|Ph.D.'s", {u"Ph.D."}), u"Ph.D.");
}

TEST(Readings, HaveTheSentencesFullStopLast) {
  EXPECT_EQ(asked(u"came |in. He"), (Words{u"in", u"in."}));
  EXPECT_EQ(asked(u"and |etc. He"), (Words{u"etc", u"etc."}));
  EXPECT_EQ(covered(u"and |etc. He", u"etc."), u"etc.");
  EXPECT_EQ(asked(u"in|. He"), Words{}) << "not the inch, at a sentence's end";
  EXPECT_EQ(asked(u"e.g|. He"), Words{u"e.g."});
  EXPECT_EQ(otherwise(u"in|. He"), u"");
  EXPECT_EQ(asked(u"wait|..."), Words{});
  EXPECT_EQ(asked(u"wai|t..."), Words{u"wait"});
  EXPECT_EQ(asked(u"wai|t…"), Words{u"wait"});
}

TEST(Readings, LosePossessiveEndings) {
  EXPECT_EQ(asked(u"the m|an's hat"), (Words{u"man's", u"man"}));
  EXPECT_EQ(otherwise(u"the m|an's hat"), u"man");
  EXPECT_EQ(covered(u"the man'|s hat", u"man"), u"man's");
  EXPECT_EQ(chosen(u"|it's", {u"it's", u"it"}), u"it's");
  EXPECT_EQ(chosen(u"|man’s", {u"man"}), u"man");
  EXPECT_EQ(chosen(u"|James's", {u"James"}), u"James");
  EXPECT_EQ(chosen(u"|James' hat", {u"James"}), u"James");
  EXPECT_EQ(chosen(u"|James’ hat", {u"James"}), u"James");
  EXPECT_EQ(asked(u"the b|oys' hats"), Words{u"boys"});
  EXPECT_EQ(asked(u"OHM'|S"), (Words{u"OHM'S", u"OHM"}));
  EXPECT_EQ(asked(u"|CO2's"), (Words{u"CO2's", u"CO2"}));
}

TEST(Readings, KeepContractionsWhole) {
  for (const std::u16string word : {u"hasn't", u"we're", u"I'll", u"dog'll", u"O'Brien"}) {
    EXPECT_EQ(asked(u"so |" + word + u" go"), Words{word});
    EXPECT_EQ(otherwise(u"so |" + word + u" go"), word);
  }
  EXPECT_EQ(asked(u"d|on’t"), Words{u"don't"});
  EXPECT_EQ(asked(u"d|onʼt"), Words{u"don't"});
  EXPECT_EQ(asked(u"d|on‘t"), Words{u"don't"});
  EXPECT_EQ(asked(u"‘|tis"), Words{u"tis"});
  EXPECT_EQ(asked(u"rock '|n' roll"), Words{u"n"});
}

TEST(Readings, EndWithThePartBetweenHyphens) {
  EXPECT_EQ(asked(u"well-kn|own"), (Words{u"well-known", u"known"}));
  EXPECT_EQ(chosen(u"click-and-dra|g", {u"click", u"and", u"drag"}), u"drag");
  EXPECT_EQ(chosen(u"click-a|nd-drag", {u"click", u"and", u"drag"}), u"and");
  EXPECT_EQ(covered(u"click-a|nd-drag", u"and"), u"and");
  EXPECT_EQ(chosen(u"|well-known", {u"well-known", u"well"}), u"well-known");
  EXPECT_EQ(asked(u"well|-known"), Words{u"well-known"});
  EXPECT_EQ(asked(u"father-in-la|w's"),
            (Words{u"father-in-law's", u"father-in-law", u"law's", u"law"}));
  EXPECT_EQ(otherwise(u"father-in-la|w's"), u"father-in-law");
  EXPECT_EQ(asked(u"n|on\u2010stop\u2011er"), (Words{u"non-stop-er", u"non"}));
  EXPECT_EQ(asked(u"Na|vier\u2013Stokes"), (Words{u"Navier-Stokes", u"Navier"}));
  EXPECT_EQ(otherwise(u"Na|vier\u2013Stokes"), u"Navier");
}

TEST(Readings, OfLettersThatTouchDigitsAreNotTheLetters) {
  EXPECT_EQ(asked(u"the 1|st one"), Words{u"1st"});
  EXPECT_EQ(asked(u"the |1st one"), Words{u"1st"});
  EXPECT_EQ(asked(u"|CO2"), Words{u"CO2"});
  EXPECT_EQ(asked(u"|CO₂"), Words{u"CO2"});
  for (const std::u16string text : {u"1|st", u"C|O2", u"ab12c|d", u"x8|6", u"１s|t", u"1990'|s"}) {
    EXPECT_EQ(otherwise(text), u"");
  }
  EXPECT_EQ(asked(u"C|O2-rich"), (Words{u"CO2-rich", u"CO2"}));
  EXPECT_EQ(asked(u"CO2-ri|ch"), (Words{u"CO2-rich", u"rich"}));
  EXPECT_EQ(asked(u"10-fo|ld"), (Words{u"10-fold", u"fold"}));
  EXPECT_EQ(otherwise(u"10-fo|ld"), u"fold");
  EXPECT_EQ(asked(u"theor|y²"), Words{u"theory"}) << "a note's number";
}

TEST(Readings, JoinWhatALinesEndDivides) {
  for (const std::u16string lineEnd :
       {u"\n", u"\r", u"\r\n", u"\r\r\n", u"\v", u"\u2028", u" \n", u"\n    ", u"\r\n\t\u3000"}) {
    EXPECT_EQ(asked(u"a re|-" + lineEnd + u"port on"), Words{}) << "not on the hyphen";
    EXPECT_EQ(asked(u"a r|e-" + lineEnd + u"port on"), (Words{u"report", u"re-port", u"re"}));
    EXPECT_EQ(asked(u"a re-" + lineEnd + u"por|t on"), (Words{u"report", u"re-port", u"port"}));
    EXPECT_EQ(otherwise(u"a re-" + lineEnd + u"por|t on"), u"report");
    EXPECT_EQ(covered(u"a re-" + lineEnd + u"por|t on", u"report"), u"re-" + lineEnd + u"port");
  }
  EXPECT_EQ(chosen(u"inter-\nfa|ce", {u"inter", u"face", u"interface"}), u"interface");
  EXPECT_EQ(chosen(u"|associ-\nated", {u"associated"}), u"associated");
  EXPECT_EQ(chosen(u"associ-\nate|d", {u"associated"}), u"associated");
  EXPECT_EQ(chosen(u"well-\nkno|wn", {u"well", u"known", u"well-known"}), u"well-known");
  EXPECT_EQ(asked(u"inter\u00AD\nfa|ce").at(0), u"interface");
  EXPECT_EQ(asked(u"inter\u2010\r\nfa|ce").at(0), u"interface");
  EXPECT_EQ(asked(u"the pi-\nlo|t's"),
            (Words{u"pilot's", u"pi-lot's", u"pilot", u"pi-lot", u"lot's", u"lot"}));
  EXPECT_EQ(otherwise(u"the pi-\nlo|t's"), u"pilot");
}

TEST(Readings, JoinPartsBetweenHyphensAcrossLines) {
  EXPECT_EQ(chosen(u"user-inter-\nfa|ce", {u"interface", u"face"}), u"interface");
  EXPECT_EQ(covered(u"user-inter-\nfa|ce", u"interface"), u"inter-\nface");
  EXPECT_EQ(chosen(u"us|er-inter-\nface", {u"user", u"interface", u"face"}), u"user");
  EXPECT_EQ(chosen(u"click-\nand-dr|ag", {u"click", u"and", u"drag"}), u"drag");
  EXPECT_EQ(chosen(u"cl|ick-\nand-drag", {u"click", u"and", u"drag"}), u"click");
}

TEST(Readings, DoNotJoinOtherLines) {
  for (const std::u16string text :
       {u"re\npo|rt", u"re -\npo|rt", u"re--\npo|rt", u"re-\n\npo|rt", u"re-\r\n\r\npo|rt",
        u"re-\n \npo|rt", u"2re-\npo|rt", u"re- po|rt", u"re-\n- po|rt", u"re-\n(po|rt)",
        u"7-\npo|rt", u"\npo|rt", u"-\npo|rt"}) {
    EXPECT_EQ(asked(text), Words{u"port"}) << testing::PrintToString(text);
  }
  for (const std::u16string text :
       {u"r|e-", u"r|e-\n", u"r|e-\r\n  ", u"r|e-\n7", u"r|e-\nport2"}) {
    EXPECT_EQ(asked(text), Words{u"re"}) << testing::PrintToString(text);
  }
  const std::u16string far = u"re-\n" + std::u16string(text::kMaxGap, u' ');
  EXPECT_EQ(asked(far + u"po|rt"), Words{u"port"});
  EXPECT_EQ(asked(far.substr(0, far.size() - 1) + u"po|rt").at(0), u"report");
  EXPECT_EQ(asked(u"r|e-" + far.substr(3) + u"port"), Words{u"re"});
}

TEST(Readings, AreAskedWithAccentsThenWithout) {
  EXPECT_EQ(asked(u"the |café"), (Words{u"café", u"cafe"}));
  EXPECT_EQ(asked(u"|naïve"), (Words{u"naïve", u"naive"}));
  EXPECT_EQ(asked(u"in |Zürich."), (Words{u"Zürich", u"Zurich", u"Zürich.", u"Zurich."}));
  EXPECT_EQ(otherwise(u"|résumé"), u"resume");
  EXPECT_EQ(asked(u"|Straße"), (Words{u"Straße", u"Strasse"}));
  EXPECT_EQ(asked(u"cafe\u0301|s"), Words{u"cafes"}) << "no headword has combining marks";
  EXPECT_EQ(covered(u"cafe\u0301|s", u"cafes"), u"cafe\u0301s");
  EXPECT_EQ(asked(u"|Łódź"), Words{u"Lodz"});
  EXPECT_EQ(asked(u"hors d'|œuvre"), Words{u"d'oeuvre"});
  EXPECT_EQ(asked(u"|ærø"), (Words{u"ærø", u"aero"}));
}

TEST(Readings, AreSpelledWithPlainLetters) {
  EXPECT_EQ(asked(u"甲|ＡＢＣ乙"), Words{u"ABC"});
  EXPECT_EQ(asked(u"ｄ|ｏｎ＇ｔ"), Words{u"don't"});
  EXPECT_EQ(asked(u"an e|ﬃcient ﬁeld"), Words{u"efficient"});
  EXPECT_EQ(asked(u"in\u00ADter|face"), Words{u"interface"});
  EXPECT_EQ(covered(u"in\u00ADter|face", u"interface"), u"in\u00ADterface");
}

TEST(Readings, AreSeparatedByDashesAndOtherSigns) {
  EXPECT_EQ(asked(u"wo|rd—next"), Words{u"word"});
  EXPECT_EQ(asked(u"word—ne|xt"), Words{u"next"});
  EXPECT_EQ(asked(u"wa|it--no"), Words{u"wait"});
  EXPECT_EQ(asked(u"“wo|rd”"), Words{u"word"});
  EXPECT_EQ(asked(u"wo|rd/next"), (Words{u"word/next", u"word"}));
  EXPECT_EQ(asked(u"snake_ca|se"), Words{u"case"});
  EXPECT_EQ(otherwise(u"user@exam|ple.com"), u"example");
  EXPECT_EQ(otherwise(u"https://www.exam|ple.com/a-b?c=d"), u"example");
  EXPECT_EQ(asked(u"see (wo|rd),next"), (Words{u"word),next", u"word"}));
}

TEST(Readings, OfHanCharactersAreTheirRun) {
  EXPECT_EQ(asked(u"我|的computer坏了"), Words{});
  EXPECT_EQ(otherwise(u"我|的computer坏了"), u"我的");
  EXPECT_EQ(asked(u"我的comp|uter坏了"), Words{u"computer"});
  EXPECT_EQ(otherwise(u"字，|典"), u"典");
  EXPECT_EQ(otherwise(u"字|，典"), u"");
  EXPECT_EQ(asked(u"用TC|P/IP和UDP/IP"), (Words{u"TCP/IP", u"TCP"}));
  EXPECT_EQ(otherwise(u"|" + std::u16string(128, u'字')).size(), 128U);
  EXPECT_EQ(otherwise(u"|" + std::u16string(129, u'字')), u"");
}

TEST(Readings, HaveAtMost128Characters) {
  const std::u16string longest(128, u'a');
  EXPECT_EQ(asked(u"|" + longest), Words{longest});
  EXPECT_EQ(asked(u"|" + longest + u"a"), Words{});
  EXPECT_EQ(otherwise(u"|" + longest + u"a"), u"");
  EXPECT_EQ(asked(u"|" + longest + u"/b"), Words{longest});
  const std::u16string nearly = longest.substr(1);
  EXPECT_EQ(asked(u"|" + nearly + u"."), (Words{nearly, nearly + u'.'}));
  EXPECT_EQ(asked(std::u16string(500'000, u'a') + u"|" + std::u16string(500'000, u'a')), Words{});
  const std::u16string half = longest.substr(64);
  EXPECT_EQ(asked(u"|" + half + u"-\n" + half), (Words{longest, half}))
      << "with the hyphen it is too long";
  EXPECT_EQ(asked(u"|" + half + u"-\n" + half + u'a'), Words{half});
  EXPECT_EQ(otherwise(u"|" + std::u16string(128, u'ß')), u"") << "too long without accents";
  EXPECT_EQ(otherwise(u"|" + std::u16string(64, u'ß')).size(), 128U);
}

TEST(Readings, AreAtMostEight) {
  EXPECT_EQ(asked(u"«|café-owner's.»"),
            (Words{u"café-owner's", u"cafe-owner's", u"café-owner's.", u"cafe-owner's.",
                   u"café-owner", u"cafe-owner", u"café", u"cafe"}));
  EXPECT_EQ(asked(u"à-é-\nï-|ô's").size(), text::kMaxReadings);
  EXPECT_EQ(otherwise(u"à-é-\nï-|ô's"), u"a-ei-o");
}

TEST(Readings, ReadNothingOutsideTheText) {
  // Copies of exact size, so that the address sanitizer sees a step too far.
  for (const std::u16string_view text :
       {u"a", u"-", u"'a", u"a'", u"字", u"a-\n", u"\na", u"-\na", u".a", u"a.", u"(", u"a)", u"[a",
        u"a+", u"#", u"1", u"a-\r\n b", u"\u00AD\na", u"a\u00AD\n"}) {
    const auto copy = std::make_unique<char16_t[]>(text.size());
    text.copy(copy.get(), text.size());
    for (std::size_t i = 0; i <= text.size(); ++i) text::readingsAt({copy.get(), text.size()}, i);
  }
}

/// What is asked for with a reach of `reach` units on each side of the place.
Words askedWithin(std::size_t reach, std::u16string_view marked) {
  const Pointed pointed(marked);
  const std::size_t begin = pointed.index - std::min(pointed.index, reach);
  const std::u16string near = pointed.text.substr(begin, pointed.index + 1 + reach - begin);
  Words words;
  for (const auto& reading : text::readingsAt(near, pointed.index - begin).candidates) {
    words.push_back(reading.word);
  }
  return words;
}

// Both parts as long as they may be, the gap as wide. Soft hyphens have no place in the
// dictionary's spelling, so that the parts fit in one reading.
TEST(Readings, DependOnNothingBeyondTheirReach) {
  const std::u16string soft(text::kMaxReading - 2, u'\u00AD');
  const std::u16string gap = u'\n' + std::u16string(text::kMaxGap - 1, u' ');
  const std::u16string left = u"l" + soft + u"e-" + gap + u"f" + soft + u"|t";
  const std::u16string right = u"|l" + soft + u"e-" + gap + u"f" + soft + u"t";
  EXPECT_EQ(asked(left), (Words{u"left", u"le-ft", u"ft"}));
  EXPECT_EQ(asked(right), (Words{u"left", u"le-ft", u"le"}));
  // A digit before the apostrophe, and a joint after a part that is as long as a word may be.
  EXPECT_EQ(askedWithin(text::kMaxReach, u"7'" + left), Words{u"ft"});
  EXPECT_EQ(askedWithin(text::kMaxReach - 1, u"7'" + left).front(), u"left");
  EXPECT_EQ(askedWithin(text::kMaxReach, right + u"-x"), Words{u"le"});
  EXPECT_EQ(askedWithin(text::kMaxReach - 1, right + u"-x").front(), u"left");
}

TEST(ChooseReading, IsTheFirstHeadword) {
  const text::Readings readings = ::readings(u"the |man's.");
  Words seen;
  const auto choice = text::chooseReading(readings, [&](std::u16string_view word) {
    seen.emplace_back(word);
    return word == u"man's.";
  });
  ASSERT_TRUE(choice);
  EXPECT_EQ(*choice, (text::Reading{u"man's.", 4, 10}));
  EXPECT_EQ(seen, (Words{u"man's", u"man's."}));
}

TEST(ChooseReading, IsTheOtherOneWithoutHeadwords) {
  EXPECT_EQ(chosen(u"the |xyz's", {}), u"xyz");
  EXPECT_EQ(chosen(u"the |x1", {}), u"");
  EXPECT_EQ(chosen(u"|我的", {}), u"我的");
  EXPECT_EQ(text::chooseReading(readings(u"the |xyz's"), nullptr)->word, u"xyz");
}

TEST(ChooseReading, AsksAFailingDictionaryOnce) {
  int times = 0;
  const auto choice = text::chooseReading(readings(u"|man's"), [&](std::u16string_view) -> bool {
    ++times;
    throw std::runtime_error("busy");
  });
  ASSERT_TRUE(choice);
  EXPECT_EQ(choice->word, u"man");
  EXPECT_EQ(times, 1);
}

}  // namespace
