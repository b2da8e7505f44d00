#include "tests/support/window/window_test.h"
#include "win32/monitor.h"

namespace support {
namespace {

class FormDpi : public WindowTest {
 protected:
  // Borderless: the frame that the system draws follows the real monitor. Never active: the window
  // manager lets it alone.
  FormDpi() {
    plan<'A'>().design.frame = forms::Frame::kBorderless;
    plan<'A'>().design.neverActive = true;
  }

  static FormA& shown() {
    auto& form = forms::form<FormA>();
    form.show();
    forms::doEvents();
    return form;
  }

  /// What the system does when the form is moved to a monitor of `dpi`.
  static void moveToMonitorOf(int dpi, const forms::Form& form,
                              const RECT& suggested = {150, 120, 900, 700}) {
    SendMessageW(form.handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                 reinterpret_cast<LPARAM>(&suggested));
    forms::doEvents();
  }

  /// Asks for the size at `dpi` that the form will have instead of `size`, in pixels.
  static bool asked(const forms::Form& form, int dpi, SIZE& size) {
    return SendMessageW(form.handle(), WM_GETDPISCALEDSIZE, static_cast<WPARAM>(dpi),
                        reinterpret_cast<LPARAM>(&size)) != FALSE;
  }

  static LONG fontHeight(const forms::Widget& widget) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(widget.handle(), WM_GETFONT, 0, 0)),
               sizeof font, &font);
    return font.lfHeight;
  }
};

TEST_F(FormDpi, WidgetsAndFontsFollow) {
  auto& form = shown();
  form.first.setFont({u"宋体", 9});
  EXPECT_EQ(form.dpi(), 96);
  EXPECT_EQ(fontHeight(form.first), -12);
  moveToMonitorOf(144, form);
  EXPECT_EQ(form.dpi(), 144);
  EXPECT_EQ(fontHeight(form.first), -18);
  const RECT box = pixelBox(form.first);
  EXPECT_EQ(box.left, 15);
  EXPECT_EQ(box.top, 15);
  EXPECT_EQ(box.right, 315);
  EXPECT_EQ(box.bottom, 45);
  EXPECT_EQ(form.first.width(), 3000);
}

TEST_F(FormDpi, TheSizeInTwipsStaysAndThePlaceIsTheSuggestedOne) {
  auto& form = shown();
  form.setSize(4507, 3003);
  moveToMonitorOf(192, form);
  EXPECT_EQ(form.width(), 4507);
  EXPECT_EQ(form.height(), 3003);
  RECT client{};
  GetClientRect(form.handle(), &client);
  EXPECT_EQ(client.right, forms::toPixels(4507, 192));
  EXPECT_EQ(client.bottom, forms::toPixels(3003, 192));
  EXPECT_EQ(rectOf(form.handle()).left, 150);
  EXPECT_EQ(rectOf(form.handle()).top, 120);
}

TEST_F(FormDpi, RoundTripChangesNothing) {
  auto& form = shown();
  const RECT before = pixelBox(form.second);
  const LONG font = fontHeight(form.second);
  for (const int dpi : {120, 144, 168, 96}) moveToMonitorOf(dpi, form);
  EXPECT_TRUE(EqualRect(&before, std::array{pixelBox(form.second)}.data()));
  EXPECT_EQ(fontHeight(form.second), font);
  EXPECT_EQ(form.width(), 4500);
}

TEST_F(FormDpi, TheSystemsOwnFontFollowsToo) {
  auto& form = shown();
  const LONG font = fontHeight(form.second);
  moveToMonitorOf(192, form);
  EXPECT_NEAR(fontHeight(form.second), 2 * font, 1);
}

TEST_F(FormDpi, TheOneThatItHasAlreadyMovesNothing) {
  auto& form = shown();
  const RECT before = rectOf(form.handle());
  moveToMonitorOf(96, form);
  EXPECT_TRUE(EqualRect(&before, std::array{rectOf(form.handle())}.data()));
}

