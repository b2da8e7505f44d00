#include "tests/support/process/settings.h"

#include <windows.h>

#include "tests/support/wait.h"

namespace support::settings {
namespace {

constexpr const wchar_t* kSection = L"SystemSetting";

std::wstring file() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetSystemDirectoryW(path.data(), MAX_PATH));
  return path + L"\\system.ini";
}

void put(const wchar_t* key, const wchar_t* value) {
  if (WritePrivateProfileStringW(kSection, key, value, file().c_str()) == FALSE) {
    throw Failure("the settings file cannot be written");
  }
}

}  // namespace

std::wstring read(const std::wstring& key) {
  std::wstring value(256, L'\0');
  value.resize(
      GetPrivateProfileStringW(kSection, key.c_str(), L"", value.data(), 256, file().c_str()));
  return value;
}

void write(const std::wstring& key, const std::wstring& value) { put(key.c_str(), value.c_str()); }

void clear() { put(nullptr, nullptr); }

}  // namespace support::settings
