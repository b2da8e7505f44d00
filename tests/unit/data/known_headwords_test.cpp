#include "data/headword_lookup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "data/error.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/temp_folder.h"
#include "text/utf.h"

namespace {

/// The headwords of a database file, with its index.
class Words {
 public:
  explicit Words(const std::filesystem::path& file)
      : connection_(data::connectionString(text::toUtf16(file.string()))) {
    known.setConnectionString(connection_);
  }

  void readIndex() {
    data::DataControl control;
    control.setConnectionString(connection_);
    index_ = data::readIndexWords(control);
  }

 private:
  std::u16string connection_;
  data::IndexWords index_;

 public:
  data::KnownHeadwords known{index_};
};

TEST(KnownHeadwords, HasTheHeadwordsWhateverTheirCase) {
  Words words(support::smallDatabase());
  words.readIndex();
  for (const std::u16string_view word : {u"bit", u"Bit", u"BIT", u"X-ray", u"it's", u"data"}) {
    EXPECT_TRUE(words.known.has(word));
  }
}

TEST(KnownHeadwords, HasNoOtherWords) {
  Words words(support::smallDatabase());
  words.readIndex();
  for (const std::u16string_view word :
       {u"", u"bits", u"bi", u"bi_", u"bi%", u"it''s", u"' or 1=1 --", u"zzzz", u"0", u" bit"}) {
    EXPECT_FALSE(words.known.has(word));
  }
}

// Chinese ones are in the other table.
TEST(KnownHeadwords, HasNoChineseWords) {
  Words words(support::smallDatabase());
  words.readIndex();
  EXPECT_FALSE(words.known.has(u"数据"));
  EXPECT_FALSE(words.known.has(u"bi\u0142"));
}

TEST(KnownHeadwords, FailsWhereTheDatabaseDoes) {
  const support::TempFolder folder;
  Words words(folder.file(u"none.dat"));
  EXPECT_THROW(words.known.has(u"bit"), data::Error);
}

}  // namespace
