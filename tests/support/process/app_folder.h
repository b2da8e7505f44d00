#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace support {

/// A folder with lexilo.exe and what lies beside it, as a user has one.
///
/// What the tests start is named by environment variables, each with a default that suits a run
/// from the root of the repository: LEXILO_APP, the application folder with the full dictionary
/// ("build/app"), and LEXILO_SMALL_DATABASE, a small dictionary ("build/small/kk.dat").
class AppFolder {
 public:
  /// The one with the full dictionary. Shared by all tests: nothing may be changed in it.
  static AppFolder withFullDictionary();

  /// A fresh copy with the small dictionary, to be changed at will; in a folder of that name.
  static AppFolder withSmallDictionary(const std::wstring& name = L"Lexilo");

  /// A fresh copy without any dictionary.
  static AppFolder withoutDictionary();

  [[nodiscard]] std::filesystem::path program() const { return path_ / "lexilo.exe"; }
  [[nodiscard]] std::filesystem::path database() const { return path_ / "kk.dat"; }
  /// The same as the program shows it to its user.
  [[nodiscard]] std::wstring databaseAsShown() const {
    return database().make_preferred().wstring();
  }
  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  /// Overwrites `length` bytes of the dictionary from `offset` on with bytes that mean nothing.
  void damageDatabase(std::uintmax_t offset, std::uintmax_t length) const;

  /// Gives the dictionary's tables whose names begin with `name` another beginning of the same
  /// length, so that they are no longer found.
  void renameTables(const std::string& name, const std::string& other) const;

 private:
  explicit AppFolder(std::filesystem::path path) : path_(std::move(path)) {}

  std::filesystem::path path_;
};

}  // namespace support
