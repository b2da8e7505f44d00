#include "query/layout.h"
#include "tests/support/window/query_test.h"
#include "win32/monitor.h"

namespace support {
namespace {

class FrmMainLayout : public QueryTest {
 protected:
  static void expectAt(const forms::Widget& widget, const query::Box& box) {
    EXPECT_EQ(widget.left(), box.left);
    EXPECT_EQ(widget.top(), box.top);
    EXPECT_EQ(widget.width(), box.width);
    EXPECT_EQ(widget.height(), box.height);
  }
  static void expectLaidOut() {
    const frmMain& window = form();
    const query::Layout layout = query::layOut(window.width(), window.height());
    expectAt(window.txtInput, layout.input);
    expectAt(window.cmdOK, layout.ok);
    expectAt(window.Command1, layout.advanced);
    expectAt(window.cmdSpc, layout.special);
    expectAt(window.TreeView1, layout.dictionaries);
    expectAt(window.TreeView2, layout.results);
  }
  static RECT workArea() { return win32::monitorOf(form().handle()).work; }
};

TEST_F(FrmMainLayout, OpensInItsSizeAndFollowsTheWindow) {
  actUntil(
      "frmMain in its opening size",
      [&] {
        if (forms::isLoaded<frmMain>()) form().unload();
        open();
      },
      [] {
        return form().width() == query::kOpeningWidth && form().height() == query::kOpeningHeight;
      },
      kLastingWindow);
  expectLaidOut();
  resize(form(), 12000, 9000);
  expectLaidOut();
  resize(form(), 7000, 4000);
  expectLaidOut();
}

TEST_F(FrmMainLayout, ShowsMoreThanTenLines) {
  open();
  form().TreeView1.select(2);
  form().TreeView1.onNodeClick.raise(2);
  easy(u"bit");
  forms::doEvents();
  EXPECT_GE(SendMessageW(form().TreeView2.handle(), TVM_GETVISIBLECOUNT, 0, 0), 10);
}

TEST_F(FrmMainLayout, OpensWhollyOnTheScreen) {
  open();
  const RECT rect = rectOf(form().handle());
  const RECT work = workArea();
  EXPECT_GE(rect.left, work.left);
  EXPECT_GE(rect.top, work.top);
  EXPECT_LE(rect.right, work.right);
  EXPECT_LE(rect.bottom, work.bottom);
}

TEST_F(FrmMainLayout, AWindowThatIsTooLargeIsMadeToFit) {
  open().setSize(30000, 30000);
  form().centre();
  const RECT rect = rectOf(form().handle());
  const RECT work = workArea();
  EXPECT_EQ(rect.right - rect.left, work.right - work.left);
  EXPECT_EQ(rect.bottom - rect.top, work.bottom - work.top);
  expectLaidOut();
}

TEST_F(FrmMainLayout, AtItsLeastSizeEveryButtonIsWhole) {
  open();
  SetWindowPos(form().handle(), nullptr, 0, 0, 100, 100,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  EXPECT_NEAR(form().width(), query::kMinWidth, 15);
  EXPECT_NEAR(form().height(), query::kMinHeight, 15);
  RECT client{};
  GetClientRect(form().handle(), &client);
  for (const forms::Widget* button : {&form().cmdOK, &form().Command1, &form().cmdSpc}) {
    const RECT box = pixelBox(*button);
    EXPECT_GE(box.left, pixelBox(form().txtInput).right);
    EXPECT_LE(box.right, client.right);
    EXPECT_LE(box.bottom, pixelBox(form().TreeView2).top);
    EXPECT_GE(box.right - box.left, 60);
  }
}

TEST_F(FrmMainLayout, TheUserCannotMakeItUselesslySmall) {
  open();
  MINMAXINFO limits{};
  SendMessageW(form().handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_GE(limits.ptMinTrackSize.x, forms::toPixels(query::kMinWidth, 96) - 10);
  EXPECT_GE(limits.ptMinTrackSize.y, forms::toPixels(query::kMinHeight, 96) - 10);
}

}  // namespace
}  // namespace support
