#include "dictionary/translation/inflection.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/source/characters.h"
#include "text/characters.h"
#include "text/order.h"
#include "text/utf.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

constexpr FormSet bit(Form form) { return static_cast<FormSet>(form); }

/// A form, its letter in the column "exchange", and its name in translations.
struct FormName {
  Form form;
  char letter;
  std::u16string_view name;
};

constexpr std::array<FormName, 7> kFormNames = {{
    {Form::kPlural, 's', u"复数"},
    {Form::kThirdPerson, '3', u"第三人称单数"},
    {Form::kPast, 'p', u"过去式"},
    {Form::kPastParticiple, 'd', u"过去分词"},
    {Form::kPresentParticiple, 'i', u"现在分词"},
    {Form::kComparative, 'r', u"比较级"},
    {Form::kSuperlative, 't', u"最高级"},
}};

/// Parts of names that occur in translations, and the forms that they mean. 人称 comes first: "be的
/// 单数第一人称", "be的第二人称单数" and "be的现在时复数或第二人称单数" are forms of a verb.
struct NamePart {
  std::u16string_view part;
  FormSet forms;
};

constexpr std::array<NamePart, 10> kNameParts = {{
    {u"人称", bit(Form::kThirdPerson)},
    {u"三单", bit(Form::kThirdPerson)},
    {u"单三", bit(Form::kThirdPerson)},
    {u"过去分词", bit(Form::kPastParticiple)},
    {u"过去", bit(Form::kPast)},
    {u"现在分词", bit(Form::kPresentParticiple)},
    {u"比较级", bit(Form::kComparative)},
    {u"最高级", bit(Form::kSuperlative)},
    {u"复数", bit(Form::kPlural)},
    {u"变形", 0},
}};

/// The forms that the text after 的 names; nullopt if it names none.
std::optional<FormSet> formsNamed(std::u16string_view name) {
  FormSet forms = 0;
  bool named = false;
  for (const NamePart& known : kNameParts) {
    const std::size_t at = name.find(known.part);
    if (at == std::u16string_view::npos) continue;
    // 过去 is a part of 过去分词, and 复数 says nothing more beside 人称.
    if (known.part == u"过去" && name.substr(at).starts_with(u"过去分词")) continue;
    if (known.part == u"复数" && forms == bit(Form::kThirdPerson)) continue;
    named = true;
    forms = static_cast<FormSet>(forms | known.forms);
  }
  return named ? std::optional(forms) : std::nullopt;
}

std::size_t firstHan(std::u16string_view text) {
  const auto* const found = std::find_if(text.begin(), text.end(), text::isHan);
  return static_cast<std::size_t>(found - text.begin());
}

/// Returns whether `text` begins with the whole name of a form.
bool beginsWithFormName(std::u16string_view text) {
  return text.starts_with(u"变形") || std::ranges::any_of(kFormNames, [&](const FormName& known) {
           return text.starts_with(known.name);
         });
}

/// The value of one item of the column: of "0:take/1:d" the item '0' has "take".
std::string_view itemOf(std::string_view exchange, char key) {
  for (std::size_t begin = 0; begin < exchange.size();) {
    const std::size_t end = std::min(exchange.find('/', begin), exchange.size());
    const std::string_view item = exchange.substr(begin, end - begin);
    if (item.size() > 2 && item[0] == key && item[1] == ':') return item.substr(2);
    begin = end + 1;
  }
  return {};
}

bool isPlainWord(std::u16string_view word) {
  const auto inside = [](char16_t unit) {
    return isAsciiLetter(unit) || unit == u'-' || unit == u'\'';
  };
  return word.size() > 1 && isAsciiLetter(word.front()) && isAsciiLetter(word.back()) &&
         std::ranges::all_of(word, inside);
}

bool isWordUnit(char16_t unit) {
  return isAsciiLetter(unit) || unit == u'-' || unit == u'′' || unit == u'\'' || unit == u' ' ||
         unit == u'.';
}

/// What a reference says of the other word, which stands before it: "boxes" is "box的复数". Names
/// and abbreviations ("…的缩写") are no such forms: what they stand for is their meaning.
constexpr auto kForms = std::to_array<std::u16string_view>(
    {u"变形", u"复数", u"单数", u"过去式", u"过去时", u"分词", u"进行式", u"动名词", u"人称",
     u"比较级", u"最高级", u"所有格", u"宾格", u"形式", u"变体", u"异体", u"古体"});
/// What a reference begins with if the other word is at its end.
constexpr auto kEquals =
    std::to_array<std::u16string_view>({u"等于", u"同", u"参见", u"见", u"即"});

