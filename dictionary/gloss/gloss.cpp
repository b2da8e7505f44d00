// A gloss is taken apart from outside in: pieces between semicolons, their notes, marks such as
// "fig." and "another name for" at the beginning, Chinese words, explanations at the end, and lists
// of words. What remains is a headword (english.h).

#include "dictionary/gloss/gloss.h"

#include <optional>

#include "dictionary/gloss/alternatives.h"
#include "dictionary/gloss/appositions.h"
#include "dictionary/gloss/descriptions.h"
#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names/sites.h"
#include "dictionary/gloss/notes.h"
#include "dictionary/gloss/symbols.h"
#include "dictionary/gloss/word_list.h"
#include "dictionary/source/characters.h"
#include "dictionary/source/cleanup.h"
#include "dictionary/translation/brackets.h"
#include "text/word_characters.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// What the marks at the beginning of a piece say of it.
struct Marks {
  bool literal = false;
  bool usage = false;
  bool example = false;  ///< what the word means above all, not what it means
};

constexpr std::u16string_view kLiteralMarks = u"lit. |lit., |lit: |literally |";
/// Names of age, region or style.
constexpr std::u16string_view kUsageMarks =
    u"formerly known as |formerly called |formerly |old name for |old name of |former name of "
    u"|former name for |"
    u"ancient name for |ancient name of |archaic name for |classical name for |old term for |"
    u"archaic term for |ancient term for |classical term for |literary term for |"
    u"dialectal term for |slang for |slang term for |Internet slang for |Taiwanese term for |"
    u"euphemism for |euphemistic term for |polite term for |respectful term for |"
    u"honorific term for |humble term for |derogatory term for |derog. term for |nickname for |"
    u"nickname of |old: |honorific: |humble term: |former name: |";
/// What follows them is what the word means, or another word for it.
constexpr std::u16string_view kOtherMarks =
    u"also translated as |also sometimes |usually called |lit. and fig. |fig. |fig., |fig: "
    u"|figuratively, |figuratively |by extension, |by ext. |also "
    u"fig. |"
    u"also known as |also called |also termed |aka |also |esp. |especially |usu. |usually |often |"
    u"originally |orig. |i.e. |e.g. |or |abbr. for |abbr. of |acronym for |short for |"
    u"short name for |same as |equivalent to |another word for |another name for |"
    u"another name of |another term for |alternative name for |alternative name of |"
    u"alternative term for |other name for |common name for |common name of |popular name for |"
    u"colloquial name for |colloquial term for |informal name for |generic name for |"
    u"generic term for |general term for |general name for |collective name for |"
    u"collective term for |modern: |";
/// Before a single word they are part of the meaning: "originally planned", "especially urgent".
constexpr std::u16string_view kAdverbs = u"originally |especially |often |usually |also |";
/// Phrases that begin as marks do.
constexpr std::u16string_view kPhrases = u"or else|or so|or more|or less|or not|";
/// They name another word or a foreign one, which is no meaning.
constexpr std::u16string_view kOtherWords =
    u"opposite: |antonym: |Latin: |Japanese: |Korean: |Turkish: |Sanskrit: |full name: |see also: |"
    u"classifier: |structural particle: |";

/// Notes that the glosses of idioms and the like have.
constexpr std::u16string_view kPhraseNotes =
    u"(idiom)|(idiom;|(idiom,|, idiom)|(proverb|proverb)|(saying|saying)|slogan)|";

bool isSmall(char16_t unit) { return unit >= u'a' && unit <= u'z'; }

/// Returns whether the text is nothing but a mark, which is then the meaning: "also known as".
bool isWholeMark(std::u16string_view piece) {
  const std::u16string mark = std::u16string(piece) + u' ';
  return isListed(kOtherMarks, mark) && wordCount(piece) > 1;
}

/// Removes the items of the list at the beginning of `piece`; returns whether there was one.
bool takeListed(std::u16string_view list, std::u16string_view& piece) {
  const std::u16string_view mark = listedBeginning(list, piece);
  const std::u16string_view rest = piece.substr(mark.size());
  const bool word = wordCount(rest) == 1 && isSmall(rest[0]);
  if ((word && isListed(kAdverbs, mark)) || isListed(kPhrases, piece)) return false;
  // "ancient name of a river" describes.
  if (mark.ends_with(u" of ") && (rest.starts_with(u"a ") || rest.starts_with(u"an ")))
    return false;
  piece.remove_prefix(mark.size());
  return !mark.empty();
}

