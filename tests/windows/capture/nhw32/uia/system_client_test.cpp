// The whole way from the service's four functions to the system's client of UI Automation, which is
// the fake: worker, apartment, class and interface ids, reader, time limits.
#include <string>

#include "capture/nhw32/nhw32.h"
#include "capture/nhw32/service.h"
#include "capture/nhw32/uia/limits.h"
#include "tests/support/wait.h"
#include "tests/support/window/fake_uia_server.h"
#include "tests/support/window/plain_window.h"
#include "tests/support/window/uia_test.h"
#include "tests/support/window/word_host.h"

namespace support {
namespace {

class SystemUiaClient : public UiaTest {
 protected:
  void SetUp() override {
    ASSERT_TRUE(server_.registered());
    nhw32::SetNHW32();
  }

  /// The worker gives its client back.
  void TearDown() override {
    nhw32::ResetNHW32();
    EXPECT_TRUE(eventually([] { return nhw32::service().workers() == 0; }));
    UiaTest::TearDown();
  }

  static POINT pixel(nhw32::ScreenPoint point) { return {point.x, point.y}; }

  static constexpr RECT kPlace{grid::kLeft - 10, grid::kTop - 10, 600, 400};

  FakeUiaServer server_{uia_};
  WordHost host_;
};

TEST_F(SystemUiaClient, TheWordInAProgramsWindowReachesTheHost) {
  const PlainWindow window(plainClass(L"UiaTestDocument"), kPlace);
  showText(u"hello world");
  EXPECT_EQ(host_.wordAt(pixel(grid::at(0, 7))), "world");
  const RECT box = host_.rect();
  EXPECT_EQ((nhw32::ScreenBox{box.left, box.top, box.right, box.bottom}), grid::box(0, 6, 5));
  EXPECT_EQ(host_.wordAt(pixel(grid::at(0, 1))), "hello");
}

TEST_F(SystemUiaClient, IsPreparedAsItShouldBe) {
  const PlainWindow window(plainClass(L"UiaTestDocument"), kPlace);
  showText(u"hello world");
  EXPECT_EQ(host_.wordAt(pixel(grid::at(0, 7))), "world");
  EXPECT_EQ(log().transactionLimit, 200U);
  EXPECT_FALSE(log().takesFocus);
}

TEST_F(SystemUiaClient, AConsoleIsAskedFromWindows11Version22H2On) {
  const PlainWindow window(plainClass(L"ConsoleWindowClass"), kPlace);
  showText(u"hello world");
  host_.probe(pixel(grid::at(0, 7)));
  const bool mayAsk = nhw32::mayAskConsoles(nhw32::windowsBuild());
  EXPECT_EQ(host_.nextWord(700), mayAsk ? "world" : "(none)");
  EXPECT_EQ(log().calls.empty(), !mayAsk);
}

}  // namespace
}  // namespace support
