#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/translation/part_of_speech.h"

/// Which form of which word a headword is. The source says so in two places: in its column
/// "exchange", for most forms, and in translations ("take的过去分词"). The functions are pure.
namespace dictionary {

/// The inflected forms of English words; bits of a FormSet.
enum class Form : std::uint8_t {
  kPlural = 1,
  kThirdPerson = 2,
  kPast = 4,
  kPastParticiple = 8,
  kPresentParticiple = 16,
  kComparative = 32,
  kSuperlative = 64,
};

/// Forms, or'ed; 0 if the source says no more than that it is a form ("变形").
using FormSet = std::uint8_t;

struct Inflection {
  std::u16string lemma;  ///< in lower case
  FormSet forms = 0;
};

/// Reads the column "exchange" of a form: "0:take/1:d" is a past participle of "take"; the letters
/// after "1:" are p, d, i, 3, r, t, s as the source documents them. Returns nullopt if the column
/// names no lemma or `headword` itself (UTF-8, any case) as the lemma.
std::optional<Inflection> inflectionOf(std::string_view exchange, std::string_view headword);

/// Reads the forms that the column "exchange" of a lemma lists: "d:taken/p:took/i:taking/3:takes".
/// A form is in lower case and has a FormSet of one or more forms; what is no single word of ASCII
/// letters, with hyphens or apostrophes inside, is left out.
struct WordForm {
  std::u16string word;
  FormSet forms = 0;
  bool operator==(const WordForm&) const = default;
};
std::vector<WordForm> formsIn(std::string_view exchange);

/// Reads "take的过去分词", which must be the whole text; otherwise nullopt.
std::optional<Inflection> inflectionIn(std::u16string_view text);

/// Returns whether `meaning` only names another word, of which the headword is a form or another
/// spelling: "take的过去式", "等于complainer". Recognises more than inflectionIn(), which reads
/// what it is a form of.
bool isReference(std::u16string_view meaning);

/// Returns the text that inflectionIn() reads, "take的过去式和过去分词"; "" if `forms` is 0.
std::u16string inflectionText(const Inflection& inflection);

/// Returns the parts of speech of a lemma that has these forms; all of them if `forms` is 0.
PartOfSpeechSet partsOfSpeechOf(FormSet forms);

}  // namespace dictionary
