#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Part-of-speech marks, which the source writes before an equivalent in many ways: "n.", "vt. &
/// vi.", "a., n.", "adj", "n<古>.", "comb. form", "link-v.". They are deleted, since neither kind
/// of dictionary shows them. And marks of usage, which it writes as notes: "[美俚]", "<古>". The
/// functions are pure.
namespace dictionary {

/// Returns the length of the part-of-speech marks at the beginning of `text`, including the links
/// between them and the blanks after them; 0 if there are none. A mark without its full stop counts
/// only if it is a frequent one and is followed by a blank and Chinese text ("n 苹果"), by a note
/// and the full stop ("n<古>."), or by a link and a mark with a full stop ("vt,vi.").
std::size_t partOfSpeechLength(std::u16string_view text);

/// Returns the length of the stray characters before a part-of-speech mark that can be skipped: "&
/// ", a numeral of a sense ("Ⅰ ", in the source also "l "), and, if `afterNote` is set, the full
/// stop of "n<古>.". Returns 0 if no mark follows.
std::size_t strayLength(std::u16string_view text, bool afterNote);

/// Parts of speech, as far as it matters which senses a form of a word has.
enum class PartOfSpeech : std::uint8_t {
  kNoun,
  kVerb,
  kAdjective,
  kAdverb,
  kFunction,  ///< articles, pronouns, prepositions, conjunctions, numerals, auxiliary verbs
};

/// A set of parts of speech, a bit each; 0 if the source says nothing.
using PartOfSpeechSet = std::uint8_t;
inline constexpr PartOfSpeechSet kAnyPartOfSpeech = 0x1F;

constexpr PartOfSpeechSet setOf(PartOfSpeech part) {
  return static_cast<PartOfSpeechSet>(1U << static_cast<unsigned>(part));
}

/// Returns the parts of speech that `marks` names, text whose partOfSpeechLength() is its length.
/// Marks such as "abbr." and "pref." name none.
PartOfSpeechSet partsOfSpeechIn(std::u16string_view marks);

/// Returns whether `text` begins with a mark that introduces another sense even without a separator
/// before it: "渗透现象v.使渗透", "脱离轨道 ll n.脱离轨道" (the source has ll for Ⅱ). Not so before
/// 的, with which a mark is part of the text ("adv.的").
bool beginsFurtherSense(std::u16string_view text);

/// Returns whether one of the notes in `notes` marks slang, dialect, or rare, obsolete or poetic
/// use. Text outside brackets does not count.
bool marksSlang(std::u16string_view notes);

}  // namespace dictionary
