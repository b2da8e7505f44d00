#include "data/dialect/sql_tokens.h"

#include <algorithm>

#include "text/characters.h"

namespace data {
namespace {

/// As in SQLite's tokenizer, which does not know the vertical tab.
constexpr std::string_view kBlanks = " \t\n\f\r";

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// As in SQLite's tokenizer: every byte beyond ASCII may be part of a name.
bool isWordCharacter(char c) {
  const char lower = text::lowerAscii(c);
  return (lower >= 'a' && lower <= 'z') || isDigit(c) || c == '_' || c == '$' ||
         static_cast<unsigned char>(c) >= 0x80;
}

/// Generous: "0x1F", "1.5e3" and also "12abc", which SQLite refuses. An exponent's sign is a symbol
/// of its own, which the translation does not mind.
bool isNumberCharacter(char c) { return isWordCharacter(c) || c == '.'; }

/// Length of the run of characters from the start of `rest` that `belongs` accepts.
template <typename Predicate>
std::size_t run(std::string_view rest, Predicate belongs) {
  return static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), belongs) -
                                  rest.begin());
}

/// A token between quotes; a doubled quote inside it does not end it.
Token quoted(std::string_view rest, TokenKind kind) {
  const char quote = rest.front();
  for (std::size_t i = 1; i < rest.size(); ++i) {
    if (rest[i] != quote) continue;
    if (i + 1 == rest.size() || rest[i + 1] != quote) return {kind, rest.substr(0, i + 1)};
    ++i;
  }
  return {TokenKind::kBroken, rest};
}

/// A token up to and including `end`; without one, all the rest as `otherwise`.
Token upTo(std::string_view rest, std::string_view end, TokenKind kind, TokenKind otherwise) {
  const std::size_t found = rest.find(end, 1);
  if (found == std::string_view::npos) return {otherwise, rest};
  return {kind, rest.substr(0, found + end.size())};
}

/// Not by upTo(): in "/*/" the two stars are the same one, and the comment does not end. One that
/// never ends is a comment all the same, as SQLite has it.
Token blockComment(std::string_view rest) {
  const std::size_t found = rest.find("*/", 2);
  return {TokenKind::kComment, rest.substr(0, found == std::string_view::npos ? found : found + 2)};
}

Token nextToken(std::string_view rest) {
  const char first = rest.front();
  if (first == '\'') return quoted(rest, TokenKind::kText);
  if (first == '"' || first == '`') return quoted(rest, TokenKind::kName);
  if (first == '[') return upTo(rest, "]", TokenKind::kName, TokenKind::kBroken);
  if (rest.starts_with("--")) return upTo(rest, "\n", TokenKind::kComment, TokenKind::kComment);
  if (rest.starts_with("/*")) return blockComment(rest);
  if (isDigit(first)) return {TokenKind::kNumber, rest.substr(0, run(rest, isNumberCharacter))};
  if (isWordCharacter(first)) return {TokenKind::kWord, rest.substr(0, run(rest, isWordCharacter))};
  return {TokenKind::kSymbol, rest.substr(0, 1)};
}

}  // namespace

bool Token::isWord(std::string_view lowerCase) const {
  return kind == TokenKind::kWord && sameName(text, lowerCase);
}

std::vector<Token> tokenize(std::string_view sql) {
  std::vector<Token> tokens;
  while (true) {
    const std::size_t start = sql.find_first_not_of(kBlanks);
    if (start == std::string_view::npos) return tokens;
    sql.remove_prefix(start);
    tokens.push_back(nextToken(sql));
    sql.remove_prefix(tokens.back().text.size());
  }
}

bool sameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return text::lowerAscii(x) == text::lowerAscii(y); });
}

std::string_view bareName(const Token& token) {
  if (token.kind != TokenKind::kName) return token.text;
  return token.text.substr(1, token.text.size() - 2);
}

}  // namespace data
