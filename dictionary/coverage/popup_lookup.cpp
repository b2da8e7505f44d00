#include "dictionary/coverage/popup_lookup.h"

#include <algorithm>
#include <array>

#include "dictionary/console.h"
#include "text/characters.h"
#include "text/order.h"
#include "text/query_text.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// Those of the popup (frmScreenWordMeaning).
constexpr data::LookupOptions kRules{.lambdaUpperKey = true, .chineseMeaningFindsBounds = true};

/// What a reference says of the other word, which stands before it: "boxes" is "box的复数". Names
/// and abbreviations ("…的缩写") are no such forms: what they stand for is their meaning.
constexpr auto kForms = std::to_array<std::u16string_view>(
    {u"变形", u"复数", u"单数", u"过去式", u"过去时", u"分词", u"进行式", u"动名词", u"人称",
     u"比较级", u"最高级", u"所有格", u"宾格", u"形式", u"变体", u"异体", u"古体"});
/// What a reference begins with if the other word is at its end.
constexpr auto kEquals =
    std::to_array<std::u16string_view>({u"等于", u"同", u"参见", u"见", u"即"});

std::size_t firstHan(std::u16string_view text) {
  const auto* const found = std::find_if(text.begin(), text.end(), text::isHan);
  return static_cast<std::size_t>(found - text.begin());
}

bool hasLetter(std::u16string_view text) {
  return std::any_of(text.begin(), text.end(), [](char16_t unit) {
    return text::lowerAscii(unit) >= u'a' && text::lowerAscii(unit) <= u'z';
  });
}

}  // namespace

bool isReference(std::u16string_view meaning) {
  for (const std::u16string_view equals : kEquals) {
    if (!meaning.starts_with(equals)) continue;
    const std::u16string_view rest = meaning.substr(equals.size());
    return hasLetter(rest) && firstHan(rest) == rest.size();
  }
  const std::size_t han = firstHan(meaning);
  const std::u16string_view form = meaning.substr(han);
  return hasLetter(meaning.substr(0, han)) && form.starts_with(u'的') &&
         std::any_of(kForms.begin(), kForms.end(), [&](std::u16string_view name) {
           return form.find(name) != std::u16string_view::npos;
         });
}

PopupLookup::PopupLookup(const std::filesystem::path& database)
    : test_(index_), lookup_(index_, kRules) {
  const std::u16string file = data::connectionString(text::toUtf16(utf8Path(database)));
  control_.setConnectionString(file);
  test_.setConnectionString(file);
  index_ = data::readIndexWords(control_);
}

bool PopupLookup::isHeadword(std::u16string_view word) {
  const std::u16string key = text::toLower(word);
  const auto known = headwords_.find(key);
  if (known != headwords_.end()) return known->second;
  const bool found = test_.has(word);
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

std::vector<std::u16string> PopupLookup::meanings(std::u16string_view escapedWord) {
  control_.setRecordSource(lookup_.findword(user::getEorC(escapedWord), escapedWord, control_));
  control_.refresh();
  return data::readMeanings(control_.recordset());
}

Shown PopupLookup::lookUp(std::u16string_view word) {
  std::u16string escaped(word);
  auto found = meanings(user::escapeQuote(escaped));
  Shown shown = Shown::kMeaning;
  if (found.empty()) {
    // Deliberate: quotes that are doubled already are doubled again, as the popup does.
    std::u16string shorter = escaped.substr(0, escaped.size() - 1);
    found = meanings(user::escapeQuote(shorter));
    shown = Shown::kShortened;
  }
  if (found.empty()) return Shown::kNothing;
  return std::all_of(found.begin(), found.end(), isReference) ? Shown::kReference : shown;
}

}  // namespace dictionary
