#include "settings/settings_file.h"

#include "tests/support/data/temp_folder.h"
#include "tests/support/window/unwritable_settings.h"
#include "win32/win32.h"

namespace support {
namespace {

constexpr char16_t kSection[] = u"SystemSetting";

/// While it lives, the user's local application data lie in another folder.
class LocalDataFolder {
 public:
  explicit LocalDataFolder(const std::filesystem::path& folder) {
    DWORD size = sizeof former_;
    EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, kKey, kValue, RRF_RT_ANY | RRF_NOEXPAND, &type_,
                           former_, &size),
              ERROR_SUCCESS);
    size_ = size;
    const std::wstring path = folder.wstring();
    set(REG_SZ, path.c_str(), static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t)));
  }
  ~LocalDataFolder() { set(type_, former_, size_); }
  LocalDataFolder(const LocalDataFolder&) = delete;
  LocalDataFolder& operator=(const LocalDataFolder&) = delete;

 private:
  static constexpr wchar_t kKey[] =
      L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
  static constexpr wchar_t kValue[] = L"Local AppData";

  static void set(DWORD type, const wchar_t* text, DWORD size) {
    EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, type, text, size), ERROR_SUCCESS);
  }

  DWORD type_ = REG_SZ;
  wchar_t former_[MAX_PATH] = L"";
  DWORD size_ = 0;
};

class SettingsFile : public ::testing::Test {
 protected:
  /// A path that the ANSI code page can name.
  SettingsFile() : path_(folder_.file(u"设置.ini").u16string()) {}

  [[nodiscard]] std::u16string read(const std::u16string& key) const {
    return user::getINIProfileString(kSection, key, u"(none)", path_);
  }
  void write(const std::u16string& key, const std::u16string& value) const {
    user::WriteINIProfileString(kSection, key, value, path_);
  }
  void writeBytes(std::string_view bytes) const { writeFile(std::filesystem::path(path_), bytes); }
  [[nodiscard]] std::string bytes() const { return readFile(std::filesystem::path(path_)); }

 private:
  TempFolder folder_;
  std::u16string path_;
};

TEST_F(SettingsFile, AMissingFileSectionOrKeyReadsAsTheDefault) {
  EXPECT_EQ(read(u"WindowWidth"), u"(none)");
  writeBytes("[Other]\r\nWindowWidth=1\r\n");
  EXPECT_EQ(read(u"WindowWidth"), u"(none)");
  write(u"WindowHeight", u"3200");
  EXPECT_EQ(read(u"WindowWidth"), u"(none)");
}

TEST_F(SettingsFile, WritingCreatesFileSectionAndKey) {
  write(u"WindowWidth", u"3500");
  EXPECT_EQ(read(u"WindowWidth"), u"3500");
  EXPECT_NE(bytes().find("[SystemSetting]\r\nWindowWidth=3500"), std::string::npos);
  write(u"WindowWidth", u"4000");
  write(u"TreeWidth", u"2000");
  EXPECT_EQ(read(u"WindowWidth"), u"4000");
  EXPECT_EQ(read(u"TreeWidth"), u"2000");
}

TEST_F(SettingsFile, WhatElseStandsThereStays) {
  writeBytes("; a comment\r\n[drivers]\r\nwave=mmdrv.dll\r\n");
  write(u"WindowWidth", u"3500");
  EXPECT_NE(bytes().find("wave=mmdrv.dll"), std::string::npos);
  EXPECT_NE(bytes().find("; a comment"), std::string::npos);
}

TEST_F(SettingsFile, AnEmptyOrBlankValueReadsAsTheDefault) {
  writeBytes("[SystemSetting]\r\nA=\r\nB=    \r\nC=\"   \"\r\n");
  EXPECT_EQ(read(u"A"), u"(none)");
  EXPECT_EQ(read(u"B"), u"(none)");
  EXPECT_EQ(read(u"C"), u"(none)");
}

