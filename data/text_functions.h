#pragma once

#include <functional>

struct sqlite3;

namespace data {

/// Name of the collation that text columns of the dictionary are declared with:
///     create table med (word text collate lexilo, meaning text collate lexilo)
/// Comparison, equality, DISTINCT and ORDER BY of such columns then go by the dictionary's order
/// (text/order.h). LIKE ignores case the same way for every column.
inline constexpr const char* kTextOrder = "lexilo";

/// Longest pattern in bytes that LIKE takes: SQLite's own default.
inline constexpr int kMaxPatternBytes = 50000;

/// Registers the collation and LIKE on a connection. Whoever builds, reads or updates the
/// dictionary does this right after opening it. `isOverdue` is polled while they work, by way of a
/// text::StepBudget. After it returned true LIKE fails with SQLITE_INTERRUPT and the collation
/// returns 0, so that the statement ends soon; the caller must discard its rows. Throws Error.
void registerTextFunctions(sqlite3* connection, std::function<bool()> isOverdue = {});

}  // namespace data
