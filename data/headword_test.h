#pragma once

#include <string_view>

#include "data/data_control.h"
#include "data/headword_lookup.h"

namespace data {

/// Tells whether English words are headwords of [edict], by the bounds and the meaning query of the
/// popup, so that it finds what the popup finds. Has a connection of its own. For one thread (see
/// connection.h). Natively 0.1 ms for a word.
class HeadwordTest {
 public:
  /// `indexWords` is kept by reference and has to outlive the test; it may be filled later.
  explicit HeadwordTest(const IndexWords& indexWords);

  /// Sets the connection string; the file is opened by the next call of has().
  void setConnectionString(std::u16string_view connectionString);

  /// Returns whether `word`, as it is typed, is an English headword. "" and Chinese words are none.
  /// Throws Error where the database fails.
  bool has(std::u16string_view word);

 private:
  DataControl control_;
  HeadwordLookup lookup_;
};

}  // namespace data
