#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "data/record_set.h"

namespace data {

/// What a connection string says. Texts are kept as given, without the blanks around them.
struct ConnectionString {
  std::u16string provider;
  std::u16string dataSource;  ///< the database file
  std::u16string persistSecurityInfo;
};

/// Returns the connection string of `databaseFile`, composed without any quoting.
std::u16string connectionString(std::u16string_view databaseFile);

/// Takes "Provider=...;Data Source=FILE;Persist Security Info=False" apart, the keys in any order
/// and case. Such a text is composed without any quoting, so that a folder's name may contain ";",
/// "=" or quotes: a value ends before the next ";" that is followed by one of these keys, not given
/// so far, or at the end of the text. Never fails; what is not given is "".
ConnectionString parseConnectionString(std::u16string_view text);

/// A window's access to the database: a connection string, an SQL text, and the rows of its last
/// refresh. The file is opened by the first refresh and stays open; no statement stays open between
/// events. For one thread (see connection.h).
class DataControl {
 public:
  /// "Provider=...;Data Source=FILE;..."; another text closes the connection of the former
  /// one. Nothing is opened yet, so that a text without a usable file fails at the next refresh.
  void setConnectionString(std::u16string_view connectionString);
  /// Pages that connections opened from here on keep in memory, in KiB (see Database::setCacheKiB).
  void setCacheKiB(int kibibytes) { cacheKiB_ = kibibytes; }
  void setRecordSource(std::u16string_view sql);
  [[nodiscard]] const std::u16string& recordSource() const { return recordSource_; }

  /// Runs the record source. Throws Error, described for the user; the former rows are gone then.
  void refresh();

  /// Drops the rows and closes the file, which the next refresh opens again.
  void close();

  /// The rows of the last refresh; empty before the first.
  [[nodiscard]] RecordSet& recordset() { return recordset_; }

 private:
  std::u16string connectionString_;
  std::u16string recordSource_;
  std::optional<int> cacheKiB_;
  std::shared_ptr<Database> database_;
  RecordSet recordset_;
};

}  // namespace data
