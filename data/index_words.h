#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace data {

/// The headword index of [edict] in memory: slot 0 is empty, slot k holds the headword of row
/// k * kBlockRows (lookup_sql.h) in lower case. readIndexWords (headword_lookup.h) fills it.
///
/// A list of texts with the interface of a container. All of them are kept one after the other in
/// one text, which takes less than half the memory of as many strings: the program holds some
/// 10,600 of them for as long as it runs.
class IndexWords {
 public:
  IndexWords() = default;
  /// A list of these words, the first of them in slot 0. For tests.
  IndexWords(std::initializer_list<std::u16string_view> words) {
    for (const std::u16string_view word : words) push_back(word);
  }

  /// Returns the word in a slot, which is below size(); valid until the list changes.
  [[nodiscard]] std::u16string_view operator[](std::size_t slot) const {
    const std::size_t begin = slot == 0 ? 0 : ends_[slot - 1];
    return std::u16string_view(words_).substr(begin, ends_[slot] - begin);
  }
  [[nodiscard]] std::size_t size() const { return ends_.size(); }
  [[nodiscard]] bool empty() const { return ends_.empty(); }

  /// Adds a slot. Slots count from 0, so that slot 0 is to be filled with "" first.
  void push_back(std::u16string_view word) {
    words_.append(word);
    ends_.push_back(static_cast<std::uint32_t>(words_.size()));
  }
  void clear() {
    words_.clear();
    ends_.clear();
  }
  void shrink_to_fit() {
    words_.shrink_to_fit();
    ends_.shrink_to_fit();
  }

  bool operator==(const IndexWords&) const = default;

 private:
  std::u16string words_;
  std::vector<std::uint32_t> ends_;  ///< where the word in each slot ends
};

}  // namespace data
