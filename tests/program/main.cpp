#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>

#include "tests/support/process/screen.h"
#include "tests/support/wait.h"

namespace {

/// Leaves a picture of the screen in build/shots at the first failure of each test, named after it.
class ScreenshotOnFailure : public ::testing::EmptyTestEventListener {
 public:
  void takeScreenshot() {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    if (taken_ || test == nullptr) return;
    taken_ = true;
    std::string name = std::string(test->test_suite_name()) + "." + test->name();
    std::ranges::replace(name, '/', '-');
    support::saveScreenshot("build/shots/failed-" + name + ".png");
  }

 private:
  void OnTestStart(const ::testing::TestInfo& /*test*/) override { taken_ = false; }

  void OnTestPartResult(const ::testing::TestPartResult& result) override {
    if (result.failed()) takeScreenshot();
  }

  bool taken_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  // Coordinates of the screen are wanted, whatever the resolution.
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  ::testing::InitGoogleTest(&argc, argv);
  auto* screenshots = new ScreenshotOnFailure;  // owned by GoogleTest from here on
  ::testing::UnitTest::GetInstance()->listeners().Append(screenshots);
  support::Failure::onFailure([screenshots] { screenshots->takeScreenshot(); });
  return RUN_ALL_TESTS();
}
