#pragma once

#include <string>
#include <string_view>

namespace data {

/// Returns SQL conditions that every text meets which is LIKE a pattern such as 'data%': the text
/// sorts neither before the pattern's fixed beginning nor after all texts with that beginning.
/// SQLite itself derives such a range from its own LIKE only, which text_functions.h replaces; with
/// it the engine finds the rows by an index or a primary key where the table has one.
///
/// `column` is inserted as it is; `pattern` is the SQL literal with its quotes. Texts are UTF-8.
///
///     'data%'    " and word>='data' collate lexilo and word<'datb' collate lexilo"
///     '5-h%'     the upper bound only: the beginning of a number, and a column may hold numbers
///     '%ta', ''  "": the pattern does not begin with a fixed ASCII character
///
/// Only printable ASCII up to the first wildcard counts as fixed: a shorter beginning implies a
/// wider range, which is as true.
std::string likeRange(std::string_view column, std::string_view pattern);

}  // namespace data
