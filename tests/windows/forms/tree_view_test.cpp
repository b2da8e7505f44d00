#include "forms/tree_view.h"

#include "tests/support/process/controls.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class TreeForm : public FormA {
 public:
  TreeForm() {
    tree.onNodeClick = [this](std::size_t node) { chosen.push_back(node); };
  }
  forms::TreeView tree{*this, {150, 1000, 3000, 1500}};
  std::vector<std::size_t> chosen;
};

class TreeViewTest : public WindowTest {
 protected:
  TreeViewTest() { plan<'A'>().design.height = 6000; }

  void fill(int count) {
    const forms::ScopedRepaintHold held(tree());
    for (int i = 1; i <= count; ++i) tree().add(word(i));
  }
  static std::u16string word(int number) {
    std::u16string text = u"词 word ";
    for (const char digit : std::to_string(number)) text += static_cast<char16_t>(digit);
    return text;
  }
  /// What the control itself shows.
  std::vector<std::u16string> shown() {
    std::vector<std::u16string> texts;
    for (const std::wstring& text : treeTexts(tree().handle())) {
      texts.emplace_back(text.begin(), text.end());
    }
    return texts;
  }
  forms::TreeView& tree() { return forms::form<TreeForm>().tree; }
  std::vector<std::size_t>& chosen() { return forms::form<TreeForm>().chosen; }

  /// The middle of a node's text on the screen.
  POINT nodePoint(int number) {
    const auto rect = treeNodeRect(tree().handle(), number - 1);
    EXPECT_TRUE(rect.has_value());
    return centreOf(rect.value_or(RECT{}));
  }
  void open() {
    opened<TreeForm>();
    tree().move({150, 1000, 3000, 4000});
    tree().setFocus();
    chosen().clear();
  }
};

TEST_F(TreeViewTest, GivesAnUnknownNodeNoText) {
  open();
  fill(3);
  wchar_t buffer[16] = L"not empty";
  NMTVDISPINFOW info{};
  info.hdr = {tree().handle(), 0, TVN_GETDISPINFOW};
  info.item.mask = TVIF_TEXT;
  info.item.pszText = buffer;
  info.item.cchTextMax = 16;
  SendMessageW(tree().form().handle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&info));
  EXPECT_STREQ(info.item.pszText, L"");
}

TEST_F(TreeViewTest, ShowsItsTextsThroughTheControl) {
  open();
  fill(3);
  EXPECT_EQ(tree().count(), 3U);
  EXPECT_EQ(tree().text(2), word(2));
  EXPECT_EQ(shown(), (std::vector{word(1), word(2), word(3)}));
}

TEST_F(TreeViewTest, NewTextsAreShownToo) {
  open();
  fill(3);
  tree().setText(2, u"data");
  tree().refresh();
  EXPECT_EQ(shown(), (std::vector{word(1), std::u16string(u"data"), word(3)}));
}

TEST_F(TreeViewTest, RemovingRenumbersTheNodesAfterIt) {
  open();
  fill(4);
  tree().remove(2);
  EXPECT_EQ(shown(), (std::vector{word(1), word(3), word(4)}));
  EXPECT_EQ(tree().text(2), word(3));
  tree().remove(3);
  tree().remove(1);
  EXPECT_EQ(shown(), std::vector{word(3)});
  tree().remove(1);
  EXPECT_EQ(tree().count(), 0U);
  EXPECT_EQ(tree().selected(), 0U);
}

TEST_F(TreeViewTest, SeventyFiveNodesBecomeTen) {
  open();
  fill(75);
  tree().select(1);
  for (std::size_t node = 1; node <= 10; ++node) tree().setText(node, u"new");
  while (tree().count() > 10) tree().remove(11);
  EXPECT_EQ(shown(), std::vector<std::u16string>(10, u"new"));
  EXPECT_EQ(tree().selected(), 1U);
}

