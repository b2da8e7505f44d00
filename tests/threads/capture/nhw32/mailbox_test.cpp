#include "capture/nhw32/mailbox.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <deque>
#include <latch>
#include <memory>
#include <random>
#include <string>
#include <thread>

#include "tests/support/data/plain_readings.h"

/// The mailbox between the thread that arms and a worker, under the thread sanitizer.
namespace nhw32 {
namespace {

constexpr int kRounds = 10'000;

/// The answer to a question, the `number`th that was taken: the one in its text, the other as the
/// left edge of its place.
Answer answerTo(const Question& question, int number, Outcome outcome = Outcome::kWord) {
  const std::string text = "word at " + std::to_string(question.point.x) + " in window " +
                           std::to_string(question.window);
  return {.outcome = outcome,
          .word = {.readings = support::plainReadings({text.begin(), text.end()}),
                   .box = {.left = number}}};
}

/// A host's message queue.
class Queue {
 public:
  bool post() {
    const std::scoped_lock lock(mutex_);
    ++messages_;
    return true;
  }
  bool takeOne() {
    const std::scoped_lock lock(mutex_);
    if (messages_ == 0) return false;
    --messages_;
    return true;
  }

 private:
  std::mutex mutex_;
  int messages_ = 0;
};

/// Now and then lets the other thread run first.
void dawdle(std::mt19937& random) {
  switch (random() % 4) {
    case 0:
      std::this_thread::yield();
      break;
    case 1:
      std::this_thread::sleep_for(std::chrono::microseconds(random() % 20));
      break;
    default:
      break;
  }
}

/// A worker's life. Questions are counted as they are taken.
void work(ProbeMailbox& mailbox, unsigned seed, std::atomic<int>& taken) {
  std::mt19937 random(seed);
  while (const auto question = mailbox.take()) {
    const int number = ++taken;
    dawdle(random);
    const bool found = random() % 8 != 0;
    mailbox.deliver(answerTo(*question, number, found ? Outcome::kWord : Outcome::kNone));
  }
}

/// The user-interface thread's side: what it does in the program's operations and loop.
class Host {
 public:
  Host(ProbeMailbox& mailbox, Queue& queue, const std::atomic<int>& taken)
      : mailbox_(mailbox), queue_(queue), taken_(taken) {}

  void arm(const Question& question) {
    disarm();
    armed_ = question;
    // Only a question that is asked on and on may be answered by a worker who took it before.
    if (question != asked_) tooOld_ = taken_;
    asked_ = question;
    mailbox_.arm(question, 1);
  }

  void disarm() {
    if (mailbox_.disarm() && queue_.takeOne()) mailbox_.withdraw();
    EXPECT_FALSE(queue_.takeOne()) << "an announcement survived disarming";
    EXPECT_EQ(mailbox_.word(), std::nullopt) << "a word survived disarming";
    armed_.reset();
  }

  /// Handles an announcement if one is there, as the window procedure does.
  void handle() {
    if (!queue_.takeOne()) return;
    ASSERT_TRUE(armed_) << "an announcement without a question";
    mailbox_.disarm();
    const auto word = mailbox_.word();
    ASSERT_TRUE(word) << "an announcement without a word";
    EXPECT_EQ(word->readings, answerTo(*armed_, 0).word.readings) << "the word of another question";
    EXPECT_GT(word->box.left, tooOld_) << "the answer to an older question of the same kind";
    tooOld_ = word->box.left;
    armed_.reset();
    ++heard_;
    mailbox_.disarm();
    EXPECT_EQ(mailbox_.word(), std::nullopt);
  }

  [[nodiscard]] int heard() const { return heard_; }

 private:
  ProbeMailbox& mailbox_;
  Queue& queue_;
  const std::atomic<int>& taken_;
  std::optional<Question> armed_;
  std::optional<Question> asked_;  ///< the last that was armed, even if it is disarmed
  int tooOld_ = 0;                 ///< questions taken up to here must not be answered
  int heard_ = 0;
};

Question anyQuestion(std::mt19937& random) {
  return {.window = 1 + random() % 2, .point = {static_cast<int>(random() % 3), 0}};
}

TEST(ProbeMailboxThreads, NoOlderAnswerSurvivesInTenThousandInterleavings) {
  std::mt19937 random(1);
  Queue queue;
  ProbeMailbox mailbox([&](WindowId) { return queue.post(); });
  std::atomic<int> taken = 0;
  std::thread worker([&] { work(mailbox, 2, taken); });
  Host host(mailbox, queue, taken);
  for (int round = 0; round < kRounds; ++round) {
    if (random() % 8 == 0) {
      host.disarm();
    } else {
      host.arm(anyQuestion(random));
    }
    dawdle(random);
    host.handle();
  }
  EXPECT_GT(host.heard(), kRounds / 100);
  mailbox.close();
  worker.join();
}

TEST(ProbeMailboxThreads, SlowWorkersAnswerAQuestionThatIsArmedAgain) {
  const Question question{.window = 1, .point = {2, 0}};
  Queue queue;
  ProbeMailbox mailbox([&](WindowId) { return queue.post(); });
  std::atomic<int> taken = 0;
  std::latch armedAgain(1);
  std::thread worker([&] {
    while (const auto asked = mailbox.take()) {
      const int number = ++taken;
      armedAgain.wait();
      mailbox.deliver(answerTo(*asked, number));
    }
  });
  Host host(mailbox, queue, taken);
  host.arm(question);
  while (taken == 0) std::this_thread::yield();
  for (int round = 0; round < 50; ++round) {
    host.arm(question);
    host.handle();
  }
  // From here on nothing is armed any more: an answer that comes between two armings is dropped.
  armedAgain.count_down();
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (host.heard() == 0 && std::chrono::steady_clock::now() < deadline) host.handle();
  EXPECT_EQ(host.heard(), 1);
  EXPECT_EQ(taken, 1);
  mailbox.close();
  worker.join();
}

TEST(ProbeMailboxThreads, WorkersComeAndGoInTenThousandRounds) {
  std::mt19937 random(3);
  Queue queue;
  std::deque<std::thread> workers;
  std::atomic<int> taken = 0;
  std::shared_ptr<ProbeMailbox> mailbox;
  for (int round = 0; round < kRounds; ++round) {
    if (mailbox == nullptr || !mailbox->reopen()) {
      mailbox = std::make_shared<ProbeMailbox>([&](WindowId) { return queue.post(); });
      workers.emplace_back(
          [mailbox, round, &taken] { work(*mailbox, static_cast<unsigned>(round), taken); });
    }
    while (workers.size() > 4) {
      workers.front().join();
      workers.pop_front();
    }
    Host host(*mailbox, queue, taken);
    host.arm(anyQuestion(random));
    dawdle(random);
    host.handle();
    host.disarm();
    mailbox->close();
    dawdle(random);
  }
  for (std::thread& worker : workers) worker.join();
}

}  // namespace
}  // namespace nhw32
