// Windows of the second table, which are read only if the settings want it.
#include <algorithm>
#include <chrono>
#include <optional>

#include "tests/program/capture_fixture.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/settings.h"
#include "tests/support/process/text_window.h"

namespace support {
namespace {

constexpr RECT kBox{300, 300, 700, 400};
constexpr DWORD kRest = 300;

/// Puts FurtherWindows into the settings before Lexilo starts.
class FurtherCapture : public ::testing::Test {
 protected:
  ~FurtherCapture() override { settings::clear(); }

  void start(const std::wstring& setting) {
    settings::clear();
    if (!setting.empty()) settings::write(L"FurtherWindows", setting);
    input::moveTo(kAwayFromTexts);
    lexilo_.emplace(AppFolder::withFullDictionary());
    lexilo_->waitUntilSeen();
    popup_.emplace(lexilo_->process());
  }

  static void restOn(const TextWindow& box, LONG character) {
    const POINT place = richTextPosition(box.control(), character);
    input::moveTo({place.x + 3, place.y + 6});
  }

  /// Whether the probe's strip has been seen.
  [[nodiscard]] bool hasProbed() const {
    return findWindow({.process = lexilo_->process().id(),
                       .className = L"Lexilo.frmScreen",
                       .title = {}}) != nullptr;
  }

  [[nodiscard]] const MeaningPopup& popup() const { return *popup_; }

 private:
  std::optional<Lexilo> lexilo_;
  std::optional<MeaningPopup> popup_;
};

TEST_F(FurtherCapture, IsReadAfterARestWithoutTheStrip) {
  start(L"1");
  const TextWindow box(furtherRichEdit(), ES_MULTILINE, kBox, L"The enzyme is a catalyst.");
  restOn(box, 17);
  const auto begin = std::chrono::steady_clock::now();
  const std::wstring text = popup().waitFor(L"catalyst");
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(kRest - 50))
      << "it did not wait for the rest";
  EXPECT_NE(text.find(L"催化剂"), text.npos);
  EXPECT_FALSE(hasProbed());
  saveScreenshot("build/shots/popup-further.png");
  input::moveTo(kAwayFromTexts);
  popup().waitUntilClosed();
}

TEST_F(FurtherCapture, IsNotReadWithoutTheSetting) {
  for (const wchar_t* setting : {L"", L"0", L"yes"}) {
    start(setting);
    const TextWindow box(furtherRichEdit(), ES_MULTILINE, kBox, L"The enzyme is a catalyst.");
    restOn(box, 17);
    EXPECT_TRUE(popup().staysAway(1'500));
    EXPECT_FALSE(hasProbed());
  }
}

TEST_F(FurtherCapture, IsNotReadWhileAKeyIsDown) {
  start(L"1");
  const TextWindow box(furtherRichEdit(), ES_MULTILINE, kBox, L"The enzyme is a catalyst.");
  const auto press = [](DWORD flags) {
    INPUT event{};
    event.type = INPUT_KEYBOARD;
    event.ki.wVk = VK_F24;
    event.ki.dwFlags = flags;
    SendInput(1, &event, sizeof event);
  };
  // Below the text: where the pointer enters a window, Wine takes the keys from the display, which
  // knows nothing of those that are injected.
  input::moveTo({kBox.right - 20, kBox.bottom - 20});
  press(0);
  restOn(box, 17);
  EXPECT_TRUE(popup().staysAway(1'000));
  press(KEYEVENTF_KEYUP);
  (void)popup().waitFor(L"catalyst");
}

TEST_F(FurtherCapture, AWindowThatDoesNotAnswerHoldsNoOtherUp) {
  start(L"1");
  const TextWindow silent(furtherRichEdit(), ES_MULTILINE, kBox, L"The enzyme is a catalyst.");
  const TextWindow other(L"Edit", 0, {300, 500, 500, 530}, L"database");
  const POINT word = richTextPosition(silent.control(), 17);
  {
    const TextWindow::Busy busy(silent);
    input::moveTo({word.x + 3, word.y + 6});
    EXPECT_TRUE(popup().staysAway(1'500));
    input::moveTo(other.characterPoint(2));
    (void)popup().waitFor(L"database");
    input::moveTo(kAwayFromTexts);
    popup().waitUntilClosed();
  }
  // It is left alone for a while.
  waitFor(
      "the window to be read again",
      [&] {
        input::moveTo(kAwayFromTexts);
        input::moveTo({word.x + 3, word.y + 6});
        return !popup().staysAway(1'000);
      },
      60'000);
}

TEST_F(FurtherCapture, ProbedWindowsDoNotWaitForARest) {
  for (const wchar_t* setting : {L"", L"1"}) {
    start(setting);
    const TextWindow box(L"Edit", 0, {300, 300, 500, 330}, L"database");
    // Other work on the machine may hold up any of them.
    auto least = std::chrono::steady_clock::duration::max();
    for (int i = 0; i < 5; ++i) {
      input::moveTo(box.characterPoint(2));
      const auto begin = std::chrono::steady_clock::now();
      (void)popup().waitFor(L"database");
      least = std::min(least, std::chrono::steady_clock::now() - begin);
      input::moveTo(kAwayFromTexts);
      popup().waitUntilClosed();
    }
    EXPECT_LT(least, std::chrono::milliseconds(kRest));
    EXPECT_TRUE(hasProbed());
  }
}

}  // namespace
}  // namespace support
