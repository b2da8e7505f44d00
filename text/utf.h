#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Conversions between UTF-8, in SQLite and in the source files, and UTF-16, everywhere else. They
/// are pure. Invalid text is not an error: it reads as U+FFFD, so that texts of any origin can be
/// shown and compared.
namespace text {

/// Returns UTF-16 as UTF-8. An unpaired surrogate becomes U+FFFD.
std::string toUtf8(std::u16string_view utf16);

/// Returns UTF-8 as UTF-16. Each byte that is not part of a valid sequence becomes one U+FFFD.
std::u16string toUtf16(std::string_view utf8);

/// REPLACEMENT CHARACTER: what an invalid byte or an unpaired surrogate reads as.
inline constexpr char16_t kReplacement = u'\uFFFD';

/// One UTF-16 code unit and the number of units of the text (bytes or code units) that were read.
struct Unit {
  char16_t value;
  std::size_t length;
};

/// A code point and the number of its bytes; `length` is 0 where the bytes are not a valid
/// sequence.
struct Character {
  char32_t value = 0;
  std::size_t length = 0;
};

/// Decodes the UTF-8 sequence of two to four bytes at the beginning of `bytes`, which is not empty.
/// ASCII has `length` 0 here: callers handle it themselves.
Character readSequence(std::string_view bytes);

/// Reads a UTF-8 text as UTF-16 code units without converting it first, so that comparing and
/// matching need no memory. A byte that is not part of a valid sequence (stray, overlong, cut off,
/// of a surrogate or beyond U+10FFFF) reads as U+FFFD. The text has to outlive the object.
///
/// A character beyond U+FFFF has four bytes and two units: the first unit has length 1, the second
/// length 3, and is read at the second byte.
class Utf8Units {
 public:
  explicit Utf8Units(std::string_view text) : text_(text) {}

  /// Length of the text in bytes: the position after its last unit.
  [[nodiscard]] std::size_t size() const { return text_.size(); }

  /// Returns the unit at `position`, which is 0 or the end of another unit, and below size().
  [[nodiscard]] Unit at(std::size_t position) const {
    const auto byte = static_cast<unsigned char>(text_[position]);
    if (byte < 0x80) {
      return {byte, 1};
    }
    // Nearly all others are Han characters: U+3000 to U+CFFF always take three bytes.
    if (byte >= 0xE3 && byte <= 0xEC && position + 2 < text_.size()) {
      const auto second = static_cast<unsigned char>(text_[position + 1]);
      const auto third = static_cast<unsigned char>(text_[position + 2]);
      if ((second & 0xC0) == 0x80 && (third & 0xC0) == 0x80) {
        return {static_cast<char16_t>((byte & 0x0F) << 12 | (second & 0x3F) << 6 | (third & 0x3F)),
                3};
      }
    }
    return decode(position);
  }

 private:
  [[nodiscard]] Unit decode(std::size_t position) const;

  std::string_view text_;
};

/// The same interface to a text that is UTF-16 already.
class Utf16Units {
 public:
  explicit Utf16Units(std::u16string_view text) : text_(text) {}

  [[nodiscard]] std::size_t size() const { return text_.size(); }
  [[nodiscard]] Unit at(std::size_t position) const { return {text_[position], 1}; }

 private:
  std::u16string_view text_;
};

}  // namespace text
