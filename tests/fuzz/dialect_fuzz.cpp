// The dialect on any text: nothing is lost when a text is cut up, and no quoted text is changed
// when it is translated.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/data_control.h"
#include "data/dialect/dialect.h"
#include "data/dialect/sql_tokens.h"
#include "tests/fuzz/fuzz_input.h"
#include "text/utf.h"

namespace {

bool isBlank(std::string_view text) {
  return text.find_first_not_of(" \t\n\f\r") == std::string_view::npos;
}

/// The parts lie in the text one after the other, with nothing but blanks between them.
void checkParts(std::string_view sql) {
  std::size_t reached = 0;
  for (const data::Token& token : data::tokenize(sql)) {
    const auto start = static_cast<std::size_t>(token.text.data() - sql.data());
    require(start >= reached && !token.text.empty());
    require(isBlank(sql.substr(reached, start - reached)));
    reached = start + token.text.size();
  }
  require(isBlank(sql.substr(reached)));
}

std::vector<std::string> quotedTexts(std::string_view sql) {
  std::vector<std::string> texts;
  for (const data::Token& token : data::tokenize(sql)) {
    const bool quoted =
        token.kind == data::TokenKind::kText || token.kind == data::TokenKind::kBroken;
    if (quoted) texts.emplace_back(token.text);
  }
  return texts;
}

/// Every quoted text stands in the translation as it was, in the same order; others may come in.
void checkQuotes(std::string_view sql, std::string_view translation) {
  const std::vector<std::string> after = quotedTexts(translation);
  std::size_t i = 0;
  for (const std::string& text : quotedTexts(sql)) {
    while (i < after.size() && after[i] != text) ++i;
    require(i < after.size());
    ++i;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view sql = FuzzInput(data, size).rest();
  checkParts(sql);
  const data::Query query = data::translate(sql);
  checkParts(query.sql);
  // An open quote or comment contains all that is added after it.
  const std::vector<data::Token> parts = data::tokenize(sql);
  if (parts.empty() || parts.back().kind != data::TokenKind::kBroken) checkQuotes(sql, query.sql);
  if (!query.top) require(query.sql.size() >= sql.size());

  const std::u16string text = text::toUtf16(sql);
  const data::ConnectionString connection = data::parseConnectionString(text);
  require(connection.provider.size() + connection.dataSource.size() <= text.size());
  return 0;
}
