#include "dictionary/translation/optional_characters.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// Longer ones are explanations.
constexpr std::size_t kMaxOptional = 6;
/// "镇痛药" is a kind of drug, "剂" a part of the word.
constexpr std::size_t kMinKind = 3;

/// Marks of usage, sources and kinds of names.
constexpr std::array kMarks = {u"商"sv, u"拉"sv,   u"美"sv,   u"英"sv,   u"古"sv,
                               u"日"sv, u"旧名"sv, u"商名"sv, u"人名"sv, u"地名"sv};
constexpr std::array kKindEndings = {u"药"sv, u"剂"sv, u"术语"sv, u"分类"sv};

/// Returns whether the bracketed `content` is a note. `last`: nothing follows it in the piece.
bool isNote(std::u16string_view content, bool last) {
  if (content.empty() || content.size() > kMaxOptional || !std::ranges::all_of(content, isHan)) {
    return true;
  }
  if (std::ranges::find(kMarks, content) != kMarks.end() || content.starts_with(u"产于"))
    return true;
  return last && content.size() >= kMinKind &&
         std::ranges::any_of(kKindEndings, [&](auto end) { return content.ends_with(end); });
}

}  // namespace

std::u16string withOptionalCharacters(std::u16string_view text) {
  std::u16string full;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t close = openingBracket(text[i]) == Bracket::kNone ? std::u16string_view::npos
                                                                        : closingPosition(text, i);
    if (close == std::u16string_view::npos) {
      full += text[i];
      continue;
    }
    const std::u16string_view content = text.substr(i + 1, close - i - 1);
    const bool plain = text[i] == u'[' || text[i] == u'［';  // others enclose labels: 〔后缀〕
    const bool optional = plain && !isNote(content, close + 1 == text.size());
    full += optional ? content : text.substr(i, close + 1 - i);
    i = close;
  }
  return full;
}

}  // namespace dictionary
