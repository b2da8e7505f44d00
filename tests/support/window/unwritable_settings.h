#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace support {

/// While it lives, nobody else can open system.ini of the system directory for writing.
class UnwritableSettings {
 public:
  UnwritableSettings() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetSystemDirectoryW(path.data(), MAX_PATH));
    path += L"\\system.ini";
    file_ = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                        FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(file_, INVALID_HANDLE_VALUE);
  }
  ~UnwritableSettings() { CloseHandle(file_); }
  UnwritableSettings(const UnwritableSettings&) = delete;
  UnwritableSettings& operator=(const UnwritableSettings&) = delete;

 private:
  HANDLE file_ = nullptr;
};

}  // namespace support
