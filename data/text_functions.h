#pragma once

#include <functional>

struct sqlite3;

namespace data {

/// Name of the collation that text columns of the dictionary are declared with:
///     create table med (word text collate lexilo, meaning text collate lexilo)
/// Comparison, equality, DISTINCT and ORDER BY of such columns then follow the dictionary's order
/// (text/order.h). LIKE ignores case in the same way for every column. The name is stored in the
/// database file, which cannot be read without a collation of that name.
inline constexpr const char* kTextOrder = "lexilo";

/// Longest pattern in bytes that LIKE accepts: SQLite's own default.
inline constexpr int kMaxPatternBytes = 50000;

/// Registers the collation and LIKE on a connection, which owns them from then on. openConnection()
/// does so for every connection, whether it builds, reads or updates a dictionary. LIKE with an
/// ESCAPE clause fails. Throws Error.
///
/// `isOverdue` is polled while they work, by way of a text::StepBudget; without it they work
/// without a limit. After it returned true LIKE fails with SQLITE_INTERRUPT and the collation,
/// which cannot fail, returns 0, so that the statement ends soon; the caller must discard its rows.
void registerTextFunctions(sqlite3* connection, std::function<bool()> isOverdue = {});

}  // namespace data
