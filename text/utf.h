#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// UTF-8, which SQLite and the source files hold, and UTF-16, which all else does. Nothing here
/// fails on invalid text: it reads as U+FFFD.
namespace text {

/// UTF-16 to UTF-8. An unpaired surrogate becomes U+FFFD.
std::string toUtf8(std::u16string_view utf16);

/// UTF-8 to UTF-16. Each byte that is part of no valid sequence becomes U+FFFD.
std::u16string toUtf16(std::string_view utf8);

/// What an invalid byte or an unpaired surrogate reads as.
inline constexpr char16_t kReplacement = u'\uFFFD';

/// One UTF-16 code unit and the length of what it was read from.
struct Unit {
  char16_t value;
  std::size_t length;
};

/// A character and the number of its bytes; no bytes where they are no valid sequence.
struct Character {
  char32_t value = 0;
  std::size_t length = 0;
};

/// Decodes the UTF-8 sequence of two to four bytes that `bytes`, which is not empty, begins with.
Character readSequence(std::string_view bytes);

/// Reads a UTF-8 text as UTF-16 code units without converting it first. A byte that belongs to no
/// valid sequence (stray, overlong, cut off, a surrogate's or beyond U+10FFFF) reads as U+FFFD. The
/// second unit of a surrogate pair is read after the first byte of the pair's four.
class Utf8Units {
 public:
  explicit Utf8Units(std::string_view text) : text_(text) {}

  [[nodiscard]] std::size_t size() const { return text_.size(); }

  /// The unit at `position`, which is 0 or where another unit ended, and below size().
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
