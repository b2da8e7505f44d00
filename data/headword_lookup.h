#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/data_control.h"
#include "data/index_words.h"
#include "data/lookup_sql.h"

/// A lookup has three steps, each of which the caller runs: getBound, the list query, the meaning
/// query. Texts are UTF-16. For one thread, that of the DataControl (see connection.h).
namespace data {

/// Returns the rows of kIndexQuery, from the first on, as an index list. Leaves `rows` at their
/// end. Throws Error, and std::overflow_error above 32,767 rows: the index is counted by 16-bit
/// numbers.
IndexWords readIndexWords(RecordSet& rows);

/// Runs kIndexQuery on `control` and returns its rows in the same way.
IndexWords readIndexWords(DataControl& control);

/// The differences between the lookups of the two windows.
struct LookupOptions {
  /// Whether "%" and "_" of English input become λ in the upper search key (the popup) or the
  /// upper key is the lower one (the quick lookup window).
  bool lambdaUpperKey = false;
  /// Whether a Chinese meaning query finds its bounds anew (the popup) or uses those of the last
  /// list (the quick lookup window).
  bool chineseMeaningFindsBounds = false;
};

/// Headword bounds, list query and meaning query of one window, with the bounds that they keep from
/// one call to the next. Words are given trimmed and with their quotes doubled; `EorC` is
/// user::kEnglish or user::kChinese. The functions run index queries only, on the control that they
/// are given; the caller runs the returned SQL texts. They throw Error where the database fails,
/// and std::overflow_error for row numbers beyond 32 bits, which a damaged index may hold.
class HeadwordLookup {
 public:
  /// `indexWords` is kept by reference and has to outlive the lookup; it may be filled later.
  HeadwordLookup(const IndexWords& indexWords, LookupOptions options);

  /// Sets the bounds to the rows that hold `word` and the headwords after it, at most
  /// kWindowRows + 1 of them. English input is looked up in the index list, and leaves the bounds
  /// as they are where it sorts after the last index word. Chinese input takes two index queries;
  /// the control holds the rows of the second one afterwards.
  void getBound(std::u16string_view word, DataControl& control);

  /// Sets the bounds and returns the list query: up to kListLength headwords from `word` on.
  /// Returns "" for any other language class, with the bounds set.
  std::u16string makeStrSql(std::u16string_view EorC, std::u16string_view word,
                            DataControl& control);

  /// Returns the meaning query for the headword `word`; sets the bounds first, except for Chinese
  /// without chineseMeaningFindsBounds. Returns "" for any other language class.
  std::u16string findword(std::u16string_view EorC, std::u16string_view word, DataControl& control);

  /// The bounds of the last call; both 0 before the first.
  [[nodiscard]] Bounds bounds() const { return bounds_; }

 private:
  void getEnglishBound(std::u16string_view word);
  void getChineseBound(std::u16string_view word, DataControl& control);
  void clampWidth(std::int32_t widest);

  const IndexWords& indexWords_;
  LookupOptions options_;
  Bounds bounds_;
};

/// Tells whether English words are headwords of [edict], by the bounds and the meaning query of the
/// popup, so that it knows what the popup finds. Has a connection of its own. Natively 0.1 ms for a
/// word.
class KnownHeadwords {
 public:
  /// `indexWords` is kept by reference and has to outlive the object; it may be filled later.
  explicit KnownHeadwords(const IndexWords& indexWords);

  /// Sets the connection string; the file is opened by the next call of has().
  void setConnectionString(std::u16string_view connectionString);

  /// Returns whether `word`, as it is typed, is an English headword. "" and Chinese words are none.
  /// Throws Error where the database fails.
  bool has(std::u16string_view word);

 private:
  DataControl control_;
  HeadwordLookup lookup_;
};

/// Returns column "Meaning" of every row of a meaning query, from the first on. Throws Error.
std::vector<std::u16string> readMeanings(RecordSet& rows);

/// The text of the meaning pane. Lines end with CR LF.
struct MeaningText {
  std::u16string body;
  std::size_t headLength = 0;  ///< of the headword's line, its CR LF included, in code units
};

/// Returns the headword's line and one line for each meaning, as the quick lookup window shows
/// them: every line begins with a blank, every meaning but the last ends with a full-width
/// semicolon. Deliberate: the headword's quotes stay doubled.
MeaningText meaningLines(std::u16string_view escapedWord,
                         const std::vector<std::u16string>& meanings);

}  // namespace data