/// Removes the marks at the beginning of `piece`, and returns what they say.
Marks takeMarks(std::u16string_view& piece) {
  Marks marks;
  if (isWholeMark(piece)) return marks;
  marks.example = piece.starts_with(u"esp. ");
  for (bool again = true; again;) {
    again = takeListed(kOtherMarks, piece);
    if (takeListed(kLiteralMarks, piece)) marks.literal = again = true;
    if (takeListed(kUsageMarks, piece)) marks.usage = again = true;
  }
  return marks;
}

/// Returns whether a sentence ends behind the bracket at `close` and another one follows: "Time
/// makes the man (idiom). The trend of events …".
bool endsSentence(std::u16string_view gloss, std::size_t close) {
  const std::u16string_view after = gloss.substr(close + 1);
  return after.size() > 2 && (after[0] == u'.' || after[0] == u'!' || after[0] == u'?') &&
         after[1] == u' ' && after[2] >= u'A' && after[2] <= u'Z';
}

/// The pieces between semicolons outside brackets and quotation marks.
std::vector<std::u16string_view> splitPieces(std::u16string_view gloss) {
  std::vector<std::u16string_view> pieces;
  std::size_t begin = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < gloss.size(); ++i) {
    if (gloss[i] == u'"') quoted = !quoted;
    if (gloss[i] == u'(' || gloss[i] == u'[') {
      const std::size_t close = closingPosition(gloss, i);
      if (close == std::u16string_view::npos) continue;
      i = close;
      if (quoted || !endsSentence(gloss, close)) continue;
      pieces.push_back(gloss.substr(begin, close + 1 - begin));
      begin = close + 2;
    } else if (gloss[i] == u';' && !quoted) {
      pieces.push_back(gloss.substr(begin, i - begin));
      begin = i + 1;
    }
  }
  pieces.push_back(gloss.substr(begin));
  return pieces;
}

/// "bamboo radical in Chinese characters" is "bamboo radical".
std::u16string_view withoutRadicalKind(std::u16string_view english) {
  constexpr std::u16string_view kKind = u" in Chinese characters";
  const std::size_t at = english.find(kKind);
  const bool radical = at < english.size() && english.substr(0, at).ends_with(u" radical");
  return radical ? english.substr(0, at) : english;
}

/// Parses the pieces of one gloss from left to right.
class GlossParser {
 public:
  explicit GlossParser(WordKind kind) : kind_(kind) {}

  ParsedGloss run(std::u16string_view gloss) {
    for (const std::u16string_view piece : splitPieces(gloss)) readPiece(foldBlanks(piece));
    return std::move(result_);
  }

 private:
  void readPiece(std::u16string_view piece) {
    const NotedText noted = withoutGlossNotes(piece);
    const NoteMeaning& meaning = noted.meaning;
    std::u16string_view text = noted.whole.empty() ? noted.text : noted.whole;
    const Marks marks = takeMarks(text);
    literal_ = marks.literal || (meaning.literal && !meaning.figurative);
    // "lit. whole sky, a multitude of stars", but "lit. Rushing Clan, generation born …".
    phrase_ = kind_ == WordKind::kPhrase || (marks.literal && !text.empty() && isSmall(text[0]));
    figurative_ = meaning.figurative || piece.starts_with(u"fig. ");
    if (!begun_ && piece.starts_with(u'(') && !noted.described) shared_ = meaning;
    begun_ = true;
    if (text.empty() || isAside(text) || !listedBeginning(kOtherWords, text).empty()) return;
    // "(onom.) for plopping sound" describes.
    const bool sound = piece.starts_with(u"(onom.) for ");
    if (sound) text.remove_prefix(text.starts_with(u"for ") ? 4 : 0);
    // The phrase before a reference may be one of the marks.
    if (std::optional<GlossReference> reference = findReference(noted.text)) {
      addReference(*std::move(reference), noted);
      return;
    }
    // A gloss that is a note altogether says what kind of word this is.
    if (noted.described) return;
    std::optional<std::u16string> english = withoutChinese(text);
    if (!english) return;
    if (english->ends_with(u" aka")) english->erase(english->size() - 4);
    // So that the name after the article is seen to be one: "the Louvre, museum in Paris".
    const bool name = english->starts_with(u"the ") && english->size() > 4 &&
                      (*english)[4] >= u'A' && (*english)[4] <= u'Z' &&
                      !isSentence(english->substr(0, english->find_first_of(u",:")));
    if (name) english->erase(0, 4);
    if (!english->empty()) addEnglish(*english, noted, marks.usage, sound || marks.example);
  }

