#include "capture/further_step.h"

#include "capture/nhw32/nhw32.h"
#include "capture/nhw32/service.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/text_window.h"
#include "tests/support/window/capture_test.h"
#include "tests/support/window/fake_uia_server.h"

namespace support {
namespace {

using std::chrono::milliseconds;

constexpr RECT kPlace{200, 300, 900, 400};
constexpr POINT kInside{250, 350};

/// A key without a meaning of its own, held down.
class HeldKey {
 public:
  HeldKey() { send(0); }
  ~HeldKey() { send(KEYEVENTF_KEYUP); }
  HeldKey(const HeldKey&) = delete;
  HeldKey& operator=(const HeldKey&) = delete;

 private:
  static void send(DWORD flags) {
    INPUT event{};
    event.type = INPUT_KEYBOARD;
    event.ki.wVk = VK_F24;
    event.ki.dwFlags = flags;
    EXPECT_EQ(SendInput(1, &event, sizeof event), 1U);
  }
};

/// The step alone, by a clock of the test's own; or by the host's timers, where a test says so.
class FurtherStepTest : public CaptureTest {
 protected:
  FurtherStepTest() {
    step_.isWanted = [this] {
      ++asked_;
      return wanted_;
    };
    step_.clock = [this] { return now_; };
    step_.programOf = [this](HWND) { return program_; };
  }

  void look(POINT point) { step_.look(host().handle(), point); }

  /// Looks at `point` now and 300 ms later; returns whether the service is armed then.
  bool armsAfterARest(POINT point = kInside) {
    look(point);
    EXPECT_FALSE(nhw32::service().armed()) << "armed without a rest";
    now_ += milliseconds(300);
    look(point);
    return nhw32::service().armed();
  }

  bool wanted_ = true;
  int asked_ = 0;
  std::u16string program_ = u"reader.exe";
  capture::FurtherRest::Time now_{};
  capture::FurtherStep step_;
};

TEST_F(FurtherStepTest, ArmsTheServiceAfterARestAndMovesNoStrip) {
  const PlainWindow window(plainClass(L"Chrome_WidgetWin_1"), kPlace);
  const StripRecorder watch;
  EXPECT_TRUE(armsAfterARest());
  EXPECT_TRUE(StripRecorder::places().empty());
  look({kInside.x + 1, kInside.y});
  EXPECT_FALSE(nhw32::service().armed());
}

TEST_F(FurtherStepTest, DoesNothingWhereTheSettingsDoNotWantIt) {
  const PlainWindow window(plainClass(L"Chrome_WidgetWin_1"), kPlace);
  wanted_ = false;
  EXPECT_FALSE(armsAfterARest());
}

TEST_F(FurtherStepTest, LooksIntoTheSettingsOnceAndOverAFurtherWindowOnly) {
  look(kNowhere);
  EXPECT_EQ(asked_, 0);
  const PlainWindow window(plainClass(L"Chrome_WidgetWin_1"), kPlace);
  for (int i = 0; i < 3; ++i) look(kInside);
  EXPECT_EQ(asked_, 1);
}

TEST_F(FurtherStepTest, LeavesAnEditorAloneThatChangesForClients) {
  const PlainWindow window(plainClass(L"Chrome_WidgetWin_1"), kPlace);
  program_ = u"Code.exe";
  EXPECT_FALSE(armsAfterARest());
}

TEST_F(FurtherStepTest, ArmsNothingWhileAKeyOrAMouseButtonIsDown) {
  const PlainWindow window(plainClass(L"Chrome_WidgetWin_1"), kPlace);
  {
    const HeldKey held;
    EXPECT_FALSE(armsAfterARest());
  }
  look(kInside);
  injected::moveTo(kInside);
  injected::pressLeft();
  EXPECT_FALSE(armsAfterARest());
  injected::releaseLeft();
  EXPECT_FALSE(nhw32::service().armed());
  EXPECT_TRUE(armsAfterARest());
  const HeldKey held;
  look(kInside);
  EXPECT_FALSE(nhw32::service().armed()) << "a key does not cancel the question";
}

TEST_F(FurtherStepTest, TouchesNoQuestionOfAProbe) {
  const PlainWindow further(plainClass(L"Chrome_WidgetWin_1"), kPlace);
  const PlainWindow probed(plainClass(L"TMyEditor"), {200, 500, 900, 600});
  const POINT other{250, 550};
  ASSERT_TRUE(armsAfterARest());
  ScreenWord::CatchWordAt(other);
  look(other);
  EXPECT_TRUE(nhw32::service().armed());
}

TEST_F(FurtherStepTest, AsksNoWindowOfNeitherTable) {
  const PlainWindow window(L"Static", kPlace, L"some data here");
  EXPECT_FALSE(armsAfterARest());
  EXPECT_EQ(asked_, 0);
}

TEST_F(FurtherStepTest, ReportsTheWordOfARichEditInCapitals) {
  const PlainWindow box(furtherRichEdit(), kPlace, L"some data here");
  const POINT word = richTextPosition(box.handle(), 6);
  ASSERT_TRUE(armsAfterARest({word.x + 3, word.y + 6}));
  EXPECT_TRUE(eventually([] { return ScreenWord::strScreenWord == u"data"; }));
  now_ += milliseconds(100);
  look({word.x + 3, word.y + 6});
  EXPECT_FALSE(nhw32::service().armed()) << "asked again although the word was taken";
}

TEST_F(FurtherStepTest, TheHostLooksAfterEachProbe) {
  const PlainWindow box(furtherRichEdit(), kPlace, L"some data here");
  const POINT word = richTextPosition(box.handle(), 6);
  host().further = {};
  host().further.isWanted = [] { return false; };
  injected::moveTo({word.x + 3, word.y + 6});
  ScreenWord::StartCapture();
  EXPECT_TRUE(always([] { return !popupIsUp(); }, 600));
  host().further = {};
  host().further.isWanted = [] { return true; };
  const auto begin = std::chrono::steady_clock::now();
  ASSERT_TRUE(eventually([] { return popupIsUp(); }));
  EXPECT_GE(std::chrono::steady_clock::now() - begin, capture::FurtherRest::kRest);
  EXPECT_EQ(popup().txtOut.text(), u"data\r\n数据");
  host().further = {};
}

TEST_F(FurtherStepTest, AsksABrowserByUiAutomation) {
  FakeUia uia;
  uia.plan.elements.front().text = true;
  uia.plan.text = u"some data here";
  // The worker must not have the client of an earlier test.
  nhw32::ResetNHW32();
  ASSERT_TRUE(eventually([] { return nhw32::service().workers() == 0; }));
  {
    const FakeUiaServer server(uia);
    ASSERT_TRUE(server.registered());
    nhw32::SetNHW32();
    const PlainWindow page(plainClass(L"Chrome_RenderWidgetHostHWND"),
                           {grid::kLeft - 10, grid::kTop - 10, 600, 400});
    const nhw32::ScreenPoint place = grid::at(0, 7);
    ASSERT_TRUE(armsAfterARest({place.x, place.y}));
    EXPECT_TRUE(eventually([] { return ScreenWord::strScreenWord == u"data"; }));
    nhw32::ResetNHW32();
    EXPECT_TRUE(eventually([] { return nhw32::service().workers() == 0; }));
  }
  EXPECT_EQ(uia.log.live, 0);
  nhw32::SetNHW32();
}

}  // namespace
}  // namespace support
