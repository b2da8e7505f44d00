#include "data/dialect/like_range.h"

#include <algorithm>

#include "data/text_functions.h"
#include "text/order.h"

namespace data {
namespace {

/// Returns whether a number in decimal may begin with `c`; blanks may precede one.
bool mayBeginNumber(char c) {
  return (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.' || c == ' ';
}

/// Returns whether LIKE matches `c` with itself only (but for case) and the character after it is
/// ASCII as well, so that it can end an upper bound.
bool isFixed(char c) { return c >= ' ' && c < '\x7F' && c != '%' && c != '_'; }

/// Appended to an upper bound that looks like a number: the affinity of a column of numbers would
/// make it one. The longer text sorts after the bound, so that the range only grows.
constexpr char kNoNumber = 'z';

/// The text of a literal: without its quotes, doubled ones inside it single.
std::string unquoted(std::string_view literal) {
  std::string text;
  for (std::size_t i = 1; i + 1 < literal.size(); ++i) {
    text += literal[i];
    if (literal[i] == '\'') ++i;
  }
  return text;
}

std::string quoted(std::string_view text) {
  std::string literal = "'";
  for (const char c : text) literal.append(c == '\'' ? 2 : 1, c);
  return literal + '\'';
}

/// The collation is named, since the column may be declared with another one or none.
std::string condition(std::string_view column, std::string_view comparison, std::string_view text) {
  std::string sql = " and ";
  sql.append(column).append(comparison).append(quoted(text)).append(" collate ");
  return sql.append(kTextOrder);
}

}  // namespace

std::string likeRange(std::string_view column, std::string_view pattern) {
  std::string first = unquoted(pattern);
  first.erase(std::find_if_not(first.begin(), first.end(), isFixed), first.end());
  if (first.empty()) return {};
  // Upper bound: `first` with its last character, folded, replaced by the next one. That weighs
  // more in the text order, so that the bound sorts after every text that begins with `first`.
  std::string after = first;
  const char16_t folded = text::foldCase(static_cast<unsigned char>(after.back()));
  after.back() = static_cast<char>(folded + 1);
  // SQLite sorts all numbers before all texts: a text as an upper bound admits the numbers that are
  // LIKE the pattern, but as a lower bound it would exclude them.
  if (mayBeginNumber(first.front())) return condition(column, "<", after + kNoNumber);
  return condition(column, ">=", first) + condition(column, "<", after);
}

}  // namespace data