  /// Adds the meaning that the gloss tells of a variant, or the word to which it refers.
  void addReference(GlossReference reference, const NotedText& noted) {
    reference.usage = reference.usage || noted.meaning.usage || shared_.usage;
    if (!reference.meaning.empty()) addEnglish(reference.meaning, noted, reference.usage);
    const bool told = !reference.meaning.empty() && !result_.glosses.empty();
    if (!told) result_.references.push_back(std::move(reference));
  }

  void addEnglish(std::u16string_view english, const NotedText& noted, bool usage,
                  bool describes = false) {
    NoteMeaning meaning = noted.meaning;
    meaning |= shared_;
    if (isUsageNote(english)) return;
    const std::u16string_view other = otherNameFor(english);
    // A character is a part of the name only: "given name of Mencius".
    const bool part =
        kind_ == WordKind::kCharacter && english.find(u" for ") == std::u16string_view::npos;
    if (!other.empty() && !part) english = other;
    usage = usage || !other.empty();
    describes = describes || (!other.empty() && part);
    const NamedText plain = withoutSymbol(withoutRadicalKind(english));
    const std::u16string_view equivalent = withoutApposition(plain.text, phrase_);
    const bool described = describes || !noted.whole.empty() || isDescription(equivalent);
    SubjectSet subjects = meaning.subjects;
    if (describesPlace(english)) subjects |= setOf(Subject::kPlace);
    const bool names = (subjects & kNameSubjects) != 0;
    std::vector<std::u16string_view> texts = listedEquivalents(equivalent, names);
    if (kind_ == WordKind::kCharacter && texts.size() == 1) texts = alternativeWords(equivalent);
    for (const std::u16string_view text : texts) {
      for (const std::u16string& name : namesWithKind(text)) {
        const std::optional<std::u16string> word = englishHeadword(name, phrase_ || figurative_);
        if (word) add(*word, subjects, valueOf(*word, described, usage || meaning.usage));
        const std::u16string people(nameOfPeople(name));
        if (people.empty()) continue;
        add(people, subjects, valueOf(people, described, usage || meaning.usage));
      }
    }
    for (const std::u16string& initials : {noted.initials, plain.initials}) {
      if (initials.empty()) continue;
      add(initials, subjects, valueOf(initials, false, usage || meaning.usage));
    }
  }

  [[nodiscard]] GlossValue valueOf(std::u16string_view word, bool described, bool usage) const {
    const bool surname =
        word.find(u"surname ") != std::u16string_view::npos || word.ends_with(u" surname");
    if (surname) return GlossValue::kSurname;
    if (literal_) return GlossValue::kLiteral;
    if (described || wordCount(word) > kMaxPairWords) return GlossValue::kExplanation;
    return usage ? GlossValue::kUsage : GlossValue::kPair;
  }

  void add(const std::u16string& word, SubjectSet subjects, GlossValue value) {
    result_.glosses.push_back({word, wordCount(word), subjects, value});
  }

  WordKind kind_;
  ParsedGloss result_;
  NoteMeaning shared_;  ///< of the note at the beginning
  bool begun_ = false;
  bool literal_ = false;  ///< of the piece
  bool figurative_ = false;
  bool phrase_ = false;  ///< whether the commas of the piece are those of a sentence
};

}  // namespace

bool marksPhrase(std::u16string_view gloss) {
  return !findListed(kPhraseNotes, [&](std::u16string_view note) {
            return gloss.find(note) != std::u16string_view::npos;
          }).empty();
}

ParsedGloss parseGloss(std::u16string_view gloss, WordKind kind) {
  return GlossParser(kind).run(foldBlanks(text::withoutAccents(withAsciiMarks(gloss))));
}

}  // namespace dictionary