bool hasLetter(std::u16string_view text) {
  return std::any_of(text.begin(), text.end(), [](char16_t unit) {
    return text::lowerAscii(unit) >= u'a' && text::lowerAscii(unit) <= u'z';
  });
}

}  // namespace

std::optional<Inflection> inflectionOf(std::string_view exchange, std::string_view headword) {
  const std::u16string lemma = text::toLower(text::toUtf16(itemOf(exchange, '0')));
  if (lemma.empty() || lemma == text::toLower(text::toUtf16(headword))) return std::nullopt;
  Inflection inflection{lemma, 0};
  const std::string_view letters = itemOf(exchange, '1');
  for (const FormName& known : kFormNames) {
    if (letters.find(known.letter) != std::string_view::npos) {
      inflection.forms = static_cast<FormSet>(inflection.forms | bit(known.form));
    }
  }
  return inflection;
}

std::vector<WordForm> formsIn(std::string_view exchange) {
  std::vector<WordForm> listed;
  for (const FormName& known : kFormNames) {
    const std::u16string word = text::toLower(text::toUtf16(itemOf(exchange, known.letter)));
    if (!isPlainWord(word)) continue;
    const auto other = std::ranges::find(listed, word, &WordForm::word);
    if (other != listed.end()) {
      other->forms = static_cast<FormSet>(other->forms | bit(known.form));
    } else {
      listed.push_back({word, bit(known.form)});
    }
  }
  return listed;
}

std::optional<Inflection> inflectionIn(std::u16string_view text) {
  const std::size_t of = firstHan(text);
  if (of == 0 || of == text.size() || !isAsciiLetter(text[0])) return std::nullopt;
  const std::u16string_view lemma = text.substr(0, of);
  if (!std::ranges::all_of(lemma, isWordUnit)) return std::nullopt;
  // "partake过去式": without 的 the name of the form must follow at once.
  const std::u16string_view name = text.substr(of);
  if (!name.starts_with(u'的') && !beginsWithFormName(name)) return std::nullopt;
  const std::optional<FormSet> forms = formsNamed(name);
  if (!forms) return std::nullopt;
  // Chinese headwords hold a prime where the word has an apostrophe.
  std::u16string word = text::toLower(lemma);
  std::ranges::replace(word, u'′', u'\'');
  while (word.ends_with(u' ')) word.pop_back();
  return Inflection{std::move(word), *forms};
}

std::u16string inflectionText(const Inflection& inflection) {
  std::u16string names;
  for (const FormName& known : kFormNames) {
    if ((inflection.forms & bit(known.form)) == 0) continue;
    if (!names.empty()) names += u"和";
    names += known.name;
  }
  if (names.empty()) return {};
  std::u16string lemma = inflection.lemma;
  std::ranges::replace(lemma, u'\'', u'′');
  return lemma + u"的" + names;
}

PartOfSpeechSet partsOfSpeechOf(FormSet forms) {
  constexpr FormSet kVerbForms = bit(Form::kThirdPerson) | bit(Form::kPast) |
                                 bit(Form::kPastParticiple) | bit(Form::kPresentParticiple);
  constexpr FormSet kDegrees = bit(Form::kComparative) | bit(Form::kSuperlative);
  if (forms == 0) return kAnyPartOfSpeech;
  unsigned parts = 0;
  if ((forms & bit(Form::kPlural)) != 0) parts |= setOf(PartOfSpeech::kNoun);
  if ((forms & kVerbForms) != 0) parts |= setOf(PartOfSpeech::kVerb);
  if ((forms & kDegrees) != 0) {
    parts |= setOf(PartOfSpeech::kAdjective) | setOf(PartOfSpeech::kAdverb);
  }
  return static_cast<PartOfSpeechSet>(parts);
}

bool isReference(std::u16string_view meaning) {
  for (const std::u16string_view equals : kEquals) {
    if (!meaning.starts_with(equals)) continue;
    const std::u16string_view rest = meaning.substr(equals.size());
    return hasLetter(rest) && firstHan(rest) == rest.size();
  }
  const std::size_t han = firstHan(meaning);
  const std::u16string_view form = meaning.substr(han);
  if (inflectionIn(meaning)) return true;
  return hasLetter(meaning.substr(0, han)) && form.starts_with(u'的') &&
         std::any_of(kForms.begin(), kForms.end(), [&](std::u16string_view name) {
           return form.find(name) != std::u16string_view::npos;
         });
}

}  // namespace dictionary
