#pragma once

struct sqlite3;

namespace data {

/// Lets nothing but reading ordinary tables pass on a connection: no statement other than SELECT,
/// no schema or virtual tables of the engine, no functions but LIKE, nothing recursive. All else is
/// refused with "not authorized" when a statement is prepared.
void allowReadingOnly(sqlite3* connection);

}  // namespace data
