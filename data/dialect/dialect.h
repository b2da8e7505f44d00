#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace data {

/// A query in SQLite's dialect, and what its text shows about it. Texts are UTF-8.
struct Query {
  std::string sql;
  /// The most rows that it yields ("top n"); nullopt without such a limit.
  std::optional<std::size_t> top;
  /// The table, where the query has the form "select * from TABLE ..."; otherwise "".
  std::string table;
  /// For such a query: the same with the table's rowid as one more column at the end; otherwise "".
  std::string sqlWithRowid;
  /// Whether it is no more than "select * from TABLE", perhaps with "where" and comparisons of
  /// columns with constants joined by "and". Such a query scans one table in its own order, and
  /// scanned backward it yields the same rows from the last to the first.
  bool plainScan = false;
};

/// Translates an SQL text in UTF-8 from the dialect of the windows into SQLite's:
/// - "select [distinct] top n ..." becomes a limit. It is placed before a comment at the end, which
///   might have come in with the user's input;
/// - in a query over one table "order by X" means the table's column X, even where the query gives
///   another column the name X;
/// - a condition "column like 'beginning%'" right after "where" is joined by the range of texts
///   that it implies, so that an index can be used (like_range.h).
/// SQLite accepts everything else as it stands: names in brackets, no blank before "where", doubled
/// blanks, LIKE with "%" and "_". Nothing inside quotes is changed, and a text that is not a query
/// is returned unchanged, for SQLite to refuse. Texts compare in the dictionary's order where their
/// columns are declared with the collation of text_functions.h: nothing is added here for columns
/// that are not. Pure; throws nothing but std::bad_alloc. Takes time proportional to the length of
/// the text.
Query translate(std::string_view sql);

}  // namespace data
