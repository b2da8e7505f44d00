#include "capture/nhw32/request_desk.h"

#include <gtest/gtest.h>

#include <vector>

namespace nhw32 {
namespace {

constexpr WindowId kHost = 7;
constexpr Question kHere{.window = 1, .point = {10, 20}};
constexpr Question kThere{.window = 1, .point = {11, 20}};
constexpr Question kOtherWindow{.window = 2, .point = {10, 20}};

Answer wordAnswer(const std::u16string& text) {
  return {.outcome = Outcome::word, .word = {.text = text, .box = {1, 2, 3, 4}}};
}

class Desk : public ::testing::Test {
 protected:
  std::u16string word() { return desk_.word().value_or(Word{u"(none)", {}}).text; }

  bool hostListens_ = true;
  std::vector<WindowId> announced_;
  RequestDesk desk_{[this](WindowId host) {
    if (hostListens_) announced_.push_back(host);
    return hostListens_;
  }};
};

TEST_F(Desk, AnnouncesTheWordOfTheArmedQuestionOnce) {
  desk_.arm(kHere, kHost);
  EXPECT_EQ(desk_.take(), kHere);
  EXPECT_EQ(word(), u"(none)");
  desk_.deliver(wordAnswer(u"data"));
  EXPECT_EQ(announced_, std::vector<WindowId>{kHost});
  EXPECT_EQ(word(), u"data");
  EXPECT_EQ(desk_.word()->box, (ScreenBox{1, 2, 3, 4}));
}

TEST_F(Desk, TheReceiverOfTheAnnouncementDisarmsAndThenFetches) {
  desk_.arm(kHere, kHost);
  desk_.take();
  desk_.deliver(wordAnswer(u"data"));
  EXPECT_EQ(desk_.disarm(), kHost);
  EXPECT_EQ(word(), u"data");
  EXPECT_EQ(desk_.disarm(), std::nullopt);
  EXPECT_EQ(word(), u"(none)");
}

TEST_F(Desk, AnAnnouncementTakenBackLeavesNoWord) {
  desk_.arm(kHere, kHost);
  desk_.take();
  desk_.deliver(wordAnswer(u"data"));
  EXPECT_EQ(desk_.disarm(), kHost);
  desk_.withdraw();
  EXPECT_EQ(word(), u"(none)");
}

TEST_F(Desk, WithdrawingDoesNotDisturbWhatIsArmed) {
  desk_.arm(kHere, kHost);
  desk_.withdraw();
  desk_.take();
  desk_.deliver(wordAnswer(u"data"));
  EXPECT_EQ(word(), u"data");
}

TEST_F(Desk, NoWordIsAnnouncedNowhere) {
  for (const Outcome outcome : {Outcome::none, Outcome::refused, Outcome::outOfTime}) {
    desk_.arm(kHere, kHost);
    desk_.take();
    desk_.deliver({.outcome = outcome, .word = {}});
  }
  EXPECT_TRUE(announced_.empty());
  EXPECT_EQ(desk_.disarm(), std::nullopt);
}

TEST_F(Desk, AQuestionStandsUntilItIsDisarmed) {
  EXPECT_FALSE(desk_.armed());
  desk_.arm(kHere, kHost);
  EXPECT_TRUE(desk_.armed());
  desk_.take();
  desk_.deliver(wordAnswer(u"data"));
  EXPECT_TRUE(desk_.armed());
  desk_.disarm();
  EXPECT_FALSE(desk_.armed());
  desk_.arm(kThere, kHost);
  desk_.disarm();
  EXPECT_FALSE(desk_.armed());
}

TEST_F(Desk, AnAnswerAfterDisarmingIsDropped) {
  desk_.arm(kHere, kHost);
  desk_.take();
  EXPECT_EQ(desk_.disarm(), std::nullopt);
  desk_.deliver(wordAnswer(u"late"));
  EXPECT_TRUE(announced_.empty());
  EXPECT_EQ(word(), u"(none)");
  desk_.arm(kHere, kHost);
  EXPECT_EQ(word(), u"(none)");
}

TEST_F(Desk, ArmingTheSameAgainAdoptsTheQuestionInWork) {
  desk_.arm(kHere, kHost);
  desk_.take();
  for (int probes = 0; probes < 5; ++probes) {
    desk_.disarm();
    desk_.arm(kHere, kHost + 1);
  }
  desk_.deliver(wordAnswer(u"slow"));
  EXPECT_EQ(announced_, std::vector<WindowId>{kHost + 1});
  EXPECT_EQ(word(), u"slow");
  desk_.arm(kThere, kHost);
  EXPECT_EQ(desk_.take(), kThere) << "the adopted question was asked again";
}

TEST_F(Desk, AnotherPointOrWindowCancelsTheQuestionInWork) {
  for (const Question& other : {kThere, kOtherWindow}) {
    desk_.arm(kHere, kHost);
    desk_.take();
    desk_.arm(other, kHost);
    desk_.deliver(wordAnswer(u"old"));
    EXPECT_TRUE(announced_.empty());
    EXPECT_EQ(desk_.take(), other);
    desk_.deliver({});
  }
}

TEST_F(Desk, ComingBackAfterAnotherPointAsksAnew) {
  desk_.arm(kHere, kHost);
  desk_.take();
  desk_.arm(kThere, kHost);
  desk_.arm(kHere, kHost);
  desk_.deliver(wordAnswer(u"old"));
  EXPECT_TRUE(announced_.empty());
  EXPECT_EQ(desk_.take(), kHere);
  desk_.deliver(wordAnswer(u"new"));
  EXPECT_EQ(word(), u"new");
}

TEST_F(Desk, AnAnsweredQuestionIsNotAdopted) {
  desk_.arm(kHere, kHost);
  desk_.take();
  desk_.deliver(wordAnswer(u"first"));
  desk_.arm(kHere, kHost);
  EXPECT_EQ(word(), u"(none)");
  EXPECT_EQ(desk_.take(), kHere);
}

TEST_F(Desk, TheLatestQuestionWins) {
  desk_.arm(kHere, kHost);
  desk_.arm(kThere, kHost);
  desk_.arm(kOtherWindow, kHost);
  EXPECT_EQ(desk_.take(), kOtherWindow);
  desk_.deliver(wordAnswer(u"latest"));
  EXPECT_EQ(word(), u"latest");
}

TEST_F(Desk, AHostThatCannotBeToldFetchesNothing) {
  hostListens_ = false;
  desk_.arm(kHere, kHost);
  desk_.take();
  desk_.deliver(wordAnswer(u"data"));
  EXPECT_EQ(word(), u"(none)");
  EXPECT_EQ(desk_.disarm(), std::nullopt);
}

TEST_F(Desk, ClosingSendsTheWorkerAwayAndForgetsAll) {
  desk_.arm(kHere, kHost);
  desk_.close();
  EXPECT_EQ(desk_.take(), std::nullopt);
  EXPECT_FALSE(desk_.reopen());
}

TEST_F(Desk, AWorkerThatHasNotLeftYetIsKept) {
  desk_.arm(kHere, kHost);
  desk_.take();
  desk_.close();
  EXPECT_TRUE(desk_.reopen());
  desk_.arm(kHere, kHost);
  desk_.deliver(wordAnswer(u"of the time before"));
  EXPECT_TRUE(announced_.empty());
  EXPECT_EQ(desk_.take(), kHere);
}

}  // namespace
}  // namespace nhw32
