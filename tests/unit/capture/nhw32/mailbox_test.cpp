#include "capture/nhw32/mailbox.h"

#include <gtest/gtest.h>

#include <chrono>
#include <vector>

#include "tests/support/data/plain_readings.h"

namespace nhw32 {
namespace {

constexpr WindowId kHost = 7;
constexpr Question kHere{.window = 1, .point = {10, 20}};
constexpr Question kThere{.window = 1, .point = {11, 20}};
constexpr Question kOtherWindow{.window = 2, .point = {10, 20}};

Answer wordAnswer(const std::u16string& text) {
  return {.outcome = Outcome::kWord,
          .word = {.readings = support::plainReadings(text), .box = {1, 2, 3, 4}}};
}

class MailboxTest : public ::testing::Test {
 protected:
  std::u16string word() {
    return support::plainWord(
        mailbox_.word().value_or(Word{support::plainReadings(u"(none)"), {}}).readings);
  }

  bool hostListens_ = true;
  std::vector<WindowId> announced_;
  ProbeMailbox mailbox_{[this](WindowId host) {
    if (hostListens_) announced_.push_back(host);
    return hostListens_;
  }};
};

TEST_F(MailboxTest, AnnouncesTheWordOfTheArmedQuestionOnce) {
  mailbox_.arm(kHere, kHost);
  EXPECT_EQ(mailbox_.take(), kHere);
  EXPECT_EQ(word(), u"(none)");
  mailbox_.deliver(wordAnswer(u"data"));
  EXPECT_EQ(announced_, std::vector<WindowId>{kHost});
  EXPECT_EQ(word(), u"data");
  EXPECT_EQ(mailbox_.word()->box, (ScreenBox{1, 2, 3, 4}));
}

TEST_F(MailboxTest, KeepsTheWordForTheReceiverThatDisarmed) {
  mailbox_.arm(kHere, kHost);
  mailbox_.take();
  mailbox_.deliver(wordAnswer(u"data"));
  EXPECT_EQ(mailbox_.disarm(), kHost);
  EXPECT_EQ(word(), u"data");
  EXPECT_EQ(mailbox_.disarm(), std::nullopt);
  EXPECT_EQ(word(), u"(none)");
}

TEST_F(MailboxTest, WithdrawDropsTheWord) {
  mailbox_.arm(kHere, kHost);
  mailbox_.take();
  mailbox_.deliver(wordAnswer(u"data"));
  EXPECT_EQ(mailbox_.disarm(), kHost);
  mailbox_.withdraw();
  EXPECT_EQ(word(), u"(none)");
}

TEST_F(MailboxTest, WithdrawKeepsTheArmedQuestion) {
  mailbox_.arm(kHere, kHost);
  mailbox_.withdraw();
  mailbox_.take();
  mailbox_.deliver(wordAnswer(u"data"));
  EXPECT_EQ(word(), u"data");
}

TEST_F(MailboxTest, AnnouncesNothingWithoutAWord) {
  for (const Outcome outcome : {Outcome::kNone, Outcome::kRefused, Outcome::kOutOfTime}) {
    mailbox_.arm(kHere, kHost);
    mailbox_.take();
    mailbox_.deliver({.outcome = outcome, .word = {}});
  }
  EXPECT_TRUE(announced_.empty());
  EXPECT_EQ(mailbox_.disarm(), std::nullopt);
}

TEST_F(MailboxTest, IsArmedUntilDisarmed) {
  EXPECT_FALSE(mailbox_.armed());
  mailbox_.arm(kHere, kHost);
  EXPECT_TRUE(mailbox_.armed());
  mailbox_.take();
  mailbox_.deliver(wordAnswer(u"data"));
  EXPECT_TRUE(mailbox_.armed());
  mailbox_.disarm();
  EXPECT_FALSE(mailbox_.armed());
  mailbox_.arm(kThere, kHost);
  mailbox_.disarm();
  EXPECT_FALSE(mailbox_.armed());
}

TEST_F(MailboxTest, DropsAnAnswerAfterDisarm) {
  mailbox_.arm(kHere, kHost);
  mailbox_.take();
  EXPECT_EQ(mailbox_.disarm(), std::nullopt);
  mailbox_.deliver(wordAnswer(u"late"));
  EXPECT_TRUE(announced_.empty());
  EXPECT_EQ(word(), u"(none)");
  mailbox_.arm(kHere, kHost);
  EXPECT_EQ(word(), u"(none)");
}

TEST_F(MailboxTest, AdoptsTheQuestionInWorkWhenArmedAgain) {
  mailbox_.arm(kHere, kHost);
  mailbox_.take();
  for (int probes = 0; probes < 5; ++probes) {
    mailbox_.disarm();
    mailbox_.arm(kHere, kHost + 1);
  }
  mailbox_.deliver(wordAnswer(u"slow"));
  EXPECT_EQ(announced_, std::vector<WindowId>{kHost + 1});
  EXPECT_EQ(word(), u"slow");
  mailbox_.arm(kThere, kHost);
  EXPECT_EQ(mailbox_.take(), kThere) << "the adopted question was asked again";
}

TEST_F(MailboxTest, CancelsTheQuestionInWorkForAnotherPointOrWindow) {
  for (const Question& other : {kThere, kOtherWindow}) {
    mailbox_.arm(kHere, kHost);
    mailbox_.take();
    mailbox_.arm(other, kHost);
    mailbox_.deliver(wordAnswer(u"old"));
    EXPECT_TRUE(announced_.empty());
    EXPECT_EQ(mailbox_.take(), other);
    mailbox_.deliver({});
  }
}

TEST_F(MailboxTest, AsksAgainAfterAnotherPointWasArmed) {
  mailbox_.arm(kHere, kHost);
  mailbox_.take();
  mailbox_.arm(kThere, kHost);
  mailbox_.arm(kHere, kHost);
  mailbox_.deliver(wordAnswer(u"old"));
  EXPECT_TRUE(announced_.empty());
  EXPECT_EQ(mailbox_.take(), kHere);
  mailbox_.deliver(wordAnswer(u"new"));
  EXPECT_EQ(word(), u"new");
}

TEST_F(MailboxTest, DoesNotAdoptAnAnsweredQuestion) {
  mailbox_.arm(kHere, kHost);
  mailbox_.take();
  mailbox_.deliver(wordAnswer(u"first"));
  mailbox_.arm(kHere, kHost);
  EXPECT_EQ(word(), u"(none)");
  EXPECT_EQ(mailbox_.take(), kHere);
}

TEST_F(MailboxTest, TheLatestQuestionWins) {
  mailbox_.arm(kHere, kHost);
  mailbox_.arm(kThere, kHost);
  mailbox_.arm(kOtherWindow, kHost);
  EXPECT_EQ(mailbox_.take(), kOtherWindow);
  mailbox_.deliver(wordAnswer(u"latest"));
  EXPECT_EQ(word(), u"latest");
}

TEST_F(MailboxTest, DropsTheWordIfTheHostCannotBeNotified) {
  hostListens_ = false;
  mailbox_.arm(kHere, kHost);
  mailbox_.take();
  mailbox_.deliver(wordAnswer(u"data"));
  EXPECT_EQ(word(), u"(none)");
  EXPECT_EQ(mailbox_.disarm(), std::nullopt);
}

TEST_F(MailboxTest, CloseEndsTheWorkerAndCancelsTheQuestion) {
  mailbox_.arm(kHere, kHost);
  mailbox_.close();
  EXPECT_EQ(mailbox_.take(), std::nullopt);
  EXPECT_FALSE(mailbox_.reopen());
}

TEST_F(MailboxTest, ReopenKeepsAWorkerThatHasNotLeft) {
  mailbox_.arm(kHere, kHost);
  mailbox_.take();
  mailbox_.close();
  EXPECT_TRUE(mailbox_.reopen());
  mailbox_.arm(kHere, kHost);
  mailbox_.deliver(wordAnswer(u"of the time before"));
  EXPECT_TRUE(announced_.empty());
  EXPECT_EQ(mailbox_.take(), kHere);
}

TEST_F(MailboxTest, AWorkerWaitsForAQuestionOrTheEndButNotForLong) {
  using std::chrono::milliseconds;
  EXPECT_FALSE(mailbox_.waitFor(milliseconds(1)));
  mailbox_.arm(kHere, kHost);
  EXPECT_TRUE(mailbox_.waitFor(milliseconds(1)));
  EXPECT_EQ(mailbox_.take(), kHere);
  EXPECT_FALSE(mailbox_.waitFor(milliseconds(1))) << "a question in work is no new one";
  mailbox_.close();
  EXPECT_TRUE(mailbox_.waitFor(milliseconds(1)));
}

}  // namespace
}  // namespace nhw32
