// What a tree shows of its texts, whatever the control has measured.
#include <algorithm>

#include "forms/column_tree.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/screen.h"
#include "tests/support/window/system_colors.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class DrawingForm : public FormA {
 public:
  forms::TreeView list{*this, {150, 1000, 3000, 1500}};
  forms::ColumnTree columns{*this, {3300, 1000, 3000, 1500}};
};

const std::u16string kShort = u"i";
/// Not wider than the lists, and wide to its end.
const std::u16string kLong(12, u'W');
const std::u16string kCut(60, u'W');

/// A drawing surface of a window's client size, in one colour.
class Canvas {
 public:
  explicit Canvas(HWND window) : size_(clientRectOf(window)) {
    OffsetRect(&size_, -size_.left, -size_.top);
    HDC screen = GetDC(nullptr);
    dc_ = CreateCompatibleDC(screen);
    bitmap_ = CreateCompatibleBitmap(screen, size_.right, size_.bottom);
    ReleaseDC(nullptr, screen);
    before_ = SelectObject(dc_, bitmap_);
    FillRect(dc_, &size_, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  }
  ~Canvas() {
    SelectObject(dc_, before_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  [[nodiscard]] HDC dc() const { return dc_; }
  /// The last column of pixels that is dark.
  [[nodiscard]] int lastInk() const {
    for (int x = size_.right - 1; x >= 0; --x) {
      for (int y = 0; y < size_.bottom; ++y) {
        if (GetGValue(GetPixel(dc_, x, y)) < 100) return x;
      }
    }
    return -1;
  }

 private:
  RECT size_;
  HDC dc_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
};

class TreeViewDrawing : public WindowTest {
 protected:
  TreeViewDrawing() {
    plan<'A'>().design.width = 6600;
    plan<'A'>().design.height = 3300;
    opened<DrawingForm>();
    list().setFocus();
  }
  static DrawingForm& form() { return forms::form<DrawingForm>(); }
  static forms::TreeView& list() { return form().list; }

  static HTREEITEM item(const forms::TreeView& tree, int number) {
    HTREEITEM found = TreeView_GetRoot(tree.handle());
    for (int i = 1; i < number; ++i) found = TreeView_GetNextSibling(tree.handle(), found);
    return found;
  }

  /// What the tree answers when the control is about to draw a node: as the control would do if it
  /// had measured a text that is `measured` pixels wide.
  static LRESULT drawn(forms::TreeView& tree, int number, const Canvas& canvas, LONG measured) {
    NMTVCUSTOMDRAW drawing{};
    drawing.nmcd.hdr = {tree.handle(), 0, static_cast<UINT>(NM_CUSTOMDRAW)};
    drawing.nmcd.dwDrawStage = CDDS_ITEMPREPAINT;
    drawing.nmcd.hdc = canvas.dc();
    drawing.nmcd.rc = {0, 0, measured, 20};
    drawing.nmcd.dwItemSpec = reinterpret_cast<DWORD_PTR>(item(tree, number));
    drawing.clrText = GetSysColor(COLOR_WINDOWTEXT);
    drawing.clrTextBk = GetSysColor(COLOR_WINDOW);
    return tree.notify(drawing.nmcd.hdr);
  }

  /// The colours at the right end of a row, where no text reaches.
  static std::vector<COLORREF> endOfRow(int number) {
    RECT end = treeNodeRect(list().handle(), number - 1).value_or(RECT{});
    end.left = clientRectOf(list().handle()).right - 8;
    end.right = end.left + 4;
    InflateRect(&end, 0, -3);
    return screenPixels(end);
  }
  static bool rowIs(int number, int index) {
    const auto pixels = endOfRow(number);
    return std::ranges::all_of(pixels, [=](COLORREF it) { return it == GetSysColor(index); });
  }

  static void pointAt(int number) {
    RECT place = treeNodeRect(list().handle(), number - 1).value_or(RECT{});
    injected::moveTo({place.left + 5, (place.top + place.bottom) / 2});
    forms::doEvents();
  }
  static std::wstring toolTip() {
    std::wstring text(200, L'\0');
    TOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = form().handle();
    tool.uId = reinterpret_cast<UINT_PTR>(list().handle());
    tool.lpszText = text.data();
    for (HWND window : win32::threadWindows()) {
      if (className(window) == TOOLTIPS_CLASSW && GetWindow(window, GW_OWNER) == form().handle()) {
        SendMessageW(window, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
      }
    }
    return text.c_str();
  }
  static std::wstring className(HWND window) {
    std::wstring name(100, L'\0');
    return name.substr(0, static_cast<std::size_t>(GetClassNameW(window, name.data(), 100)));
  }
};

// CDRF_SKIPDEFAULT: the control does not draw the item, and so does not cut it off either.
TEST_F(TreeViewDrawing, ALongTextInThePlaceOfAShortOneIsDrawnToItsEnd) {
  for (forms::TreeView* tree : std::initializer_list<forms::TreeView*>{&list(), &form().columns}) {
    tree->add(kShort);
    tree->add(kLong);
    forms::doEvents();
    const RECT narrow = treeNodeRect(tree->handle(), 0).value_or(RECT{});
    const Canvas fresh(tree->handle());
    EXPECT_EQ(drawn(*tree, 2, fresh, 400), CDRF_SKIPDEFAULT);
    tree->setText(1, kLong);
    const Canvas reused(tree->handle());
    EXPECT_EQ(drawn(*tree, 1, reused, narrow.right - narrow.left), CDRF_SKIPDEFAULT);
    EXPECT_GT(reused.lastInk(), narrow.right - narrow.left);
    EXPECT_EQ(reused.lastInk(), fresh.lastInk());
  }
}

TEST_F(TreeViewDrawing, TheScreenShowsNewTextsToTheirEnds) {
  for (int i = 0; i < 3; ++i) list().add(kShort);
  forms::doEvents();
  for (std::size_t node = 1; node <= 3; ++node) list().setText(node, kLong);
  list().refresh();
  const auto reaches = [](int number, LONG pixels) {
    RECT row = treeNodeRect(list().handle(), number - 1).value_or(RECT{});
    row.left += pixels;
    row.right = row.left + 10;
    return std::ranges::any_of(screenPixels(row), [](COLORREF it) { return GetGValue(it) < 100; });
  };
  for (int number = 1; number <= 3; ++number) {
    EXPECT_TRUE(eventually([&] { return reaches(number, 90); })) << number;
  }
}

TEST_F(TreeViewDrawing, OnlyATextThatIsCutHasAToolTip) {
  list().add(kShort);
  list().add(kCut);
  list().add(kLong);
  for (const auto& [number, text] : {std::pair(2, kCut), {1, u""}, {2, kCut}, {3, u""}}) {
    EXPECT_TRUE(eventually([&] {
      pointAt(number);
      return toolTip() == std::wstring(text.begin(), text.end());
    })) << number;
  }
}

TEST_F(TreeViewDrawing, ANewTextTakesTheToolTipOfTheOldOneAway) {
  list().add(kCut);
  ASSERT_TRUE(eventually([] {
    pointAt(1);
    return !toolTip().empty();
  }));
  list().setText(1, kShort);
  list().refresh();
  EXPECT_EQ(toolTip(), L"");
}

TEST_F(TreeViewDrawing, WithoutTheFocusTheSelectedRowLooksLikeAButton) {
  for (int i = 0; i < 3; ++i) list().add(kShort);
  list().select(2);
  EXPECT_TRUE(eventually([] { return rowIs(2, COLOR_HIGHLIGHT); }));
  form().first.setFocus();
  EXPECT_TRUE(eventually([] { return rowIs(2, COLOR_BTNFACE) && rowIs(1, COLOR_WINDOW); }));
}

TEST_F(TreeViewDrawing, InHighContrastTheSelectedRowIsSeenWithoutTheFocusToo) {
  const HighContrast colors;
  for (int i = 0; i < 3; ++i) list().add(kShort);
  list().select(2);
  form().first.setFocus();
  EXPECT_TRUE(eventually([] { return rowIs(2, COLOR_HIGHLIGHT) && rowIs(1, COLOR_WINDOW); }));
}

TEST_F(TreeViewDrawing, RowsLeaveNothingBetweenThem) {
  for (int i = 0; i < 4; ++i) list().add(kShort);
  forms::doEvents();
  constexpr COLORREF kBehind = RGB(1, 2, 3);
  SendMessageW(list().handle(), TVM_SETBKCOLOR, 0, kBehind);
  list().refresh();
  RECT rows = treeNodeRect(list().handle(), 1).value_or(RECT{});
  rows.bottom = treeNodeRect(list().handle(), 3).value_or(RECT{}).top;
  rows.left = clientRectOf(list().handle()).right - 8;
  rows.right = rows.left + 4;
  // Below the rows it is seen.
  EXPECT_TRUE(eventually([&] {
    const RECT below = {rows.left, rows.bottom + 30, rows.right, rows.bottom + 32};
    return screenPixels(below).at(0) == kBehind;
  }));
  EXPECT_TRUE(eventually([&] { return std::ranges::count(screenPixels(rows), kBehind) == 0; }));
}

TEST_F(TreeViewDrawing, BelowItsRowsIsTheirColour) {
  const auto below = [] {
    const RECT client = clientRectOf(list().handle());
    return screenPixels(
        {client.left + 4, client.bottom - 4, client.left + 5, client.bottom - 3})[0];
  };
  list().add(kShort);
  EXPECT_TRUE(eventually([&] { return below() == GetSysColor(COLOR_WINDOW); }));
  form().unload();
  {
    // While no tree view is open that could be told.
    const HighContrast colors;
    opened<DrawingForm>();
    list().add(kShort);
    EXPECT_TRUE(eventually([&] { return below() == RGB(0, 0, 0); }));
  }
  SendMessageW(form().handle(), WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_TRUE(eventually([&] { return below() == GetSysColor(COLOR_WINDOW); }));
}

TEST_F(TreeViewDrawing, ARowThatIsNoLongerSelectedLeavesNothingBehind) {
  for (int i = 0; i < 4; ++i) list().add(kShort);
  list().setFocus();
  const auto highlighted = [](int node) {
    RECT row = treeNodeRect(list().handle(), node - 1).value_or(RECT{});
    row.bottom = treeNodeRect(list().handle(), node).value_or(RECT{}).top;
    row.left = clientRectOf(list().handle()).right - 8;
    row.right = row.left + 4;
    return std::ranges::count(screenPixels(row), GetSysColor(COLOR_HIGHLIGHT));
  };
  list().select(1);
  EXPECT_TRUE(eventually([&] { return highlighted(1) > 0; }));
  list().select(3);
  EXPECT_TRUE(eventually([&] { return highlighted(3) > 0 && highlighted(1) == 0; }));
  form().first.setFocus();
  EXPECT_TRUE(eventually([&] { return highlighted(3) == 0; }));
}

}  // namespace
}  // namespace support