// A hidden form gets no WM_DPICHANGED here when it comes from a monitor of another DPI.
TEST_F(FormDpi, OfTheMonitorDecidesOnTheSizeThatIsCentred) {
  auto& other = forms::form<FormB>();
  other.setPosition(3000, 2250);
  const POINT middle = centreOf(rectOf(other.handle()));
  auto& form = forms::form<FormA>();
  moveToMonitorOf(192, form);
  ASSERT_EQ(form.place().width(), forms::toPixels(4500, 192));
  form.centre(other);
  EXPECT_EQ(form.dpi(), 96);
  EXPECT_EQ(form.place().width(), forms::toPixels(4500, 96));
  EXPECT_NEAR(centreOf(rectOf(form.handle())).x, middle.x, 1);
  EXPECT_NEAR(centreOf(rectOf(form.handle())).y, middle.y, 1);
  moveToMonitorOf(192, form);
  form.centre();
  EXPECT_EQ(form.place().width(), forms::toPixels(4500, 96));
  const RECT work = win32::monitorOf(form.handle()).work;
  EXPECT_NEAR(centreOf(rectOf(form.handle())).x, (work.left + work.right) / 2, 1);
  EXPECT_NEAR(centreOf(rectOf(form.handle())).y, (work.top + work.bottom) / 2, 1);
}

TEST_F(FormDpi, TellsTheSystemTheSizeItWillHave) {
  auto& form = shown();
  SIZE size{form.place().width(), form.place().height()};
  EXPECT_TRUE(asked(form, 144, size));
  EXPECT_EQ(size.cx, forms::toPixels(4500, 144));
  EXPECT_EQ(size.cy, forms::toPixels(3000, 144));
  EXPECT_EQ(form.dpi(), 96);
}

// As where the system lets it fill half of a monitor of another DPI.
TEST_F(FormDpi, ScalesTheSizeThatItIsGetting) {
  auto& form = shown();
  SIZE size{800, 600};
  EXPECT_TRUE(asked(form, 144, size));
  EXPECT_EQ(size.cx, 1200);
  EXPECT_EQ(size.cy, 900);
  moveToMonitorOf(144, form, {10, 20, 10 + size.cx, 20 + size.cy});
  EXPECT_EQ(form.place(), (forms::PixelBox{10, 20, 1210, 920}));
  EXPECT_EQ(form.width(), 12000);
  EXPECT_EQ(form.height(), 9000);
}

TEST_F(FormDpi, LeavesTheSizeOfAMaximisedFormToTheSystem) {
  auto& form = shown();
  ShowWindow(form.handle(), SW_MAXIMIZE);
  ASSERT_TRUE(IsZoomed(form.handle()));
  SIZE size{801, 601};
  EXPECT_FALSE(asked(form, 144, size));
  EXPECT_EQ(size.cx, 801);
  EXPECT_EQ(size.cy, 601);
}

/// A form that counts how often it gives its window an icon while another one that the window still
/// has is destroyed.
class IconForm : public FormA {
 public:
  int given = 0;
  int destroyed = 0;

 private:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_SETICON) {
      ++given;
      for (const WPARAM kind : {ICON_BIG, ICON_SMALL}) {
        auto* icon = reinterpret_cast<HICON>(SendMessageW(handle(), WM_GETICON, kind, 0));
        ICONINFO info{};
        if (icon != nullptr && GetIconInfo(icon, &info) == FALSE) ++destroyed;
        DeleteObject(info.hbmColor);
        DeleteObject(info.hbmMask);
      }
    }
    return FormA::handleMessage(message, wParam, lParam);
  }
};

TEST_F(FormDpi, IconsAreReplacedBeforeTheyAreDestroyed) {
  plan<'A'>().design.iconResource = forms::kProgramIcon;
  auto& form = forms::form<IconForm>();
  form.show();
  for (const int dpi : {144, 192}) moveToMonitorOf(dpi, form);
  EXPECT_EQ(form.given, 4);
  EXPECT_EQ(form.destroyed, 0);
}

TEST_F(FormDpi, PlacesUnderTheMouseAreTwips) {
  auto& form = shown();
  moveToMonitorOf(144, form);
  forms::TwipPoint place;
  form.first.onMouseMove = [&](forms::TwipPoint at) { place = at; };
  SendMessageW(form.first.handle(), WM_MOUSEMOVE, 0, MAKELPARAM(30, 15));
  EXPECT_EQ(place.x, 300);
  EXPECT_EQ(place.y, 150);
}

}  // namespace
}  // namespace support
