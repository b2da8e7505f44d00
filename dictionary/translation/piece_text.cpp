#include "dictionary/translation/piece_text.h"

#include <algorithm>
#include <cstddef>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"

namespace dictionary {
namespace {

char16_t narrow(char16_t unit) {
  if (unit >= 0xFF01 && unit <= 0xFF5D) return static_cast<char16_t>(unit - 0xFEE0);
  switch (unit) {
    case u'\'':
    case u'’':
    case u'‘':
      return u'′';
    case u'•':
    case u'‧':
    case u'・':
      return u'·';
    case u'—':
    case u'–':
    case u'―':
      return u'-';
    case u'º':
      return u'°';
    case u'~':
      return u'～';
    default:
      return unit;
  }
}

/// Straight quotation marks as an opening and a closing one in turn. Single ones are quotation
/// marks where the first stands before Chinese text, else primes.
std::u16string curled(std::u16string_view text) {
  std::u16string result(text);
  const std::size_t single = text.find(u'\'');
  const bool singleQuotes = single + 1 < text.size() && isHan(text[single + 1]) &&
                            std::ranges::count(text, u'\'') % 2 == 0;
  bool open = false;
  for (char16_t& unit : result) {
    if (unit == u'"' || unit == u'＂' || (unit == u'\'' && singleQuotes)) {
      open = !open;
      unit = open ? u'“' : u'”';
    }
  }
  return result;
}

/// Narrow forms, with three full stops as an ellipsis and ellipses folded to one.
std::u16string narrowed(std::u16string_view text) {
  std::u16string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char16_t unit = narrow(text[i]);
    if (text.substr(i).starts_with(u"...")) {
      unit = u'…';
      i += 2;
    }
    if (unit == u'…' && result.ends_with(u'…')) continue;
    result += unit;
  }
  return result;
}

bool isEither(char16_t unit, std::u16string_view units) {
  return units.find(unit) != std::u16string_view::npos;
}

std::u16string_view trimmed(std::u16string_view text) {
  while (!text.empty() && isEither(text.front(), u" …。.:=·,")) text.remove_prefix(1);
  while (!text.empty() && isEither(text.back(), u" …。.!?:=·,-")) text.remove_suffix(1);
  return text;
}

/// Without the hyphen that a deleted note leaves in front: "(Z)-丁烯酸".
std::u16string_view withoutHyphen(std::u16string_view text) {
  const bool left =
      text.size() > 2 && text[0] == u'-' && (isHan(text[1]) || isDigit(text[1]) || text[1] == u' ');
  return left ? text.substr(text[1] == u' ' ? 2 : 1) : text;
}

/// Without quotation marks around all of it or around a foreign word in front.
std::u16string withoutQuotes(std::u16string_view text) {
  const std::size_t end = text.empty() ? std::u16string_view::npos : quotationEnd(text, 0);
  if (end == std::u16string_view::npos) return std::u16string(text);
  const std::u16string_view quoted = text.substr(1, end - 2);
  const bool foreign = std::ranges::all_of(quoted, [](char16_t unit) { return unit < 0x100; });
  if (end != text.size() && !foreign) return std::u16string(text);
  return std::u16string(quoted) + std::u16string(text.substr(end));
}

/// Without the foreign words before a blank and the Chinese text: those that an abbreviation stands
/// for ("National Gallery 国家美术馆"), or forms of the headword ("-dled, -dling 逃走").
std::u16string_view withoutExpansion(std::u16string_view text, bool abbreviation) {
  const auto isSmall = [](char16_t unit) { return unit >= u'a' && unit <= u'z'; };
  std::size_t length = 0;
  while (length < text.size() && text[length] < 0x100) ++length;
  const std::u16string_view foreign = text.substr(0, length);
  const auto blanks = std::ranges::count(foreign, u' ');
  const bool parted = foreign.ends_with(u' ') || (abbreviation && blanks > 1);
  if (length == text.size() || length < 2 || !isHan(text[length]) || !parted) return text;
  const auto small = std::ranges::count_if(foreign, isSmall);
  const bool words =
      isLatin(foreign[0]) && small > 1 && (abbreviation || std::ranges::count(foreign, u' ') > 1);
  const bool forms = foreign[0] == u'-' && small > 0;
  return words || forms ? text.substr(length) : text;
}

/// Without the foreign words that the translation of an abbreviation goes on with ("商用货架产品
/// commercial off-the-shelf"): two or more, in small letters but for their first.
std::u16string_view withoutTail(std::u16string_view text) {
  const auto isSmall = [](char16_t unit) { return unit >= u'a' && unit <= u'z'; };
  std::size_t begin = text.size();
  while (begin > 0 && text[begin - 1] < 0x100) --begin;
  const std::u16string_view foreign = text.substr(begin);
  const bool words = begin > 0 && isHan(text[begin - 1]) &&
                     foreign.find(u' ', 1) != std::u16string_view::npos &&
                     std::ranges::count_if(foreign, isSmall) > 4;
  return words ? text.substr(0, begin) : text;
}

/// Chinese is written without blanks: only those between two foreign words stay.
std::u16string withoutChineseBlanks(std::u16string_view text) {
  std::u16string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool betweenForeign =
        i > 0 && i + 1 < text.size() && text[i - 1] < 0x2000 && text[i + 1] < 0x2000;
    if (text[i] != u' ' || betweenForeign) result += text[i];
  }
  return result;
}

}  // namespace

std::u16string headwordText(std::u16string_view piece, bool abbreviation) {
  const std::u16string plain = narrowed(curled(withoutNotes(piece)));
  const std::u16string bare = withoutQuotes(trimmed(plain));
  const std::u16string_view chinese =
      withoutHyphen(withoutTail(withoutExpansion(bare, abbreviation)));
  return withoutChineseBlanks(trimmed(chinese));
}

}  // namespace dictionary
