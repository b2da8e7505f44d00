// From the pointer's coming to rest on a word in Notepad to the popup with its meaning, as a user
// waits for it. Prints milliseconds.
// Lexilo is started from build/app.
#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

#include "tests/program/harness/controls.h"
#include "tests/program/harness/input.h"
#include "tests/program/harness/lexilo.h"
#include "tests/program/harness/meaning_popup.h"
#include "tests/program/harness/notepad.h"
#include "tests/program/harness/word_page.h"

namespace {

using harness::MeaningPopup;
using harness::Notepad;

constexpr int kRounds = 100;
/// A sixth of a second.
constexpr double kAim = 1000.0 / 6;

double milliseconds() {
  LARGE_INTEGER frequency{};
  LARGE_INTEGER now{};
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&now);
  return static_cast<double>(now.QuadPart) * 1000.0 / static_cast<double>(frequency.QuadPart);
}

/// One word: the pointer jumps there, and the popup is waited for.
double timeOfWord(const Notepad& notepad, const MeaningPopup& popup, int character) {
  const POINT place = harness::editPosition(notepad.edit(), character);
  SetCursorPos(place.x + 3, place.y + 6);
  const double start = milliseconds();
  harness::waitFor("the popup", [&] { return popup.isUp(); });
  const double taken = milliseconds() - start;
  harness::input::moveTo(harness::kAwayFromTexts);
  popup.waitUntilClosed();
  return taken;
}

void measure() {
  harness::input::moveTo(harness::kAwayFromTexts);
  const harness::Lexilo lexilo(harness::AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const Notepad notepad;
  notepad.place({40, 120, 840, 720});
  const harness::WordPage page(4, 25, 60);
  notepad.setText(page.text());
  const MeaningPopup popup(lexilo.process());
  std::minstd_rand random(5);
  std::vector<double> times;
  while (times.size() < kRounds) {
    const auto& word = page.words()[random() % page.words().size()];
    // Probes come every 100 ms: start anywhere between two.
    Sleep(random() % 100);
    times.push_back(timeOfWord(notepad, popup, word.start));
  }
  std::ranges::sort(times);
  const double median = times[times.size() / 2];
  std::printf(
      "pointer at rest to popup, ms:  median %.0f  90 %% %.0f  longest %.0f  (aim %.0f: %s)\n",
      median, times[times.size() * 9 / 10], times.back(), kAim, median <= kAim ? "met" : "missed");
}

}  // namespace

int main() {
  try {
    measure();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
