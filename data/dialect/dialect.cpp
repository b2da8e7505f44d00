#include "data/dialect/dialect.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "data/dialect/like_range.h"
#include "data/dialect/sql_tokens.h"

namespace data {
namespace {

/// What may follow the only table of a query.
constexpr std::array kClauses{"where", "group", "having", "order", "limit", "window"};
/// What tells that there is more than one table or one select.
constexpr std::array kJoiners{"join",    "inner", "left",    "right",  "full",
                              "outer",   "cross", "natural", "on",     "using",
                              "indexed", "not",   "union",   "except", "intersect"};
/// What may follow a column's name in an "order by" list.
constexpr std::array kAfterOrderTerm{"asc", "desc", "collate", "nulls", "limit"};

template <std::size_t N>
bool isOneOf(const Token& token, const std::array<const char*, N>& words) {
  return std::any_of(words.begin(), words.end(),
                     [&](const char* word) { return token.isWord(word); });
}

/// Reads one SQL text part by part and notes what has to change in it.
class Translator {
 public:
  explicit Translator(std::string_view sql) : sql_(sql), tokens_(tokenize(sql)) {
    std::erase_if(tokens_, [](const Token& token) { return token.kind == TokenKind::kComment; });
  }

  Query translate() {
    if (at(0).isWord("select")) translateSelect();
    // Behind all else that may come in at the end of the statement.
    if (query_.top) edits_.push_back({statementEnd(), 0, " limit " + std::to_string(*query_.top)});
    query_.sql = edited(edits_);
    return std::move(query_);
  }

 private:
  /// A stretch of the text and what takes its place.
  struct Edit {
    std::size_t start = 0;
    std::size_t length = 0;
    std::string replacement;
  };

  /// The only table of the query: the name that its columns go by, and the part behind it.
  struct OnlyTable {
    Token name;
    Token columnsGoBy;
    std::size_t end = 0;
  };

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

  /// Takes "top n" at `i` out.
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

  /// Adds the range that "column like 'beginning%'" at `i` implies, where no other operator reaches
  /// over to it.
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

  /// Where the first statement ends: before its semicolon, or behind its last part.
  [[nodiscard]] std::size_t statementEnd() const {
    const auto semicolon = std::find_if(tokens_.begin(), tokens_.end(),
                                        [](const Token& token) { return token.isSymbol(';'); });
    return semicolon == tokens_.end() ? endOf(tokens_.back()) : startOf(*semicolon);
  }

  /// The table behind "from", searched from `i` on, if there is but one.
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

  /// Puts the table's name before the plain names of the "order by" list.
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

  /// Whether nothing but comparisons of columns with constants, joined by "and", comes at `i`.
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

  /// The part behind "column operator constant" at `i`, if such a thing stands there.
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

  /// Position of the first `keyword` from `i` on that stands in no parentheses, or the end.
  [[nodiscard]] std::size_t find(std::string_view keyword, std::size_t i) const {
    int depth = 0;
    for (; i < tokens_.size(); ++i) {
      depth += depthChange(tokens_[i]);
      if (depth == 0 && tokens_[i].isWord(keyword)) break;
    }
    return std::min(i, tokens_.size());
  }

  /// Part number `i`; an empty one behind the end.
  [[nodiscard]] Token at(std::size_t i) const {
    return i < tokens_.size() ? tokens_[i] : Token{TokenKind::kBroken, {}};
  }

  [[nodiscard]] std::size_t startOf(const Token& token) const {
    return static_cast<std::size_t>(token.text.data() - sql_.data());
  }
  [[nodiscard]] std::size_t endOf(const Token& token) const {
    return startOf(token) + token.text.size();
  }

  /// The text with `edits` made in it.
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
