#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "data/data_control.h"
#include "data/headword_lookup.h"
#include "data/index_words.h"

namespace dictionary {

/// What the popup shows for a word that is handed over.
enum class Shown : std::uint8_t {
  kMeaning,    ///< the word's own meanings
  kShortened,  ///< those of the word without its last letter
  kReference,  ///< found in either way, but only references to another form of the word
  kNothing,
};
inline constexpr std::size_t kShownCount = 4;

/// Looks English words up as the popup does, with the same functions and queries, and remembers the
/// results. Opens the file for reading only. All functions throw data::Error where the database
/// cannot be read.
class PopupLookup {
 public:
  explicit PopupLookup(const std::filesystem::path& database);

  /// Returns whether the popup finds `word`, which is not empty, without shortening it.
  bool isHeadword(std::u16string_view word);
  /// Returns what the popup shows for `word`, which is not empty.
  Shown shown(std::u16string_view word);
  /// Returns what the popup lists for `word`, not empty and not shortened: its Chinese words.
  std::vector<std::u16string> meanings(std::u16string_view word);

 private:
  [[nodiscard]] std::vector<std::u16string> meaningsOfEscaped(std::u16string_view escapedWord);
  Shown lookUp(std::u16string_view word);

  data::DataControl control_;
  data::IndexWords index_;
  data::KnownHeadwords known_;
  data::HeadwordLookup lookup_;
  // What was found, by the word in lower case: case makes no difference to the lookups.
  std::unordered_map<std::u16string, bool> headwords_;
  std::unordered_map<std::u16string, Shown> shown_;
};

}  // namespace dictionary
