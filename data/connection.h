#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "data/error.h"

struct sqlite3;
struct sqlite3_stmt;

/// SQLite's handles and how they are opened. SQLite is built for one thread (SQLITE_THREADSAFE=0 in
/// cmake/sqlite.cmake) and keeps state that all its connections share: everything in this folder
/// that uses a database, here and in Database, RecordSet and DataControl, is to be called from one
/// and the same thread of the process, whichever that is.
namespace data {

/// Closes a connection. With statements left the engine closes it after the last of them.
struct ConnectionCloser {
  void operator()(sqlite3* connection) const;
};
/// Finalizes a statement, which ends its transaction and its locks where it was the last one.
struct StatementCloser {
  void operator()(sqlite3_stmt* statement) const;
};
/// Owners of the engine's handles; null without one.
using Connection = std::unique_ptr<sqlite3, ConnectionCloser>;
using Statement = std::unique_ptr<sqlite3_stmt, StatementCloser>;

/// Opens an existing database file (path in UTF-8; never created, never taken for a URI) that may
/// be damaged or malicious: nothing in it may run triggers, views or unsafe functions. The text
/// functions are registered, with `isOverdue` (see text_functions.h). An operation waits up to
/// `lockWait` while others hold the file. Throws Error; a file that is not a database is reported
/// by the first statement only.
Connection openConnection(const std::string& file, Access access,
                          std::chrono::milliseconds lockWait, std::function<bool()> isOverdue = {});

/// Installs an authorizer that permits nothing but reading ordinary tables on a connection: no
/// statement other than SELECT, no schema or virtual tables of the engine, no functions but LIKE,
/// nothing recursive. Preparing anything else throws Error with SQLITE_AUTH, "not authorized".
/// Statements that are prepared already are not affected.
void allowReadingOnly(sqlite3* connection);

/// Prepares the one statement of `sql`, in UTF-8. Comments, blanks and semicolons may follow it.
/// Throws Error: SQLITE_MISUSE for a text with a null character or without a statement,
/// SQLITE_ERROR for more than one statement, otherwise the engine's own code.
Statement prepare(sqlite3* connection, const std::string& sql);

/// Runs a statement to its end; rows that it yields are dropped. Throws Error, as prepare() does or
/// because the statement fails.
void execute(sqlite3* connection, const std::string& sql);

}  // namespace data
