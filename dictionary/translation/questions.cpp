#include "dictionary/translation/questions.h"

#include <algorithm>

#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

/// In 吗, 呢, 什么, 怎么样, 如何, 谁, 几, 哪里: each is in questions, and hardly ever in the names
/// of fishes and compounds whose characters were lost.
constexpr std::u16string_view kInterrogatives = u"吗呢么怎何谁几哪";
constexpr std::u16string_view kQuestionMarks = u"?？";

/// "要不要", "能不能".
bool asksForYesOrNo(std::u16string_view text, std::size_t at) {
  return at + 2 < text.size() && isHan(text[at]) && text[at + 1] == u'不' &&
         text[at + 2] == text[at];
}

}  // namespace

bool isQuestion(std::u16string_view text, std::size_t begin, std::size_t mark) {
  const std::u16string_view clause = text.substr(begin, mark - begin);
  for (std::size_t i = 0; i < clause.size(); ++i) {
    const bool interrogative = kInterrogatives.find(clause[i]) != std::u16string_view::npos;
    if (interrogative || asksForYesOrNo(clause, i)) return true;
  }
  return std::ranges::any_of(clause, isLatin) && std::ranges::none_of(clause, isHan);
}

bool hasLostCharacterMark(std::u16string_view text) {
  std::size_t begin = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (kQuestionMarks.find(text[i]) == std::u16string_view::npos) continue;
    if (!isQuestion(text, begin, i)) return true;
    begin = i + 1;
  }
  return false;
}

}  // namespace dictionary
