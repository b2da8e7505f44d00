#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "capture/nhw32/uia/client.h"
#include "tests/support/data/plain_readings.h"
#include "tests/support/window/fake_uia.h"

namespace support {

struct WindowCloser {
  using pointer = HWND;
  void operator()(HWND window) const { DestroyWindow(window); }
};
using TestWindow = std::unique_ptr<HWND, WindowCloser>;

/// A visible window that does not take the foreground.
inline TestWindow makeWindow(HWND parent = nullptr, const wchar_t* className = L"STATIC") {
  TestWindow window(CreateWindowExW(parent ? 0 : WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, className,
                                    L"", parent ? WS_CHILD : WS_POPUP, 0, 0, 9, 9, parent, nullptr,
                                    nullptr, nullptr));
  ShowWindow(window.get(), SW_SHOWNOACTIVATE);
  return window;
}

/// Asks the fake about a window of the test's own. Whatever was asked, nothing of the fake
/// is left when the test ends.
class UiaTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(window_.get(), nullptr); }

  void TearDown() override {
    reader_.reset();
    EXPECT_EQ(uia_.log.live, 0) << "references that were never given back";
  }

  /// A text in the element under the pointer.
  void showText(std::u16string text) {
    plan().elements.front().text = true;
    plan().text = std::move(text);
  }

  nhw32::Answer ask(nhw32::ScreenPoint point) {
    return reader_->wordAt({reinterpret_cast<nhw32::WindowId>(window_.get()), point});
  }

  nhw32::Outcome outcome(nhw32::ScreenPoint point) { return ask(point).outcome; }

  /// The word there, empty if there is none.
  std::u16string wordAt(nhw32::ScreenPoint point) {
    const auto answer = ask(point);
    return plainWord(answer.word.readings);
  }

  /// What is kept from question to question: the client, its request, its walker.
  static constexpr int kKept = 3;

  FakeUiaPlan& plan() { return uia_.plan; }
  FakeUiaLog& log() { return uia_.log; }
  [[nodiscard]] bool nothingRead() const {
    return uia_.log.unitsRead == 0 && uia_.times("GetText") == 0 &&
           uia_.times("RangeFromPoint") == 0;
  }

  /// The system of the fake.
  nhw32::UiaSystem system() {
    return {
        .makeClient = [this](nhw32::IUIAutomation2** client) { return makeFakeUia(uia_, client); },
        .now = [this] { return uia_.log.now; },
        .build = [this] { return uia_.plan.build; }};
  }

  /// How many calls to the program the question takes whose answer is `word`.
  std::size_t remoteCallsFor(nhw32::ScreenPoint point, std::u16string_view word) {
    const std::size_t before = uia_.remoteCalls();
    EXPECT_EQ(wordAt(point), word);
    return uia_.remoteCalls() - before;
  }

  TestWindow window_ = makeWindow();
  FakeUia uia_;
  std::unique_ptr<nhw32::WordReader> reader_ = nhw32::makeUiaReader(system());
};

}  // namespace support
