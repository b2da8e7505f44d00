#pragma once

#include <filesystem>

namespace dictionary {

/// The path of a file beside `target` that is to replace it. Creates nothing; the destructor
/// deletes the file if it is still there.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& target);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  /// Renames the file to `target`, replacing it, and deletes the journal of the replaced database.
  /// Throws Failure; `target` and its journal are unchanged then.
  void replace(const std::filesystem::path& target) const;

 private:
  std::filesystem::path path_;
};

}  // namespace dictionary
