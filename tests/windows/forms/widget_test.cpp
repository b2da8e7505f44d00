#include "forms/widget.h"

#include <stdexcept>

#include "forms/static_controls.h"
#include "tests/support/window/scoped_import.h"
#include "tests/support/window/window_test.h"

extern "C" decltype(&CreateFontIndirectW) __imp_CreateFontIndirectW;

namespace support {
namespace {

class WidgetTest : public WindowTest {
 protected:
  /// The tool tip window of a form, or null.
  static HWND toolTipOf(const forms::WidgetHost& form) {
    HWND tip = nullptr;
    while ((tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
      if (GetWindow(tip, GW_OWNER) == form.handle()) return tip;
    }
    return nullptr;
  }

  /// The text that the system has for a widget's tool tip; "" for none.
  static std::u16string tipText(const forms::Widget& widget) {
    HWND tip = toolTipOf(widget.form());
    if (tip == nullptr) return {};
    wchar_t text[128] = L"";
    TOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = widget.form().handle();
    tool.uId = reinterpret_cast<UINT_PTR>(widget.handle());
    tool.lpszText = text;
    SendMessageW(tip, TTM_GETTEXTW, 128, reinterpret_cast<LPARAM>(&tool));
    return {text, text + lstrlenW(text)};
  }
};

TEST_F(WidgetTest, KeepsAToolTipForEachWidget) {
  auto& form = opened<FormA>();
  EXPECT_EQ(tipText(form.first), u"");
  form.first.setToolTip(u"快速查询");
  form.second.setToolTip(u"查询设置");
  EXPECT_EQ(tipText(form.first), u"快速查询");
  EXPECT_EQ(tipText(form.second), u"查询设置");
  form.first.setToolTip(u"禁止鼠标取词");
  EXPECT_EQ(form.first.toolTip(), u"禁止鼠标取词");
  EXPECT_EQ(tipText(form.first), u"禁止鼠标取词");
  EXPECT_EQ(SendMessageW(toolTipOf(form), TTM_GETTOOLCOUNT, 0, 0), 2);
  form.first.setToolTip(u"");
  EXPECT_EQ(SendMessageW(toolTipOf(form), TTM_GETTOOLCOUNT, 0, 0), 1);
}

TEST_F(WidgetTest, LeavesNoControlWhenItCannotBeMade) {
  auto& form = forms::form<FormA>();
  {
    const ScopedImport<decltype(&CreateFontIndirectW)> none(
        __imp_CreateFontIndirectW, [](const LOGFONTW*) -> HFONT { return nullptr; });
    EXPECT_THROW(forms::Label(form, u"标签", {150, 1000, 3000, 300}), std::runtime_error);
  }
  HWND last = GetWindow(GetWindow(form.handle(), GW_CHILD), GW_HWNDLAST);
  EXPECT_EQ(last, form.second.handle());
  EXPECT_EQ(form.widgetAt(inWidget(form.first, 0, 900)), nullptr);
}

TEST_F(WidgetTest, ToolTipsAreInTheFontOfTheFormsDpi) {
  plan<'A'>().design.frame = forms::Frame::kBorderless;
  plan<'A'>().design.neverActive = true;
  auto& form = forms::form<FormA>();
  form.first.setToolTip(u"快速查询");
  const auto height = [&] {
    LOGFONTW font{};
    const LRESULT handle = SendMessageW(toolTipOf(form), WM_GETFONT, 0, 0);
    GetObjectW(reinterpret_cast<HGDIOBJ>(handle), sizeof font, &font);
    return font.lfHeight;
  };
  const LONG before = height();
  EXPECT_EQ(before, fontOf(form.second).lfHeight);
  const RECT suggested{150, 120, 900, 700};
  SendMessageW(form.handle(), WM_DPICHANGED, MAKEWPARAM(192, 192),
               reinterpret_cast<LPARAM>(&suggested));
  EXPECT_NEAR(height(), 2 * before, 1);
}

TEST_F(WidgetTest, TheToolTipAppearsUnderThePointer) {
  auto& form = opened<FormA>();
  form.first.setToolTip(u"快速查询");
  SendMessageW(toolTipOf(form), TTM_SETDELAYTIME, TTDT_INITIAL, 20);
  const POINT centre = centreOf(form.first);
  injected::moveTo({centre.x - 5, centre.y});
  forms::doEvents();
  injected::moveTo(centre);
  EXPECT_TRUE(eventually([&] { return IsWindowVisible(toolTipOf(form)) != FALSE; }));
}

TEST_F(WidgetTest, ALabelTakesNoFocusButRaisesMouseMove) {
  class LabelForm : public FormB {
   public:
    forms::Label label{*this, u"输入：&x", {150, 1200, 900, 300}};
  };
  auto& form = opened<LabelForm>();
  int moves = 0;
  form.label.onMouseMove = [&](forms::TwipPoint) { ++moves; };
  injected::click(centreOf(form.label));
  EXPECT_TRUE(eventually([&] { return moves > 0; }));
  EXPECT_EQ(GetFocus(), form.first.handle());
  wchar_t caption[16] = L"";
  GetWindowTextW(form.label.handle(), caption, 16);
  EXPECT_STREQ(caption, L"输入：&x");
}

TEST_F(WidgetTest, CanBeHiddenAndShown) {
  auto& form = opened<FormA>();
  form.second.setVisible(false);
  EXPECT_FALSE(IsWindowVisible(form.second.handle()));
  EXPECT_EQ(form.widgetAt(inWidget(form.first, 300, 150)), &form.first);
  EXPECT_EQ(form.widgetAt(inWidget(form.first, 300, 600)), nullptr);
  form.second.setVisible(true);
  EXPECT_EQ(form.widgetAt(inWidget(form.first, 300, 600)), &form.second);
  EXPECT_EQ(form.widgetAt(inWidget(form.first, 300, 600), &form.second), nullptr);
}

TEST_F(WidgetTest, ThePointersShapeIsTheFormsWhereItIsSet) {
  auto& form = opened<FormA>();
  const auto shapeOver = [&](const forms::Widget& widget) {
    SendMessageW(widget.handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(widget.handle()),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor();
  };
  EXPECT_EQ(shapeOver(form.first), LoadCursorW(nullptr, IDC_IBEAM));
  form.setMousePointer(IDC_SIZEWE);
  EXPECT_EQ(shapeOver(form.first), LoadCursorW(nullptr, IDC_SIZEWE));
  form.setMousePointer(nullptr);
  EXPECT_EQ(shapeOver(form.first), LoadCursorW(nullptr, IDC_IBEAM));
}

TEST_F(WidgetTest, TheFormRaisesMouseMoveOutsideItsWidgets) {
  auto& form = opened<FormA>();
  int moves = 0;
  form.onMouseMove = [&](forms::TwipPoint) { ++moves; };
  POINT empty{5, 5};
  ClientToScreen(form.handle(), &empty);
  injected::moveTo(empty);
  ASSERT_TRUE(eventually([&] { return moves > 0; }));
  moves = 0;
  injected::moveTo(centreOf(form.second));
  EXPECT_TRUE(always([&] { return moves == 0; }, 40));
}

}  // namespace
}  // namespace support
