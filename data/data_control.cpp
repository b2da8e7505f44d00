// Taking a connection string apart: every position after a ";" (and the beginning) at which a known
// key and "=" stand is the end of the value before it and the beginning of the next, unless that
// key was given already: then it is part of a path. All other ";" and "=" belong to values.

#include "data/data_control.h"

#include <algorithm>
#include <array>
#include <utility>

#include "text/characters.h"
#include "text/strings.h"
#include "text/utf.h"

namespace data {
namespace {

struct Key {
  std::u16string_view name;  // in lower case
  std::u16string ConnectionString::*value;
};

constexpr std::array kKeys{
    Key{u"provider", &ConnectionString::provider},
    Key{u"data source", &ConnectionString::dataSource},
    Key{u"persist security info", &ConnectionString::persistSecurityInfo},
};

/// One "key=" and what follows it up to the next one.
struct Entry {
  const Key* key = nullptr;
  std::size_t keyStart = 0;
  std::size_t valueStart = 0;
};

/// The entry that begins at `start`, if a known key and an equals sign are there.
std::optional<Entry> entryAt(std::u16string_view text, std::size_t start) {
  const std::size_t equals = text.find(u'=', start);
  if (equals == std::u16string_view::npos) return std::nullopt;
  const std::u16string_view name = text::trimBlanks(text.substr(start, equals - start));
  const auto* key = std::find_if(kKeys.begin(), kKeys.end(), [&](const Key& known) {
    return std::equal(name.begin(), name.end(), known.name.begin(), known.name.end(),
                      [](char16_t a, char16_t b) { return text::lowerAscii(a) == b; });
  });
  if (key == kKeys.end()) return std::nullopt;
  return Entry{key, start, equals + 1};
}

}  // namespace

// Deliberate: the provider named here is a required text; nothing of it is used.
std::u16string connectionString(std::u16string_view databaseFile) {
  std::u16string text(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=");
  text += databaseFile;
  text += u";Persist Security Info=False";
  return text;
}

ConnectionString parseConnectionString(std::u16string_view text) {
  ConnectionString result;
  std::array<bool, kKeys.size()> given{};
  std::optional<Entry> open;
  // Ends the value of the open entry; text before the first key is dropped.
  const auto finish = [&](std::size_t end) {
    if (open) {
      result.*(open->key->value) =
          text::trimBlanks(text.substr(open->valueStart, end - open->valueStart));
    }
  };
  for (std::size_t start = 0;;) {
    const std::optional<Entry> next = entryAt(text, start);
    if (next && !std::exchange(given[static_cast<std::size_t>(next->key - kKeys.data())], true)) {
      finish(start == 0 ? 0 : start - 1);
      open = next;
    }
    const std::size_t separator = text.find(u';', start);
    if (separator == std::u16string_view::npos) break;
    start = separator + 1;
  }
  finish(text.size());
  return result;
}

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
  // Before anything that may fail: after a failure no rows of another query are to be seen.
  recordset_ = RecordSet();
  if (!database_) {
    const std::u16string file = parseConnectionString(connectionString_).dataSource;
    auto opened = std::make_shared<Database>(text::toUtf8(file));
    // May fail as well; only a connection that is complete is kept.
    if (cacheKiB_) opened->setCacheKiB(*cacheKiB_);
    database_ = std::move(opened);
  }
  recordset_ = RecordSet(database_, text::toUtf8(recordSource_));
}

}  // namespace data
