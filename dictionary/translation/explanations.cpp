#include "dictionary/translation/explanations.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// Words before a colon that introduce the equivalent and are not one themselves.
constexpr std::array kLeadIns = {u"表示"sv, u"意为"sv, u"尤指"sv, u"指"sv,           u"意指"sv,
                                 u"即"sv,   u"全名"sv, u"人名"sv, u"DOS文件扩展名"sv};

/// Endings of lead-ins that name a kind of brand: 意大利服装名牌, 意大利世界名车.
constexpr std::array kBrandLabels = {u"名牌"sv, u"名车"sv};

/// Endings of a name before a colon that tell what follows it, not what it is: "海宁全名：Justine
/// Henin", "圣戈班公司总部所在地：法国".
constexpr std::array kClosingLabels = {u"全名"sv, u"总部所在地"sv};

/// Words before a colon that introduce what a command does. Alone they are labels.
constexpr std::array kCommandLabels = {u"DOS命令"sv,       u"DOS内部命令"sv,     u"DOS外部命令"sv,
                                       u"DOS批处理命令"sv, u"DOS设备驱动程序"sv, u"DOS驱动程序"sv};

/// The third one is U+2236 RATIO, which the source has for a colon.
bool isColon(char16_t unit) { return unit == u':' || unit == u'：' || unit == u'∶'; }

/// Index of the colon that ends the word; npos if there is none.
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

template <std::size_t kCount>
bool contains(const std::array<std::u16string_view, kCount>& words, std::u16string_view word) {
  return std::ranges::find(words, word) != words.end();
}

bool isLeadIn(std::u16string_view word) {
  return contains(kLeadIns, word) ||
         std::ranges::any_of(kBrandLabels, [&](auto label) { return word.ends_with(label); });
}

std::u16string_view withoutClosingLabel(std::u16string_view word) {
  for (const std::u16string_view label : kClosingLabels) {
    if (word.ends_with(label)) return word.substr(0, word.size() - label.size());
  }
  return word;
}

}  // namespace

Explained splitExplanation(std::u16string_view piece) {
  const std::size_t colon = colonPosition(piece);
  if (colon == std::u16string_view::npos) return {piece, false};
  const std::u16string_view word = piece.substr(0, colon);
  const std::u16string_view rest = piece.substr(colon + 1);
  if (isLeadIn(word)) return {rest, false};
  return {withoutClosingLabel(word), std::ranges::any_of(rest, isHan)};
}

bool describesCommand(std::u16string_view piece) {
  return contains(kCommandLabels, piece.substr(0, colonPosition(piece)));
}

}  // namespace dictionary
