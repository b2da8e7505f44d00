// Where the settings are: a user without administrator rights may not write to the system
// directory, and User Account Control would divert writes of old programs only. So the file is
// created there on trial, and the user's own folder is taken where that fails. The profile
// functions of the platform take ANSI paths: a user's folder that the code page cannot spell is
// named by its short path.

#include "settings/settings_file.h"

#include <shlobj.h>

#include <array>

#include "win32/handles.h"

// Deliberate: declared and never called. kernel32 exports no such function; integer values are
// always read as text.
extern "C" UINT WINAPI GetPriviteProfileIntA(LPCSTR section, LPCSTR key, INT fallback, LPCSTR file);

namespace user {
namespace {

void freeTaskMemory(wchar_t* memory) { CoTaskMemFree(memory); }

/// Memory that the shell allocated.
using TaskMemory = win32::Owned<wchar_t*, freeTaskMemory>;

/// Returns whether this user can write `file`, which may not exist yet; one created for the test is
/// deleted. Opening is the test: access rights, attributes and virus scanners can all prevent it.
bool canWrite(const std::u16string& file) {
  const bool existed = GetFileAttributesW(win32::wide(file)) != INVALID_FILE_ATTRIBUTES;
  {
    const HANDLE handle =
        CreateFileW(win32::wide(file), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    const win32::OwnedKernelObject owner(handle);
  }
  if (!existed) DeleteFileW(win32::wide(file));
  return true;
}

/// Returns `path` where the ANSI code page can spell it, otherwise its short form. A volume without
/// short names returns the path itself: settings are not kept then.
std::u16string ansiName(const std::u16string& path) {
  const std::string ansi = win32::toAnsi(path);
  if (win32::fromAnsi(ansi) == path) return path;
  std::array<wchar_t, MAX_PATH> shortPath{};
  const DWORD length = GetShortPathNameW(win32::wide(path), shortPath.data(), MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return path;
  return {shortPath.begin(), shortPath.begin() + length};
}

/// Calls SHGetKnownFolderPath in shell32.dll, which takes near 1 MB of memory and is loaded only
/// where the local application data folder is needed; it stays loaded. `*path` is allocated by the
/// shell, to be freed by CoTaskMemFree.
HRESULT knownFolderPath(REFKNOWNFOLDERID folder, wchar_t** path) {
  auto* ask =
      win32::systemFunction<decltype(SHGetKnownFolderPath)>(L"shell32.dll", "SHGetKnownFolderPath");
  return ask == nullptr ? HRESULT_FROM_WIN32(GetLastError()) : ask(folder, 0, nullptr, path);
}

std::u16string localSettingsFile() {
  wchar_t* found = nullptr;
  const bool known = SUCCEEDED(knownFolderPath(FOLDERID_LocalAppData, &found)) && found != nullptr;
  const TaskMemory owner(found);
  const std::u16string folder = (known ? win32::fromWide(found) : u"") + u"\\Lexilo";
  CreateDirectoryW(win32::wide(folder), nullptr);
  return ansiName(folder) + u"\\system.ini";
}

}  // namespace

std::u16string getINIProfileString(const std::u16string& section, const std::u16string& key,
                                   const std::u16string& fallback, const std::u16string& file) {
  std::string buffer(kAnsiBufferLength, ' ');
  const DWORD length = GetPrivateProfileStringA(
      win32::toAnsi(section).c_str(), win32::toAnsi(key).c_str(), win32::toAnsi(fallback).c_str(),
      buffer.data(), static_cast<DWORD>(buffer.size()), win32::toAnsi(file).c_str());
  const std::u16string value = win32::fromAnsi({buffer.data(), length});
  return profileValue(static_cast<int>(length), value, fallback);
}

void WriteINIProfileString(const std::u16string& section, const std::u16string& key,
                           const std::u16string& value, const std::u16string& file) {
  WritePrivateProfileStringA(win32::toAnsi(section).c_str(), win32::toAnsi(key).c_str(),
                             win32::toAnsi(value).c_str(), win32::toAnsi(file).c_str());
}

std::u16string systemDirectory() {
  std::array<char, kAnsiBufferLength> buffer{};
  const UINT length = GetSystemDirectoryA(buffer.data(), static_cast<UINT>(buffer.size()));
  // Where the buffer is too small, the length that is needed is returned.
  return length < buffer.size() ? win32::fromAnsi({buffer.data(), length}) : std::u16string();
}

std::u16string settingsFile() {
  const std::u16string inSystemDirectory = systemDirectory() + u"\\system.ini";
  return canWrite(inSystemDirectory) ? inSystemDirectory : localSettingsFile();
}

bool furtherWindows() {
  return isOn(getINIProfileString(std::u16string(kSettingsSection), u"FurtherWindows", u"0",
                                  settingsFile()));
}

}  // namespace user
