#include "capture/nhw32/service.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <memory>
#include <new>
#include <set>
#include <stdexcept>
#include <tuple>
#include <utility>
#include <vector>

#include "capture/nhw32/nhw32.h"
#include "tests/support/process/find.h"
#include "tests/support/wait.h"
#include "tests/support/window/counted_service.h"
#include "tests/support/window/gate.h"
#include "tests/support/window/hooked_text_window.h"
#include "tests/support/window/injected_input.h"
#include "tests/support/window/plain_window.h"
#include "tests/support/window/window_geometry.h"
#include "tests/support/window/word_host.h"

namespace support {
namespace {

POINT pointOf(HWND control, std::size_t position) {
  return centreOf(*characterCell(control, position));
}

/// What BL_GetText32 hands over now.
std::string textNow() {
  std::array<char, 101> buffer{};
  nhw32::BL_GetText32(buffer.data(), 100, nullptr);
  return buffer.data();
}

/// The four operations, as the program uses them.
class Nhw32Service : public ::testing::Test {
 protected:
  Nhw32Service() { nhw32::SetNHW32(); }
  ~Nhw32Service() override {
    nhw32::ResetNHW32();
    nhw32::setIsHeadword(nullptr);
    EXPECT_TRUE(eventually([] { return nhw32::service().workers() == 0; }));
  }

  /// Handles no messages meanwhile, so that the announcement stays in the queue.
  void armUntilAWordWaits(POINT point) {
    const ScopedSleepingWaits sleeping;
    waitFor("a word", [&] {
      host_.probe(point);
      return eventually([] { return !textNow().empty(); }, 100);
    });
  }

