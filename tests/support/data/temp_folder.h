#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace support {

/// A new folder in the system's folder for temporary files, removed with all in it at the end. Its
/// name has a blank, Chinese and characters that mean something in connection strings and SQL.
class TempFolder {
 public:
  TempFolder() {
    std::random_device random;
    do {
      std::u16string name = u"lexilo 词典;it's=";
      for (int i = 0; i < 8; ++i) name += static_cast<char16_t>(u'a' + (random() % 26));
      path_ = std::filesystem::temp_directory_path() / name;
    } while (!std::filesystem::create_directory(path_));
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  [[nodiscard]] std::filesystem::path file(std::u16string_view name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

/// The path as SQLite takes it.
inline std::string utf8Path(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

inline std::string readFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void writeFile(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// How many files and folders stand in `folder`.
inline std::ptrdiff_t entryCount(const std::filesystem::path& folder) {
  return std::distance(std::filesystem::directory_iterator(folder),
                       std::filesystem::directory_iterator());
}

}  // namespace support
