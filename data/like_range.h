#pragma once

#include <string>
#include <string_view>

namespace data {

/// SQL conditions that every text fulfils which is LIKE a pattern of the kind "data%": it does not
/// come before the pattern's fixed beginning, nor behind the texts with that beginning. They let
/// the engine find the rows by an index where the table has one. `column` stands in the SQL text as
/// it is; `pattern` is the literal with its quotes. Returns " and column>='...' collate ..."; ""
/// for a pattern that does not begin with an ASCII letter (against columns of numbers, only such a
/// text compares as a text).
std::string likeRange(std::string_view column, std::string_view pattern);

}  // namespace data
