#include <algorithm>
#include <stdexcept>
#include <string>

#include "capture/nhw32/nhw32.h"
#include "capture/nhw32/service.h"
#include "forms/loaded_forms.h"
#include "tests/support/process/find.h"
#include "tests/support/window/capture_test.h"
#include "tests/support/window/window_everywhere.h"

namespace support {
namespace {

constexpr RECT kPlace{200, 300, 900, 400};

/// What the procedure below ScreenWord::WindowProc was given.
MSG passedOn{};

LRESULT CALLBACK remember(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  passedOn = {window, message, wParam, lParam, 0, {}};
  return 77;
}

class ScreenWordTest : public CaptureTest {
 protected:
  ScreenWordTest() { passedOn = {}; }

  /// What a probe did.
  struct Probe {
    bool stripMoved = false;
    bool armed = false;
  };

  /// Waits for the report of a word, which stays in the queue.
  static bool aReportWaits() {
    const ScopedSleepingWaits sleeping;
    return eventually([] {
      MSG report;
      return PeekMessageW(&report, host().handle(), ScreenWord::MsgHasString,
                          ScreenWord::MsgHasString, PM_NOREMOVE) != FALSE;
    });
  }

  static Probe probe(POINT point) {
    const StripRecorder watch;
    ScreenWord::CatchWordAt(point);
    return {!StripRecorder::places().empty(), nhw32::service().armed()};
  }
};

TEST_F(ScreenWordTest, AnyOtherMessageGoesToTheOldProcedureAndItsResultComesBack) {
  WNDPROC before = std::exchange(ScreenWord::OldWndProc, remember);
  const LRESULT result = ScreenWord::WindowProc(host().handle(), WM_APP + 3, 12, 34);
  ScreenWord::OldWndProc = before;
  EXPECT_EQ(result, 77);
  EXPECT_EQ(passedOn.hwnd, host().handle());
  EXPECT_EQ(passedOn.message, WM_APP + 3U);
  EXPECT_EQ(passedOn.wParam, 12U);
  EXPECT_EQ(passedOn.lParam, 34);
}

TEST_F(ScreenWordTest, TheReportOfAWordIsNotPassedOn) {
  ScreenWord::strScreenWord = u"old";
  WNDPROC before = std::exchange(ScreenWord::OldWndProc, remember);
  const LRESULT result = ScreenWord::WindowProc(host().handle(), ScreenWord::MsgHasString, 1, 2);
  ScreenWord::OldWndProc = before;
  EXPECT_EQ(result, 0);
  EXPECT_EQ(passedOn.message, 0U);
  // Nothing was found, so nothing is pending.
  EXPECT_EQ(ScreenWord::strScreenWord, u"");
}

TEST_F(ScreenWordTest, AProbeFindsTheWordUnderThePoint) {
  const PlainWindow edit(L"Edit", kPlace, L"some data here");
  ScreenWord::CatchWordAt(wordPoint(edit.handle(), 6));
  EXPECT_TRUE(eventually([] { return ScreenWord::strScreenWord == u"data"; }));
}

TEST_F(ScreenWordTest, TakesUpToAHundredCharactersOfAWord) {
  const std::wstring word = std::wstring(100, L'd');
  const PlainWindow edit(L"Edit", kPlace, (word + L" " + word + L"ata").c_str());
  ScreenWord::CatchWordAt(wordPoint(edit.handle(), 6));
  EXPECT_TRUE(eventually([] { return ScreenWord::strScreenWord == std::u16string(100, u'd'); }));
}

TEST_F(ScreenWordTest, CutsALongerWordAtAHundredCharacters) {
  const PlainWindow edit(L"Edit", kPlace, (std::wstring(101, L'd') + L"ata").c_str());
  ScreenWord::CatchWordAt(wordPoint(edit.handle(), 6));
  EXPECT_TRUE(eventually([] { return ScreenWord::strScreenWord == std::u16string(100, u'd'); }));
}

TEST_F(ScreenWordTest, NothingIsArmedOnceAWordIsTaken) {
  const PlainWindow edit(L"Edit", kPlace, L"some data here");
  ScreenWord::CatchWordAt(wordPoint(edit.handle(), 6));
  ASSERT_TRUE(aReportWaits());
  ASSERT_TRUE(nhw32::service().armed());
  EXPECT_TRUE(eventually([] { return ScreenWord::strScreenWord == u"data"; }));
  EXPECT_FALSE(nhw32::service().armed());
}

TEST_F(ScreenWordTest, AProbeElsewhereForgetsTheOneBefore) {
  const PlainWindow edit(L"Edit", kPlace, L"some data here");
  ScreenWord::CatchWordAt(wordPoint(edit.handle(), 6));
  ASSERT_TRUE(aReportWaits()) << "a report that must not arrive";
  ScreenWord::CatchWordAt({890, 390});
  EXPECT_TRUE(always([] { return ScreenWord::strScreenWord.empty(); }, 150));
}

TEST_F(ScreenWordTest, AWindowThatIsNotProbedLeavesTheLastProbeAsItIs) {
  const PlainWindow edit(L"Edit", kPlace, L"some data here");
  const PlainWindow label(L"Static", {200, 500, 900, 600}, L"more");
  ScreenWord::CatchWordAt(wordPoint(edit.handle(), 6));
  ScreenWord::CatchWordAt({250, 550});
  EXPECT_TRUE(eventually([] { return ScreenWord::strScreenWord == u"data"; }));
}

TEST_F(ScreenWordTest, NeitherAButtonNorALabelIsProbed) {
  for (const wchar_t* name : {L"Button", L"Static"}) {
    const PlainWindow window(name, kPlace, L"some data here");
    const Probe seen = probe({250, 350});
    EXPECT_FALSE(seen.stripMoved) << (name[0] == L'B' ? "Button" : "Static");
    EXPECT_FALSE(seen.armed) << (name[0] == L'B' ? "Button" : "Static");
  }
}

TEST_F(ScreenWordTest, AWindowWhoseClassMerelyContainsEditIsProbed) {
  const PlainWindow window(plainClass(L"TMyEditor"), kPlace);
  const Probe seen = probe({250, 350});
  EXPECT_TRUE(seen.stripMoved);
  EXPECT_TRUE(seen.armed);
}

TEST_F(ScreenWordTest, TheStripKeepsItsSizeWhereTheResolutionChanges) {
  frmScreen& strip = forms::form<frmScreen>();
  strip.cover({100, 200, 300, 40});
  const RECT before = rectOf(strip.handle());
  RECT suggested{150, 250, 600, 310};
  SendMessageW(strip.handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
               reinterpret_cast<LPARAM>(&suggested));
  const RECT after = rectOf(strip.handle());
  EXPECT_TRUE(EqualRect(&after, &before));
  strip.uncover();
}

TEST_F(ScreenWordTest, TheStripCoversTheRowsAboveThePointAndGoesOffTheDesktop) {
  const PlainWindow window(plainClass(L"TMyEditor"), kPlace);
  const StripRecorder watch;
  ScreenWord::CatchWordAt({300, 350});
  const auto& places = StripRecorder::places();
  ASSERT_GE(places.size(), 2U);
  const auto shown = std::find_if(places.begin(), places.end(), [](const auto& place) {
    return place.shown && place.rect.left == 196 && place.rect.top == 345;
  });
  ASSERT_NE(shown, places.end());
  EXPECT_EQ(shown->rect.right - shown->rect.left, 692);
  EXPECT_EQ(shown->rect.bottom - shown->rect.top, 5);
  EXPECT_TRUE(shown->topmost);
  EXPECT_FALSE(shown->tookFocus);
  EXPECT_LE(places.back().rect.bottom, 0);
  EXPECT_EQ(places.back().rect.left, -67);
  EXPECT_EQ(places.back().rect.top, -67);
}

TEST_F(ScreenWordTest, TheStripBegins200PixelsLeftOfAPointFarInside) {
  const PlainWindow window(plainClass(L"TMyEditor"), kPlace);
  const StripRecorder watch;
  ScreenWord::CatchWordAt({700, 350});
  const auto& places = StripRecorder::places();
  EXPECT_TRUE(std::any_of(places.begin(), places.end(), [](const auto& place) {
    return place.shown && place.rect.left == 500 && place.rect.right == 1192;
  }));
}

TEST_F(ScreenWordTest, APointBeyondSixteenBitsEndsTheProbeAndTheStripGoesBack) {
  const PlainWindow window(plainClass(L"TMyEditor"), {32'700, 300, 32'900, 400});
  const POINT last{32'767, 350};
  const POINT beyond{32'768, 350};
  const WindowEverywhere everywhere(window.handle());
  const StripRecorder watch;
  ScreenWord::CatchWordAt(last);
  EXPECT_TRUE(nhw32::service().armed());
  EXPECT_THROW(ScreenWord::CatchWordAt(beyond), std::overflow_error);
  EXPECT_FALSE(nhw32::service().armed()) << "what was armed before is disarmed";
  const auto& places = StripRecorder::places();
  EXPECT_TRUE(std::any_of(places.begin(), places.end(), [](const auto& place) {
    return place.shown && place.rect.left == 32'696 && place.rect.top == 345;
  }));
  EXPECT_EQ(places.back().rect.left, -67);
  EXPECT_EQ(places.back().rect.top, -67);
}

TEST_F(ScreenWordTest, TheStripIsPureBlueAndNeverActive) {
  auto& strip = forms::form<frmScreen>();
  EXPECT_EQ(rectOf(strip.handle()).left, -667);
  EXPECT_EQ(rectOf(strip.handle()).top, -667);
  EXPECT_TRUE(refusesActivation(strip.handle()));
  EXPECT_TRUE(isToolWindow(strip.handle()));
  strip.cover({300, 400, 50, 5});
  forms::doEvents();
  HDC context = GetDC(strip.handle());
  EXPECT_EQ(GetPixel(context, 20, 2), RGB(0, 0, 255));
  ReleaseDC(strip.handle(), context);
}

TEST_F(ScreenWordTest, AMonitorAtTheStripsRestingPlaceHidesIt) {
  auto& strip = forms::form<frmScreen>();
  strip.cover({300, 400, 50, 5});
  ASSERT_TRUE(IsWindowVisible(strip.handle()));
  strip.uncover();
  EXPECT_TRUE(IsWindowVisible(strip.handle()));
  // So wide and high that it reaches onto the monitor from there.
  strip.cover({300, 400, 500, 200});
  strip.uncover();
  EXPECT_FALSE(IsWindowVisible(strip.handle()));
  strip.cover({300, 400, 50, 5});
  EXPECT_TRUE(IsWindowVisible(strip.handle()));
}

TEST_F(ScreenWordTest, StartAndStopAreIdempotent) {
  ScreenWord::StartCapture();
  ScreenWord::StartCapture();
  EXPECT_TRUE(host().Timer1.enabled());
  EXPECT_TRUE(host().timScreenWord1.enabled());
  EXPECT_TRUE(host().timScreenWord2.enabled());
  ScreenWord::StopCapture();
  ScreenWord::StopCapture();
  EXPECT_FALSE(host().Timer1.enabled());
  EXPECT_FALSE(host().timScreenWord1.enabled());
  EXPECT_FALSE(host().timScreenWord2.enabled());
}

TEST_F(ScreenWordTest, TheSwitchesLoadTheHost) {
  host().unload();
  ASSERT_FALSE(forms::isLoaded<frmScreenWord>());
  ScreenWord::StopCapture();
  EXPECT_TRUE(forms::isLoaded<frmScreenWord>());
  host().unload();
  ScreenWord::StartCapture();
  EXPECT_TRUE(forms::isLoaded<frmScreenWord>());
}

TEST_F(ScreenWordTest, StoppingTouchesNothingButTheTimers) {
  const PlainWindow edit(L"Edit", kPlace, L"some data here");
  ScreenWord::StartCapture();
  ScreenWord::CatchWordAt(wordPoint(edit.handle(), 6));
  ScreenWord::strScreenWord = u"bit";
  ScreenWord::StopCapture();
  EXPECT_TRUE(nhw32::service().armed());
  EXPECT_EQ(ScreenWord::strScreenWord, u"bit");
}

TEST_F(ScreenWordTest, AWordThatIsPendingIsHandedOverWhenCaptureRunsAgain) {
  ScreenWord::StartCapture();
  ScreenWord::strScreenWord = u"data";
  ScreenWord::StopCapture();
  EXPECT_TRUE(always([] { return !popupIsUp(); }, 60));
  ScreenWord::StartCapture();
  EXPECT_TRUE(eventually([] { return popupIsUp(); }));
}

TEST_F(ScreenWordTest, AWordThatComesAfterTheUserTurnedToAnotherWindowIsDropped) {
  const PlainWindow edit(L"Edit", kPlace, L"some data here");
  ScreenWord::CatchWordAt(wordPoint(edit.handle(), 6));
  ASSERT_TRUE(aReportWaits()) << "a report that must come to nothing";
  opened<FormA>();
  ScreenWord::StopCapture();
  EXPECT_TRUE(always([] { return ScreenWord::strScreenWord.empty(); }, 150));
  ScreenWord::StartCapture();
  EXPECT_TRUE(always([] { return !forms::isLoaded<frmScreenWordMeaning>(); }, 100));
}

TEST_F(ScreenWordTest, OfAClassNameSixtyThreeCharactersAreRead) {
  for (const std::size_t length : {63U, 64U}) {
    const std::wstring name = std::wstring(length - 4, L'x') + L"Edit";
    const PlainWindow window(plainClass(name.c_str()), kPlace);
    ASSERT_NE(window.handle(), nullptr);
    EXPECT_EQ(probe({250, 350}).stripMoved, length == 63) << length;
  }
}

TEST_F(ScreenWordTest, TheStripHasItsDesignedCaption) {
  EXPECT_EQ(textOf(forms::form<frmScreen>().handle()), L"Form2");
}

}  // namespace
}  // namespace support
