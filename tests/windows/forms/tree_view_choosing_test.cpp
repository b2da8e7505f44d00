// What trees of dictionaries can do besides: pictures, choosing expressly, copying.
#include "forms/tree_view.h"

#include "app/resources/resource_ids.h"
#include "tests/support/process/clipboard.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/screen.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class PictureForm : public FormA {
 public:
  PictureForm() {
    tree.setPicture(forms::Picture(IDI_DICTIONARY));
    tree.onNodeClick = [this](std::size_t node) { chosen.push_back(node); };
  }
  forms::TreeView tree{*this, {150, 1000, 3000, 1500}};
  std::vector<std::size_t> chosen;
};

class TreeViewChoosing : public WindowTest {
 protected:
  TreeViewChoosing() {
    opened<PictureForm>();
    for (const char16_t* text : {u"一", u"二", u"三"}) tree().add(text);
    tree().select(1);
    tree().setFocus();
  }
  static PictureForm& form() { return forms::form<PictureForm>(); }
  static forms::TreeView& tree() { return form().tree; }
  static RECT nodeRect(int number) {
    return treeNodeRect(tree().handle(), number - 1).value_or(RECT{});
  }
};

TEST_F(TreeViewChoosing, EveryNodeHasThePicture) {
  const auto pictures = reinterpret_cast<HIMAGELIST>(
      SendMessageW(tree().handle(), TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
  EXPECT_EQ(ImageList_GetImageCount(pictures), 1);
  tree().refresh();
  forms::doEvents();
  for (const int number : {1, 2, 3}) {
    RECT picture = nodeRect(number);
    picture.right = picture.left - 3;
    picture.left -= 16;
    const auto isBlue = [](COLORREF pixel) {
      return GetBValue(pixel) > 150 && GetRValue(pixel) < 100;
    };
    EXPECT_TRUE(eventually([&] {
      const auto pixels = screenPixels(picture);
      return std::any_of(pixels.begin(), pixels.end(), isBlue);
    })) << number;
  }
}

TEST_F(TreeViewChoosing, ChoosingExpresslyTakesSpaceEnterOrAClick) {
  tree().chooseOnlyExpressly();
  input::key(VK_DOWN);
  ASSERT_TRUE(eventually([] { return tree().selected() == 2; }));
  EXPECT_EQ(form().chosen.size(), 0U);
  input::key(VK_SPACE);
  ASSERT_TRUE(eventually([] { return form().chosen.size() == 1; }));
  EXPECT_EQ(tree().selected(), 2U);
  input::key(VK_RETURN);
  ASSERT_TRUE(eventually([] { return form().chosen.size() == 2; }));
  injected::click(centreOf(nodeRect(3)));
  ASSERT_TRUE(eventually([] { return form().chosen.size() == 3; }));
  EXPECT_EQ(form().chosen, (std::vector<std::size_t>{2, 2, 3}));
}

TEST_F(TreeViewChoosing, AClickKeepsTheSelectionThatItsHandlerMade) {
  tree().onNodeClick = [](std::size_t) { tree().select(1); };
  injected::click(centreOf(nodeRect(3)));
  passTime(60);
  EXPECT_EQ(tree().selected(), 1U);
  EXPECT_EQ(GetFocus(), tree().handle());
}

TEST_F(TreeViewChoosing, TheKeysCopyTheSelectedNode) {
  for (const WORD key : std::initializer_list<WORD>{'C', VK_INSERT}) {
    setClipboardText(L"before");
    input::key(key, {VK_CONTROL});
    EXPECT_TRUE(eventually([] { return clipboardText() == L"一"; })) << key;
  }
  setClipboardText(L"before");
  tree().setText(1, u"");
  input::key('C', {VK_CONTROL});
  passTime(40);
  SendMessageW(tree().handle(), TVM_SELECTITEM, TVGN_CARET, 0);
  input::key('C', {VK_CONTROL});
  passTime(40);
  EXPECT_EQ(clipboardText(), L"before");
}

TEST_F(TreeViewChoosing, TheHighlightIsKeptWhereAsked) {
  const auto highlighted = [] {
    RECT end = nodeRect(1);
    end.left = rectOf(tree().handle()).right - 30;
    end.right = end.left + 4;
    return screenPixels(end)[10] == GetSysColor(COLOR_HIGHLIGHT);
  };
  EXPECT_TRUE(eventually(highlighted));
  form().first.setFocus();
  EXPECT_TRUE(eventually([&] { return !highlighted(); }));
  tree().keepHighlight();
  tree().refresh();
  EXPECT_TRUE(eventually(highlighted));
}

TEST_F(TreeViewChoosing, ClearedItHasNoNodes) {
  tree().clear();
  EXPECT_EQ(tree().count(), 0U);
  EXPECT_EQ(treeTexts(tree().handle()).size(), 0U);
  tree().add(u"四");
  EXPECT_EQ(tree().text(1), u"四");
}

}  // namespace
}  // namespace support
