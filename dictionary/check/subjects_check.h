#pragma once

#include "dictionary/check/rules.h"

struct sqlite3;

namespace dictionary {

/// Checks the catalogue of subject dictionaries ([Index]), the rows of every table that it names,
/// and that the file has no other tables or views. The windows show the catalogue as a tree and
/// search the table of the chosen dictionary.
///
/// Of the catalogue: each table is named once, by a name that the windows can put into an SQL text
/// without quoting; each dictionary has a Chinese name of its own; exactly one is the default, and
/// it is shown. Of a dictionary: its headwords ascend in the text order, each once, and every row
/// has two texts of permitted characters.
///
/// Sets the counts of dictionaries and their rows in `result`, and adds what breaks a rule to its
/// findings. The fixed tables must have passed checkFixedTables(). Throws data::Error if the file
/// cannot be read.
void checkSubjects(sqlite3* connection, CheckResult& result);

}  // namespace dictionary
