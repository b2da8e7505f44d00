#pragma once

#include <string>
#include <string_view>

namespace data {

/// SQL conditions that every text fulfils which is LIKE a pattern of the kind "data%": it does not
/// come before the pattern's fixed beginning, nor behind the texts with that beginning. They let
/// the engine find the rows by an index where the table has one. `column` stands in the SQL text as
/// it is; `pattern` is the literal with its quotes. Returns " and column>='...' collate ..." with
/// both bounds; only the upper one for a beginning that might be a number's ("5-h", "-a"), so that
/// columns of numbers may be searched as well; "" for a pattern that does not begin with a fixed
/// ASCII character.
std::string likeRange(std::string_view column, std::string_view pattern);

}  // namespace data
