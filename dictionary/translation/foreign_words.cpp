#include "dictionary/translation/foreign_words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"
#include "dictionary/translation/inflection.h"
#include "dictionary/translation/part_of_speech.h"
#include "text/order.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// Second words of names, most of them geographical; other words with a capital are names that an
/// equivalent may begin with ("Java服务端网页").
constexpr std::array kSecondWords = {
    u"Alps"sv,     u"Archipelago"sv, u"Basin"sv,     u"Bay"sv,     u"Canal"sv,   u"Cape"sv,
    u"Cemetery"sv, u"Channel"sv,     u"Community"sv, u"Council"sv, u"Cut"sv,     u"Desert"sv,
    u"Gulf"sv,     u"Hall"sv,        u"Heights"sv,   u"Island"sv,  u"Islands"sv, u"Lake"sv,
    u"Mount"sv,    u"Mountain"sv,    u"Mountains"sv, u"Ocean"sv,   u"Pass"sv,    u"Peninsula"sv,
    u"Plain"sv,    u"Plateau"sv,     u"Range"sv,     u"River"sv,   u"Saga"sv,    u"Sea"sv,
    u"Sound"sv,    u"State"sv,       u"Strait"sv,    u"Street"sv,  u"Sunday"sv,  u"Swamp"sv,
    u"Tapestry"sv, u"Virus"sv,       u"Woods"sv,
};

/// Names that the source writes in lower case: "dna印迹法".
constexpr std::array kLowerCaseNames = {u"brdu"sv, u"dna"sv, u"internet"sv, u"lisp"sv, u"unix"sv};

/// Characters after a foreign word that refer to it: "shoe 的过去分词".
constexpr std::u16string_view kReferring = u"的之是中与和上指";
/// What continues a foreign word that is an equivalent itself, or is nothing without it:
/// "long-off或on", "tenofovir disoproxil fumarate制剂".
constexpr std::array kContinuing = {u"或"sv, u"多用于"sv, u"制剂"sv, u"所有格"sv};
/// What says nothing without the foreign words before it.
constexpr std::array kRemnants = {u"或"sv, u"等"sv};
/// In letters: a shorter word may be a unit or a formula.
constexpr std::size_t kShortestWord = 3;

bool isSmall(char16_t unit) { return unit >= u'a' && unit <= u'z'; }

std::size_t skipBlanks(std::u16string_view text, std::size_t at) {
  return std::min(text.find_first_not_of(u' ', at), text.size());
}

/// Index after the brackets that follow each other from `at` on, and the blanks after them.
std::size_t skipNotes(std::u16string_view text, std::size_t at) {
  while (at < text.size() && openingBracket(text[at]) != Bracket::kNone) {
    const std::size_t close = closingPosition(text, at);
    if (close == std::u16string_view::npos) return at;
    at = skipBlanks(text, close + 1);
  }
  return at;
}

/// Index of the first Han character after foreign words and notes; that of anything else if it
/// comes first.
std::size_t skipForeign(std::u16string_view text, std::size_t at) {
  for (std::size_t next = at; next < text.size(); at = next) {
    next = skipNotes(text, at);
    if (next == at && isForeign(text[at])) ++next;
    if (next == at) break;
  }
  return at;
}

/// The ASCII letters of the text in lower case.
std::u16string lettersOf(std::u16string_view text) {
  std::u16string letters = text::toLower(text);
  std::erase_if(letters, [](char16_t unit) { return !isAsciiLetter(unit); });
  return letters;
}

/// Returns whether `letters` are beginnings of all of the words in their order: "litd" of
/// "Litterarum Doctor".
bool abbreviates(std::u16string_view letters, std::u16string_view words) {
  constexpr std::u16string_view kBetween = u" ,-";
  const std::size_t begin = std::min(words.find_first_not_of(kBetween), words.size());
  if (begin == words.size()) return letters.empty();
  const std::size_t end = std::min(words.find_first_of(kBetween, begin), words.size());
  const std::u16string word = lettersOf(words.substr(begin, end - begin));
  const auto common =
      static_cast<std::size_t>(std::ranges::mismatch(letters, word).in1 - letters.begin());
  for (std::size_t length = 1; length <= common; ++length) {
    if (abbreviates(letters.substr(length), words.substr(end))) return true;
  }
  return false;
}

/// Returns whether `headword` abbreviates the words, which are not all in capitals:
/// "BASIC程序的扩展 名" is what "bas" means.
bool isExpansion(std::u16string_view words, std::u16string_view headword) {
  const std::u16string letters = lettersOf(headword);
  if (letters == lettersOf(words) || std::ranges::count_if(words, isSmall) < 2) return false;
  const bool single = words.find_first_of(u" ,-") == std::u16string_view::npos;
  return (!single || letters.size() >= kShortestWord) && abbreviates(letters, words);
}

