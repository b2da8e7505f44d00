// A popup that outlives its word, over a window of another thread: for the system's input, of
// another program.
#include "capture/popup_watch.h"

#include <functional>
#include <optional>
#include <ostream>

#include "capture/word_place.h"
#include "forms/loaded_forms.h"
#include "lookup/frm_sub.h"
#include "tests/support/process/find.h"
#include "tests/support/process/threaded_window.h"
#include "tests/support/window/capture_test.h"
#include "tests/support/window/other_program.h"

namespace support {
namespace {

void inject(DWORD flags, DWORD data = 0, POINT move = {}) {
  INPUT event{};
  event.type = INPUT_MOUSE;
  event.mi.dwFlags = flags;
  event.mi.mouseData = data;
  event.mi.dx = move.x;
  event.mi.dy = move.y;
  ASSERT_EQ(SendInput(1, &event, sizeof event), 1U);
}

/// Capture over a word of another program, in front, with the pointer on the word.
class PopupWatchTest : public CaptureTest {
 protected:
  PopupWatchTest() {
    other_.emplace();
    SendMessageW(edit(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"data\r\n\r\n\r\n"));
    other_->activate();
    word_ = wordPoint(edit(), 1);
    injected::moveTo(word_);
  }

  [[nodiscard]] HWND edit() const { return other_->edit(); }

  /// Has the word captured, by the program's own cycle.
  static void capture() {
    ScreenWord::StartCapture();
    ASSERT_TRUE(eventually([] { return popupIsUp(); }));
    ASSERT_FALSE(captureRuns());
  }

