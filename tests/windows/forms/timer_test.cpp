#include "forms/timer.h"

#include <stdexcept>

#include "tests/support/window/fake_timers.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class TimerTest : public WindowTest {
 protected:
  int ticks = 0;
};

TEST_F(TimerTest, TicksAtItsInterval) {
  forms::Timer timer(forms::form<FormA>());
  timer.onTimer = [this] { ++ticks; };
  timer.setInterval(20);
  timer.setEnabled(true);
  const ULONGLONG start = GetTickCount64();
  ASSERT_TRUE(eventually([this] { return ticks >= 5; }));
  EXPECT_GE(GetTickCount64() - start, 80U);
}

TEST_F(TimerTest, NeitherDisabledNorWithoutIntervalDoesItTick) {
  forms::Timer disabled(forms::form<FormA>(), 10);
  forms::Timer noInterval(forms::form<FormA>(), 0, true);
  disabled.onTimer = noInterval.onTimer = [this] { ++ticks; };
  EXPECT_FALSE(disabled.enabled());
  EXPECT_TRUE(noInterval.enabled());
  EXPECT_TRUE(always([this] { return ticks == 0; }, 60));
}

TEST_F(TimerTest, AnIntervalStartsOneThatIsEnabled) {
  forms::Timer timer(forms::form<FormA>(), 0, true);
  timer.onTimer = [this] { ++ticks; };
  timer.setInterval(10);
  EXPECT_TRUE(eventually([this] { return ticks >= 2; }));
}

TEST_F(TimerTest, EnablingTwiceDoesNotStartItOver) {
  forms::Timer timer(forms::form<FormA>(), 100, true);
  timer.onTimer = [this] { ++ticks; };
  const ULONGLONG start = GetTickCount64();
  while (ticks == 0 && GetTickCount64() - start < 2'000) {
    timer.setEnabled(true);
    passTime(10);
  }
  EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, StopsInItsOwnTick) {
  forms::Timer timer(forms::form<FormA>(), 10, true);
  timer.onTimer = [&] {
    ++ticks;
    timer.setEnabled(false);
  };
  ASSERT_TRUE(eventually([this] { return ticks == 1; }));
  EXPECT_TRUE(always([this] { return ticks == 1; }, 60));
  EXPECT_FALSE(timer.enabled());
}

TEST_F(TimerTest, ATickThatWaitedWhenItWasStoppedIsNotRaised) {
  const FakeTimers timers;
  forms::Timer timer(forms::form<FormA>(), 10, true);
  timer.onTimer = [this] { ++ticks; };
  FakeTimers::queueTicks();
  forms::doEvents();
  ASSERT_EQ(ticks, 1);
  FakeTimers::queueTicks();
  timer.setEnabled(false);
  forms::doEvents();
  EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, OneThatTheSystemDoesNotStartIsAnErrorAndStaysDisabled) {
  forms::Timer timer(forms::form<FormA>(), 10);
  timer.onTimer = [this] { ++ticks; };
  {
    const ScopedImport<decltype(&SetTimer)> none(__imp_SetTimer,
                                                 [](HWND, UINT_PTR, UINT, TIMERPROC) -> UINT_PTR {
                                                   SetLastError(ERROR_NO_SYSTEM_RESOURCES);
                                                   return 0;
                                                 });
    EXPECT_THROW(timer.setEnabled(true), std::runtime_error);
  }
  EXPECT_FALSE(timer.enabled());
  timer.setEnabled(true);
  EXPECT_TRUE(eventually([this] { return ticks > 0; }));
}

TEST_F(TimerTest, RaisesNothingOnceItsFormUnloads) {
  auto& form = opened<FormA>();
  forms::Timer timer(form, 10, true);
  timer.onTimer = [this] { ++ticks; };
  int before = 0;
  plan<'A'>().unload = [&] {
    before = ticks;
    passTime(50);
  };
  form.unload();
  EXPECT_EQ(ticks, before);
  // The form's object may go before its timer here, which no window has; the timer is stopped.
  timer.setEnabled(false);
}

TEST_F(TimerTest, TicksWhileAMessageBoxIsUp) {
  forms::Timer timer(opened<FormA>(), 10, true);
  timer.onTimer = [this] { ++ticks; };
  bool ticked = false;
  boxes.whileUp([&](HWND) {
    ticks = 0;
    ticked = eventually([this] { return ticks > 0; });
  });
  MessageBoxW(nullptr, L"…", L"", MB_OK);
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(ticked);
}

TEST_F(TimerTest, TwoTimersDoNotDisturbEachOther) {
  forms::Timer fast(forms::form<FormA>(), 10, true);
  forms::Timer slow(forms::form<FormA>(), 50, true);
  int slowTicks = 0;
  fast.onTimer = [this] { ++ticks; };
  slow.onTimer = [&] { ++slowTicks; };
  ASSERT_TRUE(eventually([&] { return slowTicks >= 2; }));
  EXPECT_GT(ticks, slowTicks);
  fast.setEnabled(false);
  const int before = ticks;
  ASSERT_TRUE(eventually([&] { return slowTicks >= 4; }));
  EXPECT_EQ(ticks, before);
}

}  // namespace
}  // namespace support
