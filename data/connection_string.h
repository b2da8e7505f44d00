#pragma once

#include <string>
#include <string_view>

namespace data {

/// What a connection string says. Texts are kept as given, without the blanks around them.
struct ConnectionString {
  std::u16string provider;
  std::u16string dataSource;  ///< the database file
  std::u16string persistSecurityInfo;
};

/// Returns the connection string of `databaseFile`, put together without any quoting.
std::u16string connectionString(std::u16string_view databaseFile);

/// Takes "Provider=...;Data Source=FILE;Persist Security Info=False" apart, the keys in any order
/// and case. Such a text is put together without any quoting, so that a folder's name may bring in
/// ";", "=" or quotes: a value runs up to the next ";" behind which one of these keys stands that
/// has not been given yet, or to the end.
ConnectionString parseConnectionString(std::u16string_view text);

}  // namespace data
