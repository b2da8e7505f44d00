#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/data_control.h"
#include "data/index_words.h"
#include "data/lookup_sql.h"

namespace data {

/// Reads the rows of kIndexQuery into an index list. Throws Error, and std::overflow_error above
/// 32,767 rows.
IndexWords readIndexWords(RecordSet& rows);

/// Runs kIndexQuery and reads its rows.
IndexWords readIndexWords(DataControl& control);

/// What the lookups of the two windows do differently.
struct LookupOptions {
  /// Whether "%" and "_" of English input become U+03BB in the upper search key (the popup) or the
  /// upper key is the lower one (the quick lookup window).
  bool lambdaUpperKey = false;
  /// Whether a Chinese meaning query finds its bounds anew (the popup) or uses those of the last
  /// list (the quick lookup window).
  bool chineseMeaningFindsBounds = false;
};

/// Headword bounds, list SQL and meaning SQL of one window, with the bounds that they keep between
/// calls. Words are given trimmed and with their quotes doubled. Database errors pass through;
/// row numbers beyond 32 bits, which a damaged index may yield, are a std::overflow_error.
class HeadwordLookup {
 public:
  /// `indexWords` is kept by reference and has to outlive the lookup.
  HeadwordLookup(const IndexWords& indexWords, LookupOptions options);

  /// Finds the range of rows that holds `word` and its followers, at most 501 rows. English input
  /// that sorts after the last index word leaves the bounds as they are. For Chinese input the
  /// control holds the rows of an index query afterwards.
  void getBound(std::u16string_view word, DataControl& control);

  /// The list query: up to 75 headwords from `word` on. "" for a class that is neither E nor C.
  std::u16string makeStrSql(std::u16string_view EorC, std::u16string_view word,
                            DataControl& control);

  /// The meaning query for one headword. "" for a class that is neither E nor C.
  std::u16string findword(std::u16string_view EorC, std::u16string_view word, DataControl& control);

  [[nodiscard]] Bounds bounds() const { return bounds_; }

 private:
  void getEnglishBound(std::u16string_view word);
  void getChineseBound(std::u16string_view word, DataControl& control);
  void clampWidth(std::int32_t widest);

  const IndexWords& indexWords_;
  LookupOptions options_;
  Bounds bounds_;
};

/// Field "Meaning" of every row, from the first on.
std::vector<std::u16string> readMeanings(RecordSet& rows);

/// The text of the meaning pane, and the length of the headword's line at its beginning, line end
/// included, in UTF-16 code units.
struct MeaningText {
  std::u16string body;
  std::size_t headLength = 0;
};

/// Headword line and one line a meaning, as the quick lookup window shows them: every line with a
/// blank before it, every meaning but the last with a full-width semicolon after it. Deliberate:
/// the headword's quotes stay doubled.
MeaningText meaningLines(std::u16string_view escapedWord,
                         const std::vector<std::u16string>& meanings);

}  // namespace data
