#pragma once

#include <filesystem>

namespace dictionary {

/// A file beside `target` that is to take its place; deleted unless it has.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& target);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  /// Lets the file take the place of `target`, whose journal goes with it. Throws Failure; `target`
  /// and its journal are as before then.
  void replace(const std::filesystem::path& target) const;

 private:
  std::filesystem::path path_;
};

}  // namespace dictionary
