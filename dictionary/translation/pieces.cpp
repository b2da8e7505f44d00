#include "dictionary/translation/pieces.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"
#include "dictionary/translation/part_of_speech.h"
#include "text/strings.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// The form after the base word in a note on an inflected form.
constexpr std::array kInflections = {u"的复数"sv,     u"的过去式"sv,   u"的过去分词"sv,
                                     u"的现在分词"sv, u"的第三人称"sv, u"的比较级"sv,
                                     u"的最高级"sv};
/// In characters: a longer note is a sentence.
constexpr std::size_t kMaxInflection = 48;

/// Characters in which a part-of-speech mark after a comma must end; limits the time per comma.
constexpr std::size_t kMaxMark = 8;

/// The wide form of a separator; 0 for any other character.
char16_t separatorAt(char16_t unit) {
  constexpr std::u16string_view kNarrow = u",;!?";
  constexpr std::u16string_view kWide = u"，；！？、";
  const std::size_t at = kNarrow.find(unit);
  if (at != std::u16string_view::npos) return kWide[at];
  return kWide.find(unit) != std::u16string_view::npos ? unit : u'\0';
}

/// Characters between which a comma joins the locants of a chemical name.
bool isLocant(char16_t unit) {
  return isDigit(unit) || isLatin(unit) || isGreek(unit) || unit == u'\'' || unit == u'′';
}

/// Returns whether the comma is inside a chemical name or a number: "2,4-二氯苯", "1, 4-二氮杂苯",
/// "Δ, 3-丁烯醇", "N,N-二甲基". A letter before it and a part-of-speech mark after it are the end
/// of one piece and the beginning of the next.
bool joinsLocants(std::u16string_view text, std::size_t comma) {
  if (comma == 0) return false;
  std::size_t next = comma + 1;
  if (isLatin(text[comma - 1]) && partOfSpeechLength(text.substr(next, kMaxMark)) > 0) return false;
  const bool locant = isDigit(text[comma - 1]) || isGreek(text[comma - 1]);
  if (next < text.size() && text[next] == u' ' && locant) {
    return next + 1 < text.size() && isDigit(text[next + 1]);
  }
  return next < text.size() && isLocant(text[comma - 1]) && isLocant(text[next]);
}

/// Returns whether the mark at `at` joins ordinal numbers of one noun: "第1、3人称", "第一、二、三
/// 人称". `begin`: of the piece.
bool joinsOrdinals(std::u16string_view text, std::size_t begin, std::size_t at) {
  const auto isNumeral = [](char16_t unit) {
    return isDigit(unit) || u"一二三四五六七八九十"sv.find(unit) != std::u16string_view::npos;
  };
  if (at + 1 >= text.size() || !isNumeral(text[at + 1])) return false;
  std::size_t first = at;
  while (first > begin && (isNumeral(text[first - 1]) || text[first - 1] == u'、')) --first;
  return first > begin && first < at && text[first - 1] == u'第';
}

/// Returns whether the question mark at `mark` parts the question from `begin` on from further
/// text. At the end of a piece it stays: a subject dictionary shows it.
bool partsQuestions(std::u16string_view text, std::size_t begin, std::size_t mark) {
  const std::u16string_view rest = text::trimBlanks(text.substr(mark + 1));
  return !rest.empty() && (isHan(rest[0]) || rest[0] == u'.' || rest[0] == u'…') &&
         isQuestion(text, begin, mark);
}

/// Returns whether the colon at `at` was typed for a comma: a narrow one between Han characters. An
/// explanation has a wide one.
bool isMistypedComma(std::u16string_view text, std::size_t at) {
  return text[at] == u':' && at > 0 && at + 1 < text.size() && isHan(text[at - 1]) &&
         isHan(text[at + 1]);
}

/// Returns whether the text from `begin` ends at the separator at `at`.
bool separates(std::u16string_view text, std::size_t begin, std::size_t at) {
  switch (separatorAt(text[at])) {
    case 0:
      return false;
    case u'，':
      return !joinsLocants(text, at);
    case u'？':
      return partsQuestions(text, begin, at);
    case u'、':
      return !joinsOrdinals(text, begin, at);
    default:
      return true;
  }
}

