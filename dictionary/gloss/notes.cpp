// A note is deleted unless the words around it need it. They do in five cases, which are told from
// the characters next to the brackets and from the words before them:
// - without a blank before or after: part of a word or a formula ("(hand)bag", "Ca(OH)2"), or the
//   ending of another form, which is not needed ("child(ren)");
// - a little word that begins the phrase, or "not" anywhere: "(in) return";
// - a possessive, or the object of certain verbs: "in (sb's) eyes", "to make (sb) cry";
// - the object of an article, a conjunction or a preposition at the end: "in (a place)". Verbs do
//   without it: "to belong to (a group)" is "belong to".

#include "dictionary/gloss/notes.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names/names.h"
#include "dictionary/gloss/symbols.h"
#include "dictionary/gloss/word_list.h"
#include "dictionary/source/characters.h"
#include "dictionary/source/cleanup.h"
#include "dictionary/translation/brackets.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

constexpr std::u16string_view kOpenWords =
    u"a|an|the|and|or|than|that|sb's|one's|my|your|his|no|neither|";
/// Words that need the noun in a note: "using several (methods)".
constexpr std::u16string_view kBeforeNouns = u"several|different|this|first|";
constexpr std::u16string_view kPrepositions =
    u"of|to|with|for|as|in|on|at|from|by|into|like|about|between|without|";
/// They go on after the years of a treaty or an age.
constexpr std::u16string_view kAfterYears =
    u"and|or|that|which|who|whose|when|after|during|under|until|founded|aka|";
/// Kept at the beginning of a phrase.
constexpr std::u16string_view kLittleWords =
    u"in|the|of|just|for|to|it|on|within|at|a|to be|as|be|with|by|since|from|under|over|out of|";
/// Kept anywhere: they reverse the meaning.
constexpr std::u16string_view kNegations = u"not|cannot|never|un|non|don't|";
/// Objects that stand for any other: a preposition before them can do without.
constexpr std::u16string_view kPlaceholders =
    u"sb|sth|sb or sth|do sth|doing sth|somebody|something|sb else|sth or sb|to do sth|"
    u"sb to do sth|";
/// Verbs that say nothing without their object, and the adverbs with which they do: "to let (sb)
/// down".
constexpr std::u16string_view kObjectVerbs = u"let|make|have|get|find|do|try|set|";
constexpr std::u16string_view kParticles =
    u"up|off|down|away|out|over|on|in|go|back|aside|around|about|along|through|together|";
/// How the objects in notes begin: "to charge (an entity) with (a task)".
constexpr std::u16string_view kObjects = u"a |an |the |one's |sb's |";
/// What the object's preposition is followed by, if not by a bracket or the end.
constexpr std::u16string_view kSecondObjects = u"(|sb|sth|";
/// Where one of these follows, it speaks of the object: "to use (sth) on its own".
constexpr std::u16string_view kBackReferences =
    u"oneself|himself|themselves|itself|one's|his|their|them|its|each|";
constexpr std::u16string_view kAfterSubject = u"is|are|was|were|";
/// Possessives besides those in "'s".
constexpr std::u16string_view kPossessives = u"my|your|his|her|its|our|their|this|";
/// Subjects and objects inside a sentence.
constexpr std::u16string_view kPronouns = u"you|I|we|he|she|they|it|me|him|them|";
constexpr std::size_t kMaxKeptWords = 4;

bool isSmall(char16_t unit) { return unit >= u'a' && unit <= u'z'; }

/// "s" and "ren" in "year(s)", "child(ren)".
bool isEnding(std::u16string_view note) {
  return note.size() <= 3 && std::ranges::all_of(note, isSmall);
}

/// "II" and "OH" in "copper(II)", "Ca(OH)2".
bool isFormula(std::u16string_view note) {
  return !note.empty() && std::ranges::all_of(note, [](char16_t unit) {
    return isAsciiLetter(unit) || isDigit(unit) || unit == u',' || unit == u'-' || unit == u'+';
  });
}

/// "1596-1650", "died 409", "c. 21st century BC"
bool tellsYears(std::u16string_view note) {
  std::size_t digits = 0;
  for (const char16_t unit : note) {
    digits = isDigit(unit) ? digits + 1 : 0;
    if (digits == 3) return true;
  }
  return note.ends_with(u" BC");
}

/// Returns whether what follows the years of a name tells who it is: "Tan Dun (1957-) Chinese
/// composer", but not "Treaty of Nerchinsk (1689) between Russia and China", "Zhou Dynasty
/// (1046-256 BC) vassal state".
bool describesName(std::u16string_view name, std::u16string_view after) {
  const std::u16string_view next = firstWord(after);
  if (name.empty() || next.empty() || !isAsciiLetter(next[0]) || !isName(name)) return false;
  const bool age = lowered(lastWord(name)) == u"dynasty" || lowered(lastWord(name)) == u"period";
  const bool several = name.find(u" and ") != std::u16string_view::npos;  // "Wei (220-265) and Jin"
  return !age && !several && !isListed(kPrepositions, next) && !isListed(kAfterYears, next);
}

