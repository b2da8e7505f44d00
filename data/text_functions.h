#pragma once

#include <functional>

struct sqlite3;

namespace data {

/// Name of the collation that text columns of the dictionary are declared with:
///     create table med (word text collate lexilo, meaning text collate lexilo)
/// Comparison, equality, DISTINCT and ORDER BY of such columns then go by the dictionary's order
/// (text/order.h). LIKE ignores case the same way for every column.
inline constexpr const char* kTextOrder = "lexilo";

/// Longest pattern in bytes that LIKE takes, SQLite's own measure.
inline constexpr int kLongestPattern = 50000;

/// Teaches a connection the collation and LIKE. Whoever builds, reads or updates the dictionary
/// does this right after opening it. `isOverdue` is asked now and then while they work: once it
/// says yes, LIKE fails with SQLITE_INTERRUPT, and all texts compare as equal for the sake of a
/// quick end of the statement, whose rows are worth nothing then. Throws Error.
void registerTextFunctions(sqlite3* connection, std::function<bool()> isOverdue = {});

}  // namespace data
