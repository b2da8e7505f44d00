#pragma once

#include <gtest/gtest.h>

namespace harness {

/// A test of whole programs. When it fails, a picture of the screen is left in build/shots, named
/// after it.
class Journey : public ::testing::Test {
 protected:
  void TearDown() override;
};

}  // namespace harness
