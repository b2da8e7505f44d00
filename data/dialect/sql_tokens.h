#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace data {

/// Kinds of tokens: as SQLite divides a text, as far as the translation has to know them apart.
enum class TokenKind {
  kWord,     ///< keyword or plain name
  kName,     ///< quoted name: [..], ".." or `..`
  kText,     ///< text in single quotes, a doubled quote inside it
  kNumber,   ///< digits, and letters, digits and points that follow without a blank
  kSymbol,   ///< any other single character
  kComment,  ///< "--" to the end of the line, "/*" to "*/" or to the end of the text
  kBroken,   ///< an unclosed quote or bracket and the rest of the text
};

/// One token: a view into the text that tokenize() was given, which has to outlive it.
struct Token {
  TokenKind kind = TokenKind::kSymbol;
  std::string_view text;

  /// Returns whether this is the keyword `lowerCase`, in any case.
  [[nodiscard]] bool isWord(std::string_view lowerCase) const;
  /// Returns whether this is that character, outside quotes and comments.
  [[nodiscard]] bool isSymbol(char symbol) const {
    return kind == TokenKind::kSymbol && text.front() == symbol;
  }
  /// Returns whether this can name a table or a column. Keywords are not told apart.
  [[nodiscard]] bool canName() const {
    return kind == TokenKind::kWord || kind == TokenKind::kName;
  }
};

/// Divides an SQL text in UTF-8, of any content, into tokens in their order; blanks are left out.
/// Takes time proportional to its length.
std::vector<Token> tokenize(std::string_view sql);

/// Returns whether two names are the same but for the case of ASCII letters, as SQLite compares
/// names.
bool sameName(std::string_view a, std::string_view b);

/// Returns the name in `token` without its quotes or brackets. A doubled quote inside a quoted name
/// stays doubled.
std::string_view bareName(const Token& token);

}  // namespace data
