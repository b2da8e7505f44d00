#include "forms/text_box.h"

#include "tests/support/window/window_test.h"

namespace support {
namespace {

class TextBoxTest : public WindowTest {
 protected:
  static forms::TextBox& box() { return forms::form<FormA>().first; }

  /// The texts that the box held at its changes.
  std::vector<std::u16string> changes;

  void open() {
    opened<FormA>();
    box().onChange = [this] { changes.push_back(box().text()); };
    box().setFocus();
  }
};

TEST_F(TextBoxTest, SettingTheTextRaisesChangeLikeTyping) {
  open();
  box().setText(u"数据");
  EXPECT_EQ(changes, (std::vector<std::u16string>{u"数据"}));
  EXPECT_EQ(box().text(), u"数据");
}

TEST_F(TextBoxTest, EveryTypedCharacterRaisesChange) {
  open();
  input::type(L"it's做");
  ASSERT_TRUE(eventually([this] { return changes.size() == 5; }));
  EXPECT_EQ(changes.back(), u"it's做");
  input::key(VK_BACK);
  ASSERT_TRUE(eventually([this] { return changes.size() == 6; }));
  EXPECT_EQ(changes.back(), u"it's");
}

TEST_F(TextBoxTest, AHandlerMayEmptyItsOwnBox) {
  open();
  box().onChange = [this] {
    changes.push_back(box().text());
    if (!box().text().empty()) box().setText({});
  };
  input::type(L"?");
  ASSERT_TRUE(eventually([this] { return changes.size() == 2; }));
  EXPECT_EQ(changes, (std::vector<std::u16string>{u"?", u""}));
  EXPECT_EQ(box().text(), u"");
}

TEST_F(TextBoxTest, CtrlASelectsAll) {
  open();
  box().setText(u"all of it");
  input::key('A', {VK_CONTROL});
  ASSERT_TRUE(
      eventually([] { return SendMessageW(box().handle(), EM_GETSEL, 0, 0) == MAKELONG(0, 9); }));
  input::type(L"x");
  EXPECT_TRUE(eventually([] { return box().text() == u"x"; }));
}

TEST_F(TextBoxTest, TakesTheKeyThatAWindowWired) {
  open();
  int downs = 0;
  box().onKeyDown[VK_DOWN] = [&] { ++downs; };
  input::key(VK_DOWN);
  ASSERT_TRUE(eventually([&] { return downs == 1; }));
  input::key(VK_DOWN, {VK_CONTROL});
  EXPECT_TRUE(always([&] { return downs == 1; }, 40));
}

TEST_F(TextBoxTest, KeepsALongText) {
  open();
  const std::u16string text(5'000, u'长');
  box().setText(text);
  EXPECT_EQ(box().text(), text);
}

TEST_F(TextBoxTest, RaisesMouseMove) {
  open();
  int moves = 0;
  int downs = 0;
  int ups = 0;
  forms::TwipPoint place;
  box().onMouseMove = [&](forms::TwipPoint) { ++moves; };
  box().onMouseDown = [&](forms::TwipPoint at) {
    ++downs;
    place = at;
  };
  box().onMouseUp = [&](forms::TwipPoint) { ++ups; };
  injected::click(inWidget(box(), 600, 150));
  ASSERT_TRUE(eventually([&] { return ups == 1; }));
  EXPECT_EQ(downs, 1);
  EXPECT_GE(moves, 1);
  EXPECT_NEAR(place.x, 600, 45);  // from the client area, inside the edge
  EXPECT_NEAR(place.y, 150, 45);
}

}  // namespace
}  // namespace support
