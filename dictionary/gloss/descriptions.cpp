#include "dictionary/gloss/descriptions.h"

#include <algorithm>
#include <array>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/word_list.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// How descriptions begin that still tell what the word stands for.
constexpr std::u16string_view kDescriptions =
    u"indicates |indicating |expresses |expressing |denotes |denoting |marks |exclamation of |"
    u"exclamation expressing |exclamation indicating |exclamation to |exclamation used |"
    u"auxiliary verb |auxiliary word |one of |name for |ancient name |alternative name |title of |"
    u"sound of |the sound of |onomat. |radical in |radical of |character in |character used |"
    u"first character |semantic component|reign name|posthumous name|temple name|a kind of |"
    u"kind of |a type of |type of |a variety of |variety of |a sort of |sort of |species of |"
    u"a species of |said of |term of endearment|term of respect|term of address|generic term|"
    u"general term|abbr. |same as |surname |a surname|two-character surname|Japanese surname|"
    u"sb who |sth that |person who |a person who |emphatic |having to do with |designation of |"
    u"pseudonym of |pen name of |Japanese word for |the Japanese word for |"
    u"place name|personal name|";

/// How notes begin that tell the use of a word but nothing of its meaning. "used " alone would be
/// "used car" as well.
constexpr std::u16string_view kNotes =
    u"classifier for |classifier used |classifier, |used to |used in |used as |used for |"
    u"used with |used after |used before |used by |used at |used when |used on |used only |"
    u"used mostly |used esp. |used particularly |used together |used, |also used |"
    u"particle indicating |particle used |particle marking |particle placed |particle expressing |"
    u"particle in |particle for |particle similar |modal particle |final particle |"
    u"structural particle |question particle |sentence-final particle |prefix indicating |"
    u"prefix for |prefix used |prefix before |suffix indicating |suffix for |suffix used |"
    u"suffix forming |suffix of |noun suffix|adjectival suffix|interjection of |"
    u"interjection expressing |interjection indicating |interjection used |phonetic \"|"
    u"phonetic for |transliteration of |in place names|in names|placed after |placed before |"
    u"placed at |precedes |follows |meaning unknown|ancient Chinese compass point|refers to |"
    u"old name of a|ancient name of a|the name of |name of |place name in |place name, |"
    u"old place name|ancient place name|common place name|mountain name|river name|"
    u"male given name|female given name|person name|last line of |first line of |"
    u"less common word for |less common variant|sometimes used |sometimes called |"
    u"used deprecatingly|comes at the end of |character used |old character used |noun prefix |"
    u"radical no |radical no. |interj.|mus. instr.|meaning uncertain|aspect particle |"
    u"introductory particle |interjection or |verb suffix|plural marker |plural for |"
    u"nominalizing suffix|followed by a noun|classifier for:|Kangxi radical |Kang Xi radical |"
    u"left-radical form |the left-radical form |radical in Chinese |many translations |"
    u"in combination |as opposed to |commonly used in |suffix attached |with negative|";

/// Terms of grammar and of names. A single character that has one as its gloss is such a thing; a
/// longer word means it: "suffix" is the meaning of 后缀.
constexpr std::u16string_view kGrammar =
    u"suffix|prefix|interjection|classifier|particle|final particle|modal particle|";
/// With other words before them they are terms of grammar as well: "possessive particle".
constexpr auto kGrammarEndings =
    std::to_array<std::u16string_view>({u" particle", u" prefix", u" suffix"});
constexpr std::u16string_view kNames = u"place name|personal name|";

/// With a word of age, region or style before them they say that what follows is the meaning: "old
/// Chinese name for Bengal". Those of kPersons are of a bearer as well: "courtesy name of Zhuge
/// Liang".
constexpr std::u16string_view kNamings = u"name|term|word|title|expression|";
constexpr std::u16string_view kPersons = u"name|title|";
constexpr std::size_t kMaxBeforeNaming = 4;
constexpr std::size_t kMaxNamedWords = 3;
/// They begin a description of several things rather than a word: "several bodies of water".
constexpr std::u16string_view kUnnamed =
    u"a|an|the|certain|several|many|various|some|any|sb|sth|one|oneself|people|person|";

