#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "dictionary/arrange/block_packing.h"
#include "text/order.h"

/// What the tests of the choice of pairs share.
namespace block_packing_test {

using dictionary::choosePairs;
using dictionary::LookupLimits;
using dictionary::Pair;
using dictionary::Tier;
using dictionary::Vocabulary;

/// A headword with a number of pairs.
struct Word {
  std::u16string text;
  std::size_t pairs;
  Tier tier = Tier::kFirst;
};

inline std::u16string numbered(std::u16string_view stem, std::size_t number) {
  const std::string digits = std::to_string(1000000 + number);
  return std::u16string(stem) + std::u16string(digits.begin() + 1, digits.end());
}

/// Every pair has a Chinese headword of its own, in another order than the English ones.
inline Vocabulary vocabularyOf(std::vector<Word> words) {
  std::ranges::sort(words,
                    [](const Word& a, const Word& b) { return text::compare(a.text, b.text) < 0; });
  Vocabulary vocabulary;
  for (const Word& word : words) {
    vocabulary.english.push_back(word.text);
    for (std::size_t i = 0; i < word.pairs; ++i) {
      vocabulary.chinese.push_back(numbered(u"词", vocabulary.chinese.size()));
      vocabulary.pairs.push_back({static_cast<std::uint32_t>(vocabulary.english.size() - 1),
                                  static_cast<std::uint32_t>(vocabulary.chinese.size() - 1),
                                  word.tier,
                                  static_cast<std::uint8_t>(std::min<std::size_t>(i, 255))});
    }
  }
  vocabulary.ranks.resize(vocabulary.english.size());
  const std::size_t count = std::max<std::size_t>(vocabulary.pairs.size(), 1);
  std::size_t step = 7919;
  while (std::gcd(step, count) != 1) ++step;
  for (Pair& pair : vocabulary.pairs) {
    pair.chinese = static_cast<std::uint32_t>(pair.chinese * step % count);
  }
  return vocabulary;
}

inline std::u16string groupOf(const std::u16string& word) {
  const std::size_t apostrophe = word.find(u'\'');
  return apostrophe == std::u16string::npos ? word : word.substr(0, apostrophe + 1);
}

/// Kept pairs in order of their headwords, and whether every headword and every apostrophe group
/// stays in its block.
inline void expectWholeBlocks(const Vocabulary& vocabulary, const std::vector<bool>& kept) {
  std::map<std::u16string, std::pair<std::size_t, std::size_t>> rows;
  std::size_t row = 0;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (!kept[i]) continue;
    const std::u16string group =
        groupOf(text::toLower(vocabulary.english[vocabulary.pairs[i].english]));
    rows.try_emplace(group, row, row);
    rows[group].second = row;
    ++row;
  }
  EXPECT_EQ(row % 100, 0U);
  for (const auto& [group, range] : rows) EXPECT_EQ(range.first / 100, range.second / 100);
}

inline std::size_t keptCount(const std::vector<bool>& kept) {
  return static_cast<std::size_t>(std::ranges::count(kept, true));
}

inline std::vector<Word> singles(std::size_t count, std::u16string_view stem = u"m") {
  std::vector<Word> words;
  for (std::size_t i = 0; i < count; ++i) words.push_back({numbered(stem, i), 1});
  return words;
}

}  // namespace block_packing_test
