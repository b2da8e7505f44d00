// The translation is no parser: it looks at the tokens (sql_tokens.h) for the few forms that it
// knows, notes edits to the text, and makes them all at once at the end. Whatever it does not
// recognise with certainty stays unchanged, since SQLite judges the text anyway. Two properties
// keep that safe: no edit changes which rows a text yields that SQLite would accept, and keywords
// are looked for outside parentheses only, so that a subquery is never mistaken for the query
// itself.
//
// Comments are dropped from the tokens at the beginning and stay in the text. An edit after the
// last token is therefore placed before a comment at the end.

#include "data/dialect/dialect.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "data/dialect/like_range.h"
#include "data/dialect/sql_tokens.h"

namespace data {
namespace {

/// Keywords that may follow the only table of a query.
constexpr std::array kClauses{"where", "group", "having", "order", "limit", "window"};
/// Keywords that follow a table where there is more than one table or select, or that are not a
/// table's alias for another reason.
constexpr std::array kJoiners{"join",    "inner", "left",    "right",  "full",
                              "outer",   "cross", "natural", "on",     "using",
                              "indexed", "not",   "union",   "except", "intersect"};
/// Keywords that may follow a column's name in an "order by" list.
constexpr std::array kAfterOrderTerm{"asc", "desc", "collate", "nulls", "limit"};

template <std::size_t N>
bool isOneOf(const Token& token, const std::array<const char*, N>& words) {
  return std::any_of(words.begin(), words.end(),
                     [&](const char* word) { return token.isWord(word); });
}

/// Translates one SQL text, to which it keeps a view. Token positions are called i; those from
/// tokens_.size() on are valid and yield an empty token (see at()).
class Translator {
 public:
  explicit Translator(std::string_view sql) : sql_(sql), tokens_(tokenize(sql)) {
    std::erase_if(tokens_, [](const Token& token) { return token.kind == TokenKind::kComment; });
  }

  Query translate() {
    if (at(0).isWord("select")) translateSelect();
    // Added last: other edits may be made at the same position, and the limit is to follow them.
    if (query_.top) edits_.push_back({statementEnd(), 0, " limit " + std::to_string(*query_.top)});
    query_.sql = edited(edits_);
    return std::move(query_);
  }

 private:
  /// A range of the text, in bytes, and its replacement.
  struct Edit {
    std::size_t start = 0;
    std::size_t length = 0;
    std::string replacement;
  };

  /// The only table of the query, the name or alias that qualifies its columns, and the position of
  /// the first token after both.
  struct OnlyTable {
    Token name;
    Token columnsGoBy;
    std::size_t end = 0;
  };

  /// Reads "select [distinct|all] [top n] list from table ...". `list` is the position of the first
  /// token of the list of columns.
  void translateSelect() {
    std::size_t list = 1;
    const bool distinct = at(list).isWord("distinct");
    if (distinct || at(list).isWord("all")) ++list;
    const bool limited = takeTop(list);
    if (limited) list += 2;
    narrowLike(find("where", list) + 1);

    const std::optional<OnlyTable> table = onlyTable(list);
    if (!table) return;
    qualifyOrder(*table);
    const bool wholeRow = list == 1 && at(list).isSymbol('*') && at(list + 1).isWord("from") &&
                          find("group", table->end) == tokens_.size();
    if (!wholeRow) return;
    query_.table = bareName(table->name);
    query_.plainScan = isPlainScan(table->end);
    std::vector<Edit> edits = edits_;
    edits.push_back({endOf(at(list)), 0, "," + std::string(table->columnsGoBy.text) + ".rowid"});
    query_.sqlWithRowid = edited(std::move(edits));
  }

  /// Removes "top n" at `i`, if it is there and n fits, and notes the limit.
  bool takeTop(std::size_t i) {
    if (!at(i).isWord("top") || at(i + 1).kind != TokenKind::kNumber) return false;
    const std::string_view digits = at(i + 1).text;
    std::size_t count = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), count);
    if (error != std::errc() || end != digits.data() + digits.size()) return false;
    query_.top = count;
    const std::size_t start = startOf(at(i));
    edits_.push_back({start, endOf(at(i + 1)) - start, ""});
    return true;
  }

  /// Adds the range that "column like 'beginning%'" at `i` implies, in parentheses with it. Does
  /// nothing unless the condition ends there: the literal might be an operand of what follows.
  void narrowLike(std::size_t i) {
    if (!at(i).canName() || !at(i + 1).isWord("like")) return;
    if (at(i + 2).kind != TokenKind::kText || !endsCondition(at(i + 3))) return;
    const std::string range = likeRange(at(i).text, at(i + 2).text);
    if (range.empty()) return;
    edits_.push_back({startOf(at(i)), 0, "("});
    edits_.push_back({endOf(at(i + 2)), 0, range + ")"});
  }

  static bool endsCondition(const Token& token) {
    return token.text.empty() || token.isSymbol(';') || token.isWord("and") ||
           isOneOf(token, kClauses);
  }

  /// Offset of the end of the first statement: before its semicolon, or after its last token.
  [[nodiscard]] std::size_t statementEnd() const {
    const auto semicolon = std::find_if(tokens_.begin(), tokens_.end(),
                                        [](const Token& token) { return token.isSymbol(';'); });
    return semicolon == tokens_.end() ? endOf(tokens_.back()) : startOf(*semicolon);
  }

