// Programs that do not answer, under the pointer.
#include <algorithm>
#include <chrono>
#include <fstream>
#include <vector>

#include "tests/program/capture_fixture.h"
#include "tests/program/harness/stopped.h"
#include "tests/program/harness/text_window.h"

namespace harness {
namespace {

/// How long the toolbar takes to answer, in ms: the median and the longest of two seconds' tries.
std::pair<double, double> answerTimes(HWND toolbar) {
  std::vector<double> times;
  const ULONGLONG end = GetTickCount64() + 2'000;
  LARGE_INTEGER frequency{};
  QueryPerformanceFrequency(&frequency);
  while (GetTickCount64() < end) {
    LARGE_INTEGER start{};
    LARGE_INTEGER stop{};
    QueryPerformanceCounter(&start);
    send(toolbar, WM_NULL);
    QueryPerformanceCounter(&stop);
    times.push_back(static_cast<double>(stop.QuadPart - start.QuadPart) * 1000.0 /
                    static_cast<double>(frequency.QuadPart));
    Sleep(5);
  }
  std::ranges::sort(times);
  return {times.at(times.size() / 2), times.back()};
}

TEST_F(Capture, AWindowThatDoesNotAnswerHoldsNothingUp) {
  const TextWindow window(L"Edit", 0, {300, 300, 500, 330}, L"database");
  const TextWindow other(L"Edit", 0, {300, 400, 500, 430}, L"kernel");
  {
    const TextWindow::Busy busy(window);
    input::moveTo({310, 308});
    const auto [median, longest] = answerTimes(lexilo.toolbar());
    EXPECT_LT(median, 50);
    EXPECT_LT(longest, 1000);
    EXPECT_FALSE(popup.isUp());
    input::moveTo({310, 408});
    (void)popup.waitFor(L"kernel");
    input::moveTo(kAwayFromTexts);
  }
  popup.waitUntilClosed();
}

TEST_F(Capture, AStoppedProgramHoldsNothingUp) {
  std::ofstream("build/program-to-be-stopped.txt") << "database kernel network";
  const Notepad notepad(L"build\\program-to-be-stopped.txt");
  notepad.place(kPage);
  const POINT place = editPosition(notepad.edit(), 2);
  {
    const Stopped stopped("program-to-be-stopped");
    input::moveTo({place.x + 3, place.y + 6});
    const auto [median, longest] = answerTimes(lexilo.toolbar());
    EXPECT_LT(median, 50);
    EXPECT_LT(longest, 1000);
    EXPECT_FALSE(popup.isUp());
    lexilo.click(ToolbarButton::quickLookup);
    const QuickLookup window(lexilo.process());
    window.close();
  }
  // A window that was let alone for a while is asked again.
  const auto moment = std::chrono::steady_clock::now();
  input::moveTo(kAwayFromTexts);
  waitFor(
      "the program to be read again",
      [&] {
        input::moveTo(kAwayFromTexts);
        restOn(notepad, 2);
        return !popup.staysAway(400);
      },
      60'000);
  RecordProperty("ms until read again",
                 std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(
                                    std::chrono::steady_clock::now() - moment)
                                    .count()));
}

}  // namespace
}  // namespace harness