  WordHost host_;
};

TEST_F(Nhw32Service, HandsTheWordUnderTheArmedPointToTheHost) {
  const HookedTextWindow target({}, u"It was a well-known word.\r\nSecond");
  EXPECT_EQ(host_.wordAt(pointOf(target.control(), 12)), "well-known");
  const RECT rect = host_.rect();
  EXPECT_TRUE(PtInRect(&rect, pointOf(target.control(), 9)));
  EXPECT_TRUE(PtInRect(&rect, pointOf(target.control(), 18)));
  EXPECT_FALSE(PtInRect(&rect, pointOf(target.control(), 7)));
  EXPECT_EQ(host_.words().size(), 1U);
}

TEST_F(Nhw32Service, HandsTextsOverInTheAnsiCodePage) {
  const HookedTextWindow target({}, u"字典 don\u2019t caf\u00E9 \r\nx");
  EXPECT_EQ(host_.wordAt(pointOf(target.control(), 1)), "\xD7\xD6\xB5\xE4");
  EXPECT_EQ(host_.wordAt(pointOf(target.control(), 4)), "don't");
  EXPECT_EQ(host_.wordAt(pointOf(target.control(), 10)), "cafe");
  nhw32::setIsHeadword([](std::u16string_view word) { return word == u"caf\u00E9"; });
  EXPECT_EQ(host_.wordAt(pointOf(target.control(), 10)), "caf\xA8\xA6");
}

/// Where `part` begins in `text`.
std::size_t placeOf(std::u16string_view text, std::u16string_view part) {
  const std::size_t place = text.find(part);
  if (place == std::u16string_view::npos) throw Failure("no such part of the text");
  return place;
}

TEST_F(Nhw32Service, HandsOverTheFirstReadingThatIsAHeadword) {
  const std::u16string text =
      u"the man's well-known click-and-drag, CO2 (1st) it's e.g. a caf\u00E9\r\n"
      u"an associ-\r\nated firm of the U.S. state \r\nx";
  const std::set<std::u16string, std::less<>> headwords{
      u"man", u"well-known", u"well", u"known",      u"drag", u"CO2", u"it's",
      u"it",  u"e.g.",       u"cafe", u"associated", u"U.S.", u"st",  u"CO"};
  const HookedTextWindow target({.size = {900, 220}}, text);
  nhw32::setIsHeadword([&](std::u16string_view word) { return headwords.contains(word); });
  for (const auto& [part, offset, word] : {std::tuple(u"man's", 1, "man"),
                                           {u"well-known", 6, "well-known"},
                                           {u"and-drag", 5, "drag"},
                                           {u"CO2", 0, "CO2"},
                                           {u"it's", 3, "it's"},
                                           {u"e.g.", 2, "e.g."},
                                           {u"caf", 1, "cafe"},
                                           {u"associ-", 2, "associated"},
                                           {u"ated firm", 1, "associated"},
                                           {u"U.S.", 0, "U.S."},
                                           {u"firm", 1, "firm"}}) {
    const std::size_t place = placeOf(text, part) + static_cast<std::size_t>(offset);
    EXPECT_EQ(host_.wordAt(pointOf(target.control(), place)), word);
  }
}

TEST_F(Nhw32Service, HandsNothingOverWhereLettersTouchDigits) {
  const HookedTextWindow target({}, u"the 1st day \r\nx");
  nhw32::setIsHeadword([](std::u16string_view word) { return word == u"st"; });
  const POINT point = pointOf(target.control(), 5);
  EXPECT_EQ(host_.wordAt(point), "");
  const RECT rect = host_.rect();
  EXPECT_TRUE(PtInRect(&rect, point));
}

// The worker reads; the dictionary is the caller's.
TEST_F(Nhw32Service, AsksOnTheCallersThreadAndOnlyForAWordThatIsFetched) {
  // Outlives the window, whose end handles the announcement that still waits then.
  std::vector<DWORD> askers;
  const HookedTextWindow target({}, u"na\u00EFve-caf\u00E9's-r\u00E9sum\u00E9's word \r\nx");
  nhw32::setIsHeadword([&](std::u16string_view) {
    askers.push_back(GetCurrentThreadId());
    return false;
  });
  const POINT point = pointOf(target.control(), 8);
  {
    const ScopedSleepingWaits sleeping;
    waitFor("a word", [&] {
      host_.probe(point);
      return eventually([] { return nhw32::service().word().has_value(); }, 100);
    });
  }
  EXPECT_TRUE(askers.empty());
  EXPECT_NE(textNow(), "");
  EXPECT_GT(askers.size(), 2U);
  EXPECT_LE(askers.size(), 8U);
  EXPECT_EQ(std::ranges::count(askers, GetCurrentThreadId()),
            static_cast<std::ptrdiff_t>(askers.size()));
}

TEST_F(Nhw32Service, TakesAFailingDictionaryForOneWithoutTheWord) {
  const HookedTextWindow target({}, u"man's word \r\nx");
  nhw32::setIsHeadword([](std::u16string_view) -> bool { throw std::runtime_error("damaged"); });
  EXPECT_EQ(host_.wordAt(pointOf(target.control(), 1)), "man");
}

TEST_F(Nhw32Service, CutsAtAWholeCharacter) {
  const HookedTextWindow target({.size = {900, 100}}, u"aa" + std::u16string(100, u'b') + u" \r\n" +
                                                          std::u16string(60, u'典') + u" \r\nx");
  EXPECT_EQ(host_.wordAt(pointOf(target.control(), 3)), "aa" + std::string(98, 'b'));
  std::string fifty;
  for (int i = 0; i < 50; ++i) fifty += "\xB5\xE4";
  EXPECT_EQ(host_.wordAt(pointOf(target.control(), 110)), fifty);
  std::array<char, 101> buffer{};
  armUntilAWordWaits(pointOf(target.control(), 110));
  nhw32::BL_GetText32(buffer.data(), 7, nullptr);
  EXPECT_STREQ(buffer.data(), "\xB5\xE4\xB5\xE4\xB5\xE4");
  buffer.fill('#');
  nhw32::BL_GetText32(buffer.data(), 0, nullptr);
  EXPECT_EQ(std::string(buffer.data(), 2), std::string("\0#", 2));
  nhw32::BL_GetText32(nullptr, 100, nullptr);
}

TEST_F(Nhw32Service, WithoutAWordTheTextIsEmpty) {
  RECT rect{1, 2, 3, 4};
  std::array<char, 101> buffer{};
  buffer.fill('#');
  nhw32::BL_GetText32(buffer.data(), 100, &rect);
  EXPECT_STREQ(buffer.data(), "");
  EXPECT_EQ(rect.right, 0);
}

TEST_F(Nhw32Service, DisarmingTakesBackAMessageThatWasPostedAlready) {
  const HookedTextWindow target({}, u"first second");
  armUntilAWordWaits(pointOf(target.control(), 2));
  nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0);
  EXPECT_EQ(textNow(), "");
  EXPECT_EQ(host_.nextWord(100), "(none)");
}

TEST_F(Nhw32Service, ArmingElsewhereTakesItBackAsWell) {
  const HookedTextWindow target({}, u"first second");
  const POINT second = pointOf(target.control(), 8);
  armUntilAWordWaits(pointOf(target.control(), 2));
  std::string word = "(none)";
  for (int tries = 0; tries < 20 && word == "(none)"; ++tries) {
    nhw32::BL_SetFlag32(nhw32::kArm, host_.window(), static_cast<std::int16_t>(second.x),
                        static_cast<std::int16_t>(second.y));
    word = host_.nextWord(200);
  }
  EXPECT_EQ(word, "second");
  EXPECT_EQ(host_.words().size(), 1U);
}

TEST_F(Nhw32Service, StoppingTakesItBackAndArmingIsInVainThen) {
  const HookedTextWindow target({}, u"first second");
  armUntilAWordWaits(pointOf(target.control(), 2));
  nhw32::ResetNHW32();
  nhw32::ResetNHW32();
  EXPECT_EQ(textNow(), "");
  host_.probe(pointOf(target.control(), 2));
  EXPECT_EQ(host_.nextWord(100), "(none)");
  nhw32::SetNHW32();
  nhw32::SetNHW32();
  EXPECT_EQ(host_.wordAt(pointOf(target.control(), 8)), "second");
  EXPECT_EQ(nhw32::service().workers(), 1);
}

TEST_F(Nhw32Service, OtherFlagsDoNothing) {
  const HookedTextWindow target({}, u"first second");
  const POINT point = pointOf(target.control(), 2);
  armUntilAWordWaits(point);
  for (const std::uint32_t flag : {0U, 1001U, 1003U}) nhw32::BL_SetFlag32(flag, nullptr, 0, 0);
  EXPECT_EQ(textNow(), "first");
  EXPECT_EQ(host_.nextWord(), "first");
}

/// A button of the mouse, held until the end of the scope. The pointer is where no window of a test
/// is.
class HeldButton {
 public:
  HeldButton(void (*press)(), void (*release)()) : release_(release) {
    injected::moveTo(kNowhere);
    press();
  }
  ~HeldButton() { release_(); }
  HeldButton(const HeldButton&) = delete;
  HeldButton& operator=(const HeldButton&) = delete;