/// Returns whether another sense begins at `at` without a separator: after a Han character, with or
/// without a blank in between.
bool runsIntoNextSense(std::u16string_view text, std::size_t at) {
  const std::size_t blank = at > 0 && text[at - 1] == u' ' ? 1 : 0;
  return at > blank && isHan(text[at - 1 - blank]) && beginsFurtherSense(text.substr(at));
}

/// Index after the brackets or the quotation that open at `open`; npos if none open there, or if
/// they do not close. Their content is never divided.
std::size_t closedGroupEnd(std::u16string_view text, std::size_t open) {
  if (openingBracket(text[open]) == Bracket::kNone) return quotationEnd(text, open);
  const std::size_t close = closingPosition(text, open);
  return close == std::u16string_view::npos ? close : close + 1;
}

/// Returns whether `note` consists of a foreign word and the name of one of its forms.
bool isInflection(std::u16string_view note) {
  const bool named = std::ranges::any_of(kInflections, [&](std::u16string_view inflection) {
    return note.find(inflection) != std::u16string_view::npos;
  });
  return named && isAsciiLetter(note[0]) && note.size() <= kMaxInflection &&
         std::ranges::all_of(note, [](char16_t unit) {
           return isHan(unit) || isAsciiLetter(unit) || isDigit(unit) || unit == u'-' ||
                  unit == u'.' || unit == u'′';
         });
}

/// In 吗, 呢, 什么, 怎么样, 如何, 谁, 几, 哪里: each is in questions, and hardly ever in the names
/// of fishes and compounds whose characters were lost.
constexpr std::u16string_view kInterrogatives = u"吗呢么怎何谁几哪";
constexpr std::u16string_view kQuestionMarks = u"?？";

/// "要不要", "能不能".
bool asksForYesOrNo(std::u16string_view text, std::size_t at) {
  return at + 2 < text.size() && isHan(text[at]) && text[at + 1] == u'不' &&
         text[at + 2] == text[at];
}

}  // namespace

std::vector<RawPiece> splitPieces(std::u16string_view text, Colons colons) {
  std::vector<RawPiece> pieces;
  std::size_t begin = 0;
  char16_t before = 0;
  const auto finish = [&](std::size_t end) {
    // An empty piece is dropped; the next one has the separator nearest to it.
    const std::u16string_view piece = text::trimBlanks(text.substr(begin, end - begin));
    if (!piece.empty()) pieces.push_back({piece, before});
  };
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t groupEnd = closedGroupEnd(text, i);
    if (groupEnd != std::u16string_view::npos) {
      i = groupEnd;
      continue;
    }
    if (separates(text, begin, i)) {
      finish(i);
      before = separatorAt(text[i]);
      begin = i + 1;
    } else if (colons == Colons::kAreCommas && isMistypedComma(text, i)) {
      finish(i);
      before = u'，';
      begin = i + 1;
    } else if (runsIntoNextSense(text, i)) {
      finish(i);
      before = u'；';
      begin = i;
    }
    ++i;
  }
  finish(text.size());
  return pieces;
}

std::u16string inflectionNote(std::u16string_view line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (openingBracket(line[i]) != Bracket::kRound) continue;
    const std::size_t close = closingPosition(line, i);
    if (close == std::u16string_view::npos) return {};
    std::u16string inflection(line.substr(i + 1, close - i - 1));
    std::erase(inflection, u' ');
    std::ranges::replace(inflection, u'\'', u'′');
    if (isInflection(inflection)) return inflection;
    i = close;
  }
  return {};
}

bool isQuestion(std::u16string_view text, std::size_t begin, std::size_t mark) {
  const std::u16string_view clause = text.substr(begin, mark - begin);
  for (std::size_t i = 0; i < clause.size(); ++i) {
    const bool interrogative = kInterrogatives.find(clause[i]) != std::u16string_view::npos;
    if (interrogative || asksForYesOrNo(clause, i)) return true;
  }
  return std::ranges::any_of(clause, isLatin) && std::ranges::none_of(clause, isHan);
}

bool hasLostCharacterMark(std::u16string_view text) {
  std::size_t begin = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (kQuestionMarks.find(text[i]) == std::u16string_view::npos) continue;
    if (!isQuestion(text, begin, i)) return true;
    begin = i + 1;
  }
  return false;
}

}  // namespace dictionary
