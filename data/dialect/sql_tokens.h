#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace data {

/// The smallest parts of an SQL text that matter to its translation.
enum class TokenKind {
  kWord,     ///< keyword or plain name
  kName,     ///< quoted name: [..], ".." or `..`
  kText,     ///< text in single quotes, two of them standing for one
  kNumber,   ///< digits and what is written on to them without a blank
  kSymbol,   ///< any other single character
  kComment,  ///< "--" to the end of the line, "/*" to "*/" or to the end
  kBroken,   ///< quotes or brackets that nothing closes, to the end
};

/// One part, as it stands in the text that was cut up.
struct Token {
  TokenKind kind = TokenKind::kSymbol;
  std::string_view text;

  /// Whether this is the keyword `lowerCase`, in whatever case.
  [[nodiscard]] bool isWord(std::string_view lowerCase) const;
  [[nodiscard]] bool isSymbol(char symbol) const {
    return kind == TokenKind::kSymbol && text.front() == symbol;
  }
  /// Whether this can name a table or a column.
  [[nodiscard]] bool canName() const {
    return kind == TokenKind::kWord || kind == TokenKind::kName;
  }
};

/// Cuts an SQL text in UTF-8 into its parts; blanks are left out. The parts point into `sql`.
std::vector<Token> tokenize(std::string_view sql);

/// Whether two names are the same but for the case of ASCII letters.
bool sameName(std::string_view a, std::string_view b);

/// The name that `token` spells, without its quotes or brackets.
std::string_view bareName(const Token& token);

}  // namespace data