 private:
  void (*release_)();
};

TEST_F(Nhw32Service, FindsNoWordWhileAMouseButtonIsDown) {
  const HookedTextWindow target({}, u"first second");
  const POINT point = pointOf(target.control(), 2);
  for (const auto& [press, release] : {std::pair(&injected::pressLeft, &injected::releaseLeft),
                                       std::pair(&injected::pressMiddle, &injected::releaseMiddle),
                                       std::pair(&injected::pressRight, &injected::releaseRight)}) {
    {
      const HeldButton held(press, release);
      host_.probe(point);
      EXPECT_FALSE(nhw32::service().armed());
      EXPECT_EQ(host_.nextWord(100), "(none)");
    }
    EXPECT_EQ(host_.wordAt(point), "first");
  }
}

TEST_F(Nhw32Service, AWordThatWasFoundBeforeTheButtonWentDownIsNotHandedOver) {
  const HookedTextWindow target({}, u"first second");
  armUntilAWordWaits(pointOf(target.control(), 2));
  {
    const HeldButton held(injected::pressLeft, injected::releaseLeft);
    EXPECT_EQ(textNow(), "");
  }
  EXPECT_EQ(textNow(), "first");
}

TEST_F(Nhw32Service, LeavesAPlaceAloneUntilThePointerHasLeftIt) {
  const HookedTextWindow target({}, u"first second");
  const POINT place = pointOf(target.control(), 2);
  armUntilAWordWaits(place);
  nhw32::leaveAlone(place);
  EXPECT_EQ(textNow(), "");
  EXPECT_EQ(host_.nextWord(100), "(none)");
  for (const int distance : {0, 5, -5}) {
    host_.probe({place.x + distance, place.y});
    EXPECT_FALSE(nhw32::service().armed());
  }
  EXPECT_EQ(host_.wordAt({place.x + 6, place.y}), "first");
  EXPECT_EQ(host_.wordAt(place), "first");
}

TEST_F(Nhw32Service, SeesThePointerLeaveWhereNothingIsAsked) {
  const HookedTextWindow target({}, u"first second");
  const POINT place = pointOf(target.control(), 2);
  nhw32::leaveAlone(place);
  injected::moveTo({place.x - 5, place.y + 5});
  nhw32::SetNHW32();
  host_.probe(place);
  EXPECT_FALSE(nhw32::service().armed());
  injected::moveTo({place.x, place.y - 6});
  nhw32::SetNHW32();
  EXPECT_EQ(host_.wordAt(place), "first");
}

TEST_F(Nhw32Service, StoppingForgetsThePlace) {
  const HookedTextWindow target({}, u"first second");
  const POINT place = pointOf(target.control(), 2);
  injected::moveTo(place);
  nhw32::leaveAlone(place);
  nhw32::ResetNHW32();
  nhw32::SetNHW32();
  EXPECT_EQ(host_.wordAt(place), "first");
}

// The pointer at rest on a blank: the window is asked ever more seldom, and once however often the
// same place is armed while a question is in work.
TEST(Nhw32ServiceAtRest, AsksTheWindowEverMoreSeldom) {
  std::atomic<int> questions = 0;
  Gate gate;
  const HookedTextWindow target({.hook =
                                     [&](HWND, UINT message, WPARAM, LPARAM) {
                                       if (message == EM_CHARFROMPOS) {
                                         ++questions;
                                         gate.pass();
                                       }
                                       return std::optional<LRESULT>();
                                     }},
                                u"one   two\r\nx");
  const POINT blank = pointOf(target.control(), 4);
  const WordHost host;
  std::atomic<int> now = 0;
  CountedService counted(
      [&] { return std::chrono::steady_clock::time_point(std::chrono::milliseconds(now)); });
  const int before = questions;
  int probes = 0;
  const auto questionsAfterProbeAt = [&](POINT point, int time) {
    now = time;
    counted.probe(host.window(), point);
    ++probes;
    waitFor("the answer", [&] { return counted.answers() == probes; });
    return questions - before;
  };
  int asked = 1;
  EXPECT_EQ(questionsAfterProbeAt(blank, 0), asked);
  int time = 0;
  for (const int rest : {100, 200, 400, 800, 1600, 1600}) {
    EXPECT_EQ(questionsAfterProbeAt(blank, time), asked) << rest;
    EXPECT_EQ(questionsAfterProbeAt(blank, time + rest - 1), asked) << rest;
    EXPECT_EQ(questionsAfterProbeAt(blank, time += rest), ++asked) << rest;
  }
  EXPECT_EQ(questionsAfterProbeAt({blank.x + 1, blank.y}, time), ++asked);
  EXPECT_EQ(questionsAfterProbeAt(blank, time), ++asked);
  EXPECT_TRUE(never([&] { return questions - before > asked; }, 200)) << "asked without a probe";
  now = time + 100;
  gate.close();
  counted.probe(host.window(), blank);
  ++asked;
  waitFor("the question", [&] { return questions - before == asked; });
  for (int probe = 0; probe < 10; ++probe) counted.probe(host.window(), blank);
  gate.open();
  waitFor("the answer", [&] { return counted.answers() == probes + 1; });
  EXPECT_TRUE(never([&] { return questions - before > asked; }, 200)) << "adopted, yet asked again";
  EXPECT_TRUE(host.words().empty());
}

TEST_F(Nhw32Service, ManyWordsInARowNeedOneThread) {
  const HookedTextWindow target({}, u"first second");
  for (int round = 0; round < 200; ++round) {
    ASSERT_EQ(host_.wordAt(pointOf(target.control(), round % 2 == 0 ? 2 : 8)),
              round % 2 == 0 ? "first" : "second");
    nhw32::SetNHW32();
  }
  EXPECT_EQ(nhw32::service().workers(), 1);
}

TEST(Nhw32ServiceWithoutAReader, FindsNoWordAndGoesOn) {
  const PlainWindow window(L"STATIC", {300, 300, 400, 400});
  WordHost host;
  nhw32::Service service([]() -> std::unique_ptr<nhw32::WordReader> { throw std::bad_alloc(); },
                         RegisterWindowMessageA("BL_HASSTRING"));
  service.start();
  service.arm(host.window(), {350, 350});
  EXPECT_TRUE(never([&] { return !host.words().empty(); }, 200));
  EXPECT_EQ(service.workers(), 1);
  service.stop();
  EXPECT_TRUE(eventually([&] { return service.workers() == 0; }));
}

}  // namespace
}  // namespace support
