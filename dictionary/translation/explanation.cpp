#include "dictionary/translation/explanation.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

constexpr std::array kLeadIns = {u"表示"sv, u"意为"sv, u"尤指"sv,        u"指"sv,         u"即"sv,
                                 u"全名"sv, u"人名"sv, u"DOS内部命令"sv, u"DOS外部命令"sv};

bool isColon(char16_t unit) { return unit == u':' || unit == u'：' || unit == u'∶'; }

/// Position of the colon that ends the word, npos if there is none.
std::size_t colonPosition(std::u16string_view piece) {
  for (std::size_t i = 0; i < piece.size(); ++i) {
    const std::size_t close = openingBracket(piece[i]) == Bracket::kNone
                                  ? std::u16string_view::npos
                                  : closingPosition(piece, i);
    if (close != std::u16string_view::npos) {
      i = close;
      continue;
    }
    const bool ratio =
        i > 0 && i + 1 < piece.size() && isDigit(piece[i - 1]) && isDigit(piece[i + 1]);
    if (isColon(piece[i]) && !ratio) return i;
  }
  return std::u16string_view::npos;
}

}  // namespace

Explained splitExplanation(std::u16string_view piece) {
  const std::size_t colon = colonPosition(piece);
  if (colon == std::u16string_view::npos) return {piece, false};
  const std::u16string_view word = piece.substr(0, colon);
  const std::u16string_view rest = piece.substr(colon + 1);
  if (std::ranges::find(kLeadIns, word) != kLeadIns.end()) return {rest, false};
  return {word, std::ranges::any_of(rest, isHan)};
}

}  // namespace dictionary
