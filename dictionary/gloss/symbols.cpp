// A formula is told from its element symbols, and from the words before it where it might be
// something else: "carbon monoxide CO", but "to be OK".

#include "dictionary/gloss/symbols.h"

#include <algorithm>
#include <iterator>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/word_list.h"
#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

constexpr std::u16string_view kElements =
    u"H|He|Li|Be|B|C|N|O|F|Ne|Na|Mg|Al|Si|P|S|Cl|Ar|K|Ca|Sc|Ti|V|Cr|Mn|Fe|Co|Ni|Cu|Zn|Ga|Ge|As|"
    u"Se|Br|Kr|Rb|Sr|Y|Zr|Nb|Mo|Tc|Ru|Rh|Pd|Ag|Cd|In|Sn|Sb|Te|I|Xe|Cs|Ba|La|Ce|Pr|Nd|Pm|Sm|Eu|"
    u"Gd|Tb|Dy|Ho|Er|Tm|Yb|Lu|Hf|Ta|W|Re|Os|Ir|Pt|Au|Hg|Tl|Pb|Bi|Po|At|Rn|Fr|Ra|Ac|Th|Pa|U|Np|Pu|";
/// After these a formula may have capitals only: "carboxyl group -COOH". Salts end in "ide".
constexpr std::u16string_view kSubstances = u"acid|group|ion|radical|bond|";
/// After these the symbol is part of the text: "the end of the CCP", "pest control in TCM".
constexpr std::u16string_view kJoining =
    u"a|an|the|of|in|on|at|by|for|from|to|with|and|or|as|between|against|";
/// Things that have numbers in catalogues: "Rosette nebula NGC 2237", "Quchi acupoint LI11".
constexpr std::u16string_view kNumberedKinds = u"nebula|galaxy|cluster|star|acupoint|";
constexpr std::u16string_view kCatalogues = u"NGC|IC|";
/// After initials the place of the named thing may follow.
constexpr std::u16string_view kPlaces = u"at|in|";

bool isSmall(char16_t unit) { return unit >= u'a' && unit <= u'z'; }
bool isCapital(char16_t unit) { return unit >= u'A' && unit <= u'Z'; }

char16_t raised(char16_t unit) {
  return isSmall(unit) ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
}

/// The word's letters as capitals.
std::u16string lettersOf(std::u16string_view word) {
  std::u16string letters;
  for (const char16_t unit : word) {
    if (isAsciiLetter(unit)) letters += raised(unit);
  }
  return letters;
}

/// What a formula is made of; no elements if the word is none.
struct Formula {
  int elements = 0;
  bool digits = false;      ///< after an element
  bool twoLetters = false;  ///< in a symbol
};

Formula readFormula(std::u16string_view word) {
  Formula formula;
  for (std::size_t at = 0; at < word.size();) {
    const bool two = isListed(kElements, word.substr(at, 2)) && at + 1 < word.size();
    if (two || isListed(kElements, word.substr(at, 1))) {
      ++formula.elements;
      formula.twoLetters = formula.twoLetters || two;
      at += two ? 2 : 1;
    } else if (isDigit(word[at])) {
      if (at > 0 && word[at - 1] == u'-') return {};  // "CV-1" is a number
      formula.digits = formula.digits || formula.elements > 0;
      ++at;
    } else if (u"()-"sv.find(word[at]) != std::u16string_view::npos) {
      ++at;
    } else {
      return {};
    }
  }
  return formula;
}

/// Returns whether the word is the formula of the substance that `before` names. One element alone
/// may be a number: "vitamin B5".
bool isFormulaOf(std::u16string_view word, std::u16string_view before) {
  const std::u16string_view kind = lastWord(before);
  const Formula formula = readFormula(word);
  // "giga electron volt GeV"
  if (!formula.digits && areInitials(lettersOf(word), before)) return false;
  if (formula.elements < 2 || !isSmall(kind.back()) || isCapital(kind[0])) return false;
  const bool substance = kind.ends_with(u"ide") || isListed(kSubstances, kind);
  return formula.digits || formula.twoLetters || substance;
}

/// Returns whether the word is the number under which a catalogue has the thing that `before`
/// names: "M45" of a nebula or a star cluster, "LI11".
bool isCatalogueNumber(std::u16string_view word, std::u16string_view before) {
  const auto letters =
      static_cast<std::size_t>(std::ranges::find_if_not(word, isCapital) - word.begin());
  if (letters == 0 || letters > 2 || letters == word.size()) return false;
  if (!std::ranges::all_of(word.substr(letters), isDigit)) return false;
  return isListed(kNumberedKinds, lastWord(before)) ||
         (word.substr(0, letters) == u"M" && isCapital(before[0]));
}

