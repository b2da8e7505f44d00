// How much memory Lexilo takes beside a program that has nothing but a window: after its start,
// with the quick lookup window open, and while 1,000 lookups are made there. Each change of the
// text box is a lookup: a word that is typed letter by letter makes as many as it has letters.
// Lexilo is started from build/app, several times; the table shows the medians.
#include <algorithm>
#include <array>
#include <cstdio>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "bench/windows/process_memory.h"
#include "bench/windows/sample_words.h"
#include "data/data_control.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/text.h"

namespace {

using bench::Memory;
using bench::ProcessBelow;
using support::QuickLookup;

constexpr int kStarts = 3;
constexpr std::size_t kLookups = 1000;
constexpr std::size_t kFirstLookups = 100;
/// Every so many words one is typed letter by letter; the others arrive at once, as pasted ones do.
constexpr std::size_t kTypedOf = 5;
/// How much more than the bare window Lexilo may have resident after all lookups, MB.
constexpr double kAim = 15;

double megabytes(double kibibytes) { return kibibytes / 1024; }

/// What both programs had at one start.
struct Start {
  Memory bareWindow;
  Memory started;
  Memory opened;
  Memory afterFirst;
  Memory afterAll;
};

Memory bareWindowMemory(const std::wstring& program) {
  const support::Process process(program);
  support::waitForWindow({.process = process.id(), .className = L"Lexilo.BareWindow", .title = {}});
  return ProcessBelow(program).settledMemory();
}

/// Headwords of all lengths from one index table. Those with an apostrophe are left out: the list
/// that they lead to may begin before them, so that the pane does not show when it is there.
std::vector<std::wstring> headwords(const std::u16string& table, std::minstd_rand& random) {
  data::DataControl control;
  const std::wstring database = support::AppFolder::withFullDictionary().database().wstring();
  control.setConnectionString(u"Data Source=" + std::u16string(database.begin(), database.end()));
  std::vector<std::wstring> words;
  for (const std::u16string& word : bench::sampleWords(control, table, kLookups)) {
    if (word.find(u'\'') == std::u16string::npos) words.emplace_back(word.begin(), word.end());
  }
  std::ranges::shuffle(words, random);
  words.resize(kLookups / 2);
  return words;
}

/// English and Chinese words in turn, the same at each run.
std::vector<std::wstring> wordsToLookUp() {
  std::minstd_rand random(7);
  const std::vector<std::wstring> english = headwords(u"edictidx", random);
  const std::vector<std::wstring> chinese = headwords(u"cdictidx", random);
  std::vector<std::wstring> words;
  for (std::size_t i = 0; i < kLookups / 2; ++i) {
    words.push_back(english[i]);
    words.push_back(chinese[i]);
  }
  return words;
}

void setText(HWND box, const std::wstring& text) {
  support::send(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

/// Looks words up in the quick lookup window, each until its meaning is shown.
class Typist {
 public:
  Typist(QuickLookup window, std::vector<std::wstring> words)
      : window_(window), words_(std::move(words)) {
    support::takeKeyboard(window_.input());
  }

  /// Goes on until `count` lookups were made in all, or a few more.
  void lookUpTo(std::size_t count) {
    while (lookups_ < count) {
      const std::wstring& word = words_.at(place_);
      if (place_++ % kTypedOf == 0) {
        typeLetters(word);
      } else {
        setText(window_.input(), word);
        ++lookups_;
      }
      window_.waitForHeadword(word);
    }
  }

 private:
  void typeLetters(const std::wstring& word) {
    setText(window_.input(), L"");
    for (std::size_t length = 1; length <= word.size(); ++length) {
      support::input::type(word.substr(length - 1, 1));
      ++lookups_;
      const std::wstring typed = word.substr(0, length);
      // One thread looks up and answers: the box holds the letter once it is looked up.
      support::waitFor("a letter of " + support::utf8(word),
                       [&] { return window_.typed() == typed; });
    }
  }

  QuickLookup window_;
  std::vector<std::wstring> words_;
  std::size_t place_ = 0;
  std::size_t lookups_ = 0;
};

Start measureStart(const std::wstring& bareWindow, const std::vector<std::wstring>& words) {
  Start start;
  start.bareWindow = bareWindowMemory(bareWindow);
  const support::AppFolder folder = support::AppFolder::withFullDictionary();
  const support::Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  const ProcessBelow process(folder.program());
  start.started = process.settledMemory();
  const QuickLookup window = lexilo.openQuickLookupAtA();
  start.opened = process.settledMemory();
  Typist typist(window, words);
  typist.lookUpTo(kFirstLookups);
  start.afterFirst = process.settledMemory();
  typist.lookUpTo(kLookups);
  start.afterAll = process.settledMemory();
  window.close();
  lexilo.exit();
  return start;
}

/// The median over the starts of what `take` finds in one.
template <class Take>
double median(const std::vector<Start>& starts, Take take) {
  std::vector<double> values;
  for (const Start& start : starts) values.push_back(take(start));
  std::ranges::sort(values);
  return megabytes(values[values.size() / 2]);
}

using Stage = Memory Start::*;
using Kind = double Memory::*;
constexpr std::array<Kind, 3> kKinds{&Memory::resident, &Memory::proportional, &Memory::own};

void printStage(const std::vector<Start>& starts, const char* what, Stage stage) {
  std::printf("%-44s", what);
  for (const Kind kind : kKinds) {
    std::printf(" %12.1f", median(starts, [&](const Start& start) { return start.*stage.*kind; }));
  }
  std::printf("\n");
}

/// The line of a difference. Returns the resident one.
double printDifference(const std::vector<Start>& starts, const char* what, Stage stage,
                       Stage other) {
  std::array<double, kKinds.size()> differences{};
  std::ranges::transform(kKinds, differences.begin(), [&](Kind kind) {
    return median(starts,
                  [&](const Start& start) { return start.*stage.*kind - start.*other.*kind; });
  });
  std::printf("%-44s", what);
  for (const double difference : differences) std::printf(" %+12.1f", difference);
  return differences.front();
}

void print(const std::vector<Start>& starts) {
  std::printf("\n%-44s %12s %12s %12s  %s\n", "memory, MB, median of 3 starts", "resident",
              "proportional", "private", "aim (resident)");
  printStage(starts, "a bare window", &Start::bareWindow);
  printStage(starts, "Lexilo after its start", &Start::started);
  printStage(starts, "  quick lookup window open", &Start::opened);
  printStage(starts, "  after 100 lookups", &Start::afterFirst);
  printStage(starts, "  after 1,000 lookups", &Start::afterAll);
  printDifference(starts, "  grown from lookup 100 to lookup 1,000", &Start::afterAll,
                  &Start::afterFirst);
  std::printf("\n");
  const double more =
      printDifference(starts, "  more than the bare window", &Start::afterAll, &Start::bareWindow);
  std::printf("  %.1f %s\n", kAim, more > kAim ? "MISSED" : "met");
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2) {
    std::puts("usage: memory_bench BARE_WINDOW.EXE");
    return 2;
  }
  try {
    const std::wstring bareWindow = std::filesystem::absolute(arguments[1]).wstring();
    const std::vector<std::wstring> words = wordsToLookUp();
    std::vector<Start> starts;
    for (int i = 0; i < kStarts; ++i) starts.push_back(measureStart(bareWindow, words));
    print(starts);
  } catch (const std::exception& error) {
    std::printf("error: %s\n", error.what());
    return 1;
  }
  return 0;
}
