#include <gtest/gtest.h>
#include <windows.h>

#include <richedit.h>

#include <algorithm>
#include <atomic>
#include <chrono>

#include "capture/nhw32/nhw32.h"
#include "capture/nhw32/policy.h"
#include "capture/nhw32/reader.h"
#include "capture/nhw32/router.h"
#include "capture/nhw32/service.h"
#include "tests/support/data/plain_readings.h"
#include "tests/support/process/find.h"
#include "tests/support/wait.h"
#include "tests/support/window/counted_service.h"
#include "tests/support/window/gate.h"
#include "tests/support/window/heap_blocks.h"
#include "tests/support/window/hooked_text_window.h"
#include "tests/support/window/latency_recorder.h"
#include "tests/support/window/word_host.h"

namespace support {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// How long a question may take in messages; the system may take the processor away for a while.
constexpr milliseconds kQuestionTime{200 + 150};

/// A control whose thread can be made to hang in its messages.
class Hanging {
 public:
  /// In all messages or only in `message`.
  explicit Hanging(std::wstring className = L"EDIT", UINT message = WM_NULL,
                   DWORD style = ES_MULTILINE | ES_AUTOVSCROLL)
      : target_({.className = std::move(className),
                 .style = style,
                 .hook =
                     [this, message](HWND, UINT sent, WPARAM, LPARAM structure) {
                       if (message != WM_NULL && message != sent) return std::optional<LRESULT>();
                       const bool late = gate_.closed() && message == sent;
                       gate_.pass();
                       if (late && !inUse(structure)) ++lost_;
                       return std::optional<LRESULT>();
                     }},
                u"stubborn words") {
    place_ = centreOf(*characterCell(target_.control(), 3));
  }
  ~Hanging() { gate_.open(); }
  Hanging(const Hanging&) = delete;
  Hanging& operator=(const Hanging&) = delete;

  void hang(bool hangs) { hangs ? gate_.close() : gate_.open(); }
  /// How often the memory that `message` was given was gone when its time came.
  [[nodiscard]] int lost() const { return lost_; }
  [[nodiscard]] POINT place() const { return place_; }
  [[nodiscard]] nhw32::Question question() const { return questionAt(target_.control(), place_); }

 private:
  static bool inUse(LPARAM address) {
    MEMORY_BASIC_INFORMATION memory{};
    VirtualQuery(reinterpret_cast<const void*>(address), &memory, sizeof memory);
    return memory.State == MEM_COMMIT && !isFreeInHeap(reinterpret_cast<const void*>(address));
  }

  Gate gate_;
  std::atomic<int> lost_ = 0;
  HookedTextWindow target_;
  POINT place_{};
};

class Nhw32Hanging : public ::testing::Test {
 protected:
  ~Nhw32Hanging() override {
    nhw32::ResetNHW32();
    EXPECT_TRUE(eventually([] { return nhw32::service().workers() == 0; }));
  }

