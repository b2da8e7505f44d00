#include "forms/widget.h"

#include "forms/column_tree.h"
#include "forms/rich_text_box.h"
#include "tests/support/window/painted.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class HeldForm : public FormA {
 public:
  forms::RichTextBox pane{*this, {150, 1000, 1800, 1200}};
  forms::RichTextBox note{*this, {150, 2300, 1800, 1800}, forms::RichTextBox::Look::kToolTip};
  forms::TreeView tree{*this, {2100, 1000, 1800, 1200}};
  forms::ColumnTree columns{*this, {4050, 1000, 1800, 1200}};
};

/// Controls whose scroll bars come and go while they hold back their repaint.
class ScopedRepaintHoldTest : public WindowTest {
 protected:
  ScopedRepaintHoldTest() {
    plan<'A'>().design.width = 6300;
    plan<'A'>().design.height = 4800;
    opened<HeldForm>();
  }
  static HeldForm& form() { return forms::form<HeldForm>(); }

  static void fill(forms::TreeView& tree, std::size_t count, const std::u16string& text) {
    const forms::ScopedRepaintHold held(tree);
    while (tree.count() > count) tree.remove(tree.count());
    for (std::size_t node = 1; node <= tree.count(); ++node) tree.setText(node, text);
    while (tree.count() < count) tree.add(text);
  }

  static void expectPainted(const forms::Widget& widget, LONG_PTR bar, bool shown) {
    EXPECT_EQ(hasScrollBar(widget.handle(), bar), shown);
    EXPECT_TRUE(isPaintedWhole(widget.handle()));
  }
};

TEST_F(ScopedRepaintHoldTest, ARichTextBoxPaintsABarThatComesOrGoes) {
  const std::u16string few(u"word\r\nmeaning that is long");
  std::u16string many = few;
  for (int i = 0; i < 30; ++i) many += u"\r\nmeaning";
  for (forms::RichTextBox* box : {&form().pane, &form().note}) {
    for (const std::u16string* text :
         std::initializer_list<const std::u16string*>{&few, &many, &few}) {
      {
        const forms::ScopedRepaintHold held(*box);
        box->setText(*text);
      }
      expectPainted(*box, WS_VSCROLL, text == &many);
    }
  }
}

TEST_F(ScopedRepaintHoldTest, ATreePaintsABarThatComesOrGoes) {
  fill(form().tree, 2, u"a word that is longer than the tree is wide");
  expectPainted(form().tree, WS_VSCROLL, false);
  fill(form().tree, 60, u"a word that is longer than the tree is wide");
  expectPainted(form().tree, WS_VSCROLL, true);
  fill(form().tree, 2, u"another word that is longer than the tree is wide");
  expectPainted(form().tree, WS_VSCROLL, false);
}

TEST_F(ScopedRepaintHoldTest, AHiddenControlStaysHidden) {
  for (const forms::Widget* widget :
       std::initializer_list<const forms::Widget*>{&form().pane, &form().tree, &form().columns}) {
    ShowWindow(widget->handle(), SW_HIDE);
    { const forms::ScopedRepaintHold held(*widget); }
    EXPECT_FALSE(IsWindowVisible(widget->handle()));
    ShowWindow(widget->handle(), SW_SHOWNA);
    { const forms::ScopedRepaintHold held(*widget); }
    EXPECT_TRUE(IsWindowVisible(widget->handle()));
  }
}

TEST_F(ScopedRepaintHoldTest, ATreeOfColumnsPaintsBothBarsThatComeOrGo) {
  forms::ColumnTree& tree = form().columns;
  const std::u16string wide(100, u'x');
  fill(tree, 2, u"short");
  expectPainted(tree, WS_VSCROLL, false);
  fill(tree, 60, u"short");
  expectPainted(tree, WS_VSCROLL, true);
  fill(tree, 60, wide);
  expectPainted(tree, WS_HSCROLL, true);
  fill(tree, 2, wide);
  expectPainted(tree, WS_VSCROLL, false);
  expectPainted(tree, WS_HSCROLL, true);
  fill(tree, 2, u"short");
  expectPainted(tree, WS_HSCROLL, false);
}

}  // namespace
}  // namespace support
