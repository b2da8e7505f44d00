#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "dictionary/check/check.h"

namespace support {

/// Expects that kkbuild check finds nothing wrong but, perhaps, the choice of the default.
inline void expectValidExceptDefault(const std::filesystem::path& file) {
  const dictionary::CheckResult result = dictionary::checkDatabase(file);
  for (int rule = 0; rule < static_cast<int>(dictionary::Rule::kCount); ++rule) {
    const auto which = static_cast<dictionary::Rule>(rule);
    if (which == dictionary::Rule::kCatalogueDefault) continue;
    EXPECT_EQ(result.findings.count(which), 0U) << dictionary::describe(which);
  }
}

}  // namespace support