/// "you" in "you, they etc".
std::u16string_view firstListed(std::u16string_view note) {
  return note.substr(0, note.find(u','));
}

/// "sb's", "your", "a country's", but not "or Kant's".
bool isPossessive(std::u16string_view note) {
  const std::u16string_view word = lastWord(note);
  return (word.ends_with(u"'s") || isListed(kPossessives, word)) && !note.starts_with(u"or ");
}

bool isPlaceholder(std::u16string_view note) {
  return isListed(kPlaceholders, note) || note == u"one" || note == u"people";
}

/// Returns whether the object in brackets between the words is needed: "to let (sb) know".
bool needsObject(std::u16string_view verb, std::u16string_view after) {
  const std::u16string_view next = firstWord(after);
  if (isListed(kObjectVerbs, verb) && !isListed(kParticles, next)) return true;
  if (next == u"the" || isListed(kAfterSubject, next)) return true;
  for (std::u16string_view rest = after; !rest.empty();) {
    const std::u16string_view word = firstWord(rest);
    if (isListed(kBackReferences, word)) return true;
    rest.remove_prefix(std::min(rest.size(), word.size() + 1));
  }
  return false;
}

/// Returns whether the note is the object of the verb at the end of `before`, and `after` begins
/// with the preposition of another one: "to insert (a plug) into (a socket)", "to place (hope etc)
/// on".
bool isDroppedObject(std::u16string_view note, std::u16string_view before,
                     std::u16string_view after) {
  const bool object = !listedBeginning(kObjects, note).empty() || note.ends_with(u" etc");
  const bool verb = !listedBeginning(u"to |cannot |", before).empty() &&
                    !isListed(kOpenWords, lastWord(before)) &&
                    !isListed(kPrepositions, lastWord(before)) &&
                    !isListed(kPlaceholders, lastWord(before));
  const bool other = !listedBeginning(u"or |and |i.e. |e.g. |as |", note).empty();
  if (!object || !verb || other) return false;
  if (after.starts_with(u"away from")) return true;
  const std::u16string_view preposition = firstWord(after);
  const std::u16string_view next = after.substr(std::min(after.size(), preposition.size() + 1));
  const bool second = next.empty() || !listedBeginning(kSecondObjects, next).empty();
  return isListed(kPrepositions, preposition) && second;
}

/// A note of a gloss: its brackets are at `open` and `close`.
struct Note {
  std::size_t open = 0;
  std::size_t close = 0;
  std::u16string_view content;
};

/// Collects the text of one gloss while its notes are read from left to right.
class NoteRemover {
 public:
  explicit NoteRemover(std::u16string_view gloss) : gloss_(gloss) {}

  NotedText run() {
    std::size_t at = 0;
    while (at < gloss_.size()) {
      if (gloss_[at] != u'(') {
        add(gloss_.substr(at++, 1));
        continue;
      }
      const std::size_t close = closingPosition(gloss_, at);
      if (close == std::u16string_view::npos) break;  // the rest is a note that does not end
      const Note note{at, close, gloss_.substr(at + 1, close - at - 1)};
      at = isFormulaNote(note) ? wordEnd(close) : close + 1;
      if (at == close + 1) read(note);
    }
    result_.text = foldBlanks(withoutLooseBlanks(result_.text));
    if (broken_) result_.whole = foldBlanks(withoutLooseBlanks(whole_));
    if (result_.text.empty() && !unknown_.empty()) {
      result_.text = unknown_;
      result_.described = true;
    }
    return std::move(result_);
  }

 private:
  /// "(CH2O)3" after a blank: a formula whose brackets are part of it.
  [[nodiscard]] bool isFormulaNote(const Note& note) const {
    const bool parted = note.open == 0 || gloss_[note.open - 1] == u' ';
    return parted && isFormula(note.content) && std::ranges::any_of(note.content, isDigit) &&
           wordEnd(note.close) > note.close + 1;
  }

  [[nodiscard]] std::size_t wordEnd(std::size_t at) const {
    return std::min(gloss_.find_first_of(u" ,;", at), gloss_.size());
  }

  void read(const Note& note) {
    const bool attachedBefore = note.open > 0 && gloss_[note.open - 1] != u' ' &&
                                u"\"-/"sv.find(gloss_[note.open - 1]) == std::u16string_view::npos;
    const bool attachedAfter =
        note.close + 1 < gloss_.size() && isAsciiLetter(gloss_[note.close + 1]);
    if (attachedBefore) {
      const bool formula = !isEnding(note.content) && isFormula(note.content);
      if (formula) add(gloss_.substr(note.open, note.close + 1 - note.open));
    } else if (attachedAfter || isNeeded(note)) {
      add(note.content);
    } else {
      readMeaning(note);
    }
  }

