#pragma once

/// Kinds of characters by one UTF-16 code unit: those that more than one folder asks for. All
/// functions are pure.
namespace text {

/// The boundary between English and Chinese: a text is Chinese as soon as one of its code units is
/// at or above it (user::getEorC). Latin-1, which ends right below it, counts as English.
inline constexpr char16_t kFirstChinese = 0x100;

/// Returns whether `unit` makes a text Chinese: not whether it is a Han character.
constexpr bool isChinese(char16_t unit) { return unit >= kFirstChinese; }

/// CJK Unified Ideographs and their Extension A.
inline constexpr char16_t kFirstHan = 0x3400;
inline constexpr char16_t kLastHan = 0x9FFF;
/// CJK Compatibility Ideographs, each of which looks like a unified one.
inline constexpr char16_t kFirstCompatibilityHan = 0xF900;
inline constexpr char16_t kLastCompatibilityHan = 0xFAFF;
/// 〇, the only Han character outside both blocks.
inline constexpr char16_t kHanZero = 0x3007;

/// Returns whether `unit` is a Han character other than a compatibility ideograph. Han characters
/// beyond U+FFFF are surrogate pairs, and neither half counts.
constexpr bool isUnifiedHan(char16_t unit) {
  return (unit >= kFirstHan && unit <= kLastHan) || unit == kHanZero;
}

/// Returns whether `unit` is a Han character of any kind: one that the text order ranks by pinyin.
constexpr bool isHan(char16_t unit) {
  return isUnifiedHan(unit) || (unit >= kFirstCompatibilityHan && unit <= kLastCompatibilityHan);
}

/// Return whether `unit` is the first or the second half of a surrogate pair. Code points may be
/// given as well: those that are surrogates are invalid in UTF-8.
constexpr bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// The bit in which the two cases of an ASCII or Latin-1 letter differ: U+0041 and U+0061, U+00C0
/// and U+00E0. It is in the last byte of their UTF-8 as well.
inline constexpr char kCaseBit = 0x20;

/// Returns the lower case of an ASCII capital; every other unit unchanged. For names, whose case
/// ignores ASCII only; texts of the dictionary are folded by text::foldCase (order.h).
template <typename Unit>
constexpr Unit lowerAscii(Unit unit) {
  return unit >= Unit{'A'} && unit <= Unit{'Z'} ? static_cast<Unit>(unit + ('a' - 'A')) : unit;
}

}  // namespace text
