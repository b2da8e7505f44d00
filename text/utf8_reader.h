#pragma once

#include <cstddef>
#include <string_view>

namespace text {

/// What an invalid byte or an unpaired surrogate reads as.
inline constexpr char16_t kReplacement = u'\uFFFD';

/// One decoded character and the number of bytes that it took.
struct Decoded {
  char32_t character = kReplacement;
  std::size_t length = 1;
};

/// Decodes the character at the start of `utf8`, which is not empty. A byte that starts no valid
/// sequence (stray, overlong, cut off, a surrogate's or beyond U+10FFFF) reads as U+FFFD.
Decoded decodeUtf8(std::string_view utf8);

/// Reads a UTF-8 text as the UTF-16 code units that toUtf16 would make of it.
class Utf8Reader {
 public:
  explicit Utf8Reader(std::string_view utf8) : rest_(utf8) {}

  [[nodiscard]] bool atEnd() const { return rest_.empty(); }

  /// The next code unit; not at the end.
  char16_t next() {
    const auto byte = static_cast<unsigned char>(rest_.front());
    if (byte >= 0x80) return nextDecoded();
    rest_.remove_prefix(1);
    return byte;
  }

 private:
  char16_t nextDecoded() {
    const Decoded decoded = decodeUtf8(rest_);
    const auto character = decoded.character;
    if (character > 0xFFFF && !betweenSurrogates_) {
      betweenSurrogates_ = true;
      return static_cast<char16_t>(0xD7C0 + (character >> 10));
    }
    rest_.remove_prefix(decoded.length);
    if (!betweenSurrogates_) return static_cast<char16_t>(character);
    betweenSurrogates_ = false;
    return static_cast<char16_t>(0xDC00 | (character & 0x3FF));
  }

  std::string_view rest_;
  bool betweenSurrogates_ = false;
};

/// The same interface to a text that is UTF-16 already.
class Utf16Reader {
 public:
  explicit Utf16Reader(std::u16string_view utf16) : rest_(utf16) {}

  [[nodiscard]] bool atEnd() const { return rest_.empty(); }

  char16_t next() {
    const char16_t unit = rest_.front();
    rest_.remove_prefix(1);
    return unit;
  }

 private:
  std::u16string_view rest_;
};

}  // namespace text
