#pragma once

#include <string>

#include "data/index_words.h"
#include "tests/support/data/sample_dictionary.h"

/// The database beside the test program, and other ones for what can go wrong.
namespace support {

/// The made-up pairs of which kk.dat beside the test program consists.
const SampleDictionary& sampleDictionary();

/// kk.dat beside the test program.
std::filesystem::path besideProgram();

/// Writes it, from the sample pairs.
void writeDictionary();

/// Gives the windows that database and its index, as start-up does.
void useDictionary();

/// Puts another database beside the program while it lives: made by `sql`, or none where `sql` is
/// empty.
class OtherDictionary {
 public:
  explicit OtherDictionary(const std::string& sql);
  ~OtherDictionary();
  OtherDictionary(const OtherDictionary&) = delete;
  OtherDictionary& operator=(const OtherDictionary&) = delete;
};

}  // namespace support
