#include "query/layout.h"

#include <algorithm>

#include "forms/geometry.h"

namespace query {
namespace {

// Twips, for texts of 9 points.
constexpr int kMargin = 120;  // between widgets and at the edges
constexpr int kRowHeight = 360;
constexpr int kLabelHeight = 270;
/// Centres a label's text beside a box or button.
constexpr int kLabelDrop = 60;
constexpr int kInputLabelWidth = 600;
constexpr int kButtonWidth = 960;
constexpr int kDictionariesWidth = 2400;
constexpr int kHintHeight = 660;

}  // namespace

Layout layOut(int width, int height) {
  const int right = std::max(width, kMinWidth) - forms::kFrameWidth - kMargin;
  const int bottom = std::max(height, kMinHeight) - forms::kFrameHeight - kMargin;
  // The buttons are at the right edge, numbered from there; the input box fills the rest of the
  // row. The trees share what is below.
  const auto button = [&](int fromRight) {
    const int left = right - (fromRight * (kButtonWidth + kMargin)) - kButtonWidth;
    return Box{left, kMargin, kButtonWidth, kRowHeight};
  };
  const auto reaching = [&](int left, int top, int boxWidth) {
    return Box{left, top, boxWidth, bottom - top};
  };

  Layout layout;
  layout.special = button(0);
  layout.advanced = button(1);
  layout.ok = button(2);
  layout.inputLabel = {kMargin, kMargin + kLabelDrop, kInputLabelWidth, kLabelHeight};
  const int inputLeft = kMargin + kInputLabelWidth;
  layout.input = {inputLeft, kMargin, layout.ok.left - kMargin - inputLeft, kRowHeight};
  const int second = kMargin + kRowHeight + kMargin;
  layout.dictionariesLabel = {kMargin, second, kDictionariesWidth, kLabelHeight};
  layout.dictionaries = reaching(kMargin, second + kLabelHeight, kDictionariesWidth);
  const int resultsLeft = kMargin + kDictionariesWidth + kMargin;
  layout.results = reaching(resultsLeft, second, right - resultsLeft);
  return layout;
}

// The hint keeps its height at the bottom; the list takes the rest.
SettingsLayout layOutSettings(int width, int height) {
  const int right = std::max(width, kSettingsMinWidth) - forms::kFrameWidth - kMargin;
  const int bottom = std::max(height, kSettingsMinHeight) - forms::kFrameHeight - kMargin;
  const Box hint{kMargin, bottom - kHintHeight, right - kMargin, kHintHeight};
  return {{kMargin, kMargin, hint.width, hint.top - kMargin - kMargin}, hint};
}

}  // namespace query
