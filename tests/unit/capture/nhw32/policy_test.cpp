#include "capture/nhw32/policy.h"

#include <gtest/gtest.h>

#include <map>
#include <string_view>
#include <vector>

namespace nhw32 {
namespace {

using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr Backoff::Time kStart{};

/// Lets `window` run out of time `times` times.
void fail(Backoff& backoff, WindowId window, int times, Backoff::Time now) {
  for (int i = 0; i < times; ++i) backoff.note(window, Outcome::kOutOfTime, now);
}

TEST(Backoff, AllowsTwoTimeouts) {
  Backoff backoff;
  fail(backoff, 1, 2, kStart);
  EXPECT_TRUE(backoff.mayAsk(1, kStart));
  EXPECT_TRUE(backoff.mayAsk(2, kStart));
}

TEST(Backoff, StartsAtFiveSecondsAfterThreeTimeoutsInARow) {
  Backoff backoff;
  fail(backoff, 1, 3, kStart);
  EXPECT_FALSE(backoff.mayAsk(1, kStart));
  EXPECT_FALSE(backoff.mayAsk(1, kStart + seconds(5) - milliseconds(1)));
  EXPECT_TRUE(backoff.mayAsk(1, kStart + seconds(5)));
  EXPECT_TRUE(backoff.mayAsk(2, kStart));
}

TEST(Backoff, IsResetByAnAnswerInTime) {
  for (const Outcome outcome : {Outcome::kWord, Outcome::kNone}) {
    Backoff backoff;
    fail(backoff, 1, 2, kStart);
    backoff.note(1, outcome, kStart);
    fail(backoff, 1, 2, kStart);
    EXPECT_TRUE(backoff.mayAsk(1, kStart));
    fail(backoff, 1, 4, kStart);
    backoff.note(1, outcome, kStart);
    EXPECT_TRUE(backoff.mayAsk(1, kStart));
    fail(backoff, 1, 3, kStart);
    EXPECT_TRUE(backoff.mayAsk(1, kStart + seconds(5))) << "the delay started at its minimum again";
  }
}

TEST(Backoff, IsNotChangedByARefusal) {
  Backoff backoff;
  fail(backoff, 1, 2, kStart);
  backoff.note(1, Outcome::kRefused, kStart);
  EXPECT_TRUE(backoff.mayAsk(1, kStart));
  fail(backoff, 1, 1, kStart);
  backoff.note(1, Outcome::kRefused, kStart);
  EXPECT_FALSE(backoff.mayAsk(1, kStart));
  for (int i = 0; i < 5; ++i) backoff.note(2, Outcome::kRefused, kStart);
  EXPECT_TRUE(backoff.mayAsk(2, kStart));
}

TEST(Backoff, DoublesTheDelayUpToFiveMinutes) {
  Backoff backoff;
  Backoff::Time now = kStart;
  fail(backoff, 1, 2, now);
  for (const int rest : {5, 10, 20, 40, 80, 160, 300, 300, 300}) {
    fail(backoff, 1, 1, now);
    EXPECT_FALSE(backoff.mayAsk(1, now + seconds(rest) - milliseconds(1))) << rest;
    EXPECT_TRUE(backoff.mayAsk(1, now + seconds(rest))) << rest;
    now += seconds(rest);
  }
}

TEST(Backoff, LastsTenSecondsAtMostIfUiAutomationTimesOut) {
  Backoff backoff;
  Backoff::Time now = kStart;
  for (int i = 0; i < 2; ++i) backoff.note(1, Outcome::kUiaOutOfTime, now);
  EXPECT_TRUE(backoff.mayAsk(1, now));
  for (const int rest : {5, 10, 10, 10}) {
    backoff.note(1, Outcome::kUiaOutOfTime, now);
    EXPECT_FALSE(backoff.mayAsk(1, now + seconds(rest) - milliseconds(1))) << rest;
    EXPECT_TRUE(backoff.mayAsk(1, now + seconds(rest))) << rest;
    now += seconds(rest);
  }
}

TEST(Backoff, RemembersSixtyFourWindows) {
  Backoff backoff;
  for (WindowId window = 1; window <= 65; ++window) fail(backoff, window, 3, kStart);
  EXPECT_TRUE(backoff.mayAsk(1, kStart));
  for (WindowId window = 2; window <= 65; ++window) EXPECT_FALSE(backoff.mayAsk(window, kStart));
  fail(backoff, 2, 1, kStart);
  fail(backoff, 66, 3, kStart);
  EXPECT_FALSE(backoff.mayAsk(2, kStart)) << "it was noted later than window 3";
  EXPECT_TRUE(backoff.mayAsk(3, kStart));
}

Question about(WindowId window) { return {.window = window, .point = {}}; }

class Silent : public WordReader {
 public:
  Answer wordAt(const Question& question) override {
    asked.push_back(question.window);
    return {.outcome = question.window == 1 ? Outcome::kOutOfTime : Outcome::kWord, .word = {}};
  }
  void rest() override { ++rests; }
  std::vector<WindowId> asked;
  int rests = 0;
};

TEST(BackoffReader, DoesNotAskAWindowThatKeepsTimingOut) {
  auto silent = std::make_unique<Silent>();
  auto& asked = silent->asked;
  const int& rests = silent->rests;
  Backoff::Time now = kStart;
  BackoffReader reader(std::move(silent), [&] { return now; });
  for (int i = 0; i < 3; ++i) EXPECT_EQ(reader.wordAt(about(1)).outcome, Outcome::kOutOfTime);
  EXPECT_EQ(reader.wordAt(about(1)).outcome, Outcome::kNone);
  EXPECT_EQ(reader.wordAt(about(2)).outcome, Outcome::kWord);
  EXPECT_EQ(asked, (std::vector<WindowId>{1, 1, 1, 2}));
  EXPECT_EQ(rests, 1) << "what is kept for a window that is left alone";
  now += seconds(5);
  EXPECT_EQ(reader.wordAt(about(1)).outcome, Outcome::kOutOfTime);
  EXPECT_EQ(reader.wordAt(about(1)).outcome, Outcome::kNone);
}

TEST(ReaderKindFor, KnowsTheClassesThatAreProbed) {
  const std::map<std::u16string_view, ReaderKind> kinds{
      {u"ttyGrab", ReaderKind::kUia},
      {u"AVL_AVView", ReaderKind::kUia},
      {u"tty", ReaderKind::kUia},
      {u"_WwG", ReaderKind::kUia},
      {u"ConsoleWindowClass", ReaderKind::kUia},
      {u"EXCEL6", ReaderKind::kUia},
      {u"EXCEL7", ReaderKind::kUia},
      {u"EXCEL<", ReaderKind::kUia},
      {u"ThunderRT6TextBox", ReaderKind::kEdit},
      {u"ThunderRT5TextBox", ReaderKind::kEdit},
      {u"ThunderTextBox", ReaderKind::kEdit},
      {u"HTML_Internet Explorer", ReaderKind::kUia},
      {u"RichEdit20W", ReaderKind::kRichEdit},
      {u"RichEdit20A", ReaderKind::kRichEdit},
      {u"RichEdit", ReaderKind::kRichEdit},
      {u"Internet Explorer_Server", ReaderKind::kUia},
      {u"Edit", ReaderKind::kEdit},
  };
  EXPECT_EQ(kinds.size(), 17U);
  for (const auto& [name, kind] : kinds) {
    EXPECT_EQ(readerKindFor(name, name), kind);
  }
}

TEST(ReaderKindFor, FindsRichEditAnywhereInTheName) {
  for (const std::u16string_view name : {u"TRichEdit", u"RichEdit20W.1", u"RichEditD2DPT"}) {
    EXPECT_EQ(readerKindFor(name, name), ReaderKind::kRichEdit);
  }
}

TEST(ReaderKindFor, FindsRichEditInAnyCaseWhereNoWindowIsProbedForIt) {
  for (const std::u16string_view name :
       {u"RICHEDIT50W", u"Richedit", u"WindowsForms10.RICHEDIT50W.app.0.141b42a_r6_ad1"}) {
    EXPECT_EQ(readerKindFor(name, name), ReaderKind::kRichEdit);
  }
  for (const std::u16string_view name : {u"MyEdit.RICHEDIT50W", u"richEdit"}) {
    EXPECT_EQ(readerKindFor(name, name), ReaderKind::kUia);
  }
}

TEST(ReaderKindFor, TakesEditControlsByTheirRealClass) {
  for (const std::u16string_view name : {u"TMyEditor", u"TLogEdit", u"Edit0", u"TRichEdit"}) {
    for (const std::u16string_view real : {u"Edit", u"EDIT", u"edit"}) {
      EXPECT_EQ(readerKindFor(name, real), ReaderKind::kEdit);
    }
  }
  for (const std::u16string_view name : {u"TMyEditor", u"TLogEdit", u"Edit0", u"MyEdit"}) {
    for (const std::u16string_view real :
         {name, std::u16string_view(u"RichEdit20W"), std::u16string_view()}) {
      EXPECT_EQ(readerKindFor(name, real), ReaderKind::kUia);
    }
  }
}

TEST(ReaderKindFor, ComparesTheWholeNameWithoutARealClass) {
  for (const std::u16string_view name : {u"Edit", u"EDIT", u"edit", u"ThunderRT6TextBox"}) {
    EXPECT_EQ(readerKindFor(name, u""), ReaderKind::kEdit);
  }
  EXPECT_EQ(readerKindFor(u"MyThunderTextBox", u"MyThunderTextBox"), ReaderKind::kUia);
  EXPECT_EQ(readerKindFor(u"", u""), ReaderKind::kUia);
}

TEST(SendTimeout, MapsErrorTimeoutToOutOfTime) {
  EXPECT_EQ(outcomeOfSendTimeout(1460), Outcome::kOutOfTime);  // ERROR_TIMEOUT
}

TEST(SendTimeout, MapsNoErrorOfAHungWindowToOutOfTime) {
  EXPECT_EQ(outcomeOfSendTimeout(0), Outcome::kOutOfTime);
}

TEST(SendTimeout, MapsOtherErrorsToRefused) {
  EXPECT_EQ(outcomeOfSendTimeout(5), Outcome::kRefused);     // ERROR_ACCESS_DENIED
  EXPECT_EQ(outcomeOfSendTimeout(1400), Outcome::kRefused);  // ERROR_INVALID_WINDOW_HANDLE
}

}  // namespace
}  // namespace nhw32
