#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "dictionary/arrange/pair_collector.h"
#include "dictionary/translation/entry.h"

/// What the tests of the vocabulary share.
namespace pair_collector_test {

using dictionary::Entry;
using dictionary::Pair;
using dictionary::PairCollector;
using dictionary::Tier;
using dictionary::Vocabulary;

inline Entry entry(const std::string& word, const std::string& translation, bool important = false,
                   std::uint32_t rank = 0, const std::string& exchange = "") {
  std::optional<Entry> extracted =
      dictionary::extractEntry({word, translation, important, rank, exchange});
  EXPECT_TRUE(extracted.has_value());
  return std::move(*extracted);
}

inline Vocabulary collect(const std::vector<Entry>& entries) {
  PairCollector collector;
  for (const Entry& one : entries) collector.add(one);
  return std::move(collector).finish();
}

/// "english=chinese" of every pair, in order.
inline std::vector<std::u16string> texts(const Vocabulary& vocabulary) {
  std::vector<std::u16string> result;
  for (const Pair& pair : vocabulary.pairs) {
    result.push_back(vocabulary.english[pair.english] + u"=" + vocabulary.chinese[pair.chinese]);
  }
  return result;
}

inline Tier tierOf(const Vocabulary& vocabulary, std::u16string_view chinese) {
  for (const Pair& pair : vocabulary.pairs) {
    if (vocabulary.chinese[pair.chinese] == chinese) return pair.tier;
  }
  ADD_FAILURE() << "no such pair";
  return Tier::kWeb;
}

/// The Chinese texts of a headword, in the order of their value.
inline std::vector<std::u16string> valued(const Vocabulary& vocabulary,
                                          std::u16string_view english) {
  std::vector<Pair> pairs;
  for (const Pair& pair : vocabulary.pairs) {
    if (vocabulary.english[pair.english] == english) pairs.push_back(pair);
  }
  std::ranges::stable_sort(pairs, {},
                           [](const Pair& pair) { return std::tuple(pair.tier, pair.position); });
  std::vector<std::u16string> texts;
  for (const Pair& pair : pairs) texts.push_back(vocabulary.chinese[pair.chinese]);
  return texts;
}

using Texts = std::vector<std::u16string>;

/// The pair of the two words; a failure of the test if there is none.
inline Pair pairOf(const Vocabulary& vocabulary, std::u16string_view english,
                   std::u16string_view chinese) {
  for (const Pair& pair : vocabulary.pairs) {
    if (vocabulary.english[pair.english] == english &&
        vocabulary.chinese[pair.chinese] == chinese) {
      return pair;
    }
  }
  ADD_FAILURE() << "no such pair";
  return {};
}

}  // namespace pair_collector_test
