// The DPI awareness under which the service reads windows.
#include <gtest/gtest.h>

#include <atomic>

#include "capture/nhw32/controls/target_window.h"
#include "capture/nhw32/service.h"
#include "tests/support/wait.h"
#include "tests/support/window/plain_window.h"
#include "tests/support/window/scoped_import.h"
#include "tests/support/window/word_host.h"

extern "C" decltype(&SetThreadDpiAwarenessContext) __imp_SetThreadDpiAwarenessContext;

namespace support {
namespace {

DPI_AWARENESS threadAwareness() {
  return GetAwarenessFromDpiAwarenessContext(GetThreadDpiAwarenessContext());
}

/// Gives this thread an awareness until the end of the scope.
class ScopedAwareness {
 public:
  explicit ScopedAwareness(DPI_AWARENESS_CONTEXT context)
      : before_(SetThreadDpiAwarenessContext(context)) {}
  ~ScopedAwareness() { SetThreadDpiAwarenessContext(before_); }
  ScopedAwareness(const ScopedAwareness&) = delete;
  ScopedAwareness& operator=(const ScopedAwareness&) = delete;

 private:
  DPI_AWARENESS_CONTEXT before_;
};

/// Answers nothing.
class SilentReader : public nhw32::WordReader {
 public:
  nhw32::Answer wordAt(const nhw32::Question& /*question*/) override { return {}; }
};

/// What threads other than the tests' ask for.
std::atomic<DPI_AWARENESS_CONTEXT> asked;
std::atomic<DWORD> asker;

DPI_AWARENESS_CONTEXT WINAPI note(DPI_AWARENESS_CONTEXT context) {
  asker = GetCurrentThreadId();
  asked = context;
  return nullptr;
}

// A new thread has the awareness of the program's manifest, so that nothing else would show whether
// the worker asks for its own.
TEST(Nhw32Awareness, TheWorkerAsksForPhysicalPixelsBeforeItReads) {
  asked = nullptr;
  const ScopedImport<decltype(&SetThreadDpiAwarenessContext)> import(
      __imp_SetThreadDpiAwarenessContext, note);
  const PlainWindow window(L"STATIC", {300, 300, 400, 400});
  const WordHost host;
  std::atomic<DPI_AWARENESS_CONTEXT> askedBefore = nullptr;
  std::atomic<DWORD> reader = 0;
  nhw32::Service service(
      [&] {
        askedBefore = asked.load();
        reader = GetCurrentThreadId();
        return std::make_unique<SilentReader>();
      },
      RegisterWindowMessageA("BL_HASSTRING"));
  service.start();
  service.arm(host.window(), {350, 350});
  EXPECT_TRUE(eventually([&] { return reader != 0; }));
  EXPECT_EQ(askedBefore, DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  EXPECT_EQ(asker, reader);
  service.stop();
  EXPECT_TRUE(eventually([&] { return service.workers() == 0; }));
}

TEST(Nhw32Awareness, AWindowIsAskedInThePixelsOfItsProgram) {
  const ScopedAwareness aware(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  for (const auto& [context, awareness] :
       {std::pair{DPI_AWARENESS_CONTEXT_UNAWARE, DPI_AWARENESS_UNAWARE},
        std::pair{DPI_AWARENESS_CONTEXT_SYSTEM_AWARE, DPI_AWARENESS_SYSTEM_AWARE}}) {
    std::optional<PlainWindow> window;
    {
      const ScopedAwareness target(context);
      window.emplace(L"EDIT", RECT{300, 300, 500, 340}, L"word");
    }
    {
      const nhw32::ScopedTargetAwareness asking(window->handle());
      EXPECT_EQ(threadAwareness(), awareness);
    }
    EXPECT_EQ(threadAwareness(), DPI_AWARENESS_PER_MONITOR_AWARE) << "restored afterwards";
  }
}

}  // namespace
}  // namespace support