bool isCapital(char16_t unit) { return unit >= u'A' && unit <= u'Z'; }

/// Returns whether all words of the text are capitalised, but "or" and "of".
bool isProperName(std::u16string_view text) {
  for (std::u16string_view rest = text; !rest.empty();) {
    const std::u16string_view word = firstWord(rest);
    if (word.empty() || (!isCapital(word[0]) && word != u"of" && word != u"or")) return false;
    rest.remove_prefix(std::min(rest.size(), word.size() + 1));
  }
  return !text.empty();
}

/// Returns the proper name in "the first Han emperor Liu Bang", "modern day Malacca" and "Shenyang
/// in modern Liaoning province"; "" if there is none.
std::u16string_view properName(std::u16string_view text) {
  for (const std::u16string_view ending : {u" in "sv, u" during "sv, u" from "sv}) {
    text = text.substr(0, text.find(ending));
  }
  for (const std::u16string_view beginning : {u" emperor "sv, u" Emperor "sv}) {
    const std::size_t at = text.find(beginning);
    if (at != std::u16string_view::npos) text.remove_prefix(at + beginning.size());
  }
  for (const std::u16string_view beginning : {u"the "sv, u"modern day "sv, u"modern "sv}) {
    if (text.starts_with(beginning)) text.remove_prefix(beginning.size());
  }
  return isProperName(text) ? text : std::u16string_view{};
}

/// Returns the text of at most three words that needs no article, without the age in which it was
/// used: "generous gift"; "" if it is anything else.
std::u16string_view plainTerm(std::u16string_view text) {
  text = text.substr(0, text.find(u" during "));
  const bool plain = wordCount(text) <= kMaxNamedWords && !isListed(kUnnamed, firstWord(text));
  return plain ? text : std::u16string_view{};
}

}  // namespace

bool isDescription(std::u16string_view gloss) {
  return gloss.ends_with(u" etc") || !listedBeginning(kDescriptions, gloss).empty();
}

bool isUsageNote(std::u16string_view gloss) {
  // "reign name of Qing emperor (1821-1850)" does not say which.
  const bool reign = gloss.starts_with(u"reign name of ") && gloss.ends_with(u" emperor");
  if (reign && wordCount(gloss) == 5) return true;
  // "as in pyrimidine", but "as in the past".
  if (gloss.starts_with(u"as in ") && !gloss.starts_with(u"as in the ")) return true;
  gloss.remove_prefix(listedBeginning(u"a |an |", gloss).size());
  return !listedBeginning(kNotes, gloss).empty();
}

std::u16string_view otherNameFor(std::u16string_view gloss) {
  if (gloss.starts_with(u"to ")) return {};
  gloss.remove_prefix(listedBeginning(u"a |an |the |in Qing dynasty, |", gloss).size());
  std::u16string_view rest = gloss;
  for (std::size_t before = 0; before <= kMaxBeforeNaming && !rest.empty(); ++before) {
    const std::u16string_view word = firstWord(rest);
    rest.remove_prefix(std::min(rest.size(), word.size() + 1));
    const std::u16string_view joint = firstWord(rest);
    // The name is there already: "Temujin, birth name of Genghis Khan".
    if (word.ends_with(u',') && isCapital(gloss[0])) return {};
    const bool naming = isListed(kNamings, word) && (joint == u"for" || joint == u"of");
    if (!naming) continue;
    if (before == 0 || joint.size() == rest.size()) return {};
    const std::u16string_view named = rest.substr(joint.size() + 1);
    const std::u16string_view text = named.substr(0, named.find(u','));
    const std::u16string_view name = properName(text);
    if (joint == u"of") return isListed(kPersons, word) ? name : std::u16string_view{};
    return name.empty() ? plainTerm(text) : name;
  }
  return {};
}

bool labelsItsWord(std::u16string_view english, std::u16string_view word) {
  if (isListed(kNames, english)) return word.find(u'名') == std::u16string_view::npos;
  const bool grammar = isListed(kGrammar, english) || english.starts_with(u"phonetic ") ||
                       std::ranges::any_of(kGrammarEndings, [&](std::u16string_view ending) {
                         return english.ends_with(ending);
                       });
  return word.size() == 1 && grammar;
}

}  // namespace dictionary
