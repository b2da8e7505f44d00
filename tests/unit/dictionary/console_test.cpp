#include "dictionary/console.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

TEST(PeakMemory, IncludesMemoryThatWasFreed) {
  constexpr std::size_t kBytes = std::size_t{256} << 20U;
  {
    std::vector<char> held(kBytes);
    std::ranges::fill(held, '\1');
    EXPECT_EQ(held[kBytes / 2], '\1');
  }
  EXPECT_GE(dictionary::peakMemory(), kBytes);
  EXPECT_LT(dictionary::peakMemory(), std::size_t{64} << 30U);
}

}  // namespace
