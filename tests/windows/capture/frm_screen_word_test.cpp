#include <array>

#include "capture/nhw32/nhw32.h"
#include "capture/nhw32/service.h"
#include "forms/dispatcher.h"
#include "forms/loaded_forms.h"
#include "tests/support/process/find.h"
#include "tests/support/window/capture_test.h"
#include "tests/support/window/hooked_text_window.h"
#include "tests/support/window/window_everywhere.h"
#include "tests/support/window/window_pos_recorders.h"
#include "tests/support/window/word_host.h"

namespace support {
namespace {

class FrmScreenWord : public CaptureTest {
 protected:
  /// Has capture running with `word` pending.
  static void report(const std::u16string& word) {
    ScreenWord::StartCapture();
    ScreenWord::strScreenWord = word;
  }

  /// What BL_GetText32 hands over for a place. Handles no messages meanwhile.
  static std::string fetchedFrom(POINT place) {
    const ScopedSleepingWaits sleeping;
    const WordHost receiver;
    waitFor("a word", [&] {
      receiver.probe(place);
      return eventually([] { return nhw32::service().word().has_value(); }, 100);
    });
    std::array<char, 101> buffer{};
    nhw32::BL_GetText32(buffer.data(), 100, nullptr);
    return buffer.data();
  }

  static std::u16string headword() {
    const std::u16string text = popup().txtOut.text();
    return text.substr(0, text.find(u'\r'));
  }
};

TEST_F(FrmScreenWord, LoadingStartsTheCycle) {
  host().unload();
  forms::doEvents();
  auto& loaded = host();
  EXPECT_EQ(loaded.Timer1.interval(), 5);
  EXPECT_EQ(loaded.timScreenWord1.interval(), 100);
  EXPECT_EQ(loaded.timScreenWord2.interval(), 60000);
  EXPECT_TRUE(captureRuns());
  EXPECT_EQ(ScreenWord::hScreenWordWnd, loaded.handle());
  EXPECT_EQ(ScreenWord::MsgHasString, RegisterWindowMessageW(L"BL_HASSTRING"));
  EXPECT_EQ(GetWindowLongPtrA(loaded.handle(), GWLP_WNDPROC),
            reinterpret_cast<LONG_PTR>(&ScreenWord::WindowProc));
}

TEST_F(FrmScreenWord, LoadingGivesTheServiceTheHeadwords) {
  host().unload();
  EXPECT_FALSE(nhw32::service().isHeadword());
  host();
  const auto& isHeadword = nhw32::service().isHeadword();
  ASSERT_TRUE(isHeadword);
  EXPECT_TRUE(isHeadword(u"Data"));
  EXPECT_TRUE(isHeadword(u"it's"));
  EXPECT_FALSE(isHeadword(u"data's"));
  EXPECT_FALSE(isHeadword(u"数据"));
}

TEST_F(FrmScreenWord, IsNotAskedForHeadwordsOnceItIsUnloaded) {
  const HookedTextWindow target({}, u"so it's here \r\nx");
  const auto cell = characterCell(target.control(), 4);
  ASSERT_TRUE(cell);
  const POINT place{cell->left + 1, (cell->top + cell->bottom) / 2};
  host();
  EXPECT_EQ(fetchedFrom(place), "it's");
  // No message is handled until the word is fetched, and so the unloaded host is there to be asked.
  host().unload();
  nhw32::SetNHW32();
  EXPECT_EQ(fetchedFrom(place), "it");
}

TEST_F(FrmScreenWord, IsNeverSeenNorActive) {
  EXPECT_FALSE(IsWindowVisible(host().handle()));
  EXPECT_TRUE(refusesActivation(host().handle()));
  EXPECT_TRUE(isToolWindow(host().handle()));
  EXPECT_EQ(host().width(), 2940);
  EXPECT_EQ(host().height(), 1695);
}

TEST_F(FrmScreenWord, UnloadingPutsItsOwnProcedureBack) {
  HWND window = host().handle();
  const auto old = reinterpret_cast<LONG_PTR>(ScreenWord::OldWndProc);
  LONG_PTR procedure = 0;
  // Seen at the last moment at which the window is there.
  struct Seen {
    static LRESULT CALLBACK look(int code, WPARAM wParam, LPARAM lParam) {
      const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
      if (code == HC_ACTION && message.message == WM_DESTROY && message.hwnd == watched()) {
        found() = GetWindowLongPtrA(message.hwnd, GWLP_WNDPROC);
      }
      return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static HWND& watched() {
      static HWND window;
      return window;
    }
    static LONG_PTR& found() {
      static LONG_PTR procedure;
      return procedure;
    }
  };
  Seen::watched() = window;
  HHOOK hook = SetWindowsHookExW(WH_CALLWNDPROC, Seen::look, nullptr, GetCurrentThreadId());
  host().unload();
  UnhookWindowsHookEx(hook);
  procedure = Seen::found();
  EXPECT_EQ(procedure, old);
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(FrmScreenWord, UnloadingStopsItsProbesAndEndsTheServiceWithWhatWasArmed) {
  const PlainWindow edit(L"Edit", {200, 300, 900, 400}, L"some data here");
  ScreenWord::StartCapture();
  ScreenWord::CatchWordAt(wordPoint(edit.handle(), 6));
  ASSERT_TRUE(nhw32::service().armed());
  ASSERT_GE(nhw32::service().workers(), 1);
  // The object outlives its window until the next event.
  const auto& gone = host();
  host().unload();
  EXPECT_FALSE(gone.timScreenWord1.enabled());
  EXPECT_FALSE(nhw32::service().armed());
  EXPECT_TRUE(eventually([] { return nhw32::service().workers() == 0; }));
  EXPECT_EQ(ScreenWord::strScreenWord, u"");
}

TEST_F(FrmScreenWord, LoadingReadiesItsDataControl) {
  host().unload();
  forms::doEvents();
  auto& control = host().Adodc1;
  control.setRecordSource(u"select word from [edict] where word = 'data'");
  control.refresh();
  EXPECT_FALSE(control.recordset().empty());
}

TEST_F(FrmScreenWord, LooksAsDesigned) {
  EXPECT_EQ(textOf(host().handle()), L"Form2");
  // It is never painted on the screen, so its colour is read from its class.
  const auto brush =
      reinterpret_cast<HBRUSH>(GetClassLongPtrW(host().handle(), GCLP_HBRBACKGROUND));
  EXPECT_EQ(brush, GetSysColorBrush(COLOR_HIGHLIGHT));
  EXPECT_NE(brush, GetSysColorBrush(COLOR_BTNFACE));
}

TEST_F(FrmScreenWord, EveryProbeStartsTheServiceAnew) {
  const PlainWindow edit(L"Edit", {200, 300, 900, 400}, L"some data here");
  injected::moveTo(wordPoint(edit.handle(), 6));
  nhw32::ResetNHW32();
  ScreenWord::StartCapture();
  EXPECT_TRUE(eventually([] { return popupIsUp(); }));
}

TEST_F(FrmScreenWord, HandsTheFirstWordToThePopup) {
  report(u"data bank");
  ASSERT_TRUE(eventually([] { return popupIsUp(); }));
  EXPECT_EQ(headword(), u"data");
  EXPECT_EQ(ScreenWord::strScreenWord, u"");
}

TEST_F(FrmScreenWord, RestsWhileThePopupIsUp) {
  report(u"data");
  ASSERT_TRUE(eventually([] { return popupIsUp(); }));
  EXPECT_TRUE(always([] { return !captureRuns() && popupIsUp(); }, 150));
  EXPECT_FALSE(host().timScreenWord2.enabled());
}

TEST_F(FrmScreenWord, TheNextWordDoesNotReplaceThePopup) {
  report(u"data");
  ASSERT_TRUE(eventually([] { return popupIsUp(); }));
  ScreenWord::strScreenWord = u"bit";
  passTime(100);
  EXPECT_EQ(headword(), u"data");
}

TEST_F(FrmScreenWord, NeitherOneLetterNorChineseOpensThePopup) {
  for (const char16_t* word : {u"a", u"词典", u"data词"}) {
    report(word);
    EXPECT_TRUE(always([] { return !forms::isLoaded<frmScreenWordMeaning>(); }, 60));
    // The next probe forgets it.
    EXPECT_TRUE(eventually([] { return ScreenWord::strScreenWord.empty(); }));
    EXPECT_TRUE(captureRuns());
  }
}

TEST_F(FrmScreenWord, EveryProbeStopsTheThirdTimer) {
  ScreenWord::StartCapture();
  EXPECT_TRUE(host().timScreenWord2.enabled());
  EXPECT_TRUE(eventually([] { return !host().timScreenWord2.enabled(); }));
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmScreenWord, APointerThatRestsOnAWordReadsIt) {
  const PlainWindow edit(L"Edit", {200, 300, 900, 400}, L"some data here");
  injected::moveTo(wordPoint(edit.handle(), 6));
  ScreenWord::StartCapture();
  ASSERT_TRUE(eventually([] { return popupIsUp(); }));
  EXPECT_EQ(popup().txtOut.text(), u"data\r\n数据");
}

TEST_F(FrmScreenWord, BlanksAroundAReportedWordDoNotCount) {
  report(ScreenWord::pendingWord(std::string("  hello  \0rest", 14)));
  ASSERT_TRUE(eventually([] { return popupIsUp(); }));
  EXPECT_EQ(headword(), u"hello");
}

TEST_F(FrmScreenWord, AReportedWordIsTextOfTheCodePageUpToItsNul) {
  EXPECT_EQ(ScreenWord::pendingWord(std::string(" ab cd \0ef", 10)), u"ab cd");
  EXPECT_EQ(ScreenWord::pendingWord(std::string("\xB4\xCA\xB5\xE4\0", 5)), u"词典");
  EXPECT_EQ(ScreenWord::pendingWord(std::string("\0", 1)), u"");
  EXPECT_THROW(ScreenWord::pendingWord(std::string("word")), std::length_error);
}

TEST_F(FrmScreenWord, AWordIsHandedOverOnceAlthoughThePopupHandlesEventsWhileItOpens) {
  ScreenWord::StartCapture();
  ScreenWord::strScreenWord = u"data";
  // Runs while the popup opens.
  forms::Dispatcher::instance().post([] { host().Timer1.onTimer.raise(); });
  const ShowCounter watch(L"Lexilo.frmScreenWordMeaning");
  host().Timer1.onTimer.raise();
  EXPECT_TRUE(popupIsUp());
  EXPECT_EQ(ShowCounter::times(), 1);
  EXPECT_FALSE(captureRuns());
}

TEST_F(FrmScreenWord, APopupThatThePointerLeavesWhileItOpensIsLoadedAgain) {
  ScreenWord::StartCapture();
  ScreenWord::strScreenWord = u"data";
  HWND first = nullptr;
  forms::Dispatcher::instance().post([&] {
    first = popup().handle();
    injected::moveTo({kNowhere.x - 100, kNowhere.y});
    popup().Timer1.onTimer.raise();
  });
  host().Timer1.onTimer.raise();
  EXPECT_FALSE(IsWindow(first)) << "it did not go while it opened";
  ASSERT_TRUE(popupIsUp());
  EXPECT_EQ(headword(), u"data");
  EXPECT_FALSE(captureRuns());
  EXPECT_EQ(ScreenWord::strScreenWord, u"");
  // It is the one that starts capture again.
  injected::moveTo(kNowhere);
  EXPECT_TRUE(eventually([] { return !forms::isLoaded<frmScreenWordMeaning>(); }));
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmScreenWord, NoProbeArmsTheServiceWhileAPopupOpens) {
  const PlainWindow edit(L"Edit", {200, 300, 900, 400}, L"some data here");
  injected::moveTo(wordPoint(edit.handle(), 6));
  ScreenWord::StartCapture();
  ScreenWord::strScreenWord = u"bit";
  bool armed = true;
  forms::Dispatcher::instance().post([&] {
    host().timScreenWord1.onTimer.raise();
    armed = nhw32::service().armed();
  });
  host().Timer1.onTimer.raise();
  EXPECT_FALSE(armed);
  EXPECT_EQ(headword(), u"bit");
}

TEST_F(FrmScreenWord, AProbeThatFailsEndsThereAndTheNextOneIsMade) {
  const PlainWindow window(plainClass(L"TMyEditor"), {32'700, 300, 32'900, 400});
  const WindowEverywhere everywhere(window.handle());
  host().pointerPlace = [] { return POINT{32'768, 350}; };
  nhw32::ResetNHW32();
  ScreenWord::StartCapture();
  host().Timer1.setEnabled(false);
  ScreenWord::strScreenWord = u"data";
  host().timScreenWord1.onTimer.raise();
  // What follows the step that failed was not done.
  EXPECT_TRUE(host().timScreenWord2.enabled());
  EXPECT_EQ(ScreenWord::strScreenWord, u"data");
  EXPECT_FALSE(nhw32::service().armed());
  EXPECT_EQ(boxes.count(), 0U);
  host().pointerPlace = [] { return POINT{32'767, 350}; };
  host().timScreenWord1.onTimer.raise();
  EXPECT_FALSE(host().timScreenWord2.enabled());
  EXPECT_EQ(ScreenWord::strScreenWord, u"");
  ScreenWord::StopCapture();
}

TEST_F(FrmScreenWord, AFailingLookupStopsCaptureUntilThePointerMoves) {
  const OtherDictionary none("");
  report(u"data");
  ASSERT_TRUE(eventually([] { return forms::isLoaded<frmScreenWordMeaning>(); }));
  EXPECT_TRUE(eventually([] { return !captureRuns(); }));
  EXPECT_FALSE(popupIsUp());
  EXPECT_EQ(boxes.count(), 0U);
  injected::moveTo({kNowhere.x - 10, kNowhere.y});
  EXPECT_TRUE(eventually([] { return !forms::isLoaded<frmScreenWordMeaning>(); }));
  EXPECT_TRUE(captureRuns());
}

}  // namespace
}  // namespace support