  static bool closes() {
    return eventually([] { return !forms::isLoaded<frmScreenWordMeaning>(); }, 2'000);
  }
  static bool staysAway() {
    return never([] { return popupIsUp(); }, 400);
  }

  std::optional<OtherProgram> other_;
  POINT word_{};
};

struct Cause {
  const char* name;
  std::function<void(const OtherProgram& other)> act;
};

std::ostream& operator<<(std::ostream& out, const Cause& cause) { return out << cause.name; }

class PopupEnds : public PopupWatchTest, public ::testing::WithParamInterface<Cause> {
 public:
  static std::vector<Cause> causes() {
    const auto key = [](WORD virtualKey) {
      return [=](const OtherProgram&) { input::key(virtualKey); };
    };
    const auto mouse = [](DWORD down, DWORD up, DWORD data = 0) {
      return [=](const OtherProgram&) {
        inject(down, data);
        if (up != 0) inject(up, data);
      };
    };
    return {
        {"ALetter", [](const OtherProgram&) { input::type(L"x"); }},
        {"TheDownKey", key(VK_DOWN)},
        {"TheControlKey", key(VK_CONTROL)},
        {"TheWheel", mouse(MOUSEEVENTF_WHEEL, 0, static_cast<DWORD>(-WHEEL_DELTA))},
        {"TheLeftButton", mouse(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP)},
        {"TheMiddleButton", mouse(MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP)},
        {"AButtonBeside", mouse(MOUSEEVENTF_XDOWN, MOUSEEVENTF_XUP, XBUTTON1)},
        {"Minimising",
         [](const OtherProgram& other) { ShowWindowAsync(other.window(), SW_MINIMIZE); }},
        {"Hiding", [](const OtherProgram& other) { ShowWindowAsync(other.window(), SW_HIDE); }},
        {"HidingTheBox", [](const OtherProgram& other) { ShowWindowAsync(other.edit(), SW_HIDE); }},
        {"MovingByAPixel",
         [](const OtherProgram& other) {
           const RECT rect = rectOf(other.window());
           SetWindowPos(other.window(), nullptr, rect.left + 1, rect.top, 0, 0,
                        SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
         }},
        {"Closing",
         [](const OtherProgram& other) { PostMessageW(other.window(), WM_CLOSE, 0, 0); }}};
  }
};

TEST_P(PopupEnds, ClosesItAndCaptureGoesOnElsewhere) {
  capture();
  GetParam().act(*other_);
  EXPECT_TRUE(closes());
  EXPECT_TRUE(captureRuns());
  EXPECT_TRUE(staysAway());
}

INSTANTIATE_TEST_SUITE_P(EveryCause, PopupEnds, ::testing::ValuesIn(PopupEnds::causes()),
                         [](const auto& cause) { return std::string(cause.param.name); });

TEST_F(PopupWatchTest, NothingOpensWhereOneTypesUntilThePointerHasLeftBySixPixels) {
  capture();
  input::type(L"x");
  ASSERT_TRUE(closes());
  injected::moveTo({word_.x + 5, word_.y - 5});
  EXPECT_TRUE(staysAway());
  injected::moveTo({word_.x + 6, word_.y});
  EXPECT_TRUE(eventually([] { return popupIsUp(); }));
}

TEST_F(PopupWatchTest, ThePlaceIsLeftOverWindowsWithoutTextsToo) {
  capture();
  input::type(L"x");
  ASSERT_TRUE(closes());
  injected::moveTo(kNowhere);
  passTime(250);
  ASSERT_FALSE(popupIsUp());
  injected::moveTo(word_);
  EXPECT_TRUE(eventually([] { return popupIsUp(); }));
}

TEST_F(PopupWatchTest, AWindowThatComesOverTheWordClosesIt) {
  capture();
  const PlainWindow cover(plainClass(L"Cover"),
                          {word_.x - 20, word_.y - 20, word_.x + 5, word_.y + 5});
  EXPECT_TRUE(closes());
  EXPECT_TRUE(captureRuns());
}

TEST_F(PopupWatchTest, AWindowThatComesToTheFrontElsewhereClosesIt) {
  const ThreadedWindow beside({.place = {700, 300, 1000, 500},
                               .title = L"Beside",
                               .style = WS_OVERLAPPEDWINDOW,
                               .extendedStyle = 0});
  other_->activate();
  capture();
  bringToFront(
      beside.window(), [&] { return GetForegroundWindow() == beside.window(); }, 50);
  EXPECT_TRUE(closes());
  EXPECT_TRUE(captureRuns());
}

// Scroll positions of a window of another process are not known under Wine; this one is ours.
TEST_F(PopupWatchTest, ATextThatScrollsByItselfClosesIt) {
  const PlainWindow log(L"EDIT", {600, 300, 900, 400}, L"",
                        ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL);
  std::wstring text;
  for (int line = 0; line < 100; ++line) text += L"data\r\n";
  SetWindowTextW(log.handle(), text.c_str());
  injected::moveTo(wordPoint(log.handle(), 1));
  capture();
  SendMessageW(log.handle(), EM_LINESCROLL, 0, 1);
  EXPECT_TRUE(closes());
  EXPECT_TRUE(captureRuns());
}

TEST_F(PopupWatchTest, APointerAtRestKeepsItForSeconds) {
  capture();
  // As many looks as ten seconds have.
  for (int look = 0; look < 200; ++look) {
    popup().watchTimer.onTimer.raise();
    forms::doEvents();
    ASSERT_TRUE(popupIsUp()) << look;
  }
  EXPECT_FALSE(captureRuns());
}

TEST_F(PopupWatchTest, AMoveOfAFewPixelsKeepsIt) {
  capture();
  for (const int distance : {1, 3, 5, 2, 0, -5}) {
    injected::moveTo({word_.x + distance, word_.y});
    EXPECT_TRUE(always([] { return popupIsUp(); }, 120)) << distance;
  }
}

TEST_F(PopupWatchTest, AMoveThereAndBackBetweenTwoLooksKeepsIt) {
  capture();
  for (int i = 0; i < 5; ++i) {
    inject(MOUSEEVENTF_MOVE, 0, {1, 0});
    inject(MOUSEEVENTF_MOVE, 0, {-1, 0});
    EXPECT_TRUE(always([] { return popupIsUp(); }, 160));
  }
}

TEST_F(PopupWatchTest, ABoxOfOursThatHoldsCaptureOffGoesOnHoldingIt) {
  capture();
  auto& quick = forms::form<frmSub>();
  quick.show();
  awaitActive(quick);
  ASSERT_TRUE(eventually([&] { return GetFocus() == quick.txtInput.handle(); }));
  EXPECT_TRUE(closes());
  EXPECT_TRUE(always([] { return !captureRuns(); }, 200));
}

TEST_F(PopupWatchTest, AFurtherPopupDoesNotForgetThatCaptureRanBefore) {
  for (int i = 0; i < 3; ++i) {
    capture();
    EXPECT_FALSE(ScreenWord::HeldOff);
    input::type(L"x");
    ASSERT_TRUE(closes());
    EXPECT_TRUE(captureRuns());
    injected::moveTo(kNowhere);
    passTime(250);
    injected::moveTo(word_);
  }
}

TEST_F(PopupWatchTest, AStoppedCaptureStaysStoppedBehindAPopupThatOpenedAllTheSame) {
  ScreenWord::StopCapture();
  auto& form = popup();
  std::u16string word = u"data";
  form.showMeaning(word, form.Adodc1);
  passTime(100);
  input::type(L"x");
  EXPECT_TRUE(closes());
  EXPECT_FALSE(captureRuns());
}

TEST_F(PopupWatchTest, TheMousesReportsEndWithThePopup) {
  capture();
  UINT devices = 0;
  GetRegisteredRawInputDevices(nullptr, &devices, sizeof(RAWINPUTDEVICE));
  EXPECT_EQ(devices, 1U);
  injected::moveTo(kNowhere);
  ASSERT_TRUE(closes());
  devices = 0;
  GetRegisteredRawInputDevices(nullptr, &devices, sizeof(RAWINPUTDEVICE));
  EXPECT_EQ(devices, 0U);
}

}  // namespace
}  // namespace support