/// Returns the text without a catalogue's name and number of two words at its end: "NGC 2237".
std::u16string_view withoutCatalogue(std::u16string_view text) {
  const std::u16string_view number = lastWord(text);
  if (number.empty() || number.size() == text.size() || !std::ranges::all_of(number, isDigit))
    return text;
  const std::u16string_view named = text.substr(0, text.size() - number.size() - 1);
  const std::u16string_view catalogue = lastWord(named);
  if (!isListed(kCatalogues, catalogue) || catalogue.size() == named.size()) return text;
  return named.substr(0, named.size() - catalogue.size() - 1);
}

/// Returns the text without the letter and the number of a year in its name: "fourth year D4 of the
/// 60 year cycle".
std::u16string withoutCycleNumber(std::u16string_view text) {
  const std::size_t end =
      std::min(text.find(u" of the 60 year cycle"), text.find(u" of the 60-year cycle"));
  std::u16string plain(text);
  if (end == std::u16string_view::npos) return plain;
  const std::size_t size = lastWord(text.substr(0, end)).size();
  const bool number = size > 1 && size < end && text[end - size] >= u'A' &&
                      text[end - size] <= u'J' &&
                      std::ranges::all_of(text.substr(end - size + 1, size - 1), isDigit);
  return number ? plain.erase(end - size - 1, size + 1) : plain;
}

/// Parts a name from what it means in quotation marks: "Ba Fa Quan "Eight Methods" - Martial Art".
/// Both are empty if the text is anything else: "Euclid's "Elements"".
NamedText translatedName(std::u16string_view text) {
  const std::size_t open = text.find(u" \"");
  const std::size_t close =
      open < text.size() ? text.find(u'"', open + 2) : std::u16string_view::npos;
  if (close == std::u16string_view::npos) return {};
  const std::u16string_view name = text.substr(0, open);
  const std::u16string_view after = text.substr(close + 1);
  const bool names = !name.empty() && isCapital(name[0]) && isCapital(lastWord(name)[0]) &&
                     !name.ends_with(u"'s") && name.find(u',') == std::u16string_view::npos;
  if (!names || !(after.empty() || after.starts_with(u" - "))) return {};
  return {std::u16string(name), std::u16string(text.substr(open + 2, close - open - 2))};
}

/// Returns whether the word abbreviates the text: its letters are the initials, or letters of the
/// words between them: "ICBM" for "intercontinental ballistic missile".
bool abbreviates(std::u16string_view word, std::u16string_view text) {
  const std::u16string letters = lettersOf(word);
  if (std::ranges::count_if(word, isCapital) < 2) return false;
  if (areInitials(letters, text)) return true;
  if (wordCount(text) < 2) return false;
  std::size_t next = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool begins = at == 0 || text[at - 1] == u' ' || text[at - 1] == u'-';
    const bool found = next < letters.size() && raised(text[at]) == letters[next];
    if (begins && !found && !isListed(kJoining, firstWord(text.substr(at)))) return false;
    if (found) ++next;
  }
  return next == letters.size();
}

}  // namespace

bool areInitials(std::u16string_view note, std::u16string_view text) {
  if (note.size() < 2 || !std::ranges::all_of(note, isCapital)) return false;
  std::u16string initials;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool begins = i == 0 || text[i - 1] == u' ' || text[i - 1] == u'-';
    if (begins && isAsciiLetter(text[i]) && (isCapital(text[i]) || text.substr(i, 3) != u"of ")) {
      initials += raised(text[i]);
    }
  }
  std::u16string capitals;
  std::ranges::copy_if(text, std::back_inserter(capitals), isCapital);
  return note == initials || note == capitals;
}

NamedText withoutSymbol(std::u16string_view gloss) {
  NamedText translated = translatedName(gloss);
  if (!translated.text.empty()) return translated;
  for (std::size_t end = 0; end < gloss.size(); ++end) {
    end = std::min(gloss.find_first_of(u" ,", end), gloss.size());
    const std::u16string_view word = lastWord(gloss.substr(0, end));
    if (word.size() < 2 || word.size() == end) continue;
    std::u16string_view before = gloss.substr(0, end - word.size() - 1);
    const std::u16string_view after = gloss.substr(end);
    if (before.ends_with(u',')) before.remove_suffix(1);
    if (before.empty() || isDigit(before.back()) || isListed(kJoining, lastWord(before))) continue;
    const bool whole = after.empty() || after.starts_with(u',');
    const bool located = after.size() > 1 && isListed(kPlaces, firstWord(after.substr(1)));
    const bool symbol = whole && !before.starts_with(u"to ") &&
                        (isFormulaOf(word, before) || isCatalogueNumber(word, before));
    const bool initials = !symbol && (whole || located) && abbreviates(word, before);
    if (!initials && !symbol) continue;
    return {std::u16string(before), std::u16string(initials ? word : u"")};
  }
  return {withoutCycleNumber(withoutCatalogue(gloss)), {}};
}

}  // namespace dictionary
