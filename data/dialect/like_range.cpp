#include "data/dialect/like_range.h"

#include <algorithm>

#include "data/text_functions.h"
#include "text/order.h"

namespace data {
namespace {

/// Whether a number written as a text may begin with `c`.
bool mayBeginNumber(char c) {
  return (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.' || c == ' ';
}

/// Whether LIKE takes `c` for itself, and the next higher character is ASCII as well.
bool isFixed(char c) { return c >= ' ' && c < '\x7F' && c != '%' && c != '_'; }

/// What makes any text one that is no number, and puts it behind itself.
constexpr char kNoNumber = 'z';

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
  // The next character behind the folded one weighs more, so that the text made with it comes
  // behind all that begin like `first`.
  std::string behind = first;
  const char16_t folded = text::foldCase(static_cast<unsigned char>(behind.back()));
  behind.back() = static_cast<char>(folded + 1);
  // A column of numbers takes a text that looks like a number for one. Any other text comes behind
  // all numbers: as an upper bound it keeps those that are LIKE the pattern, as a lower bound not.
  if (mayBeginNumber(first.front())) return condition(column, "<", behind + kNoNumber);
  return condition(column, ">=", first) + condition(column, "<", behind);
}

}  // namespace data
