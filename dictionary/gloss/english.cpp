#include "dictionary/gloss/english.h"

#include <algorithm>
#include <array>

#include "dictionary/gloss/word_list.h"
#include "dictionary/source/characters.h"
#include "dictionary/source/cleanup.h"
#include "text/word_characters.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

struct WrittenOut {
  std::u16string_view word;
  std::u16string_view full;
};
constexpr auto kAbbreviations = std::to_array<WrittenOut>({{u"sb", u"somebody"},
                                                           {u"sb's", u"somebody's"},
                                                           {u"sth", u"something"},
                                                           {u"sth's", u"something's"},
                                                           {u"smth", u"something"},
                                                           {u"sb/sth", u"somebody/something"}});

/// After these "to" does not mark a verb: "to the point", "to one's heart's content".
constexpr std::u16string_view kAfterPreposition =
    u"the|a|an|this|that|one's|no|some|and|my|me|your|his|such|which|what|sb's|all|each|sb|death|"
    u"oneself|himself|everyone's|";

/// Words before which an article is part of the meaning: "a little" is not "little".
constexpr std::u16string_view kAfterArticle =
    u"la|priori|posteriori|cappella|little|few|lot|bit|while|great|good|number|more|moment|same|"
    u"certain|couple|other|long|short|year|day|month|week|second|person|";

/// Verbs of a sentence. Some are nouns after kBeforeNoun: "the will of the people".
constexpr std::u16string_view kFiniteVerbs =
    u"is|are|was|were|isn't|aren't|will|won't|must|can|can't|cannot|may|should|would|has|have|had|"
    u"does|doesn't|don't|knows|gets|comes|goes|";
constexpr std::u16string_view kArticles = u"a|an|the|";
constexpr std::u16string_view kBeforeNoun = u"a|an|the|to|of|";
/// A clause that begins with one of these, or a verb after a pronoun, explains the noun before it:
/// "a person who is strict", "the road one must follow".
constexpr std::u16string_view kRelatives =
    u"who|whom|whose|which|that|what|where|whereby|when|how|why|if|as|";
constexpr std::u16string_view kSubjects = u"one|you|we|I|he|she|they|it|sb|";
/// After a verb in "s": "a fine bird chooses a tree".
constexpr std::u16string_view kAfterVerb =
    u"a|an|the|his|her|its|their|one's|you|us|him|them|sb|sth|";

/// Verbs of the sentences that idioms are; elsewhere they may be nouns.
constexpr std::u16string_view kPhraseVerbs =
    u"become|became|came|flew|contend|bloom|outweigh|surpass|remain|looks|reigns|do|";
/// What follows a verb without an object: "the sun sets in the west", "the buck stops here".
constexpr std::u16string_view kAfterPhraseVerb =
    u"in|on|over|at|out|off|away|down|up|into|through|to|past|after|as|here|there|apart|around|by|"
    u"without|against|back|no|low|early|once|outward|turn|";
/// The subject of a phrase ends before them: what follows belongs to a noun.
constexpr std::u16string_view kAfterSubject =
    u"of|in|on|with|for|at|from|by|like|to|off|among|under|between|about|without|against|worth|but|"
    u"and|or|";
constexpr std::u16string_view kNumerals = u"hundred|thousand|million|few|dozen|ten|";

/// Abbreviations that keep their full stop at the end of a gloss.
constexpr std::u16string_view kWithStop =
    u"Inc.|Ltd.|Co.|Corp.|Jr.|Sr.|Mr.|Mrs.|Ms.|Dr.|No.|St.|vs.|";

bool isSmall(char16_t unit) { return unit >= u'a' && unit <= u'z'; }

std::u16string writtenOut(std::u16string_view text) {
  std::u16string result;
  while (!text.empty()) {
    const std::u16string_view word = firstWord(text);
    const std::size_t end = word.find_first_of(u",.;:!?");
    const auto* const found =
        std::ranges::find(kAbbreviations, word.substr(0, end), &WrittenOut::word);
    result += found == kAbbreviations.end() ? word.substr(0, end) : found->full;
    if (end != std::u16string_view::npos) {
      // "sb." is the same as "sb", unless a sentence ends there, which takes no full stop either.
      const bool stop = found != kAbbreviations.end() && word.substr(end) == u".";
      if (!stop) result += word.substr(end);
    }
    text.remove_prefix(std::min(text.size(), word.size() + 1));
    if (!text.empty()) result += u' ';
  }
  return result;
}

