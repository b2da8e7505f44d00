#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace dictionary {

/// The longest text that is read, in bytes, once unpacked: a few times a whole dictionary in
/// English. It is kept in memory, several times over.
inline constexpr std::size_t kMaxTextBytes = std::size_t{64} << 20U;

/// Reads a text in English as a window would show it: plain or HTML, packed by gzip or not, each
/// recognised by its content. It is in UTF-8; a byte that is not part of a valid sequence is a
/// character of Latin-1. Of HTML the text between the tags is returned, with blanks for its line
/// ends, and without that of elements for scripts, styles and program texts (pre, code, kbd ...);
/// <br> is a line end, the beginning and the end of a block two, which end a paragraph.
///
/// Throws Failure if the file cannot be read or unpacked, or is longer than kMaxTextBytes; and, in
/// kkbuild for Windows, always: the libraries for it are not there.
std::u16string readRunningText(const std::filesystem::path& path);

}  // namespace dictionary
