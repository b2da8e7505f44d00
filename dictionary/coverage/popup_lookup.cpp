#include "dictionary/coverage/popup_lookup.h"

#include <algorithm>

#include "dictionary/console.h"
#include "dictionary/translation/inflection.h"
#include "text/order.h"
#include "text/query_text.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// Those of the popup (frmScreenWordMeaning).
constexpr data::LookupOptions kRules{.lambdaUpperKey = true, .chineseMeaningFindsBounds = true};

}  // namespace

PopupLookup::PopupLookup(const std::filesystem::path& database)
    : known_(index_), lookup_(index_, kRules) {
  const std::u16string file = data::connectionString(text::toUtf16(utf8Path(database)));
  control_.setConnectionString(file);
  known_.setConnectionString(file);
  index_ = data::readIndexWords(control_);
}

bool PopupLookup::isHeadword(std::u16string_view word) {
  const std::u16string key = text::toLower(word);
  const auto known = headwords_.find(key);
  if (known != headwords_.end()) return known->second;
  const bool found = known_.has(word);
  headwords_.emplace(key, found);
  return found;
}

Shown PopupLookup::shown(std::u16string_view word) {
  const std::u16string key = text::toLower(word);
  const auto known = shown_.find(key);
  if (known != shown_.end()) return known->second;
  const Shown found = lookUp(word);
  shown_.emplace(key, found);
  return found;
}

std::vector<std::u16string> PopupLookup::meaningsOfEscaped(std::u16string_view escapedWord) {
  control_.setRecordSource(lookup_.findword(user::getEorC(escapedWord), escapedWord, control_));
  control_.refresh();
  return data::readMeanings(control_.recordset());
}

std::vector<std::u16string> PopupLookup::meanings(std::u16string_view word) {
  std::u16string escaped(word);
  user::escapeQuote(escaped);
  return meaningsOfEscaped(escaped);
}

Shown PopupLookup::lookUp(std::u16string_view word) {
  std::u16string escaped(word);
  auto found = meaningsOfEscaped(user::escapeQuote(escaped));
  Shown shown = Shown::kMeaning;
  if (found.empty()) {
    // Deliberate: quotes that are doubled already are doubled again, as the popup does.
    std::u16string shorter = escaped.substr(0, escaped.size() - 1);
    found = meaningsOfEscaped(user::escapeQuote(shorter));
    shown = Shown::kShortened;
  }
  if (found.empty()) return Shown::kNothing;
  return std::all_of(found.begin(), found.end(), isReference) ? Shown::kReference : shown;
}

}  // namespace dictionary