/// Returns whether the word, which `next` follows, may be a verb such as "chooses".
bool isThirdPerson(std::u16string_view word, std::u16string_view next) {
  return word.size() > 3 && word.ends_with(u's') && !word.ends_with(u"ss") &&
         !word.ends_with(u"'s") && isListed(kAfterVerb, next);
}

/// Returns whether the word after the subject `before` of a phrase is its verb: "reigns" in "the
/// customer reigns supreme". After "a" no noun is in the plural.
bool isPhraseVerb(std::u16string_view word, std::u16string_view before, std::u16string_view next,
                  bool singular) {
  const bool third = word.size() > 3 && word.ends_with(u's') && !word.ends_with(u"ss") &&
                     !word.ends_with(u"us") && !word.ends_with(u"'s") &&
                     !isListed(kNumerals, before);
  return third && (singular || isListed(kAfterVerb, next) || isListed(kAfterPhraseVerb, next) ||
                   next.ends_with(u"ly"));
}

/// Returns whether the text of an idiom, which begins with an article, has a verb: "the sun shines
/// brightly".
bool isPhraseSentence(std::u16string_view text) {
  std::u16string_view before = firstWord(text);
  bool singular = before == u"a" || before == u"an";
  text.remove_prefix(std::min(text.size(), before.size() + 1));
  bool subject = true;  // whether the words are still those of the subject
  for (bool first = true; !text.empty(); first = false) {
    const std::u16string_view word = firstWord(text);
    text.remove_prefix(std::min(text.size(), word.size() + 1));
    if (isListed(kRelatives, word) || (!first && word.ends_with(u"ing"))) return false;
    // "a mighty figure no-one dares approach"
    if (before == u"no-one" || isListed(kSubjects, before)) return false;
    const bool noun = first || isListed(kBeforeNoun, before);
    if (!noun && isListed(kPhraseVerbs, word)) return true;
    subject = subject && !isListed(kAfterSubject, word);
    if (subject && !noun && isPhraseVerb(word, before, firstWord(text), singular)) return true;
    if (word.ends_with(u"'s")) singular = false;  // "a girl's teenage years"
    before = word;
  }
  return false;
}

/// Removes the verb's "to" or an article.
std::u16string_view withoutLeadingWords(std::u16string_view text, bool phrase) {
  const bool verb = text.starts_with(u"to ") || (text.starts_with(u"To ") && isSmall(text[3]));
  const bool adverb = text == u"to date";  // "to date somebody" is a verb
  if (verb && !adverb && !isListed(kAfterPreposition, firstWord(text.substr(3)))) {
    return text.substr(3);
  }
  for (const std::u16string_view article : {u"a "sv, u"an "sv, u"the "sv, u"The "sv}) {
    if (!text.starts_with(article)) continue;
    const std::u16string_view rest = text.substr(article.size());
    const bool kept = isListed(kAfterArticle, firstWord(rest)) || rest.starts_with(u"more") ||
                      rest.starts_with(u"less") || rest.find(u", the ") < rest.size() ||
                      isSentence(text) || (phrase && isPhraseSentence(text));
    return kept ? text : rest;
  }
  return text;
}

bool keepsStop(std::u16string_view text) {
  const std::u16string_view ending = lastWord(text);
  const bool inner = ending.substr(0, ending.size() - 1).find(u'.') != std::u16string_view::npos;
  return inner || ending.size() == 2 || isListed(kWithStop, ending);
}

bool isSymbol(std::u16string_view word) {
  return std::ranges::all_of(
      word, [](char16_t unit) { return unit < 0x80 && !isAsciiLetter(unit) && !isDigit(unit); });
}

/// Removes symbols and marks at the end: "asterisk *". The hyphen of a prefix and a charge stay:
/// "poly-", "OH-".
std::u16string_view withoutEndMarks(std::u16string_view text) {
  while (!text.empty()) {
    const std::u16string_view last = lastWord(text);
    const bool mark = u" .,;:!?-=/"sv.find(text.back()) != std::u16string_view::npos;
    const bool stop = text.back() == u'.' && !text.ends_with(u"..") && keepsStop(text);
    if (isSymbol(last)) {
      text.remove_suffix(std::max<std::size_t>(last.size(), 1));
    } else if (mark && !stop && text.back() != u'-') {
      text.remove_suffix(1);
    } else {
      break;
    }
  }
  return text;
}

