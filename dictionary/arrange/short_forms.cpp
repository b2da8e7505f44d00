#include "dictionary/arrange/short_forms.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace dictionary {

bool hasShortForm(const Entry& entry) {
  return std::ranges::any_of(entry.lines, [](const TranslationLine& line) {
    return std::ranges::any_of(line.pieces,
                               [](const Piece& piece) { return !piece.shortForm.empty(); });
  });
}

void ShortForms::record(const Entry& entry) {
  for (const TranslationLine& line : entry.lines) {
    for (const Piece& piece : line.pieces) {
      if (!piece.equivalent.word.empty()) words_.insert(piece.equivalent.word);
    }
  }
}

void ShortForms::complete(Entry& entry) const {
  for (TranslationLine& line : entry.lines) {
    std::vector<Piece> forms;
    for (const Piece& piece : line.pieces) {
      if (!words_.contains(piece.shortForm)) continue;
      Piece& form = forms.emplace_back();
      form.equivalent.word = piece.shortForm;
      form.subjects = piece.subjects;
    }
    for (Piece& form : forms) line.pieces.push_back(std::move(form));
  }
}

}  // namespace dictionary
