// How long windows may keep a question waiting.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <vector>

#include "capture/nhw32/controls/target_window.h"
#include "tests/support/window/gate.h"
#include "tests/support/window/hooked_text_window.h"
#include "tests/support/window/scoped_import.h"

extern "C" decltype(&SendMessageTimeoutW) __imp_SendMessageTimeoutW;

namespace support {
namespace {

using namespace std::chrono_literals;
using nhw32::Outcome;
using nhw32::TargetWindow;

/// What the window's thread is held up by.
constexpr UINT kSlow = WM_APP + 1;

/// How TargetWindow::ask ends; kWord if with an answer.
Outcome outcomeOf(const TargetWindow& target) {
  try {
    static_cast<void>(target.ask(kSlow));
    return Outcome::kWord;
  } catch (const nhw32::NoAnswer& silence) {
    return silence.outcome();
  }
}

/// Stands for the system's function: every message is answered, after `duration` by the test's
/// clock. Notes the limits.
struct Messages {
  std::chrono::steady_clock::time_point now;
  std::chrono::milliseconds duration{0};
  std::vector<UINT> limits;
};
Messages* messages = nullptr;

LRESULT WINAPI answer(HWND /*window*/, UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/,
                      UINT flags, UINT limit, PDWORD_PTR result) {
  EXPECT_EQ(flags, UINT{SMTO_ABORTIFHUNG | SMTO_BLOCK});
  messages->limits.push_back(limit);
  messages->now += messages->duration;
  *result = 0;
  return TRUE;
}

class Nhw32TimeLimits : public ::testing::Test {
 protected:
  Nhw32TimeLimits() { messages = &messages_; }
  ~Nhw32TimeLimits() override { messages = nullptr; }

  /// The limits of the messages of one question, which all take `duration`.
  std::vector<UINT> limits(std::chrono::milliseconds duration) {
    messages_ = {.now = {}, .duration = duration, .limits = {}};
    const TargetWindow target(1, [this] { return messages_.now; });
    Outcome outcome = Outcome::kWord;
    for (int i = 0; i < 1000 && outcome == Outcome::kWord; ++i) outcome = outcomeOf(target);
    EXPECT_EQ(outcome, Outcome::kOutOfTime);
    return messages_.limits;
  }

 private:
  Messages messages_;
  const ScopedImport<decltype(&SendMessageTimeoutW)> import_{__imp_SendMessageTimeoutW, answer};
};

TEST_F(Nhw32TimeLimits, AMessageIsWaitedForFiftyMilliseconds) {
  EXPECT_EQ(limits(50ms), (std::vector<UINT>{50, 50, 50}));
}

TEST_F(Nhw32TimeLimits, AllMessagesOfAQuestionForAHundredAndFiftyTogether) {
  EXPECT_EQ(limits(15ms), (std::vector<UINT>{50, 50, 50, 50, 50, 50, 50, 45, 30, 15}));
  EXPECT_EQ(limits(49ms), (std::vector<UINT>{50, 50, 50, 3}));
  EXPECT_EQ(limits(1ms).size(), 150U);
  EXPECT_EQ(limits(1ms).back(), 1U);
}

TEST_F(Nhw32TimeLimits, NothingIsSentAfterwards) {
  EXPECT_EQ(limits(150ms), (std::vector<UINT>{50}));
  EXPECT_EQ(limits(10s), (std::vector<UINT>{50}));
}

// 0 would mean that the system does not wait at all.
TEST_F(Nhw32TimeLimits, ALimitIsRoundedUp) {
  Messages part{.now = {}, .duration = 0ms, .limits = {}};
  messages = &part;
  const TargetWindow target(1, [&] { return part.now; });
  part.now += 149'500us;
  EXPECT_EQ(outcomeOf(target), Outcome::kWord);
  EXPECT_EQ(part.limits, (std::vector<UINT>{1}));
}

// By the system's own time. 45 ms are what a busy machine may add to the best of several tries.
TEST(Nhw32Time, AWindowThatHangsIsWaitedForNoLonger) {
  Gate gate(true);
  const HookedTextWindow window({.hook = [&](HWND, UINT message, WPARAM, LPARAM) {
    if (message == kSlow) gate.pass();
    return std::optional<LRESULT>();
  }});
  auto best = 1'000ms;
  for (int tries = 0; tries < 20 && best > 95ms; ++tries) {
    const TargetWindow target(reinterpret_cast<nhw32::WindowId>(window.control()));
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(outcomeOf(target), Outcome::kOutOfTime);
    best = std::min(best, std::chrono::duration_cast<std::chrono::milliseconds>(
                              std::chrono::steady_clock::now() - begin));
  }
  gate.open();
  EXPECT_LE(best, 95ms);
}

}  // namespace
}  // namespace support