  void readMeaning(const Note& note) {
    const std::u16string text = foldBlanks(result_.text);
    if (areInitials(note.content, text)) result_.initials = note.content;
    if (tellsYears(note.content) &&
        describesName(text, foldBlanks(gloss_.substr(note.close + 1)))) {
      add(u",");
    }
    const NoteMeaning meaning = readNote(note.content);
    result_.meaning |= meaning;
    const bool mark = meaning.usage || meaning.label || meaning.literal || meaning.figurative;
    if (mark) return;
    unknown_ = note.content;
    if (meaning.subjects != 0) return;
    // "Do (you, they etc) have": one of them is enough. What comes first is about the text.
    const std::u16string_view first = firstListed(note.content);
    if (!text.empty()) whole_ += isListed(kPronouns, first) ? first : note.content;
    broken_ = broken_ || breaks(note, text);
  }

  void add(std::u16string_view text) {
    result_.text += text;
    whole_ += text;
  }

  /// Returns whether the sentence is broken without the note, `before` being the text so far: "be
  /// older than (sb) by", "who do (you) think", "to assign the task of (doing sth)".
  [[nodiscard]] bool breaks(const Note& note, std::u16string_view before) const {
    const std::u16string after = foldBlanks(gloss_.substr(note.close + 1));
    const std::u16string_view next = firstWord(after);
    const std::u16string_view finalWord = lastWord(before);
    if (before.empty()) return false;
    if (next.empty()) {
      const std::u16string_view object = before.substr(0, before.size() - finalWord.size());
      const bool noun = object.find(u" the ") != std::u16string_view::npos;
      return noun && finalWord == u"of" && before.starts_with(u"to ");
    }
    // "to denounce (sb) as (sth contemptible)"
    const std::u16string_view last = std::u16string_view(after).substr(next.size());
    const bool both = isPlaceholder(note.content) && isListed(kPrepositions, next) &&
                      last.starts_with(u" (") &&
                      !isListed(kPrepositions, firstWord(last.substr(2)));
    if (both || isDroppedObject(note.content, before, after)) return true;
    const bool open = isListed(kPrepositions, finalWord) || isListed(kOpenWords, finalWord);
    const bool joins = isListed(kPrepositions, next) || next == u"than" || next == u"that";
    // "why do you (he, etc) say so" has a subject already.
    const bool subject =
        isListed(kPronouns, firstListed(note.content)) && !isListed(kPronouns, finalWord);
    return next == finalWord || subject || (open && joins);
  }

  /// Returns whether the words on both sides need the note: "in (sb's) eyes", "to make (sb) cry".
  [[nodiscard]] bool joins(const Note& note, std::u16string_view before) const {
    const std::u16string after = foldBlanks(gloss_.substr(note.close + 1));
    if (after.empty() || !isAsciiLetter(after[0])) return false;
    if (before.empty()) return note.content.starts_with(u"not ") && isPossessive(note.content);
    if (note.content == u"one" || isPossessive(note.content)) return true;
    return isPlaceholder(note.content) && needsObject(lastWord(before), after);
  }

  [[nodiscard]] bool isNeeded(const Note& note) const {
    const std::u16string before = foldBlanks(result_.text);
    const std::u16string_view after = gloss_.substr(note.close + 1);
    if (isListed(kNegations, note.content) || joins(note, before)) return true;
    if (isListed(kLittleWords, note.content)) return before.empty() && !after.empty();
    const NoteMeaning meaning = readNote(note.content);
    const bool known = meaning.subjects != 0 || meaning.usage || meaning.label;
    const bool last = std::ranges::all_of(
        after, [](char16_t unit) { return u" .!?,;"sv.find(unit) != std::u16string_view::npos; });
    if (known || !last || before.empty() || wordCount(note.content) > kMaxKeptWords) return false;
    const std::u16string_view word = lastWord(before);
    const bool noun = isListed(kBeforeNouns, word) && wordCount(note.content) == 1;
    if (noun || isListed(kOpenWords, word)) return true;
    if (!isListed(kPrepositions, word) || before.starts_with(u"to ")) return false;
    if (isListed(kPlaceholders, note.content)) return false;
    // "a mountain of (paperwork etc)", but "short of (money, time etc)"
    const bool amount = word == u"of" && !listedBeginning(u"a |an |the |such a |", before).empty();
    return amount || (note.content.find(u',') == std::u16string_view::npos &&
                      !note.content.ends_with(u" etc"));
  }

  static std::u16string withoutLooseBlanks(std::u16string_view text) {
    std::u16string result;
    for (const char16_t unit : text) {
      const bool mark = unit == u',' || unit == u';';
      if (mark && result.ends_with(u' ')) result.pop_back();
      if (mark && (result.empty() || result.ends_with(unit))) continue;
      result += unit;
    }
    return result;
  }

  std::u16string_view gloss_;
  std::u16string whole_;  ///< the text with its notes but marks, without their brackets
  bool broken_ = false;
  std::u16string_view unknown_;  ///< the last note that is more than a mark
  NotedText result_;
};

}  // namespace

NotedText withoutGlossNotes(std::u16string_view gloss) { return NoteRemover(gloss).run(); }

}  // namespace dictionary