TEST_F(TreeViewTest, ALongTextIsCutToWhatTheControlTakes) {
  open();
  tree().add(std::u16string(3'000, u'长'));
  const auto texts = shown();
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_GE(texts[0].size(), 100U);
  EXPECT_EQ(texts[0].find_first_not_of(u'长'), texts[0].npos);
}

TEST_F(TreeViewTest, AnIndexOutOfRangeThrows) {
  open();
  fill(2);
  EXPECT_THROW(tree().setText(3, u"x"), std::out_of_range);
  EXPECT_THROW(static_cast<void>(tree().text(0)), std::out_of_range);
  EXPECT_THROW(tree().remove(0), std::out_of_range);
  EXPECT_THROW(tree().select(3), std::out_of_range);
}

TEST_F(TreeViewTest, SelectingFromCodeIsNoChoice) {
  open();
  fill(5);
  tree().select(3);
  passTime(30);
  EXPECT_EQ(tree().selected(), 3U);
  EXPECT_EQ(chosen(), std::vector<std::size_t>{});
}

TEST_F(TreeViewTest, SelectingBringsTheNodeIntoView) {
  open();
  fill(75);
  tree().select(75);
  forms::doEvents();
  EXPECT_TRUE(treeNodeRect(tree().handle(), 74).has_value());
}

TEST_F(TreeViewTest, TheFocusReachingTheTreeIsNoChoice) {
  open();
  fill(5);
  forms::form<TreeForm>().first.setFocus();
  tree().setFocus();
  passTime(30);
  EXPECT_EQ(chosen(), std::vector<std::size_t>{});
}

TEST_F(TreeViewTest, AClickOnANodeIsAChoiceAlsoOnTheSelectedOne) {
  open();
  fill(5);
  tree().select(1);
  injected::click(nodePoint(3));
  ASSERT_TRUE(eventually([this] { return chosen().size() == 1; }));
  EXPECT_EQ(tree().selected(), 3U);
  // Far enough beside the first to be no double click.
  const POINT point = nodePoint(3);
  injected::click({point.x + 20, point.y});
  ASSERT_TRUE(eventually([this] { return chosen().size() == 2; }));
  passTime(30);
  EXPECT_EQ(chosen(), (std::vector<std::size_t>{3, 3}));
}

TEST_F(TreeViewTest, AClickRightOfTheTextChoosesTheRow) {
  open();
  fill(5);
  POINT point = nodePoint(2);
  point.x = rectOf(tree().handle()).right - 10;
  injected::click(point);
  EXPECT_TRUE(eventually([this] { return chosen() == std::vector<std::size_t>{2}; }));
}

TEST_F(TreeViewTest, AClickBelowTheNodesChoosesNothing) {
  open();
  fill(2);
  tree().select(1);
  const RECT rect = rectOf(tree().handle());
  injected::click({rect.left + 30, rect.bottom - 10});
  passTime(60);
  EXPECT_EQ(chosen(), std::vector<std::size_t>{});
  EXPECT_EQ(tree().selected(), 1U);
}

TEST_F(TreeViewTest, ARightClickChoosesNothing) {
  open();
  fill(3);
  tree().select(1);
  injected::rightClick(nodePoint(2));
  passTime(60);
  EXPECT_EQ(chosen(), std::vector<std::size_t>{});
}

TEST_F(TreeViewTest, MovingTheHighlightWithTheKeysIsAChoice) {
  open();
  fill(5);
  tree().select(1);
  input::key(VK_DOWN);
  ASSERT_TRUE(eventually([this] { return chosen().size() == 1; }));
  input::key(VK_END);
  ASSERT_TRUE(eventually([this] { return chosen().size() == 2; }));
  input::key(VK_UP);
  ASSERT_TRUE(eventually([this] { return chosen().size() == 3; }));
  EXPECT_EQ(chosen(), (std::vector<std::size_t>{2, 5, 4}));
}

TEST_F(TreeViewTest, EnterChoosesTheSelectedNode) {
  open();
  fill(5);
  tree().select(2);
  input::key(VK_RETURN);
  ASSERT_TRUE(eventually([this] { return chosen().size() == 1; }));
  EXPECT_EQ(chosen(), std::vector<std::size_t>{2});
}

TEST_F(TreeViewTest, EnterInAnEmptyTreeDoesNothing) {
  open();
  input::key(VK_RETURN);
  input::key(VK_DOWN);
  passTime(40);
  EXPECT_EQ(chosen(), std::vector<std::size_t>{});
}

}  // namespace
}  // namespace support
