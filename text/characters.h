#pragma once

/// Kinds of characters, each told by one UTF-16 code unit. Every question that several folders ask
/// of a character is answered here and nowhere else.
namespace text {

/// The boundary between English and Chinese: a text is Chinese as soon as one of its code units is
/// at or above it. Latin-1, which ends right below, counts as English.
inline constexpr char16_t kFirstChinese = 0x100;

constexpr bool isChinese(char16_t unit) { return unit >= kFirstChinese; }

/// CJK Unified Ideographs and their Extension A.
inline constexpr char16_t kFirstHan = 0x3400;
inline constexpr char16_t kLastHan = 0x9FFF;
/// CJK Compatibility Ideographs, each of which looks like a unified one.
inline constexpr char16_t kFirstCompatibilityHan = 0xF900;
inline constexpr char16_t kLastCompatibilityHan = 0xFAFF;
/// 〇, the only Han character outside both blocks.
inline constexpr char16_t kHanZero = 0x3007;

/// Whether `unit` is a Han character, compatibility ideographs aside. Han characters beyond U+FFFF
/// are surrogate pairs, which are none by this measure.
constexpr bool isUnifiedHan(char16_t unit) {
  return (unit >= kFirstHan && unit <= kLastHan) || unit == kHanZero;
}

/// Whether `unit` is a Han character of any kind: those that the text order ranks by pinyin.
constexpr bool isHan(char16_t unit) {
  return isUnifiedHan(unit) || (unit >= kFirstCompatibilityHan && unit <= kLastCompatibilityHan);
}

/// The halves of a surrogate pair. They take code points too, where these are being put together.
constexpr bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// The bit in which the two cases of an ASCII or Latin-1 letter differ, in its last byte of UTF-8
/// too.
inline constexpr char kCaseBit = 0x20;

/// The lower case of an ASCII capital; every other unit as it is.
template <typename Unit>
constexpr Unit lowerAscii(Unit unit) {
  return unit >= Unit{'A'} && unit <= Unit{'Z'} ? static_cast<Unit>(unit + ('a' - 'A')) : unit;
}

}  // namespace text
