#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The dictionary's own text order, the same on every machine and under every locale: case does not
/// matter, Latin comes before Han, Han goes by pinyin. Database, lookups and builder all use it.
/// All functions are pure and may be called from any thread.
namespace text {

/// Returns the weight of one UTF-16 code unit. A-Z and U+00C0-U+00DE (not U+00D7) weigh as their
/// lower case; a Han character weighs 0x10000 plus its pinyin rank; any other unit weighs its own
/// code. Different units that are not two cases of a letter have different weights.
std::uint32_t weight(char16_t unit);

/// Returns a negative number, 0 or a positive number as `a` sorts before, equal to or after `b`:
/// by the weights of the first units in which they differ; a text sorts after its own beginnings.
int compare(std::u16string_view a, std::u16string_view b);

/// Returns whether two texts differ in nothing but case: whether compare() returns 0.
bool equal(std::u16string_view a, std::u16string_view b);

/// The same as compare() for texts in UTF-8, without converting them first. Returns what compare()
/// returns for the texts that toUtf16() makes of them, invalid bytes included.
int compareUtf8(std::string_view a, std::string_view b);

/// Returns the lower case as the order folds it: of ASCII and Latin-1 letters; any other unit
/// unchanged.
constexpr char16_t foldCase(char16_t unit) {
  const bool ascii = unit >= u'A' && unit <= u'Z';
  const bool latin = unit >= 0xC0 && unit <= 0xDE && unit != 0xD7;
  return ascii || latin ? static_cast<char16_t>(unit + 0x20) : unit;
}
/// Returns `text` with every unit folded; the length is unchanged.
std::u16string toLower(std::u16string_view text);

}  // namespace text