/// Returns whether the words, which stand before Chinese text, complete or explain the headword.
bool isBeside(std::u16string_view words, std::u16string_view headword) {
  const std::u16string letters = lettersOf(words);
  const bool known = lettersOf(headword).find(letters) != std::u16string::npos;
  if (letters.size() < kShortestWord || known) return false;
  if (std::ranges::find(kSecondWords, words) != kSecondWords.end()) return true;
  const bool lowerCase = std::ranges::none_of(
      words, [](char16_t unit) { return isAsciiLetter(unit) && !isSmall(unit); });
  const bool name = std::ranges::find(kLowerCaseNames, words) != kLowerCaseNames.end();
  return (lowerCase && !name) || isExpansion(words, headword);
}

}  // namespace

std::u16string_view withoutHeadwordRest(std::u16string_view line) {
  if (line.starts_with(u',')) {
    const std::size_t chinese = skipForeign(line, 1);
    return chinese < line.size() && isHan(line[chinese]) ? line.substr(chinese) : line;
  }
  const std::size_t begin = skipBlanks(line, 0);
  const auto* const letters = line.begin() + begin;
  const auto length =
      static_cast<std::size_t>(std::find_if_not(letters, line.end(), isAsciiLetter) - letters);
  const std::size_t end = begin + length;
  if (length < kShortestWord || end == line.size()) return line;
  const std::u16string_view word = line.substr(begin, length);
  const bool second = std::ranges::find(kSecondWords, word) != kSecondWords.end();
  const bool parted = line[end] == u' ' || openingBracket(line[end]) != Bracket::kNone;
  const std::size_t next = skipNotes(line, skipBlanks(line, end));
  const bool chinese = next < line.size() && isHan(line[next]) &&
                       kReferring.find(line[next]) == std::u16string_view::npos;
  const bool rest = chinese && (second || (std::ranges::all_of(word, isSmall) && parted));
  if (!rest || partOfSpeechLength(line) > 0) return line;
  return line.substr(skipBlanks(line, end));
}

std::u16string_view withoutExpansion(std::u16string_view piece, bool abbreviation) {
  std::size_t length = 0;
  while (length < piece.size() && (isForeign(piece[length]) || piece[length] == u'′')) ++length;
  const std::u16string_view foreign = piece.substr(0, length);
  const auto blanks = std::ranges::count(foreign, u' ');
  const bool parted = foreign.ends_with(u' ') || (abbreviation && blanks > 1);
  if (length == piece.size() || length < 2 || !isHan(piece[length]) || !parted) return piece;
  if (piece[length] == u'的') return piece.substr(piece.starts_with(u"v ") ? 2 : 0);
  const auto small = std::ranges::count_if(foreign, isSmall);
  const bool words = isLatin(foreign[0]) && small > 1 && (abbreviation || blanks > 1);
  const bool forms = foreign[0] == u'-' && small > 0;
  return words || forms ? piece.substr(length) : piece;
}

std::u16string_view withoutTail(std::u16string_view piece) {
  std::size_t begin = piece.size();
  while (begin > 0 && isForeign(piece[begin - 1])) --begin;
  const std::u16string_view foreign = piece.substr(begin);
  // To another entry: "见 Bohai Sea".
  const bool reference = begin == 1 && u"见即同"sv.find(piece[0]) != std::u16string_view::npos;
  const bool words = begin > 0 && isHan(piece[begin - 1]) && !reference &&
                     foreign.find(u' ', 1) != std::u16string_view::npos &&
                     std::ranges::count_if(foreign, isSmall) > 4;
  return words ? piece.substr(0, begin) : piece;
}

std::u16string_view withoutForeignWords(std::u16string_view equivalent,
                                        std::u16string_view headword) {
  const auto isPart = [](char16_t unit) {
    return isAsciiLetter(unit) || u" -.,/′"sv.find(unit) != std::u16string_view::npos;
  };
  const auto length =
      static_cast<std::size_t>(std::ranges::find_if_not(equivalent, isPart) - equivalent.begin());
  const std::u16string_view words = equivalent.substr(0, length);
  const std::u16string_view rest = equivalent.substr(length);
  if (words.empty() || !isAsciiLetter(words[0]) || rest.empty() || !isHan(rest[0])) {
    return equivalent;
  }
  if (!isBeside(words, headword)) return equivalent;
  const bool phrase = words.find(u' ') != std::u16string_view::npos && rest.size() == 1;
  if (phrase || rest.find(words) != std::u16string_view::npos) return {};
  if (std::ranges::find(kRemnants, rest) != kRemnants.end()) return {};
  const bool continues = std::ranges::any_of(
      kContinuing, [&](std::u16string_view begin) { return rest.starts_with(begin); });
  const bool refers = kReferring.find(rest[0]) != std::u16string_view::npos ||
                      rest.ends_with(u"的缩写") || inflectionIn(equivalent) ||
                      isReference(equivalent);
  return continues || refers ? equivalent : rest;
}

}  // namespace dictionary
