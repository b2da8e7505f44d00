#include "dictionary/paths.h"

#include <system_error>

#include "dictionary/failure.h"

namespace dictionary {

std::string utf8Path(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::filesystem::path pathOf(std::string_view utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

std::string displayName(const std::filesystem::path& path) { return '"' + utf8Path(path) + '"'; }

void requireFile(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) {
    throw Failure("there is no file " + displayName(path));
  }
}

void throwUnreadable(const std::filesystem::path& database, const data::Error& error) {
  throw Failure(displayName(database) + " cannot be read as a dictionary: " + error.engineText());
}

}  // namespace dictionary
