#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "data/record_set.h"

namespace data {

class Database;

/// A window's door to the database: a connection string, an SQL text, and the rows of its last
/// refresh. The file is opened by the first refresh and stays open; no statement stays open between
/// events.
class DataControl {
 public:
  DataControl();
  ~DataControl();
  DataControl(DataControl&& other) noexcept;
  DataControl& operator=(DataControl&& other) noexcept;
  DataControl(const DataControl&) = delete;
  DataControl& operator=(const DataControl&) = delete;

  /// "Provider=...;Data Source=FILE;..."; another text closes the connection of the former.
  void setConnectionString(std::u16string_view connectionString);
  /// Pages that connections opened from here on keep in memory, in KiB (see Database::setCacheKiB).
  void setCacheKiB(int kibibytes) { cacheKiB_ = kibibytes; }
  void setRecordSource(std::u16string_view sql);
  [[nodiscard]] const std::u16string& recordSource() const { return recordSource_; }

  /// Runs the record source. Throws Error; the former rows are gone then.
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
