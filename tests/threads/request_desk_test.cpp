#include "capture/nhw32/request_desk.h"

#include <gtest/gtest.h>

#include <atomic>
#include <deque>
#include <memory>
#include <random>
#include <string>
#include <thread>

/// The desk between the thread that arms and a worker, under the thread sanitizer.
namespace nhw32 {
namespace {

constexpr int kRounds = 10'000;

/// What the answer to a question has to be.
std::u16string wordFor(const Question& question) {
  return u"word" + std::u16string(static_cast<std::size_t>(question.point.x), u'x');
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

void work(RequestDesk& desk, unsigned seed) {
  std::mt19937 random(seed);
  while (const auto question = desk.take()) {
    dawdle(random);
    const bool found = random() % 8 != 0;
    desk.deliver({.outcome = found ? Outcome::word : Outcome::none,
                  .word = {.text = wordFor(*question), .box = {}}});
  }
}

/// The user-interface thread's side: what it does in the program's operations and loop.
class Host {
 public:
  explicit Host(RequestDesk& desk, Queue& queue) : desk_(desk), queue_(queue) {}

  void arm(const Question& question) {
    disarm();
    armed_ = question;
    desk_.arm(question, 1);
  }

  void disarm() {
    if (desk_.disarm() && queue_.takeOne()) desk_.withdraw();
    EXPECT_FALSE(queue_.takeOne()) << "an announcement survived disarming";
    EXPECT_EQ(desk_.word(), std::nullopt) << "a word survived disarming";
    armed_.reset();
  }

  /// Handles an announcement if one is there, as the window procedure does.
  void handle() {
    if (!queue_.takeOne()) return;
    ASSERT_TRUE(armed_) << "an announcement without a question";
    desk_.disarm();
    const auto word = desk_.word();
    ASSERT_TRUE(word) << "an announcement without a word";
    EXPECT_EQ(word->text, wordFor(*armed_)) << "the word of another question";
    armed_.reset();
    ++heard_;
    desk_.disarm();
    EXPECT_EQ(desk_.word(), std::nullopt);
  }

  [[nodiscard]] int heard() const { return heard_; }

 private:
  RequestDesk& desk_;
  Queue& queue_;
  std::optional<Question> armed_;
  int heard_ = 0;
};

Question anyQuestion(std::mt19937& random) {
  return {.window = 1 + random() % 2, .point = {static_cast<int>(random() % 3), 0}};
}

TEST(RequestDeskThreads, NoOlderAnswerSurvivesInTenThousandInterleavings) {
  std::mt19937 random(1);
  Queue queue;
  RequestDesk desk([&](WindowId) { return queue.post(); });
  std::thread worker([&] { work(desk, 2); });
  Host host(desk, queue);
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
  desk.close();
  worker.join();
}

TEST(RequestDeskThreads, WhoArmsTheSameAgainAndAgainIsHeardBySlowWorkers) {
  Queue queue;
  RequestDesk desk([&](WindowId) { return queue.post(); });
  std::atomic<int> asked = 0;
  std::thread worker([&] {
    while (const auto question = desk.take()) {
      ++asked;
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      desk.deliver({.outcome = Outcome::word, .word = {.text = wordFor(*question), .box = {}}});
    }
  });
  Host host(desk, queue);
  for (int round = 0; host.heard() == 0 && round < kRounds; ++round) {
    host.arm({.window = 1, .point = {2, 0}});
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    host.handle();
  }
  EXPECT_EQ(host.heard(), 1);
  EXPECT_EQ(asked, 1);
  desk.close();
  worker.join();
}

TEST(RequestDeskThreads, WorkersComeAndGoInTenThousandRounds) {
  std::mt19937 random(3);
  Queue queue;
  std::deque<std::thread> workers;
  std::shared_ptr<RequestDesk> desk;
  for (int round = 0; round < kRounds; ++round) {
    if (desk == nullptr || !desk->reopen()) {
      desk = std::make_shared<RequestDesk>([&](WindowId) { return queue.post(); });
      workers.emplace_back([desk, round] { work(*desk, static_cast<unsigned>(round)); });
    }
    while (workers.size() > 4) {
      workers.front().join();
      workers.pop_front();
    }
    Host host(*desk, queue);
    host.arm(anyQuestion(random));
    dawdle(random);
    host.handle();
    host.disarm();
    desk->close();
    dawdle(random);
  }
  for (std::thread& worker : workers) worker.join();
}

}  // namespace
}  // namespace nhw32
