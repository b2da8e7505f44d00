#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace bench {

/// One row of a subject dictionary.
struct Entry {
  std::u16string word;
  std::u16string meaning;
};

/// What a user might type into the two boxes of a search.
struct Typed {
  std::u16string english;
  std::u16string chinese;
};

/// `count` pieces of the words and meanings of `entries`, which are spread over all of them: one to
/// eight characters long, from the beginning or from anywhere. In a quarter of them one character
/// inside is a wildcard; in another quarter one is a character of some other entry, and the two
/// sides come from different entries, so that most find nothing. The same ones in every run.
std::vector<Typed> typedPieces(const std::vector<Entry>& entries, std::size_t count,
                               bool fromTheBeginning);

}  // namespace bench
