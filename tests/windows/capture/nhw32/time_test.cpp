// How long windows may keep a question waiting.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>

#include "capture/nhw32/controls/target_window.h"
#include "tests/support/window/hooked_text_window.h"

namespace support {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr UINT kSlow = WM_APP + 1;
/// What a busy machine may add even to the best of several tries.
constexpr milliseconds kNoise{45};
constexpr int kTries = 20;

/// Asks until there is no answer in time; how long that took.
milliseconds timeUntilSilence(HWND control) {
  const auto begin = steady_clock::now();
  const nhw32::TargetWindow target(reinterpret_cast<nhw32::WindowId>(control));
  try {
    while (steady_clock::now() - begin < std::chrono::seconds(5))
      static_cast<void>(target.ask(kSlow));
  } catch (const nhw32::NoAnswer& silence) {
    EXPECT_EQ(silence.outcome(), nhw32::Outcome::kOutOfTime);
  }
  return std::chrono::duration_cast<milliseconds>(steady_clock::now() - begin);
}

TEST(Nhw32Time, OneMessageWaitsForFiftyMilliseconds) {
  std::atomic<bool> hangs = true;
  const HookedTextWindow target({.hook = [&](HWND, UINT message, WPARAM, LPARAM) {
    while (hangs && message == kSlow) Sleep(1);
    return std::optional<LRESULT>();
  }});
  milliseconds best = milliseconds::max();
  for (int tries = 0; tries < kTries && best > milliseconds(50) + kNoise; ++tries) {
    best = std::min(best, timeUntilSilence(target.control()));
  }
  hangs = false;
  EXPECT_GE(best, milliseconds(45));
  EXPECT_LE(best, milliseconds(50) + kNoise);
}

TEST(Nhw32Time, AllMessagesOfAQuestionWaitForAHundredAndFifty) {
  const HookedTextWindow target({.hook = [&](HWND, UINT message, WPARAM, LPARAM) {
    if (message == kSlow) Sleep(15);
    return std::optional<LRESULT>();
  }});
  milliseconds best = milliseconds::max();
  for (int tries = 0; tries < kTries && best > milliseconds(150) + kNoise; ++tries) {
    // It ends earlier where a busy machine holds one message up for too long.
    const milliseconds time = timeUntilSilence(target.control());
    if (time >= milliseconds(145)) best = std::min(best, time);
  }
  EXPECT_LE(best, milliseconds(150) + kNoise);
}

}  // namespace
}  // namespace support
