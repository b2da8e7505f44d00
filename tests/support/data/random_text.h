#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

/// Random texts for properties that hold for every text; the same ones in every run.
class RandomText {
 public:
  explicit RandomText(std::mt19937::result_type seed) : engine_(seed) {}

  /// A number from 0 to `limit` - 1.
  std::size_t below(std::size_t limit) { return engine_() % limit; }

  /// Up to `longest` characters drawn from `alphabet`.
  template <typename Character>
  std::basic_string<Character> from(std::basic_string_view<Character> alphabet,
                                    std::size_t longest) {
    std::basic_string<Character> text(below(longest + 1), Character{});
    for (Character& character : text) {
      character = alphabet[below(alphabet.size())];
    }
    return text;
  }

  /// Up to `longest` code units or bytes of any value.
  template <typename Character>
  std::basic_string<Character> any(std::size_t longest) {
    std::basic_string<Character> text(below(longest + 1), Character{});
    for (Character& character : text) {
      character = static_cast<Character>(engine_());
    }
    return text;
  }

 private:
  std::mt19937 engine_;
};
