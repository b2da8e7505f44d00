#include "capture/nhw32/resting.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace nhw32 {
namespace {

using std::chrono::milliseconds;
using Time = RestingQuestion::Time;

const Time kStart{};
const Question kBlank{.window = 1, .point = {100, 200}};

TEST(RestingQuestion, MayBeAskedAtFirst) {
  const RestingQuestion resting;
  EXPECT_TRUE(resting.mayAsk(kBlank, kStart));
  EXPECT_TRUE(resting.mayAsk({}, kStart));
}

TEST(RestingQuestion, IsAskedEverMoreSeldomDownToEvery1600Milliseconds) {
  for (const Outcome outcome : {Outcome::kNone, Outcome::kRefused}) {
    RestingQuestion resting;
    Time now = kStart;
    for (const int rest : {100, 200, 400, 800, 1600, 1600, 1600}) {
      resting.note(kBlank, outcome, now);
      EXPECT_FALSE(resting.mayAsk(kBlank, now)) << rest;
      EXPECT_FALSE(resting.mayAsk(kBlank, now + milliseconds(rest - 1))) << rest;
      EXPECT_TRUE(resting.mayAsk(kBlank, now + milliseconds(rest))) << rest;
      now += milliseconds(rest);
    }
  }
}

TEST(RestingQuestion, LetsAnyOtherPointOrWindowBeAskedAtOnce) {
  RestingQuestion resting;
  for (int i = 0; i < 8; ++i) resting.note(kBlank, Outcome::kNone, kStart);
  EXPECT_FALSE(resting.mayAsk(kBlank, kStart + milliseconds(1599)));
  for (const Question& other : {Question{1, {101, 200}}, {1, {100, 199}}, {2, {100, 200}}}) {
    EXPECT_TRUE(resting.mayAsk(other, kStart));
  }
}

TEST(RestingQuestion, IsForgottenOnceAnotherOneWasAsked) {
  RestingQuestion resting;
  for (int i = 0; i < 8; ++i) resting.note(kBlank, Outcome::kNone, kStart);
  const Question other{1, {100, 201}};
  resting.note(other, Outcome::kNone, kStart);
  EXPECT_TRUE(resting.mayAsk(kBlank, kStart));
  EXPECT_FALSE(resting.mayAsk(other, kStart + milliseconds(99)));
  EXPECT_TRUE(resting.mayAsk(other, kStart + milliseconds(100))) << "began with the other's delay";
}

TEST(RestingQuestion, DoesNotRestAfterAWordNorAfterATimeout) {
  for (const Outcome outcome : {Outcome::kWord, Outcome::kOutOfTime}) {
    RestingQuestion resting;
    resting.note(kBlank, outcome, kStart);
    EXPECT_TRUE(resting.mayAsk(kBlank, kStart));
    for (int i = 0; i < 8; ++i) resting.note(kBlank, Outcome::kNone, kStart);
    resting.note(kBlank, outcome, kStart);
    EXPECT_TRUE(resting.mayAsk(kBlank, kStart));
    resting.note(kBlank, Outcome::kNone, kStart);
    EXPECT_TRUE(resting.mayAsk(kBlank, kStart + milliseconds(100))) << "the delay starts over";
  }
}

TEST(RestingQuestion, RestsAlsoWhereAQuestionIsAllZero) {
  RestingQuestion resting;
  resting.note({}, Outcome::kNone, kStart);
  EXPECT_FALSE(resting.mayAsk({}, kStart + milliseconds(99)));
  EXPECT_TRUE(resting.mayAsk({}, kStart + milliseconds(100)));
}

class Blank : public WordReader {
 public:
  Answer wordAt(const Question& question) override {
    asked.push_back(question);
    return {.outcome = outcome, .word = {}};
  }
  std::vector<Question> asked;
  Outcome outcome = Outcome::kNone;
};

TEST(RestingReader, AnswersAQuestionThatRestsItself) {
  auto blank = std::make_unique<Blank>();
  Blank& reader = *blank;
  Time now = kStart;
  RestingReader resting(std::move(blank), [&] { return now; });
  // Ten probes a second for ten seconds.
  for (int probe = 0; probe < 100; ++probe, now += milliseconds(100)) {
    EXPECT_EQ(resting.wordAt(kBlank).outcome, Outcome::kNone);
  }
  // At 0, 100, 300, 700, 1,500 and then every 1,600 ms up to 9,500.
  EXPECT_EQ(reader.asked.size(), 10U);
  reader.outcome = Outcome::kWord;
  EXPECT_EQ(resting.wordAt({1, {100, 201}}).outcome, Outcome::kWord);
  EXPECT_EQ(resting.wordAt(kBlank).outcome, Outcome::kWord);
  EXPECT_EQ(resting.wordAt(kBlank).outcome, Outcome::kWord);
  EXPECT_EQ(reader.asked.size(), 13U);
}

TEST(QuietPlace, IsNowhereAtFirst) {
  QuietPlace quiet;
  EXPECT_TRUE(quiet.mayAsk({0, 0}, false));
  EXPECT_TRUE(quiet.mayAsk({-5, 7}, false));
}

TEST(QuietPlace, LastsUntilThePointerHasLeftItBySixPixels) {
  for (const ScreenPoint leaving :
       {ScreenPoint{106, 200}, {94, 200}, {100, 206}, {100, 194}, {106, 206}}) {
    QuietPlace quiet;
    quiet.begin({100, 200});
    for (const ScreenPoint near : {ScreenPoint{100, 200}, {105, 195}, {95, 205}}) {
      EXPECT_FALSE(quiet.mayAsk(near, false));
    }
    EXPECT_TRUE(quiet.mayAsk(leaving, false));
    EXPECT_TRUE(quiet.mayAsk({100, 200}, false)) << "it was left";
  }
}

TEST(QuietPlace, IsLeftWhereNothingIsAskedToo) {
  QuietPlace quiet;
  quiet.begin({-3, -3});
  quiet.pointerAt({2, 2});
  EXPECT_FALSE(quiet.mayAsk({-3, -3}, false));
  quiet.pointerAt({3, -3});
  EXPECT_TRUE(quiet.mayAsk({-3, -3}, false));
}

TEST(QuietPlace, ANewOneTakesTheEarlierOnesPlace) {
  QuietPlace quiet;
  quiet.begin({100, 200});
  quiet.begin({300, 400});
  EXPECT_FALSE(quiet.mayAsk({300, 400}, false));
  EXPECT_TRUE(quiet.mayAsk({100, 200}, false));
}

TEST(QuietPlace, IsEverywhereWhileAButtonIsDown) {
  QuietPlace quiet;
  EXPECT_FALSE(quiet.mayAsk({100, 200}, true));
  EXPECT_TRUE(quiet.mayAsk({100, 200}, false));
  quiet.begin({100, 200});
  EXPECT_FALSE(quiet.mayAsk({300, 200}, true));
  EXPECT_TRUE(quiet.mayAsk({100, 200}, false)) << "it was left with the button down";
}

}  // namespace
}  // namespace nhw32
