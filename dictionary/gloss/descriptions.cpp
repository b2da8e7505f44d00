#include "dictionary/gloss/descriptions.h"

#include <algorithm>
#include <array>

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
    u"Kangxi radical |pseudonym of |pen name of |Japanese word for |the Japanese word for |"
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
    u"nominalizing suffix|followed by a noun|classifier for:|";

/// Terms of grammar and of names. A single character that has one as its gloss is such a thing; a
/// longer word means it: "suffix" is the meaning of 后缀.
constexpr std::u16string_view kGrammar =
    u"suffix|prefix|interjection|classifier|particle|final particle|modal particle|";
/// With other words before them they are terms of grammar as well: "possessive particle".
constexpr auto kGrammarEndings =
    std::to_array<std::u16string_view>({u" particle", u" prefix", u" suffix"});
constexpr std::u16string_view kNames = u"place name|personal name|";

}  // namespace

bool isDescription(std::u16string_view gloss) {
  return gloss.ends_with(u" etc") || !listedBeginning(kDescriptions, gloss).empty();
}

bool isUsageNote(std::u16string_view gloss) {
  // "as in pyrimidine", but "as in the past".
  if (gloss.starts_with(u"as in ") && !gloss.starts_with(u"as in the ")) return true;
  gloss.remove_prefix(listedBeginning(u"a |an |", gloss).size());
  return !listedBeginning(kNotes, gloss).empty();
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
