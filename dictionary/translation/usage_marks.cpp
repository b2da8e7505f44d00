#include "dictionary/translation/usage_marks.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/translation/brackets.h"
#include "text/strings.h"

namespace dictionary {

bool marksSlang(std::u16string_view notes) {
  using namespace std::string_view_literals;
  constexpr std::array kMarks = {u"方"sv,     u"英方"sv, u"美方"sv,   u"方言"sv,    u"英国方言"sv,
                                 u"古"sv,     u"古语"sv, u"废"sv,     u"废语"sv,    u"罕"sv,
                                 u"罕用语"sv, u"诗"sv,   u"蔑"sv,     u"粗"sv,      u"旧"sv,
                                 u"儿语"sv,   u"黑话"sv, u"苏格兰"sv, u"主苏格兰"sv};
  for (std::size_t i = 0; i < notes.size(); ++i) {
    const std::size_t close = openingBracket(notes[i]) == Bracket::kNone
                                  ? std::u16string_view::npos
                                  : closingPosition(notes, i);
    if (close == std::u16string_view::npos) continue;
    const std::u16string_view note = text::trimBlanks(notes.substr(i + 1, close - i - 1));
    constexpr std::size_t kLongestMark = 5;  // "美国俚语" and one more
    if (std::ranges::find(kMarks, note) != kMarks.end() ||
        (note.size() <= kLongestMark && note.find(u'俚') != std::u16string_view::npos)) {
      return true;
    }
    i = close;
  }
  return false;
}

}  // namespace dictionary
