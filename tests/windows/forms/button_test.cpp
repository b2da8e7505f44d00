#include "forms/button.h"

#include "app/resources/resource_ids.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class ButtonForm : public FormA {
 public:
  ButtonForm() {
    plain.onClick = [this] { ++clicks; };
    pictured.onClick = [this] { ++pictureClicks; };
  }
  forms::Button plain{*this, u"退出", {150, 1000, 900, 330}};
  forms::Button pictured{*this, forms::Picture(IDI_CAPTURE_ON), {1500, 1000, 375, 375}};
  int clicks = 0;
  int pictureClicks = 0;
};

class ButtonTest : public WindowTest {};

TEST_F(ButtonTest, AClickOfTheMouse) {
  auto& form = opened<ButtonForm>();
  injected::click(centreOf(form.plain));
  ASSERT_TRUE(eventually([&] { return form.clicks == 1; }));
  injected::click(centreOf(form.pictured));
  ASSERT_TRUE(eventually([&] { return form.pictureClicks == 1; }));
  EXPECT_EQ(form.clicks, 1);
}

TEST_F(ButtonTest, LettingGoElsewhereIsNoClick) {
  auto& form = opened<ButtonForm>();
  injected::moveTo(centreOf(form.plain));
  injected::pressLeft();
  passTime(20);
  injected::moveTo(centreOf(form.second));
  passTime(20);
  injected::releaseLeft();
  EXPECT_TRUE(always([&] { return form.clicks == 0; }, 50));
}

TEST_F(ButtonTest, EnterAndSpace) {
  auto& form = opened<ButtonForm>();
  form.plain.setFocus();
  input::key(VK_RETURN);
  ASSERT_TRUE(eventually([&] { return form.clicks == 1; }));
  input::key(VK_SPACE);
  ASSERT_TRUE(eventually([&] { return form.clicks == 2; }));
  EXPECT_TRUE(always([&] { return form.clicks == 2; }, 40));
}

TEST_F(ButtonTest, TheClickComesAfterTheEventsOfTheFocus) {
  auto& form = opened<ButtonForm>();
  form.first.setFocus();
  events().clear();
  form.plain.onClick = [] { events().emplace_back("click"); };
  injected::click(centreOf(form.plain));
  ASSERT_TRUE(eventually([] { return times("click") == 1; }));
  EXPECT_EQ(events(), (Events{"A.first.LostFocus", "click"}));
}

TEST_F(ButtonTest, ItsNameFollowsTheToolTip) {
  auto& form = opened<ButtonForm>();
  for (const char16_t* tip : {u"允许鼠标取词", u"禁止鼠标取词", u"", u"帮助"}) {
    form.pictured.setToolTip(tip);
    EXPECT_EQ(forms::windowText(form.pictured.handle()), tip);
  }
}

TEST_F(ButtonTest, ACaptionStaysItsNameWhateverTheToolTip) {
  auto& form = opened<ButtonForm>();
  form.plain.setToolTip(u"普通查询");
  form.plain.setToolTip(u"高级搜索");
  EXPECT_EQ(forms::windowText(form.plain.handle()), u"退出");
}

TEST_F(ButtonTest, PicturesAreEqualByIdentity) {
  const forms::Picture one(IDI_CAPTURE_ON);
  const forms::Picture sameDrawing(IDI_CAPTURE_ON);
  const forms::Picture& same = one;
  EXPECT_EQ(one, same);
  EXPECT_NE(one, sameDrawing);
  EXPECT_EQ(forms::Picture(), forms::Picture());
  EXPECT_NE(one, forms::Picture());
}

TEST_F(ButtonTest, ShowsThePictureDrawnForItsResolution) {
  auto& form = opened<ButtonForm>();
  const auto shown = [&] {
    return reinterpret_cast<HICON>(
        SendMessageW(form.pictured.handle(), BM_GETIMAGE, IMAGE_ICON, 0));
  };
  EXPECT_NE(shown(), nullptr);
  EXPECT_EQ(shown(), form.pictured.picture().icon(16));
  const RECT suggested{100, 100, 900, 700};
  SendMessageW(form.handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
               reinterpret_cast<LPARAM>(&suggested));
  EXPECT_EQ(shown(), form.pictured.picture().icon(24));
  const forms::Picture other(IDI_CAPTURE_OFF);
  form.pictured.setPicture(other);
  EXPECT_EQ(shown(), other.icon(24));
  EXPECT_EQ(form.pictured.picture(), other);
}

TEST_F(ButtonTest, WithoutAPictureItShowsNone) {
  auto& form = opened<ButtonForm>();
  form.pictured.setPicture({});
  EXPECT_EQ(SendMessageW(form.pictured.handle(), BM_GETIMAGE, IMAGE_ICON, 0), 0);
  EXPECT_EQ(forms::Picture().icon(16), nullptr);
}

TEST_F(ButtonTest, DisabledItCannotBeClicked) {
  auto& form = opened<ButtonForm>();
  form.plain.setEnabled(false);
  injected::click(centreOf(form.plain));
  EXPECT_TRUE(always([&] { return form.clicks == 0; }, 50));
}

}  // namespace
}  // namespace support
