#include "tests/support/process/app_folder.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "tests/support/wait.h"

namespace support {
namespace fs = std::filesystem;
namespace {

fs::path named(const wchar_t* variable, const wchar_t* otherwise) {
  const wchar_t* value = _wgetenv(variable);
  return fs::absolute(value != nullptr && *value != L'\0' ? value : otherwise);
}

fs::path fullFolder() { return named(L"LEXILO_APP", L"build/app"); }

/// A new folder of that name with the program alone, and its symbols for backtraces where there are
/// any. The files are shared, since nothing changes them.
fs::path freshFolder(const std::wstring& name = L"Lexilo") {
  static int folders = 0;
  fs::path path = fs::absolute(L"build/program") / std::to_wstring(++folders) / name;
  fs::remove_all(path);
  fs::create_directories(path);
  fs::create_hard_link(fullFolder() / "lexilo.exe", path / "lexilo.exe");
  if (fs::exists(fullFolder() / "lexilo.debug")) {
    fs::create_hard_link(fullFolder() / "lexilo.debug", path / "lexilo.debug");
  }
  return path;
}

}  // namespace

AppFolder AppFolder::withFullDictionary() { return AppFolder(fullFolder()); }

AppFolder AppFolder::withSmallDictionary(const std::wstring& name) {
  AppFolder folder(freshFolder(name));
  fs::copy_file(named(L"LEXILO_SMALL_DATABASE", L"build/small/kk.dat"), folder.database());
  return folder;
}

AppFolder AppFolder::withoutDictionary() { return AppFolder(freshFolder()); }

void AppFolder::damageDatabase(std::uintmax_t offset, std::uintmax_t length) const {
  std::fstream file(database(), std::ios::binary | std::ios::in | std::ios::out);
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.seekp(static_cast<std::streamoff>(offset));
  // A pattern that is neither a page of a database nor zeros.
  static constexpr std::array<char, 4> kNonsense{'\xff', '\x5a', '\x01', '\xa5'};
  for (std::uintmax_t i = 0; i < length; ++i) file.put(kNonsense[i % kNonsense.size()]);
}

void AppFolder::renameTables(const std::string& name, const std::string& other) const {
  if (name.size() != other.size()) throw Failure("the names differ in length");
  std::ifstream in(database(), std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(in), {}};
  in.close();
  // The schema holds the name as such and in the table's definition; no headword looks like it.
  for (std::size_t at = bytes.find(name); at != std::string::npos; at = bytes.find(name, at)) {
    bytes.replace(at, name.size(), other);
  }
  std::ofstream out(database(), std::ios::binary | std::ios::trunc);
  out.exceptions(std::ios::failbit | std::ios::badbit);
  out << bytes;
}

}  // namespace support
