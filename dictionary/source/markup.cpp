// Codes are recognised one at a time, at the position where they begin; what is no complete code
// stays as it is. Each reader looks a bounded distance ahead or stops at the first character that
// does not fit, so that a text of "&" takes no longer than another.

#include "dictionary/source/markup.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "dictionary/source/characters.h"
#include "text/characters.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// A row that contains it is left out: the character is lost.
using text::kReplacement;

/// Longest entity name that is decoded, in characters: "#x10FFFF" has 8. Limits the search for the
/// semicolon.
constexpr std::size_t kMaxEntity = 10;

struct Entity {
  std::u16string_view name;
  char16_t character;
};

/// The names that HTML gives to characters which a dictionary is likely to hold.
constexpr std::array kEntities = {
    Entity{u"amp", u'&'},     Entity{u"lt", u'<'},       Entity{u"gt", u'>'},
    Entity{u"quot", u'"'},    Entity{u"apos", u'\''},    Entity{u"nbsp", u' '},
    Entity{u"alpha", 0x03B1}, Entity{u"beta", 0x03B2},   Entity{u"gamma", 0x03B3},
    Entity{u"delta", 0x03B4}, Entity{u"frac12", 0x00BD}, Entity{u"times", 0x00D7},
    Entity{u"deg", 0x00B0},   Entity{u"middot", 0x00B7}, Entity{u"hellip", 0x2026},
    Entity{u"mdash", 0x2014}, Entity{u"ndash", 0x2013},  Entity{u"ldquo", 0x201C},
    Entity{u"rdquo", 0x201D},
};

