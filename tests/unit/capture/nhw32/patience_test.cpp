#include "capture/nhw32/patience.h"

#include <gtest/gtest.h>

#include <vector>

#include "capture/nhw32/patient_provider.h"

namespace nhw32 {
namespace {

using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr Patience::Time kStart{};

/// Lets `window` run out of time `times` times.
void fail(Patience& patience, WindowId window, int times, Patience::Time now) {
  for (int i = 0; i < times; ++i) patience.note(window, Outcome::outOfTime, now);
}

TEST(Patience, TwoFailuresAreForgiven) {
  Patience patience;
  fail(patience, 1, 2, kStart);
  EXPECT_TRUE(patience.mayAsk(1, kStart));
  EXPECT_TRUE(patience.mayAsk(2, kStart));
}

TEST(Patience, AfterThreeInARowTheWindowIsLeftAloneForFiveSeconds) {
  Patience patience;
  fail(patience, 1, 3, kStart);
  EXPECT_FALSE(patience.mayAsk(1, kStart));
  EXPECT_FALSE(patience.mayAsk(1, kStart + seconds(5) - milliseconds(1)));
  EXPECT_TRUE(patience.mayAsk(1, kStart + seconds(5)));
  EXPECT_TRUE(patience.mayAsk(2, kStart));
}

TEST(Patience, AnAnswerInTimeMakesUpForEverything) {
  for (const Outcome outcome : {Outcome::word, Outcome::none}) {
    Patience patience;
    fail(patience, 1, 2, kStart);
    patience.note(1, outcome, kStart);
    fail(patience, 1, 2, kStart);
    EXPECT_TRUE(patience.mayAsk(1, kStart));
    fail(patience, 1, 4, kStart);
    patience.note(1, outcome, kStart);
    EXPECT_TRUE(patience.mayAsk(1, kStart));
    fail(patience, 1, 3, kStart);
    EXPECT_TRUE(patience.mayAsk(1, kStart + seconds(5))) << "the rest began anew";
  }
}

TEST(Patience, ARefusalIsNoAnswerAndNoFailure) {
  Patience patience;
  fail(patience, 1, 2, kStart);
  patience.note(1, Outcome::refused, kStart);
  EXPECT_TRUE(patience.mayAsk(1, kStart));
  fail(patience, 1, 1, kStart);
  patience.note(1, Outcome::refused, kStart);
  EXPECT_FALSE(patience.mayAsk(1, kStart));
  for (int i = 0; i < 5; ++i) patience.note(2, Outcome::refused, kStart);
  EXPECT_TRUE(patience.mayAsk(2, kStart));
}

TEST(Patience, EveryFurtherFailureDoublesTheRestUpToFiveMinutes) {
  Patience patience;
  Patience::Time now = kStart;
  fail(patience, 1, 2, now);
  for (const int rest : {5, 10, 20, 40, 80, 160, 300, 300, 300}) {
    fail(patience, 1, 1, now);
    EXPECT_FALSE(patience.mayAsk(1, now + seconds(rest) - milliseconds(1))) << rest;
    EXPECT_TRUE(patience.mayAsk(1, now + seconds(rest))) << rest;
    now += seconds(rest);
  }
}

TEST(Patience, RemembersSixtyFourWindows) {
  Patience patience;
  for (WindowId window = 1; window <= 65; ++window) fail(patience, window, 3, kStart);
  EXPECT_TRUE(patience.mayAsk(1, kStart));
  for (WindowId window = 2; window <= 65; ++window) EXPECT_FALSE(patience.mayAsk(window, kStart));
  fail(patience, 2, 1, kStart);
  fail(patience, 66, 3, kStart);
  EXPECT_FALSE(patience.mayAsk(2, kStart)) << "it was heard of more lately than window 3";
  EXPECT_TRUE(patience.mayAsk(3, kStart));
}

Question about(WindowId window) { return {.window = window, .point = {}}; }

class Silent : public TextProvider {
 public:
  Answer wordAt(const Question& question) override {
    asked_.push_back(question.window);
    return {.outcome = question.window == 1 ? Outcome::outOfTime : Outcome::word, .word = {}};
  }
  std::vector<WindowId> asked_;
};

TEST(PatientProvider, DoesNotAskTheWindowThatKeepsRunningOutOfTime) {
  auto silent = std::make_unique<Silent>();
  auto& asked = silent->asked_;
  Patience::Time now = kStart;
  PatientProvider provider(std::move(silent), [&] { return now; });
  for (int i = 0; i < 3; ++i) EXPECT_EQ(provider.wordAt(about(1)).outcome, Outcome::outOfTime);
  EXPECT_EQ(provider.wordAt(about(1)).outcome, Outcome::none);
  EXPECT_EQ(provider.wordAt(about(2)).outcome, Outcome::word);
  EXPECT_EQ(asked, (std::vector<WindowId>{1, 1, 1, 2}));
  now += seconds(5);
  EXPECT_EQ(provider.wordAt(about(1)).outcome, Outcome::outOfTime);
  EXPECT_EQ(provider.wordAt(about(1)).outcome, Outcome::none);
}

}  // namespace
}  // namespace nhw32
