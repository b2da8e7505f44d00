#include "dictionary/translation/brackets.h"

#include <algorithm>

#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

/// Opening and closing brackets at the same index belong together: three round ones, then five
/// square ones, then angle ones.
constexpr std::u16string_view kOpening = u"(（﹙[［〔【〖<〈＜";
constexpr std::u16string_view kClosing = u")）﹚]］〕】〗>〉＞";
/// In characters. A longer note or quotation counts as one that does not close, which also keeps
/// the time for a text of opening brackets proportional to its length.
constexpr std::size_t kMaxGroup = 400;

/// Where the kinds begin in kOpening and kClosing.
constexpr std::size_t kFirstSquare = 3;
constexpr std::size_t kFirstAngle = 8;

constexpr std::u16string_view kQuoteOpening = u"“‘《『";
constexpr std::u16string_view kQuoteClosing = u"”’》』";

Bracket kindAt(std::size_t index) {
  if (index == std::u16string_view::npos) return Bracket::kNone;
  if (index < kFirstSquare) return Bracket::kRound;
  return index < kFirstAngle ? Bracket::kSquare : Bracket::kAngle;
}

/// Returns whether the bracket at `at` was typed twice and closes once: "印锑（（秘鲁货币单位）".
bool isDoubled(std::u16string_view text, std::size_t at) {
  return at + 1 < text.size() && openingBracket(text[at]) != Bracket::kNone &&
         text[at + 1] == text[at] && closingPosition(text, at) == std::u16string_view::npos &&
         closingPosition(text, at + 1) != std::u16string_view::npos;
}

/// "III" in 四氯合金(III)酸钾.
bool isValence(std::u16string_view content) {
  return !content.empty() && content.find_first_not_of(u"IVX") == std::u16string_view::npos;
}

/// "1,2-b" in 茚并[1,2-b]吲哚.
bool isRingPosition(std::u16string_view content) {
  return !content.empty() && std::ranges::all_of(content, [](char16_t unit) {
    return isDigit(unit) || (unit >= u'a' && unit <= u'z') || unit == u',' || unit == u'-' ||
           unit == u'\'';
  });
}

/// "1-萘甲基" in 2-(1-萘甲基)-咪唑啉: a hyphen outside and a digit or letter inside.
bool holdsLocant(std::u16string_view content) {
  return std::ranges::any_of(content,
                             [](char16_t unit) { return isDigit(unit) || isAsciiLetter(unit); });
}

/// Returns whether the bracketed text from `open` to `close` is part of a chemical name, not a
/// note.
bool isPartOfName(std::u16string_view text, std::size_t open, std::size_t close) {
  if (open == 0 || close + 1 == text.size()) return false;
  const char16_t before = text[open - 1];
  const char16_t after = text[close + 1];
  const std::u16string_view content = text.substr(open + 1, close - open - 1);
  if (openingBracket(text[open]) == Bracket::kSquare) {
    return isHan(before) && isHan(after) && isRingPosition(content);
  }
  if (openingBracket(text[open]) != Bracket::kRound) return false;
  return (isHan(before) && isHan(after) && isValence(content)) ||
         ((before == u'-' || after == u'-') && holdsLocant(content));
}

}  // namespace

Bracket openingBracket(char16_t unit) { return kindAt(kOpening.find(unit)); }

Bracket closingBracket(char16_t unit) { return kindAt(kClosing.find(unit)); }

std::size_t closingPosition(std::u16string_view text, std::size_t open) {
  const Bracket kind = openingBracket(text[open]);
  const std::size_t end = std::min(text.size(), open + kMaxGroup);
  std::size_t depth = 0;
  for (std::size_t i = open; i < end; ++i) {
    if (openingBracket(text[i]) == kind) {
      ++depth;
    } else if (closingBracket(text[i]) == kind && --depth == 0) {
      return i;
    }
  }
  return std::u16string_view::npos;
}

std::size_t quotationEnd(std::u16string_view text, std::size_t open) {
  const std::size_t kind = kQuoteOpening.find(text[open]);
  if (kind == std::u16string_view::npos) return kind;
  const std::size_t close = text.substr(0, open + kMaxGroup).find(kQuoteClosing[kind], open + 1);
  return close == std::u16string_view::npos ? close : close + 1;
}

std::u16string withoutNotes(std::u16string_view text) {
  std::u16string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isDoubled(text, i)) continue;
    const std::size_t close = openingBracket(text[i]) == Bracket::kNone ? std::u16string_view::npos
                                                                        : closingPosition(text, i);
    if (close == std::u16string_view::npos) {
      plain += text[i];
    } else {
      if (isPartOfName(text, i, close)) plain += text.substr(i, close + 1 - i);
      i = close;
    }
  }
  return plain;
}

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

std::u16string withoutQuotes(std::u16string_view text) {
  const std::size_t end = text.empty() ? std::u16string_view::npos : quotationEnd(text, 0);
  if (end == std::u16string_view::npos) return std::u16string(text);
  const std::u16string_view quoted = text.substr(1, end - 2);
  const bool foreign = std::ranges::all_of(quoted, isForeign);
  if (end != text.size() && !foreign) return std::u16string(text);
  return std::u16string(quoted) + std::u16string(text.substr(end));
}

std::u16string_view withoutLooseBracket(std::u16string_view text, bool afterNote) {
  constexpr std::u16string_view kRound = u"()（）﹙﹚";
  const std::size_t at = text.find_first_of(kRound);
  const bool single = at != std::u16string_view::npos &&
                      text.find_first_of(kRound, at + 1) == std::u16string_view::npos;
  if (!single) return text;
  if (openingBracket(text[at]) != Bracket::kNone) return at == 0 ? text : text.substr(0, at);
  if (at + 1 < text.size()) return text.substr(at + 1);
  return afterNote ? text.substr(0, at) : text;
}

}  // namespace dictionary
