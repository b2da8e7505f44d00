#pragma once

#include <cstddef>
#include <string_view>

/// Lists of words and phrases in the source code, as one text with a bar after each: u"a|an|the|".
/// The functions are pure.
namespace dictionary {

/// Returns the first item of the list for which `matches` returns true; "" if there is none.
template <typename Matches>
constexpr std::u16string_view findListed(std::u16string_view list, Matches matches) {
  for (std::size_t begin = 0; begin < list.size();) {
    const std::size_t end = list.find(u'|', begin);
    const std::u16string_view item = list.substr(begin, end - begin);
    if (matches(item)) return item;
    begin = end + 1;
  }
  return {};
}

/// Calls `visit` with each item of the list.
template <typename Visit>
constexpr void forEachListed(std::u16string_view list, Visit visit) {
  findListed(list, [&](std::u16string_view item) {
    visit(item);
    return false;
  });
}

/// Returns whether `word` is an item of the list.
constexpr bool isListed(std::u16string_view list, std::u16string_view word) {
  return !word.empty() &&
         !findListed(list, [&](std::u16string_view item) { return item == word; }).empty();
}

/// Returns the item with which `text` begins; "" if there is none.
constexpr std::u16string_view listedBeginning(std::u16string_view list, std::u16string_view text) {
  return findListed(list, [&](std::u16string_view item) { return text.starts_with(item); });
}

/// Returns the first place in `text` of any item of the list, but not its beginning; its size if
/// there is none.
constexpr std::size_t firstPlaceOfListed(std::u16string_view list, std::u16string_view text) {
  std::size_t first = text.size();
  forEachListed(list, [&](std::u16string_view item) {
    const std::size_t place = text.find(item, 1);
    if (place < first) first = place;
  });
  return first;
}

}  // namespace dictionary