  /// The table after "from", searched from `i` on, if it is the only one.
  [[nodiscard]] std::optional<OnlyTable> onlyTable(std::size_t i) const {
    const std::size_t name = find("from", i) + 1;
    if (!isTableName(at(name))) return std::nullopt;
    std::size_t end = name + 1;
    std::size_t columnsGoBy = name;
    if (at(end).isWord("as")) ++end;
    if (isTableName(at(end))) columnsGoBy = end++;
    const bool alone = at(end).text.empty() || at(end).isSymbol(';') || isOneOf(at(end), kClauses);
    if (!alone) return std::nullopt;
    for (const char* compound : {"union", "except", "intersect"}) {
      if (find(compound, i) < tokens_.size()) return std::nullopt;
    }
    return OnlyTable{at(name), at(columnsGoBy), end};
  }

  static bool isTableName(const Token& token) {
    return token.canName() && !isOneOf(token, kClauses) && !isOneOf(token, kJoiners);
  }

  /// Puts the table's name before each term of the "order by" list that is a plain name. SQLite
  /// would take it for an alias of the result first.
  void qualifyOrder(const OnlyTable& table) {
    const std::size_t order = find("order", table.end);
    if (!at(order + 1).isWord("by")) return;
    int depth = 0;
    bool termStarts = true;
    for (std::size_t i = order + 2; i < tokens_.size() && !at(i).isSymbol(';'); ++i) {
      if (termStarts && at(i).canName() && endsOrderTerm(at(i + 1))) {
        edits_.push_back({startOf(at(i)), 0, std::string(table.columnsGoBy.text) + "."});
      }
      depth += depthChange(at(i));
      termStarts = depth == 0 && at(i).isSymbol(',');
    }
  }

  static bool endsOrderTerm(const Token& token) {
    return token.text.empty() || token.isSymbol(',') || token.isSymbol(';') ||
           isOneOf(token, kAfterOrderTerm);
  }

  /// Returns whether the tokens from `i` on are nothing, or "where" and comparisons of columns with
  /// constants joined by "and". Anything else might make the engine use another order or index.
  [[nodiscard]] bool isPlainScan(std::size_t i) const {
    if (i == tokens_.size()) return true;
    if (!at(i).isWord("where")) return false;
    while (const std::optional<std::size_t> end = endOfComparison(i + 1)) {
      if (end == tokens_.size()) return true;
      i = *end;
      if (!at(i).isWord("and")) return false;
    }
    return false;
  }

  /// Position after "column operator constant" at `i`; nullopt if something else is there.
  [[nodiscard]] std::optional<std::size_t> endOfComparison(std::size_t i) const {
    if (!at(i++).canName()) return std::nullopt;
    if (at(i).isSymbol('.')) i += 2;
    const std::size_t comparison = i;
    while (isComparison(at(i))) ++i;
    const bool constant = at(i).kind == TokenKind::kText || at(i).kind == TokenKind::kNumber;
    if (i == comparison || !constant) return std::nullopt;
    return i + 1;
  }

  static bool isComparison(const Token& token) {
    return token.isSymbol('<') || token.isSymbol('>') || token.isSymbol('=');
  }

  static int depthChange(const Token& token) {
    if (token.isSymbol('(')) return 1;
    return token.isSymbol(')') ? -1 : 0;
  }

  /// Position of the first `keyword` from `i` on outside parentheses; tokens_.size() without one.
  [[nodiscard]] std::size_t find(std::string_view keyword, std::size_t i) const {
    int depth = 0;
    for (; i < tokens_.size(); ++i) {
      depth += depthChange(tokens_[i]);
      if (depth == 0 && tokens_[i].isWord(keyword)) break;
    }
    return std::min(i, tokens_.size());
  }

  /// Token `i`; an empty one of kind kBroken from the end on, which no test of a token accepts.
  [[nodiscard]] Token at(std::size_t i) const {
    return i < tokens_.size() ? tokens_[i] : Token{TokenKind::kBroken, {}};
  }

  [[nodiscard]] std::size_t startOf(const Token& token) const {
    return static_cast<std::size_t>(token.text.data() - sql_.data());
  }
  [[nodiscard]] std::size_t endOf(const Token& token) const {
    return startOf(token) + token.text.size();
  }

  /// The text with `edits` made. Stable: edits at the same offset are made in the order in which
  /// they were noted.
  [[nodiscard]] std::string edited(std::vector<Edit> edits) const {
    std::stable_sort(edits.begin(), edits.end(),
                     [](const Edit& a, const Edit& b) { return a.start < b.start; });
    std::string result;
    std::size_t copied = 0;
    for (const Edit& edit : edits) {
      result.append(sql_, copied, edit.start - copied).append(edit.replacement);
      copied = edit.start + edit.length;
    }
    result.append(sql_, copied);
    return result;
  }

  std::string_view sql_;
  std::vector<Token> tokens_;
  std::vector<Edit> edits_;
  Query query_;
};

}  // namespace

Query translate(std::string_view sql) { return Translator(sql).translate(); }

}  // namespace data