  WordHost host_;
};

TEST_F(Nhw32Hanging, AQuestionEndsInTimeAndTheWindowIsLeftAloneForAWhile) {
  for (const wchar_t* className : {L"EDIT", L"RichEdit20W"}) {
    Hanging target(className);
    const auto router = nhw32::makeWindowReader();
    ASSERT_EQ(plainWord(answerTo(target.question()).word.readings), u"stubborn");
    target.hang(true);
    for (int i = 0; i < 3; ++i) {
      const auto begin = steady_clock::now();
      EXPECT_EQ(router->wordAt(target.question()).outcome, nhw32::Outcome::kOutOfTime);
      EXPECT_LE(steady_clock::now() - begin, kQuestionTime);
    }
    EXPECT_EQ(router->wordAt(target.question()).outcome, nhw32::Outcome::kNone);
    target.hang(false);
    EXPECT_EQ(router->wordAt(target.question()).outcome, nhw32::Outcome::kNone);
    EXPECT_EQ(plainWord(answerTo(target.question()).word.readings), u"stubborn");
  }
}

TEST_F(Nhw32Hanging, RemoteMemoryOutlivesAMessageThatTimedOut) {
  for (const auto& [className, message] :
       {std::pair(L"EDIT", UINT{WM_GETTEXT}), std::pair(L"EDIT", UINT{EM_GETRECT}),
        std::pair(L"RichEdit20W", UINT{EM_CHARFROMPOS}),
        std::pair(L"RichEdit20W", UINT{EM_GETTEXTRANGE})}) {
    Hanging target(className, message,
                   message == EM_GETRECT ? ES_AUTOHSCROLL : ES_MULTILINE | ES_AUTOVSCROLL);
    for (int round = 0; round < 3; ++round) {
      target.hang(true);
      EXPECT_EQ(nhw32::makeWindowReader()->wordAt(target.question()).outcome,
                nhw32::Outcome::kOutOfTime);
      target.hang(false);
      EXPECT_EQ(plainWord(answerTo(target.question()).word.readings), u"stubborn");
    }
    EXPECT_EQ(target.lost(), 0);
  }
}

TEST_F(Nhw32Hanging, ProbingNeverBlocksTheCaller) {
  CountedService counted;
  LatencyRecorder probing;
  for (int i = 0; i < 4; ++i) {
    Hanging target;
    ASSERT_EQ(plainWord(answerTo(target.question()).word.readings), u"stubborn");
    target.hang(true);
    for (int probe = 0; probe < nhw32::Backoff::kMaxTimeouts; ++probe) {
      const int answers = counted.answers();
      probing.measure([&] {
        counted.probe(host_.window(), target.place());
        counted.service().start();
      });
      // Otherwise the next probe would adopt this one's question.
      waitFor("the question to end", [&] { return counted.answers() > answers; });
    }
  }
  EXPECT_FALSE(probing.wait());
  EXPECT_TRUE(host_.words().empty());
}

TEST_F(Nhw32Hanging, StartingAndStoppingTwoHundredTimesLeavesNoThreads) {
  Hanging target;
  for (const bool hangs : {false, true}) {
    target.hang(hangs);
    LatencyRecorder restarting;
    int most = 0;
    for (int round = 0; round < 200; ++round) {
      restarting.measure([&] {
        nhw32::SetNHW32();
        host_.probe(target.place());
        nhw32::ResetNHW32();
      });
      most = std::max(most, nhw32::service().workers());
      if (round % 20 == 0) {
        EXPECT_TRUE(eventually([] { return nhw32::service().workers() == 0; }));
      }
    }
    EXPECT_FALSE(restarting.wait());
    EXPECT_LE(most, 2) << "a worker that hangs in a question is kept, not replaced";
    EXPECT_TRUE(eventually([] { return nhw32::service().workers() == 0; }));
  }
}

/// Fails left of x = 100, waits left of x = 200 until its gate is open, or answers at once.
class Stubborn : public nhw32::WordReader {
 public:
  nhw32::Answer wordAt(const nhw32::Question& question) override {
    ++asked;
    if (question.point.x < 100) throw std::runtime_error("fails");
    const bool slow = question.point.x < 200;
    if (slow) gate.pass();
    return {.outcome = nhw32::Outcome::kWord,
            .word = {.readings = plainReadings(slow ? u"slow" : u"quick"), .box = {}}};
  }
  static inline std::atomic<int> asked = 0;
  static inline Gate gate;
};

TEST_F(Nhw32Hanging, AReaderSlowerThanTheProbesDeliversAndAThrowingOneDoesNoHarm) {
  Stubborn::asked = 0;
  Stubborn::gate.close();
  nhw32::Service service([] { return std::make_unique<Stubborn>(); },
                         RegisterWindowMessageA(nhw32::kMessageName));
  service.start();
  const auto probe = [&](POINT point) {
    service.disarm();
    service.arm(host_.window(), point);
  };
  probe({50, 500});
  ASSERT_TRUE(eventually([] { return Stubborn::asked == 1; }));
  const UINT message = RegisterWindowMessageA(nhw32::kMessageName);
  const auto announced = [&] {
    MSG queued;
    return PeekMessageW(&queued, host_.window(), message, message, PM_NOREMOVE) != FALSE;
  };
  probe({150, 500});
  ASSERT_TRUE(eventually([] { return Stubborn::asked == 2; }));
  for (int probes = 0; probes < 10; ++probes) {
    probe({150, 500});
    EXPECT_FALSE(announced());
  }
  Stubborn::gate.open();
  {
    const ScopedSleepingWaits sleeping;  // the message stays in the queue
    EXPECT_TRUE(eventually(announced));
  }
  EXPECT_EQ(Stubborn::asked, 2);
  EXPECT_EQ(plainWord(service.word()->readings), u"slow");
  probe({150, 500});
  probe({250, 500});
  ASSERT_TRUE(eventually([&] { return service.word().has_value(); }));
  EXPECT_EQ(plainWord(service.word()->readings), u"quick");
  service.stop();
  EXPECT_TRUE(eventually([&] { return service.workers() == 0; }));
}

}  // namespace
}  // namespace support
