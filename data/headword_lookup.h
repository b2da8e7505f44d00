#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/data_control.h"

namespace data {

/// The shared index list: slot 0 empty, slot k the lower-cased headword of [edict] row k x 100.
using IndexWords = std::vector<std::u16string>;

/// A window of row numbers (eid or cid) that a list or meaning query searches; both ends included.
struct Bounds {
  std::int32_t lower = 0;
  std::int32_t upper = 0;
};

/// What the lookups of the two windows do differently.
struct LookupRules {
  /// Whether "%" and "_" of English input become U+03BB in the upper search key (the popup) or the
  /// upper key is the lower one (the quick lookup window).
  bool lambdaUpperKey = false;
  /// Whether a Chinese meaning query finds its bounds anew (the popup) or uses those of the last
  /// list (the quick lookup window).
  bool chineseMeaningFindsBounds = false;
};

/// Headword bounds, list SQL and meaning SQL of one window, with the bounds that they keep between
/// calls. Words are given trimmed and with their quotes doubled. Database errors pass through.
class HeadwordLookup {
 public:
  HeadwordLookup(const IndexWords& indexWords, LookupRules rules);

  /// Finds the rows in which `word` and its followers stand. English input that sorts behind the
  /// last index word leaves the bounds as they are.
  void getBound(std::u16string_view word, DataControl& control);

  /// The list query: up to 75 headwords from `word` on. "" for a class that is neither E nor C.
  std::u16string makeStrSql(std::u16string_view EorC, std::u16string_view word,
                            DataControl& control);

  /// The meaning query for one headword. "" for a class that is neither E nor C.
  std::u16string findword(std::u16string_view EorC, std::u16string_view word,
                          DataControl& control);

  [[nodiscard]] Bounds bounds() const { return bounds_; }

 private:
  void getEnglishBound(std::u16string_view word);
  void getChineseBound(std::u16string_view word, DataControl& control);

  const IndexWords& indexWords_;
  LookupRules rules_;
  Bounds bounds_;
};

/// Reads table [edictidx] into an index list. Throws std::overflow_error above 32,767 rows.
IndexWords readIndexWords(DataControl& control);

/// The text of the meaning pane and the length of its first part, the headword's line.
struct MeaningText {
  std::u16string body;
  std::size_t headLength = 0;
};

/// Headword line and one line a meaning, as the quick lookup window shows them.
MeaningText meaningLines(std::u16string_view escapedWord,
                         const std::vector<std::u16string>& meanings);

/// Field "Meaning" of every row.
std::vector<std::u16string> readMeanings(RecordSet& rows);

}  // namespace data
