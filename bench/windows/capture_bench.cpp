// Words under the pointer as a user waits for them: from the pointer's coming to rest on a word in
// Notepad to the popup with its meaning, the part of it that is spent in the screen-text service,
// how long the toolbar is kept from answering meanwhile, and what capture costs while nothing is
// there to be read. Lexilo is started from build/app.
#include <algorithm>
#include <array>
#include <cstdio>
#include <random>
#include <stop_token>
#include <thread>

#include "bench/timings.h"
#include "bench/windows/processor_time.h"
#include "bench/windows/service_host.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/english_page.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/meaning_popup.h"
#include "tests/support/process/system_programs.h"

namespace {

using bench::Timings;
using support::MeaningPopup;
using support::Notepad;

constexpr int kWords = 300;
constexpr DWORD kRest = 30'000;  // ms

/// A page of words in Notepad, which ends well above the window's lower edge.
class Page {
 public:
  Page() {
    notepad_.place({40, 120, 840, 720});
    notepad_.setText(page_.text());
  }

  /// A place in some word.
  POINT anyWord() {
    const auto& word = page_.words()[random_() % page_.words().size()];
    const POINT place = support::editPosition(notepad_.edit(), word.start);
    return {place.x + 3, place.y + 6};
  }

  /// A place below the last line.
  [[nodiscard]] POINT blank() const {
    const RECT client = support::clientRectOf(notepad_.edit());
    return {(client.left + client.right) / 2, client.bottom - 20};
  }

  /// Lets any part of the time between two probes (100 ms) pass.
  void waitAnyPartOfAProbe() { Sleep(random_() % 100); }

 private:
  const Notepad notepad_;
  const support::EnglishPage page_{4, 25, 60};
  std::minstd_rand random_{5};
};

void moveAway(const MeaningPopup& popup) {
  support::input::moveTo(support::kAwayFromTexts);
  popup.waitUntilClosed();
}

/// Asks a window on and on until it is told to stop.
void askOnAndOn(const std::stop_token& stop, HWND window, Timings& answers) {
  while (!stop.stop_requested()) {
    answers.time([&] { support::send(window, WM_NULL); });
    Sleep(2);
  }
}

void measureWords(Page& page, const support::Lexilo& lexilo, Timings& popups, Timings& answers) {
  const MeaningPopup popup(lexilo.process());
  const std::jthread asking([&, toolbar = lexilo.toolbar()](const std::stop_token& stop) {
    askOnAndOn(stop, toolbar, answers);
  });
  for (int i = 0; i < kWords; ++i) {
    const POINT place = page.anyWord();
    page.waitAnyPartOfAProbe();
    SetCursorPos(place.x, place.y);
    popups.time([&] { support::waitFor("the popup", [&] { return popup.isUp(); }); });
    moveAway(popup);
  }
}

/// The service alone, without Lexilo: from arming it to its message.
void measureService(Page& page, Timings& service) {
  bench::ServiceHost host;
  for (int i = 0; i < kWords; ++i) {
    const POINT place = page.anyWord();
    service.time([&] { host.waitForWordAt(place); });
  }
}

/// Shares of a core in per cent.
struct Load {
  double program = 0;
  double server = 0;  ///< Wine's, for all programs together
};

Load loadOf(const support::Process& process) {
  const double program = bench::processorTime(process.id());
  const double server = bench::serverTime();
  Sleep(kRest);
  return {(bench::processorTime(process.id()) - program) * 100 / kRest,
          (bench::serverTime() - server) * 100 / kRest};
}

void printLoad(const char* what, const Load& load) {
  std::printf("%-44s %8.2f %% of a core, Wine's server %.2f %%\n", what, load.program, load.server);
}

/// `aim`: how much above `bare`, in per cent of a core.
void printLoad(const char* what, const Load& load, const Load& bare, double aim) {
  printLoad(what, load);
  const double above = load.program - bare.program;
  std::printf("%-44s %8.2f %% of a core  %.1f %s\n", "    above the bare program", above, aim,
              above > aim ? "MISSED" : "met");
}

/// The pointer at rest over Notepad and over the desktop.
struct Loads {
  Load notepad;
  Load desktop;
};

Loads bareLoads(const Page& page, const std::wstring& program) {
  const support::Process bare(program);
  bare.waitForInputIdle();
  Loads loads;
  support::input::moveTo(page.blank());
  loads.notepad = loadOf(bare);
  support::input::moveTo(support::kAwayFromTexts);
  loads.desktop = loadOf(bare);
  return loads;
}

void measureLoad(const Page& page, const support::Lexilo& lexilo, const Loads& bare) {
  std::printf("\nProcessor time over %lu s, the pointer at rest\n", kRest / 1000);
  printLoad("  a bare program, over a blank of Notepad", bare.notepad);
  printLoad("  a bare program, over the desktop", bare.desktop);
  const MeaningPopup popup(lexilo.process());
  support::input::moveTo(page.blank());
  printLoad("  Lexilo, over a blank of Notepad", loadOf(lexilo.process()), bare.notepad, 0.5);
  moveAway(popup);
  printLoad("  Lexilo, over the desktop", loadOf(lexilo.process()), bare.desktop, 0.5);
  lexilo.click(support::ToolbarButton::kCapture);
  support::input::moveTo(page.blank());
  printLoad("  Lexilo, capture off", loadOf(lexilo.process()), {}, 0);
}

/// `bareProbe`: the path of the bare program.
void measure(const std::wstring& bareProbe) {
  support::input::moveTo(support::kAwayFromTexts);
  Page page;
  Timings popups("pointer at rest to popup");
  popups.aimAt(160, 260);
  Timings service("  of it in the service: armed to reported");
  Timings answers("toolbar kept from answering meanwhile");
  answers.aimAtLongest(50);
  measureService(page, service);
  const Loads bare = bareLoads(page, bareProbe);
  const support::Lexilo lexilo(support::AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  measureWords(page, lexilo, popups, answers);
  Timings::printHeading("words under the pointer, ms");
  popups.print();
  service.print();
  std::printf("  the service's share of the median: %.1f %%\n",
              100 * service.median() / popups.median());
  answers.print();
  measureLoad(page, lexilo, bare);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2) {
    std::printf("capture_bench BARE_PROBE\n");
    return 2;
  }
  try {
    measure(arguments[1]);
  } catch (const std::exception& error) {
    std::printf("error: %s\n", error.what());
    return 1;
  }
  return 0;
}
