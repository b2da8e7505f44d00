#include "dictionary/brackets.h"

#include <algorithm>

namespace dictionary {
namespace {

constexpr std::u16string_view kOpening = u"(（﹙[［〔【〖<〈＜";
constexpr std::u16string_view kClosing = u")）﹚]］〕】〗>〉＞";
/// Longer notes and quotations are taken for brackets that do not close, which also keeps the work
/// on a hostile text proportional to its length.
constexpr std::size_t kMaxGroup = 1000;

constexpr std::size_t kFirstSquare = 3;
constexpr std::size_t kFirstAngle = 8;

constexpr std::u16string_view kQuoteOpening = u"“‘《『";
constexpr std::u16string_view kQuoteClosing = u"”’》』";

Bracket kindAt(std::size_t index) {
  if (index == std::u16string_view::npos) return Bracket::kNone;
  if (index < kFirstSquare) return Bracket::kRound;
  return index < kFirstAngle ? Bracket::kSquare : Bracket::kAngle;
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
    const std::size_t close = openingBracket(text[i]) == Bracket::kNone ? std::u16string_view::npos
                                                                        : closingPosition(text, i);
    if (close == std::u16string_view::npos) {
      plain += text[i];
    } else {
      i = close;
    }
  }
  return plain;
}

}  // namespace dictionary
