#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>

#include "dictionary/build.h"
#include "tests/support/data/temp_folder.h"

namespace support {

/// The made-up source that tests build their dictionary from.
inline std::filesystem::path smallSource() {
  return std::filesystem::path(__FILE__).parent_path().parent_path().parent_path() / "data" /
         "small.csv";
}

/// A folder with a dictionary built from it, made once for all tests.
inline const std::filesystem::path& smallDatabase() {
  static const TempFolder folder;
  static const std::filesystem::path file = [] {
    std::ostringstream log;
    dictionary::buildDatabase({smallSource()}, folder.file(u"small.dat"), log);
    return folder.file(u"small.dat");
  }();
  return file;
}

}  // namespace support
