#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The dictionary's own text order, the same on every machine and under every locale: case does not
/// matter, Latin comes before Han, Han goes by pinyin. Database, lookups and builder all use it.
/// All functions are pure and may be called from any thread.
namespace text {

/// Weight of one UTF-16 code unit in the order. A-Z and U+00C0-U+00DE (not U+00D7) weigh as their
/// lower case; Han weighs 0x10000 plus its pinyin rank; all else weighs its own code.
std::uint32_t weight(char16_t unit);

/// Negative, zero or positive as `a` sorts before, equal to or after `b`; the shorter text first.
int compare(std::u16string_view a, std::u16string_view b);

/// Whether two texts are the same but for case.
bool equal(std::u16string_view a, std::u16string_view b);

/// The same for texts in UTF-8, without converting them first: what compare says of the texts that
/// toUtf16 makes of them, invalid bytes included.
int compareUtf8(std::string_view a, std::string_view b);

/// Lower case as the order folds it: ASCII and Latin-1 letters, everything else as it is.
constexpr char16_t foldCase(char16_t unit) {
  const bool ascii = unit >= u'A' && unit <= u'Z';
  const bool latin = unit >= 0xC0 && unit <= 0xDE && unit != 0xD7;
  return ascii || latin ? static_cast<char16_t>(unit + 0x20) : unit;
}
/// `text` with every unit folded; its length stays.
std::u16string toLower(std::u16string_view text);

}  // namespace text
