#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "data/error.h"
#include "data/index_words.h"
#include "data/lookup_sql.h"
#include "query/catalogue.h"
#include "query/subject_search.h"
#include "tests/support/data/sample_database.h"
#include "text/utf.h"

namespace support {

/// The SQL texts that the windows run on a dictionary, each of which has rows.
inline std::vector<std::u16string> windowQueries() {
  std::u16string english = u"a";
  std::u16string chinese = u"心";
  return {u"select word from edictidx order by word",
          data::englishListSql({1, 100}, u"a"),
          data::chineseListSql({1, 100}, u"阿"),
          data::englishMeaningSql({1, 100}, u"abandon"),
          data::indexRowsFromSql(u"阿"),
          std::u16string(query::kShownDictionaries),
          std::u16string(query::kAllDictionaries),
          query::makeQuerySql(english, query::kEasy, u"med").sql,
          query::makeQuerySql(chinese, query::kComplex, u"med").sql,
          query::specialSql(u"med", u"a", u"心")};
}

/// Whether every window can be opened on `file` and finds what it looks for.
inline void expectEveryWindowReads(const std::filesystem::path& file) {
  for (const std::u16string& sql : windowQueries()) {
    try {
      EXPECT_FALSE(opened(file, sql).recordset().empty()) << text::toUtf8(sql);
    } catch (const data::Error& error) {
      ADD_FAILURE() << text::toUtf8(sql) << ": " << error.what();
    }
  }
}

/// What a click on node `node` of the settings window does.
inline void clickDictionary(const std::filesystem::path& file, std::size_t node) {
  data::DataControl control = opened(file, query::kAllDictionaries);
  query::chooseDefault(control.recordset(), node);
}

/// The rows, counted from 1, that are stored as default, in the order of the settings window.
inline std::vector<std::size_t> storedDefaults(const std::filesystem::path& file) {
  data::DataControl control = opened(file, query::kAllDictionaries);
  std::vector<std::size_t> flagged;
  std::size_t row = 0;
  for (const std::u16string& value : column(control.recordset(), u"default")) {
    ++row;
    if (value == u"1") flagged.push_back(row);
  }
  return flagged;
}

}  // namespace support
