#include "capture/further_windows.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "capture/probe.h"

namespace capture {
namespace {

using std::chrono::milliseconds;
using Act = FurtherRest::Act;
using Kind = FurtherSight::Window;

TEST(FurtherWindows, AreBrowsersTerminalsAndToolkits) {
  for (const auto& [name, entry] :
       {std::pair("Chrome_RenderWidgetHostHWND", "Chrome_RenderWidgetHostHWND"),
        {"Chrome_WidgetWin_1", "Chrome_WidgetWin_1"},
        {"MozillaWindowClass", "MozillaWindowClass"},
        {"HwndWrapper[Reader.exe;;7b1d3c1e-58a5-4b0c]", "HwndWrapper["},
        {"CASCADIA_HOSTING_WINDOW_CLASS", "CASCADIA_HOSTING_WINDOW_CLASS"},
        {"Windows.UI.Core.CoreWindow", "Windows.UI.Core.CoreWindow"},
        {"Microsoft.UI.Content.DesktopChildSiteBridge", "DesktopChildSiteBridge"},
        {"Scintilla", "Scintilla"}}) {
    EXPECT_EQ(furtherAs(name), entry);
    EXPECT_FALSE(isProbed(name)) << name;
  }
}

TEST(FurtherWindows, AreThoseOfTheProbeInAnyCase) {
  for (const auto& [name, entry] : {std::pair("RICHEDIT50W", "RichEdit"),
                                    {"WindowsForms10.EDIT.app.0.141b42a_r6_ad1", "Edit"},
                                    {"WindowsForms10.RICHEDIT50W.app.0.141b42a_r6_ad1", "RichEdit"},
                                    {"EDIT", "Edit"},
                                    {"internet explorer_server", "Internet Explorer_Server"},
                                    {"TTY", "tty"}}) {
    EXPECT_EQ(furtherAs(name), entry);
  }
}

TEST(FurtherWindows, AreNoneThatAreProbed) {
  for (const std::string_view name : probedNames()) {
    EXPECT_EQ(furtherAs(name), std::nullopt) << name;
    EXPECT_EQ(furtherAs("Scintilla" + std::string(name)), std::nullopt) << name;
  }
  EXPECT_EQ(probedNames().size(), 17U);
}

TEST(FurtherWindows, AreNoOthers) {
  for (const char* name : {"", "Button", "Static", "SysTreeView32", "Chrome_WidgetWin_0", "#32768",
                           "Progman", "Shell_TrayWnd", "HwndWrapper", "SunAwtFrame"}) {
    EXPECT_EQ(furtherAs(name), std::nullopt) << name;
  }
}

TEST(LeftAlone, IsVisualStudioCodeAndWhatIsMadeFromIt) {
  for (const char16_t* program : {u"Code.exe", u"code.EXE", u"Code - Insiders.exe", u"VSCodium.exe",
                                  u"Cursor.exe", u"Windsurf.exe"}) {
    EXPECT_TRUE(isLeftAlone(program)) << std::u16string(program).size();
  }
}

TEST(LeftAlone, IsAProgramThatIsNotKnown) { EXPECT_TRUE(isLeftAlone(u"")); }

TEST(LeftAlone, IsNoOther) {
  for (const char16_t* program : {u"chrome.exe", u"msedge.exe", u"Decode.exe", u"Code.exe.exe",
                                  u"Code", u"vcode.exe", u"wordpad.exe"}) {
    EXPECT_FALSE(isLeftAlone(program)) << std::u16string(program).size();
  }
}

class Rest : public ::testing::Test {
 protected:
  /// Looks `after` later than the last time, at `sight`.
  Act look(int after, const FurtherSight& sight) {
    now_ += milliseconds(after);
    const Act act = rest_.look(sight, now_);
    if (act == Act::kAsk) armed_ = true;
    if (act == Act::kCancel) armed_ = false;
    return act;
  }
  Act look(int after) { return look(after, sight()); }

  /// A further window with the pointer on it.
  [[nodiscard]] FurtherSight sight() const {
    FurtherSight sight;
    sight.kind = Kind::kFurther;
    sight.window = 7;
    sight.x = 300;
    sight.y = 400;
    sight.armed = armed_;
    return sight;
  }

  void ask() {
    look(0);
    ASSERT_EQ(look(300), Act::kAsk);
  }

  bool armed_ = false;

 private:
  FurtherRest rest_;
  FurtherRest::Time now_{};
};

TEST_F(Rest, AsksAfter300MillisecondsAtOnePlace) {
  EXPECT_EQ(look(0), Act::kNothing);
  EXPECT_EQ(look(100), Act::kNothing);
  EXPECT_EQ(look(100), Act::kNothing);
  EXPECT_EQ(look(99), Act::kNothing);
  EXPECT_EQ(look(1), Act::kAsk);
}

TEST_F(Rest, AsksAgainUntilTheWordIsTaken) {
  ask();
  EXPECT_EQ(look(100), Act::kAsk);
  EXPECT_EQ(look(100), Act::kAsk);
  armed_ = false;
  EXPECT_EQ(look(100), Act::kNothing);
  EXPECT_EQ(look(10'000), Act::kNothing);
}

TEST_F(Rest, BeginsAnewWhereThePointerOrTheWindowIsAnother) {
  for (int field = 0; field < 3; ++field) {
    look(0);
    look(299);
    FurtherSight other = sight();
    if (field == 0) ++other.x;
    if (field == 1) --other.y;
    if (field == 2) ++other.window;
    EXPECT_EQ(look(1, other), Act::kNothing) << field;
    EXPECT_EQ(look(299, other), Act::kNothing) << field;
    EXPECT_EQ(look(1, other), Act::kAsk) << field;
    other = sight();
    look(0, other);
  }
}

TEST_F(Rest, BeginsAnewWithEachKeyOrButton) {
  FurtherSight down = sight();
  down.inputDown = true;
  look(0);
  EXPECT_EQ(look(299, down), Act::kNothing);
  EXPECT_EQ(look(1'000, down), Act::kNothing) << "asked while a key is down";
  EXPECT_EQ(look(299), Act::kNothing);
  EXPECT_EQ(look(1), Act::kAsk);
}

TEST_F(Rest, CancelsItsQuestionWhenThePointerLeavesOrAKeyGoesDown) {
  for (int field = 0; field < 3; ++field) {
    ask();
    FurtherSight other = sight();
    if (field == 0) ++other.x;
    if (field == 1) other.inputDown = true;
    if (field == 2) other.kind = Kind::kOther;
    EXPECT_EQ(look(100, other), Act::kCancel) << field;
    EXPECT_EQ(look(100, other), Act::kNothing) << field;
  }
}

TEST_F(Rest, LeavesTheQuestionOfAProbeAlone) {
  ask();
  FurtherSight probed = sight();
  probed.kind = Kind::kProbed;
  EXPECT_EQ(look(100, probed), Act::kNothing);
  EXPECT_EQ(look(1'000, probed), Act::kNothing);
  probed.kind = Kind::kOther;
  EXPECT_EQ(look(100, probed), Act::kNothing) << "a probe's question was cancelled";
}

TEST_F(Rest, NeverAsksAnyOtherWindow) {
  for (const Kind kind : {Kind::kOther, Kind::kProbed}) {
    FurtherSight other = sight();
    other.kind = kind;
    for (int i = 0; i < 10; ++i) EXPECT_EQ(look(100, other), Act::kNothing);
  }
}

}  // namespace
}  // namespace capture
