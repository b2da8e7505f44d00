#include "data/headword_test.h"

#include <string>

#include "text/query_text.h"

namespace data {
namespace {

/// Of the cache that a connection may use by default, a test of a few words needs little; in KiB.
constexpr int kCacheKiB = 256;

}  // namespace

HeadwordTest::HeadwordTest(const IndexWords& indexWords)
    : lookup_(indexWords, {.lambdaUpperKey = true, .chineseMeaningFindsBounds = true}) {
  control_.setCacheKiB(kCacheKiB);
}

void HeadwordTest::setConnectionString(std::u16string_view connectionString) {
  control_.setConnectionString(connectionString);
}

bool HeadwordTest::has(std::u16string_view word) {
  if (word.empty() || user::getEorC(word) != user::kEnglish) return false;
  std::u16string escaped(word);
  user::escapeQuote(escaped);
  control_.setRecordSource(lookup_.findword(user::kEnglish, escaped, control_));
  control_.refresh();
  return control_.recordset().recordCount() > 0;
}

}  // namespace data
