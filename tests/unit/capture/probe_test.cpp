#include "capture/probe.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <string>

namespace {

using capture::isProbed;
using capture::opensPopup;
using capture::Rectangle;
using capture::reportedText;
using capture::stripPlace;
using ScreenWord::GetFirstWord;

TEST(ProbedWindows, AreTheTextWindowsOfTheTable) {
  for (const char* name :
       {"ttyGrab", "AVL_AVView", "tty", "_WwG", "ConsoleWindowClass", "EXCEL6", "EXCEL7", "EXCEL<",
        "ThunderRT6TextBox", "ThunderRT5TextBox", "ThunderTextBox", "HTML_Internet Explorer",
        "RichEdit20W", "RichEdit20A", "RichEdit", "Internet Explorer_Server", "Edit"}) {
    EXPECT_TRUE(isProbed(name)) << name;
  }
}

TEST(ProbedWindows, MayHaveMoreInTheirNames) {
  for (const char* name :
       {"TMyEditor", "Edit0", "RichEditD2DPT", "puttyterm", "xEXCEL7", "WineEditor"}) {
    EXPECT_TRUE(isProbed(name)) << name;
  }
}

TEST(ProbedWindows, AreNoOthers) {
  for (const char* name :
       {"Button",  "Static", "",       "SysTreeView32", "SysListView32",
        "ListBox", "#32768", "#32769", "Progman",       "Shell_TrayWnd",
        "EXCEL",   "EXCEL8", "Excel7", "RICHEDIT50W",   "WindowsForms10.EDIT.app.0.141b42a_r6_ad1",
        "EDIT",    "edit",   "Edi",    "_WwF",          "TTY",
        "AVL_"}) {
    EXPECT_FALSE(isProbed(name)) << name;
  }
}

TEST(ProbedWindows, AreFoundInABufferWithItsNulsAfterTheName) {
  std::string buffer(100, '\0');
  buffer.replace(0, 4, "Edit");
  EXPECT_TRUE(isProbed(buffer));
  buffer.replace(0, 4, "Butt");
  EXPECT_FALSE(isProbed(buffer));
}

TEST(Strip, CoversTheFiveRowsAboveThePointer) {
  const Rectangle strip = stripPlace(300, 400, 200, 1000);
  EXPECT_EQ(strip.top, 395);
  EXPECT_EQ(strip.height, 5);
}

TEST(Strip, BeginsFourPixelsLeftOfTheWindow) {
  EXPECT_EQ(stripPlace(300, 400, 200, 1000), (Rectangle{196, 395, 792, 5}));
}

TEST(Strip, BeginsAtMost200PixelsLeftOfThePointerAndKeepsItsWidth) {
  EXPECT_EQ(stripPlace(700, 400, 200, 1000), (Rectangle{500, 395, 792, 5}));
  EXPECT_EQ(stripPlace(396, 10, 200, 1000).left, 196);
  EXPECT_EQ(stripPlace(397, 10, 200, 1000).left, 197);
}

TEST(Strip, GoesLeftOfAndAboveTheFirstMonitor) {
  EXPECT_EQ(stripPlace(-1200, -700, -1280, -400), (Rectangle{-1284, -705, 872, 5}));
  EXPECT_EQ(stripPlace(-500, -700, -1280, -400), (Rectangle{-700, -705, 872, 5}));
}

TEST(Strip, OfAWindowNarrowerThanItsMarginsHasNoWidth) {
  EXPECT_EQ(stripPlace(10, 10, 8, 16).width, 0);
  EXPECT_EQ(stripPlace(10, 10, 8, 14).width, -2);
}

TEST(ReportedText, EndsAtTheFirstNul) {
  std::array<char, 100> buffer{};
  EXPECT_EQ(reportedText(buffer), "");
  std::string("hello\0rest", 10).copy(buffer.data(), 10);
  EXPECT_EQ(reportedText(buffer), "hello");
}

TEST(ReportedText, MayFillTheBufferUpToItsNul) {
  std::array<char, 101> buffer{};
  buffer.fill('x');
  buffer.back() = '\0';
  EXPECT_EQ(reportedText(buffer), std::string(100, 'x'));
}

TEST(ReportedText, WithoutANulIsAnError) {
  std::array<char, 100> buffer{};
  buffer.fill('x');
  EXPECT_THROW(reportedText(buffer), std::length_error);
  EXPECT_THROW(reportedText({}), std::length_error);
}

TEST(FirstWord, IsWhatStandsBeforeTheFirstBlank) {
  EXPECT_EQ(GetFirstWord(u"  hello world "), u"hello");
  EXPECT_EQ(GetFirstWord(u"ab cd"), u"ab");
  EXPECT_EQ(GetFirstWord(u"a  b"), u"a");
}

TEST(FirstWord, IsTheWholeTextWithoutABlank) {
  EXPECT_EQ(GetFirstWord(u"hello"), u"hello");
  EXPECT_EQ(GetFirstWord(u"hello "), u"hello");
  EXPECT_EQ(GetFirstWord(u""), u"");
  EXPECT_EQ(GetFirstWord(u"   "), u"");
}

TEST(FirstWord, IsNotPartedByAnythingElse) {
  EXPECT_EQ(GetFirstWord(u"a\tb"), u"a\tb");
  EXPECT_EQ(GetFirstWord(u"a,b.c"), u"a,b.c");
  EXPECT_EQ(GetFirstWord(u"a\u3000b"), u"a\u3000b");
  EXPECT_EQ(GetFirstWord(u"a\u00A0b"), u"a\u00A0b");
}

TEST(Popup, OpensForEnglishOfTwoOrMoreCharacters) {
  EXPECT_TRUE(opensPopup(u"ab"));
  EXPECT_TRUE(opensPopup(u"ab cd"));
  EXPECT_TRUE(opensPopup(u"caf\u00E9"));
}

TEST(Popup, DoesNotOpenForNothingOneLetterOrChinese) {
  EXPECT_FALSE(opensPopup(u""));
  EXPECT_FALSE(opensPopup(u"a"));
  EXPECT_FALSE(opensPopup(u"词典"));
  EXPECT_FALSE(opensPopup(u"data词"));
  EXPECT_FALSE(opensPopup(u"\u0100b"));
}

}  // namespace