/// Value of a hexadecimal digit; -1 for any other character.
int digitValue(char16_t unit) {
  if (isDigit(unit)) return unit - u'0';
  const char16_t lower = text::lowerAscii(unit);
  return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

/// The character of "946" or "x3B2"; U+FFFD for a control and for one beyond U+FFFF.
char16_t numericEntity(std::u16string_view digits) {
  const int base = !digits.empty() && text::lowerAscii(digits[0]) == u'x' ? 16 : 10;
  if (base == 16) digits.remove_prefix(1);
  std::int32_t code = 0;
  for (const char16_t unit : digits) {
    const int value = digitValue(unit);
    if (value < 0 || value >= base) return kReplacement;
    code = code * base + value;
    if (code > 0xFFFF) return kReplacement;
  }
  return code < 0x20 ? kReplacement : static_cast<char16_t>(code);
}

char16_t entityCharacter(std::u16string_view name) {
  if (name.starts_with(u'#')) return numericEntity(name.substr(1));
  const auto* const found = std::ranges::find(kEntities, name, &Entity::name);
  return found == kEntities.end() ? kReplacement : found->character;
}

/// Length of the entity name at the beginning of `text`, which follows a "&"; 0 unless ";" follows.
std::size_t entityLength(std::u16string_view text) {
  std::size_t length = 0;
  while (length < text.size() && length < kMaxEntity &&
         (isAsciiLetter(text[length]) || isDigit(text[length]) ||
          (length == 0 && text[length] == u'#'))) {
    ++length;
  }
  return length < text.size() && text[length] == u';' ? length : 0;
}

/// A decoded code: its length in the source, 0 without one, and its text.
struct Decoded {
  std::size_t length = 0;
  std::u16string text;
};

Decoded readEntity(std::u16string_view text) {
  const std::size_t length = text.starts_with(u'&') ? entityLength(text.substr(1)) : 0;
  if (length == 0) return {};
  return {length + 2, {entityCharacter(text.substr(1, length))}};
}

bool isFigure(char16_t unit) {
  return isAsciiLetter(unit) || isDigit(unit) || unit == u'+' || unit == u'-';
}

/// "&-{12a}" is a subscript, "&+{-3}" a superscript, "&{2}" a homograph number, which is dropped.
Decoded readFigures(std::u16string_view text) {
  if (!text.starts_with(u'&')) return {};
  const std::size_t open = text.starts_with(u"&-") || text.starts_with(u"&+") ? 2 : 1;
  const std::size_t close = text.find(u'}', open);
  if (close == std::u16string_view::npos || text[open] != u'{') return {};
  const std::u16string_view figures = text.substr(open + 1, close - open - 1);
  if (!std::ranges::all_of(figures, isFigure)) return {};
  return {close + 1, std::u16string(open == 1 ? std::u16string_view() : figures)};
}

/// "<&14&>", the number of a character that the source could not write.
Decoded readLostCharacter(std::u16string_view text) {
  if (!text.starts_with(u"<&")) return {};
  std::size_t end = 2;
  while (end < text.size() && isDigit(text[end])) ++end;
  if (end == 2 || !text.substr(end).starts_with(u"&>")) return {};
  return {end + 2, {kReplacement}};
}

Decoded readCode(std::u16string_view text) {
  for (const auto read : {readEntity, readFigures, readLostCharacter}) {
    Decoded decoded = read(text);
    if (decoded.length > 0) return decoded;
  }
  return {};
}

/// Length of the tag at the beginning of `text`, 0 if there is none: "<", a letter or "/", and only
/// ASCII up to ">". "<德>" is a note, no tag.
std::size_t tagLength(std::u16string_view text) {
  if (text.size() < 3 || text[0] != u'<') return 0;
  if (!isAsciiLetter(text[1]) && text[1] != u'/') return 0;
  const std::size_t end = text.find(u'>');
  if (end == std::u16string_view::npos) return 0;
  const std::u16string_view content = text.substr(1, end - 1);
  const bool plain =
      std::ranges::all_of(content, [](char16_t unit) { return unit < 0x80 && unit != u'<'; });
  return plain ? end + 1 : 0;
}

/// Length of the title with its marks at the beginning of `text`, "<<可兰经>>"; 0 if there is none.
std::size_t titleLength(std::u16string_view text) {
  if (!text.starts_with(u"<<")) return 0;
  const std::size_t end = text.find_first_of(u"<>\\\n", 2);
  const bool closed = end != std::u16string_view::npos && text.substr(end).starts_with(u">>");
  return closed && end > 2 ? end + 2 : 0;
}

/// "<br>", "<BR/>", "<br />", but not "<break>".
bool isLineBreakTag(std::u16string_view tag) {
  return tag.size() >= 4 && text::lowerAscii(tag[1]) == u'b' && text::lowerAscii(tag[2]) == u'r' &&
         !isAsciiLetter(tag[3]);
}

/// Tags that stand between two senses in the files from which the source was compiled.
constexpr std::array kSenseTags = {std::u16string_view(u"<X>"), std::u16string_view(u"<DDX>")};

/// The text in place of a tag: a line break or the end of a sense; "" for tags of formatting.
std::u16string_view textForTag(std::u16string_view tag) {
  if (isLineBreakTag(tag)) return u"\n";
  return std::ranges::find(kSenseTags, tag) != kSenseTags.end() ? u"；" : u"";
}

}  // namespace

std::u16string decodeEntities(std::u16string_view text) {
  std::u16string decoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool mayBegin = text[i] == u'&' || text[i] == u'<';
    const Decoded code = mayBegin ? readCode(text.substr(i)) : Decoded();
    if (code.length == 0) {
      decoded += text[i];
    } else {
      decoded += code.text;
      i += code.length - 1;
    }
  }
  return decoded;
}

std::u16string markTitles(std::u16string_view text) {
  std::u16string marked;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t length = titleLength(text.substr(i));
    if (length == 0) {
      marked += text[i];
      continue;
    }
    marked += u'《';
    marked += text.substr(i + 2, length - 4);
    marked += u'》';
    i += length - 1;
  }
  return marked;
}

std::u16string breakLines(std::u16string_view text) {
  std::u16string broken;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::u16string_view rest = text.substr(i);
    if (rest.starts_with(u"\\n") || rest.starts_with(u"\\r")) {
      broken += u'\n';
      ++i;
    } else if (const std::size_t length = tagLength(rest); length > 0) {
      broken += textForTag(rest.substr(0, length));
      i += length - 1;
    } else {
      broken += text[i];
    }
  }
  return broken;
}

bool hasMarkup(std::u16string_view text) {
  return decodeEntities(text) != text || breakLines(text) != text;
}

}  // namespace dictionary
