// Texts for the console are composed as bytes of UTF-8: std::ostream knows no encoding, and path's
// own output operator would quote and convert names as the system does.

#include "dictionary/console.h"

#include <iomanip>
#include <sstream>
#include <system_error>

#ifndef _WIN32
#include <sys/resource.h>
#endif

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

/// Not by the locale: reports are the same everywhere, for tests and comparisons.
std::string percentage(std::size_t part, std::size_t whole) {
  std::ostringstream text;
  const double share =
      whole == 0 ? 0 : 100.0 * static_cast<double>(part) / static_cast<double>(whole);
  text << std::fixed << std::setprecision(1) << share << " %";
  return text.str();
}

std::string grouped(std::size_t number) {
  const std::string digits = std::to_string(number);
  std::string text;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) text += ',';
    text += digits[i];
  }
  return text;
}

/// Composed apart from `log_`, whose number format is left alone.
void Progress::report(std::string_view text) {
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start_;
  std::ostringstream line;
  line << '[' << std::fixed << std::setprecision(1) << std::setw(5) << elapsed.count() << " s] "
       << text << '\n';
  log_ << line.str() << std::flush;
}

// The Windows versions are in console_win.cpp.
#ifndef _WIN32

std::size_t peakMemory() {
  constexpr std::size_t kMaxrssUnit = 1024;  // Linux reports ru_maxrss in KiB
  rusage usage{};
  if (getrusage(RUSAGE_SELF, &usage) != 0) return 0;
  return static_cast<std::size_t>(usage.ru_maxrss) * kMaxrssUnit;
}

void useUtf8Output() {}

#endif

}  // namespace dictionary
