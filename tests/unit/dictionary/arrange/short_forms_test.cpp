#include "dictionary/arrange/short_forms.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using dictionary::Entry;

Entry entryOf(const std::string& translation) {
  return dictionary::extractEntry({"word", translation, false}).value();
}

// "硬脑[脊]膜" is 硬脑膜 as well, since that stands elsewhere; "全适供[血]者" is not 全适供者.
TEST(ShortForms, AreAddedWhereTheyAreWords) {
  Entry entry = entryOf("[医] 硬脑[脊]膜, 全适供[血]者, 10%溶液");
  dictionary::ShortForms words;
  words.record(entry);
  words.record(entryOf("n. 硬脑膜, 10%溶液"));
  ASSERT_TRUE(hasShortForm(entry));
  words.complete(entry);
  ASSERT_EQ(entry.lines.at(0).pieces.size(), 4U);
  const dictionary::Piece& form = entry.lines.at(0).pieces.at(3);
  EXPECT_EQ(form.equivalent.word, u"硬脑膜");
  EXPECT_EQ(form.noted, u"");
  EXPECT_EQ(form.subjects, setOf(dictionary::Subject::kMedicine));
  EXPECT_EQ(subjectText(entry.lines.at(0), dictionary::Subject::kMedicine),
            u"硬脑脊膜，全适供血者，10%溶液");
}

TEST(ShortForms, AreNotNeededWithoutOptionalCharacters) {
  EXPECT_FALSE(hasShortForm(entryOf("[医] 硬脑膜\\nn. 人[语]")));
}

}  // namespace