/// Removes marks at the beginning. The hyphen of a suffix stays: "-ation".
std::u16string_view withoutBeginMarks(std::u16string_view text) {
  while (!text.empty() && u" .,;:!?-=/"sv.find(text.front()) != std::u16string_view::npos) {
    const bool joined = text.size() > 1 && text[0] != u' ' &&
                        (isDigit(text[1]) || (text[0] == u'-' && isAsciiLetter(text[1])));
    if (joined) break;
    text.remove_prefix(1);
  }
  return text;
}

/// Removes marks around the headword, and quotation marks anywhere, which no headword may hold.
std::u16string withoutMarks(std::u16string_view text) {
  std::u16string plain(text);
  std::erase(plain, u'"');
  const std::u16string_view bare = withoutBeginMarks(withoutEndMarks(plain));
  const bool quoted = bare.size() > 2 && bare.front() == u'\'' && bare.back() == u'\'';
  return std::u16string(quoted ? bare.substr(1, bare.size() - 2) : bare);
}

/// Removes what follows the name of a genus: "Tyrannosaurus spp."
std::u16string_view withoutSpecies(std::u16string_view text) {
  for (const std::u16string_view ending : {u" sp"sv, u" sp."sv, u" spp"sv, u" spp."sv}) {
    if (wordCount(text) == 2 && text.ends_with(ending)) return firstWord(text);
  }
  return text;
}

/// "more {adj.} than {noun}", "be ...ed": nobody looks these up.
bool isPattern(std::u16string_view word) {
  if (word.find_first_of(u"{}~<>^") != std::u16string_view::npos) return true;
  const std::size_t dots = word.find(u"...");
  const std::size_t next = dots == std::u16string_view::npos ? dots : dots + 3;
  return next < word.size() && word[next] != u' ';
}

}  // namespace

std::u16string withAsciiMarks(std::u16string_view text) {
  std::u16string result;
  for (const char16_t unit : text) {
    switch (unit) {
      case u'“':
      case u'”':
        result += u'"';
        break;
      case u'‘':
      case u'’':
      case u'ʻ':
        result += u'\'';
        break;
      case u'–':
      case u'—':
        result += u'-';
        break;
      case u'…':
        result += u"...";
        break;
      case u'、':
        result += u", ";
        break;
      default:
        result += unit;
    }
  }
  return result;
}

std::optional<std::u16string> englishHeadword(std::u16string_view gloss, bool phrase) {
  const std::u16string plain = withoutMarks(foldBlanks(text::withoutAccents(gloss)));
  const std::u16string full = writtenOut(withoutLeadingWords(plain, phrase));
  const std::u16string word = withoutMarks(withoutSpecies(full));
  // "Is there a ...?"
  const bool open = wordCount(word) > 1 && isListed(kArticles, lastWord(word));
  return open || isPattern(word) ? std::nullopt : headword(word);
}

bool isSentence(std::u16string_view text) {
  // "the closer one is to the end, the tougher it gets"
  const bool correlative = text.starts_with(u"the ") &&
                           text.find(u", the ") != std::u16string_view::npos &&
                           firstWord(text.substr(4)).ends_with(u"er");
  if (correlative) return true;
  std::u16string_view before;
  bool doubtful = false;  // whether there was a word that may be a verb
  for (std::u16string_view rest = text; !rest.empty();) {
    const std::u16string_view word = firstWord(rest);
    rest.remove_prefix(std::min(rest.size(), word.size() + 1));
    if (isListed(kRelatives, word)) break;
    const bool noun =
        before.empty() || isListed(kBeforeNoun, before) || before.ends_with(u"'s") || rest.empty();
    // "the classics a scholar must read": another noun is the subject of the verb.
    if (noun && !before.empty() && isListed(kArticles, firstWord(rest))) return false;
    if (!noun && isListed(kFiniteVerbs, word)) return !isListed(kSubjects, before);
    doubtful = doubtful || (!noun && isThirdPerson(word, firstWord(rest)));
    before = word;
  }
  return doubtful;
}

std::size_t wordCount(std::u16string_view text) {
  return text.empty() ? 0 : static_cast<std::size_t>(std::ranges::count(text, u' ')) + 1;
}

std::u16string_view firstWord(std::u16string_view text) { return text.substr(0, text.find(u' ')); }

std::u16string_view lastWord(std::u16string_view text) {
  const std::size_t blank = text.rfind(u' ');
  return blank == std::u16string_view::npos ? text : text.substr(blank + 1);
}

}  // namespace dictionary
