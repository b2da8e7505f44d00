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

/// Removes what makes a sentence of an equivalent: "又称蹄兔", "是一种抗疟药".
std::u16string_view withoutSentenceStart(std::u16string_view piece) {
  if (piece.starts_with(u"是一种")) return piece.substr(1);
  for (const std::u16string_view verb : {u"又称"sv, u"亦称"sv, u"也称"sv, u"俗称"sv, u"尤指"sv}) {
    if (!piece.starts_with(verb) || piece.size() == verb.size()) continue;
    const std::u16string_view name = piece.substr(verb.size());
    // "又称为..." and "又称作..." are verbs.
    const bool named = (isHan(name[0]) && name[0] != u'为' && name[0] != u'作') || name[0] == u'“';
    if (named) return name;
  }
  return piece;
}

std::u16string_view withoutClosingLabel(std::u16string_view word) {
  for (const std::u16string_view label : kClosingLabels) {
    if (word.ends_with(label)) return word.substr(0, word.size() - label.size());
  }
  return word;
}

/// Returns whether a quoted meaning may end before `rest`: before 之义, an example, a note or
/// nothing.
bool endsMeaning(std::u16string_view rest) {
  constexpr std::array kTails = {u"之义"sv, u"之意"sv, u"等义"sv};
  return rest.empty() || isColon(rest[0]) || rest[0] == u' ' ||
         openingBracket(rest[0]) != Bracket::kNone ||
         std::ranges::any_of(kTails, [&](auto tail) { return rest.starts_with(tail); });
}

/// Beginnings of pieces that tell what a name means.
constexpr std::array kNameMeanings = {u"含义是"sv, u"涵义是"sv, u"含意是"sv, u"原意为"sv,
                                      u"原意是"sv};

/// What may follow the years of a life without a comma: a profession.
constexpr std::array kProfessions = {u"家"sv, u"诗人"sv, u"将领"sv};

/// "1844-1910", with any kind of dash; a year may be uncertain ("1440？").
bool isLife(std::u16string_view note) {
  constexpr std::size_t kYear = 4;
  constexpr std::u16string_view kDashes = u"-–—－~～";
  const auto beginsWithYear = [](std::u16string_view text) {
    return text.size() >= kYear && std::ranges::all_of(text.substr(0, kYear), isDigit);
  };
  if (!beginsWithYear(note)) return false;
  note.remove_prefix(kYear);
  if (note.starts_with(u'?') || note.starts_with(u'？')) note.remove_prefix(1);
  if (note.empty() || kDashes.find(note[0]) == std::u16string_view::npos) return false;
  return beginsWithYear(note.substr(1)) && note.size() == 1 + kYear;
}

/// Index of the bracket before the years of a life; npos if there is none.
std::size_t yearsPosition(std::u16string_view piece) {
  for (std::size_t i = 0; i < piece.size(); ++i) {
    if (openingBracket(piece[i]) != Bracket::kRound) continue;
    const std::size_t close = closingPosition(piece, i);
    if (close != std::u16string_view::npos && isLife(piece.substr(i + 1, close - i - 1))) return i;
  }
  return std::u16string_view::npos;
}

}  // namespace

Explained splitExplanation(std::u16string_view piece) {
  piece = withoutSentenceStart(piece);
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

std::u16string_view quotedMeaning(std::u16string_view piece) {
  for (const std::u16string_view verb : {u"表示"sv, u"意为"sv}) {
    if (!piece.starts_with(verb) || piece.size() == verb.size()) continue;
    const std::u16string_view quoted = piece.substr(verb.size());
    if (openingBracket(quoted[0]) == Bracket::kRound) {
      const std::size_t close = closingPosition(quoted, 0);
      if (close == std::u16string_view::npos || quoted.substr(close + 1) != u"之义") return {};
      return quoted.substr(1, close - 1);
    }
    // Straight quotation marks are their own counterpart.
    const std::size_t end = quoted[0] == u'"' ? quoted.find(u'"', 1) + 1 : quotationEnd(quoted, 0);
    if (end > 2 && end <= quoted.size() && endsMeaning(quoted.substr(end))) {
      return quoted.substr(1, end - 2);
    }
  }
  return {};
}

std::u16string_view elementMeaning(std::u16string_view word) {
  // The longer lead-ins come first.
  for (const std::u16string_view leadIn : {u"用以表示"sv, u"用于表示"sv, u"表示"sv, u"意为"sv}) {
    if (!word.starts_with(leadIn)) continue;
    const std::u16string_view meaning = word.substr(leadIn.size());
    if (meaning.empty() || meaning.starts_with(u"之")) return {};
    const bool quoted = quotationEnd(meaning, 0) == meaning.size();
    return quoted ? meaning.substr(1, meaning.size() - 2) : meaning;
  }
  return word;
}

bool explainsName(std::u16string_view piece) {
  return std::ranges::any_of(kNameMeanings, [&](auto begin) { return piece.starts_with(begin); });
}

std::size_t lifePosition(std::u16string_view piece) {
  for (std::size_t i = 1; i + 2 < piece.size(); ++i) {
    const bool twice = openingBracket(piece[i]) == Bracket::kRound &&
                       openingBracket(piece[i + 1]) == Bracket::kRound;
    const std::u16string_view life = piece.substr(i + 2);
    if (twice && (isDigit(life[0]) || life.starts_with(u"生于"))) return i;
  }
  return std::u16string_view::npos;
}

std::u16string_view nameBeforeYears(std::u16string_view piece) {
  const std::size_t life = yearsPosition(piece);
  if (life == std::u16string_view::npos) return {};
  const std::u16string_view rest = piece.substr(closingPosition(piece, life) + 1);
  const bool profession =
      std::ranges::any_of(kProfessions, [&](auto word) { return rest.ends_with(word); });
  if (!rest.empty() && !profession) return {};
  std::u16string_view name = piece.substr(0, life);
  name.remove_prefix(
      name.size() -
      static_cast<std::size_t>(std::find_if(name.rbegin(), name.rend(), isLatin) - name.rbegin()));
  return name.substr(std::min(name.find_first_not_of(u" .,"), name.size()));
}

}  // namespace dictionary