TEST_F(SettingsFile, BlanksAroundAValueGo) {
  writeBytes("[SystemSetting]\r\nA=   12 34  \r\nB=\"  56 \"\r\n");
  EXPECT_EQ(read(u"A"), u"12 34");
  EXPECT_EQ(read(u"B"), u"56");
}

TEST_F(SettingsFile, ChineseIsKeptInTheAnsiCodePage) {
  ASSERT_EQ(GetACP(), 936U) << "these tests run on a Chinese system";
  write(u"词典", u"医学");
  EXPECT_EQ(read(u"词典"), u"医学");
  EXPECT_NE(bytes().find("\xB4\xCA\xB5\xE4=\xD2\xBD\xD1\xA7"), std::string::npos);
}

TEST_F(SettingsFile, ALongValueIsCutTo254Characters) {
  write(u"A", std::u16string(399, u'x'));
  EXPECT_EQ(read(u"A"), std::u16string(254, u'x'));
  EXPECT_EQ(read(u"A").size(), 254U);
}

TEST_F(SettingsFile, TheLongestValueIsWhole) {
  write(u"A", std::u16string(254, u'x'));
  EXPECT_EQ(read(u"A").size(), 254U);
}

TEST_F(SettingsFile, AFailedWriteIsLostInSilence) {
  user::WriteINIProfileString(kSection, u"A", u"1", u"C:\\no such folder\\system.ini");
  EXPECT_EQ(user::getINIProfileString(kSection, u"A", u"d", u"C:\\no such folder\\system.ini"),
            u"d");
}

TEST_F(SettingsFile, LiesInTheSystemDirectoryWhereItCanBeWritten) {
  wchar_t directory[MAX_PATH] = L"";
  const UINT length = GetSystemDirectoryW(directory, MAX_PATH);
  EXPECT_EQ(user::systemDirectory(), std::u16string(directory, directory + length));
  EXPECT_EQ(user::settingsFile(), user::systemDirectory() + u"\\system.ini");
}

TEST_F(SettingsFile, ElseAmongTheUsersOwnData) {
  const UnwritableSettings held;
  const std::u16string path = user::settingsFile();
  EXPECT_TRUE(path.ends_with(u"\\Lexilo\\system.ini"));
  EXPECT_NE(path.find(u"AppData\\Local"), path.npos);
  user::WriteINIProfileString(kSection, u"A", u"own", path);
  EXPECT_EQ(user::getINIProfileString(kSection, u"A", u"", path), u"own");
  DeleteFileW(win32::wide(path));
}

TEST_F(SettingsFile, ThatTheCodePageCannotNameIsReachedByItsShortName) {
  const UnwritableSettings held;
  const TempFolder folder;
  // Neither stands in GBK.
  const std::filesystem::path own = folder.file(u"Zażółć ไทย");
  std::filesystem::create_directory(own);
  const LocalDataFolder moved(own);
  const std::u16string path = user::settingsFile();
  EXPECT_TRUE(path.ends_with(u"\\system.ini"));
  EXPECT_EQ(path.find(u"ไทย"), path.npos);
  user::WriteINIProfileString(kSection, u"A", u"own", path);
  EXPECT_EQ(user::getINIProfileString(kSection, u"A", u"", path), u"own");
  EXPECT_NE(readFile(own / u"Lexilo" / u"system.ini").find("A=own"), std::string::npos);
}

TEST_F(SettingsFile, LookingForItLeavesNoFileBehind) {
  const std::u16string path = user::systemDirectory() + u"\\system.ini";
  const std::u16string aside = path + u".aside";
  MoveFileW(win32::wide(path), win32::wide(aside));
  EXPECT_EQ(user::settingsFile(), path);
  EXPECT_EQ(GetFileAttributesW(win32::wide(path)), INVALID_FILE_ATTRIBUTES);
  MoveFileW(win32::wide(aside), win32::wide(path));
}

}  // namespace
}  // namespace support
