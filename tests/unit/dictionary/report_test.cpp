#include "dictionary/report.h"

#include <gtest/gtest.h>

namespace {

TEST(LineRanges, JoinsConsecutiveLines) {
  dictionary::LineRanges lines;
  EXPECT_EQ(lines.count(), 0U);
  lines.add(7);
  EXPECT_EQ(lines.text(), "line 7");
  lines.add(8);
  EXPECT_EQ(lines.text(), "lines 7-8");
  lines.add(9);
  lines.add(12);
  lines.add(20);
  lines.add(21);
  EXPECT_EQ(lines.text(), "lines 7-9, 12, 20-21");
  EXPECT_EQ(lines.count(), 6U);
}

}  // namespace
