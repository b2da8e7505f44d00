#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/data/sample_database.h"
#include "text/order.h"
#include "text/utf.h"

namespace support {

/// A general dictionary of some thousand pairs, in memory and as the tables of a database.
class SampleDictionary {
 public:
  struct Pair {
    std::u16string english;
    std::u16string chinese;
  };

  SampleDictionary() {
    addMadeUpPairs();
    for (auto& [english, chinese] :
         std::vector<std::pair<std::u16string, std::u16string>>{{u"bit", u"位"},
                                                                {u"bit", u"比特"},
                                                                {u"bit", u"一点"},
                                                                {u"it's", u"它是"},
                                                                {u"data", u"数据"},
                                                                {u"datum", u"数据"},
                                                                {u"Data bank", u"数据库"}}) {
      pairs_.push_back({english, chinese});
    }
    number();
  }

  /// The pairs in the order of `side`; the pair at index i has the row number i + 1.
  [[nodiscard]] std::vector<Pair> ordered(std::u16string Pair::*side) const {
    std::vector<Pair> result = pairs_;
    std::stable_sort(result.begin(), result.end(), [&](const Pair& a, const Pair& b) {
      return text::compare(a.*side, b.*side) < 0;
    });
    return result;
  }

  void writeTo(const std::filesystem::path& file) const {
    std::string sql =
        "create table edict (eid integer primary key, word text collate lexilo, cid integer);"
        "create table cdict (cid integer primary key, word text collate lexilo, eid integer);"
        "create table edictidx (word text collate lexilo);"
        "create table cdictidx (word text collate lexilo, id integer)";
    for (std::size_t i = 0; i < pairs_.size(); ++i) {
      sql += insertion("edict", eids_[i], pairs_[i].english, cids_[i]);
      sql += insertion("cdict", cids_[i], pairs_[i].chinese, eids_[i]);
    }
    sql +=
        ";insert into edictidx select word from edict where eid%100=0 order by eid"
        ";insert into cdictidx select word,cid/100 from cdict where cid%100=0 order by cid";
    makeDatabase(file, sql);
  }

 private:
  void addMadeUpPairs() {
    constexpr std::u16string_view kLetters = u"abcdefghijklmnopqrstuvwxyz";
    constexpr std::u16string_view kHan = u"阿八擦大鹅发改哈机卡拉马那欧怕起人三他五系一在做";
    for (std::size_t i = 0; i < 2693; ++i) {
      Pair pair;
      for (std::size_t rest = i * 17 + 5, n = 0; n < 3; rest /= 26, ++n) {
        pair.english += kLetters[rest % 26];
      }
      for (std::size_t rest = i * 7 + 3, n = 0; n < 3; rest /= kHan.size(), ++n) {
        pair.chinese += kHan[rest % kHan.size()];
      }
      pairs_.push_back(pair);
    }
  }

  void number() {
    eids_ = numbers(&Pair::english);
    cids_ = numbers(&Pair::chinese);
  }

  [[nodiscard]] std::vector<std::size_t> numbers(std::u16string Pair::*side) const {
    std::vector<std::size_t> order(pairs_.size());
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
      return text::compare(pairs_[a].*side, pairs_[b].*side) < 0;
    });
    std::vector<std::size_t> result(order.size());
    for (std::size_t i = 0; i < order.size(); ++i) result[order[i]] = i + 1;
    return result;
  }

  static std::string insertion(const std::string& table, std::size_t number,
                               const std::u16string& word, std::size_t link) {
    return ";insert into " + table + " values (" + std::to_string(number) + "," + quoted(word) +
           "," + std::to_string(link) + ")";
  }

  static std::string quoted(const std::u16string& word) {
    std::string result = "'";
    for (const char c : text::toUtf8(word)) result.append(c == '\'' ? 2 : 1, c);
    return result + '\'';
  }

  std::vector<Pair> pairs_;
  std::vector<std::size_t> eids_;
  std::vector<std::size_t> cids_;
};

}  // namespace support
