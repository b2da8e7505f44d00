#pragma once

#include <string>
#include <string_view>

/// The SQL texts of the subject dictionaries. Every blank in them is meant.
namespace query {

/// The dictionaries that are shown, in the order of their names.
inline constexpr std::u16string_view kShownDictionaries =
    u"select * from  [Index]  where Isshow = 1 order by Cname";

/// All dictionaries, in the order of their names.
inline constexpr std::u16string_view kAllDictionaries = u"select * from [index] order by Cname";

/// Modes of a search: texts that begin with what was typed, and texts that contain it.
inline constexpr std::u16string_view kEasy = u"Easy";
inline constexpr std::u16string_view kComplex = u"Complex";

/// A search as it is run.
struct Search {
  std::u16string sql;          ///< "" for a mode that is none
  std::u16string_view column;  ///< the column searched, "word" or "meaning"
};

/// The search of `table` for `text`, whose wildcards are converted and quotes doubled in the
/// caller's variable. A Chinese text is sought among the meanings, which change places with the
/// words then.
Search makeQuerySql(std::u16string& text, std::u16string_view mode, std::u16string_view table);

/// The search of `table` for entries with `english` in the word and `chinese` in the meaning, both
/// exactly as typed: no wildcards, no quotes doubled.
std::u16string specialSql(std::u16string_view table, std::u16string_view english,
                          std::u16string_view chinese);

/// What the input box shows after that search.
std::u16string specialInput(std::u16string_view english, std::u16string_view chinese);

}  // namespace query
