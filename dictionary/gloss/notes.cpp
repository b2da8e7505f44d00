// A note is deleted unless the words around it need it. They do in four cases, which are told from
// the characters next to the brackets and from the words before them:
// - without a blank before or after: part of a word or a formula ("(hand)bag", "Ca(OH)2"), or the
//   ending of another form, which is not needed ("child(ren)");
// - a little word that begins the phrase, or "not" anywhere: "(in) return";
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
constexpr std::u16string_view kPrepositions =
    u"of|to|with|for|as|in|on|at|from|by|into|like|about|between|without|";
/// They go on after the years of a treaty or an age.
constexpr std::u16string_view kAfterYears =
    u"and|or|that|which|who|whose|when|after|during|under|until|founded|aka|";
/// Kept at the beginning of a phrase.
constexpr std::u16string_view kLittleWords =
    u"in|the|of|just|for|to|it|on|within|at|a|to be|as|be|with|by|";
/// Kept anywhere: they reverse the meaning.
constexpr std::u16string_view kNegations = u"not|cannot|never|un|non|don't|";
/// Objects that stand for any other: a preposition before them can do without.
constexpr std::u16string_view kPlaceholders =
    u"sb|sth|sb or sth|do sth|doing sth|somebody|something|sb else|sth or sb|to do sth|"
    u"sb to do sth|";
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
    whole_ += note.content;
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
    const bool open = isListed(kPrepositions, finalWord) || isListed(kOpenWords, finalWord);
    const bool joins = isListed(kPrepositions, next) || next == u"than" || next == u"that";
    return next == finalWord || isListed(kPronouns, note.content) || (open && joins);
  }

  [[nodiscard]] bool isNeeded(const Note& note) const {
    const std::u16string before = foldBlanks(result_.text);
    const std::u16string_view after = gloss_.substr(note.close + 1);
    if (isListed(kNegations, note.content)) return true;
    if (isListed(kLittleWords, note.content)) return before.empty() && !after.empty();
    const NoteMeaning meaning = readNote(note.content);
    const bool known = meaning.subjects != 0 || meaning.usage || meaning.label;
    const bool last = std::ranges::all_of(
        after, [](char16_t unit) { return u" .!?,;"sv.find(unit) != std::u16string_view::npos; });
    if (known || !last || before.empty() || wordCount(note.content) > kMaxKeptWords) return false;
    const std::u16string_view word = lastWord(before);
    if (isListed(kOpenWords, word)) return true;
    return isListed(kPrepositions, word) && !before.starts_with(u"to ") &&
           !isListed(kPlaceholders, note.content) &&
           note.content.find(u',') == std::u16string_view::npos && !note.content.ends_with(u" etc");
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
