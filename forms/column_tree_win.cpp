#include "forms/column_tree.h"

#include <vector>

#include "text/characters.h"

namespace forms {
namespace {

/// Fixed pitch, with Han characters that are twice as wide as Latin ones; part of every Windows.
constexpr std::u16string_view kFace = u"NSimSun";
constexpr int kPointsPerInch = 72;
constexpr int kTenthsOfPoints = 105;  // 10.5 points, 五号: the usual size of Chinese text

/// Largest even size in pixels that is no larger than the wanted one: half of it is a column.
int evenFontSize(int dpi) { return kTenthsOfPoints * dpi / (10 * kPointsPerInch) / 2 * 2; }

Font fontOf(int pixels, int dpi) {
  return {std::u16string(kFace), static_cast<double>(pixels) * kPointsPerInch / dpi, true};
}

/// A window's device context with a font selected into it.
class ScopedFontSelection {
 public:
  ScopedFontSelection(HWND window, HFONT font)
      : window_(window), dc_(GetDC(window)), before_(SelectObject(dc_, font)) {}
  ~ScopedFontSelection() {
    SelectObject(dc_, before_);
    ReleaseDC(window_, dc_);
  }
  ScopedFontSelection(const ScopedFontSelection&) = delete;
  ScopedFontSelection& operator=(const ScopedFontSelection&) = delete;

  [[nodiscard]] int widestLetter() const {
    SIZE size{};
    GetTextExtentPoint32W(dc_, L"W", 1, &size);
    return size.cx;
  }
  [[nodiscard]] int height() const {
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc_, &metrics);
    return metrics.tmHeight;
  }

 private:
  HWND window_;
  HDC dc_;
  HGDIOBJ before_;
};

}  // namespace

ColumnTree::ColumnTree(WidgetHost& form, const WidgetBox& box) : TreeView(form, box, 0) {
  onKeyDown[VK_LEFT] = [this] { send(WM_HSCROLL, SB_LINELEFT); };
  onKeyDown[VK_RIGHT] = [this] { send(WM_HSCROLL, SB_LINERIGHT); };
  makeFonts();
}

void ColumnTree::setText(std::size_t number, const std::u16string& text) {
  TreeView::setText(number, text);
  measureAgain(number);
}

void ColumnTree::rescale() {
  TreeView::rescale();
  makeFonts();
}

// The control measures its texts, and with them how far it scrolls, in a font of an even size,
// whose Han characters are square and so two columns wide. Each character is then drawn in cells of
// its own (ExtTextOut with widths). If Latin letters of that font are wider than one column, as in
// a substitute for it, texts are drawn in the largest smaller size whose letters fit.
void ColumnTree::makeFonts() {
  const int dpi = form().textDpi();
  const int size = evenFontSize(dpi);
  columnWidth_ = size / 2;
  setFont(fontOf(size, dpi));
  for (int pixels = size; pixels > columnWidth_; --pixels) {
    drawingFont_ = makeFont(fontOf(pixels, dpi), dpi);
    const ScopedFontSelection selected(handle(), drawingFont_.get());
    textHeight_ = selected.height();
    if (selected.widestLetter() <= columnWidth_) return;
  }
}

void ColumnTree::drawText(HDC dc, const RECT& row, int left, std::u16string_view text) const {
  const auto widthOf = [this](char16_t unit) {
    return text::isChinese(unit) ? 2 * columnWidth_ : columnWidth_;
  };
  while (!text.empty() && left + widthOf(text.front()) <= 0) {
    left += widthOf(text.front());
    text.remove_prefix(1);
  }
  std::vector<INT> widths;
  int right = left;
  for (std::size_t i = 0; i < text.size() && right < row.right; ++i) {
    widths.push_back(widthOf(text[i]));
    right += widths.back();
  }
  const HGDIOBJ before = SelectObject(dc, drawingFont_.get());
  const int top = row.top + ((row.bottom - row.top - textHeight_) / 2);
  ExtTextOutW(dc, left, top, ETO_OPAQUE | ETO_CLIPPED, &row,
              reinterpret_cast<const wchar_t*>(text.data()), static_cast<UINT>(widths.size()),
              widths.data());
  SelectObject(dc, before);
}

}  // namespace forms
