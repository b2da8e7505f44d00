#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "data/record_set.h"

namespace data {

/// The parts of a connection string: as given, without the blanks around them; "" where not given.
/// Only dataSource has an effect.
struct ConnectionString {
  std::u16string provider;
  std::u16string dataSource;  ///< path of the database file
  std::u16string persistSecurityInfo;
};

/// Returns the connection string of the database file at that path, composed without any quoting.
std::u16string connectionString(std::u16string_view databaseFile);

/// Returns the parts of "Provider=...;Data Source=FILE;Persist Security Info=False", the keys in
/// any order and case. Such a text is composed without any quoting, so that a folder's name may
/// contain ";", "=" or quotes: a value ends before the next ";" that is followed by one of these
/// keys, not given so far, or at the end of the text. Never fails.
ConnectionString parseConnectionString(std::u16string_view text);

/// A window's access to the database: a connection string, an SQL text, and the rows of its last
/// refresh. The file is opened by the first refresh and stays open; no statement stays open between
/// events. Owns its connection, which record sets moved out of it share. For one thread (see
/// connection.h).
class DataControl {
 public:
  /// Sets the connection string. If it differs from the former one, drops the rows and closes the
  /// connection. Opens nothing: a text without a usable file fails at the next refresh().
  void setConnectionString(std::u16string_view connectionString);
  /// Sets how much of the file connections opened from here on keep in memory, in KiB (see
  /// Database::setCacheKiB).
  void setCacheKiB(int kibibytes) { cacheKiB_ = kibibytes; }
  /// Sets the SQL text that refresh() runs, in the dialect of the windows (dialect/dialect.h). Any
  /// text may be given; the rows of the last refresh stay.
  void setRecordSource(std::u16string_view sql);
  [[nodiscard]] const std::u16string& recordSource() const { return recordSource_; }

  /// Opens the file unless it is open, runs the record source and replaces the rows. Throws Error
  /// with a description for the user; there are no rows then.
  void refresh();

  /// Drops the rows and closes the file, which the next refresh() opens again.
  void close();

  /// The rows of the last refresh(); without any before the first. The reference stays valid, and
  /// names other rows after another refresh().
  [[nodiscard]] RecordSet& recordset() { return recordset_; }

 private:
  std::u16string connectionString_;
  std::u16string recordSource_;
  std::optional<int> cacheKiB_;
  std::shared_ptr<Database> database_;
  RecordSet recordset_;
};

}  // namespace data
