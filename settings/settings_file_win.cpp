#include "settings/settings_file.h"

#include <shlobj.h>
#include <windows.h>

#include <array>
#include <memory>

#include "settings/ansi.h"
#include "settings/settings_rules.h"
#include "settings/win32_profile.h"

namespace user {
namespace {

struct CloseFile {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const {
    if (handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
  }
};
using FileHandle = std::unique_ptr<void, CloseFile>;

/// Memory that the shell allocated.
struct FreeTaskMemory {
  void operator()(wchar_t* memory) const { CoTaskMemFree(memory); }
};
using TaskMemory = std::unique_ptr<wchar_t, FreeTaskMemory>;

const wchar_t* wide(const std::u16string& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

/// Whether this user can write `file`, which may not exist yet; one made for the test goes again.
bool canWrite(const std::u16string& file) {
  const bool existed = GetFileAttributesW(wide(file)) != INVALID_FILE_ATTRIBUTES;
  {
    const FileHandle handle(CreateFileW(wide(file), GENERIC_WRITE,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    if (handle.get() == INVALID_HANDLE_VALUE) return false;
  }
  if (!existed) DeleteFileW(wide(file));
  return true;
}

/// `path` itself where the ANSI code page can name it, else its short form.
std::u16string ansiName(const std::u16string& path) {
  const std::string ansi = toAnsi(path);
  if (fromAnsi(ansi) == path) return path;
  std::array<wchar_t, MAX_PATH> shortPath{};
  const DWORD length = GetShortPathNameW(wide(path), shortPath.data(), MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return path;
  return {shortPath.begin(), shortPath.begin() + length};
}

/// SHGetKnownFolderPath, from a library that takes near 1 MB of memory and is loaded only where the
/// local application data folder is needed; it stays loaded.
HRESULT knownFolderPath(REFKNOWNFOLDERID folder, wchar_t** path) {
  const HMODULE library = LoadLibraryExW(L"shell32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (library == nullptr) return HRESULT_FROM_WIN32(GetLastError());
  const auto ask = reinterpret_cast<decltype(&SHGetKnownFolderPath)>(
      reinterpret_cast<void*>(GetProcAddress(library, "SHGetKnownFolderPath")));
  return ask == nullptr ? HRESULT_FROM_WIN32(GetLastError()) : ask(folder, 0, nullptr, path);
}

std::u16string localSettingsFile() {
  wchar_t* found = nullptr;
  const bool known = SUCCEEDED(knownFolderPath(FOLDERID_LocalAppData, &found));
  const TaskMemory owner(found);
  std::u16string folder;
  if (known) {
    const std::wstring_view path(found);
    folder.assign(path.begin(), path.end());
  }
  folder += u"\\Lexilo";
  CreateDirectoryW(wide(folder), nullptr);
  return ansiName(folder) + u"\\system.ini";
}

}  // namespace

std::u16string getINIProfileString(const std::u16string& section, const std::u16string& key,
                                   const std::u16string& fallback, const std::u16string& file) {
  std::string buffer(kProfileBufferLength, ' ');
  const DWORD length = GetPrivateProfileStringA(
      toAnsi(section).c_str(), toAnsi(key).c_str(), toAnsi(fallback).c_str(), buffer.data(),
      static_cast<DWORD>(buffer.size()), toAnsi(file).c_str());
  const std::u16string value = fromAnsi({buffer.data(), length});
  return profileValue(static_cast<int>(length), value, fallback);
}

void WriteINIProfileString(const std::u16string& section, const std::u16string& key,
                           const std::u16string& value, const std::u16string& file) {
  WritePrivateProfileStringA(toAnsi(section).c_str(), toAnsi(key).c_str(), toAnsi(value).c_str(),
                             toAnsi(file).c_str());
}

std::u16string systemDirectory() {
  std::array<char, 255> buffer{};
  const UINT length = GetSystemDirectoryA(buffer.data(), static_cast<UINT>(buffer.size()));
  return length < buffer.size() ? fromAnsi({buffer.data(), length}) : std::u16string();
}

std::u16string settingsFile() {
  const std::u16string inSystemDirectory = systemDirectory() + u"\\system.ini";
  return canWrite(inSystemDirectory) ? inSystemDirectory : localSettingsFile();
}

}  // namespace user
