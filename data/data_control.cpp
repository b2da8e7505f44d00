#include "data/data_control.h"

#include <utility>

#include "data/connection_string.h"
#include "data/cursor.h"
#include "data/database.h"
#include "text/utf.h"

namespace data {

DataControl::DataControl() = default;
DataControl::~DataControl() = default;
DataControl::DataControl(DataControl&& other) noexcept = default;
DataControl& DataControl::operator=(DataControl&& other) noexcept = default;

void DataControl::setConnectionString(std::u16string_view connectionString) {
  if (connectionString == connectionString_) return;
  connectionString_ = connectionString;
  close();
}

void DataControl::close() {
  recordset_ = RecordSet();
  database_.reset();
}

void DataControl::setRecordSource(std::u16string_view sql) { recordSource_ = sql; }

void DataControl::refresh() {
  recordset_ = RecordSet();
  if (!database_) {
    const std::u16string file = parseConnectionString(connectionString_).dataSource;
    auto opened = std::make_shared<Database>(text::toUtf8(file));
    if (cacheKiB_) opened->setCacheKiB(*cacheKiB_);
    database_ = std::move(opened);
  }
  recordset_ = RecordSet(std::make_unique<Cursor>(database_, text::toUtf8(recordSource_)));
}

}  // namespace data
