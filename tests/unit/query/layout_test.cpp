#include "query/layout.h"

#include <gtest/gtest.h>

#include <array>

#include "forms/geometry.h"

namespace {

using query::Box;
using query::layOut;
using query::Layout;

int rightOf(const Box& box) { return box.left + box.width; }
int bottomOf(const Box& box) { return box.top + box.height; }

bool overlap(const Box& a, const Box& b) {
  return a.left < rightOf(b) && b.left < rightOf(a) && a.top < bottomOf(b) && b.top < bottomOf(a);
}

std::array<Box, 8> boxes(const Layout& layout) {
  return {layout.inputLabel,   layout.input,   layout.ok,
          layout.advanced,     layout.special, layout.dictionariesLabel,
          layout.dictionaries, layout.results};
}

/// Everything lies in the client area, nothing on anything else.
void expectSound(int width, int height) {
  const auto all = boxes(layOut(width, height));
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_GT(all[i].width, 0) << i;
    EXPECT_GT(all[i].height, 0) << i;
    EXPECT_GE(all[i].left, 0) << i;
    EXPECT_LE(rightOf(all[i]), width - forms::kFrameWidth) << i;
    EXPECT_LE(bottomOf(all[i]), height - forms::kFrameHeight) << i;
    for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(overlap(all[i], all[j])) << i << " " << j;
  }
}

TEST(QueryLayout, IsSoundInEverySize) {
  expectSound(query::kMinWidth, query::kMinHeight);
  expectSound(query::kOpeningWidth, query::kOpeningHeight);
  expectSound(forms::kMaxSize, forms::kMaxSize);
}

TEST(QueryLayout, IsAligned) {
  const Layout layout = layOut(9000, 6000);
  EXPECT_GT(layout.inputLabel.top, layout.input.top) << "the label stands lower than its box";
  EXPECT_LT(bottomOf(layout.inputLabel), bottomOf(layout.input));
  const int gap = layout.special.left - rightOf(layout.advanced);
  EXPECT_EQ(layout.advanced.left - rightOf(layout.ok), gap);
  EXPECT_EQ(layout.ok.left - rightOf(layout.input), gap);
  EXPECT_EQ(rightOf(layout.results), rightOf(layout.special));
  EXPECT_EQ(layout.results.left - rightOf(layout.dictionaries), gap);
  EXPECT_EQ(bottomOf(layout.results), bottomOf(layout.dictionaries));
  const auto settings = query::layOutSettings(4000, 5000);
  EXPECT_EQ(settings.hint.top - bottomOf(settings.dictionaries), gap);
  EXPECT_EQ(rightOf(settings.hint), rightOf(settings.dictionaries));
}

TEST(QueryLayout, OpensWithRoomForTenLines) {
  // A line is some 20 pixels high, the scroll bar below as much.
  constexpr int kElevenLines = 11 * 20 * 15;
  EXPECT_GE(layOut(query::kOpeningWidth, query::kOpeningHeight).results.height, kElevenLines);
}

TEST(QueryLayout, TheResultsTakeWhatTheWindowGains) {
  const Layout before = layOut(9000, 6000);
  const Layout after = layOut(10000, 7500);
  EXPECT_EQ(after.results.width, before.results.width + 1000);
  EXPECT_EQ(after.results.height, before.results.height + 1500);
  EXPECT_EQ(after.dictionaries.width, before.dictionaries.width);
  EXPECT_EQ(after.dictionaries.height, before.dictionaries.height + 1500);
  EXPECT_EQ(after.input.width, before.input.width + 1000);
  EXPECT_EQ(after.ok.left, before.ok.left + 1000);
}

TEST(QueryLayout, BelowTheSmallestSizeNothingShrinks) {
  const Layout least = layOut(query::kMinWidth, query::kMinHeight);
  EXPECT_EQ(boxes(layOut(0, 0)), boxes(least));
}

TEST(QueryLayout, TheSettingsListTakesWhatItsWindowGains) {
  const auto before = query::layOutSettings(4000, 5000);
  const auto after = query::layOutSettings(4500, 6000);
  EXPECT_EQ(after.dictionaries.width, before.dictionaries.width + 500);
  EXPECT_EQ(after.dictionaries.height, before.dictionaries.height + 1000);
  EXPECT_EQ(after.hint.height, before.hint.height);
  EXPECT_FALSE(overlap(after.dictionaries, after.hint));
  EXPECT_LE(bottomOf(after.hint), 6000 - forms::kFrameHeight);
  EXPECT_EQ(query::layOutSettings(0, 0),
            query::layOutSettings(query::kSettingsMinWidth, query::kSettingsMinHeight));
}

}  // namespace
