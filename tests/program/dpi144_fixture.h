#pragma once

#include <gtest/gtest.h>

#include "forms/geometry.h"
#include "tests/support/process/settings.h"

namespace support {

inline constexpr int kDpi = 144;

/// For tests on a display that shows everything at one and a half times the size, without stored
/// sizes.
class Dpi144 : public ::testing::Test {
 protected:
  Dpi144() { settings::clear(); }
  ~Dpi144() override { settings::clear(); }

  void SetUp() override { ASSERT_EQ(GetDpiForSystem(), static_cast<UINT>(kDpi)); }

  static int pixels(int twips) { return forms::toPixels(twips, kDpi); }
};

}  // namespace support
