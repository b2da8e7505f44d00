#include "dictionary/gloss/note_meanings.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using dictionary::NoteMeaning;
using dictionary::readNote;
using dictionary::setOf;
using dictionary::Subject;
using dictionary::SubjectSet;

SubjectSet subjects(std::u16string_view note) { return readNote(note).subjects; }

// "黄喉鹀 | (bird species of China) yellow-throated bunting (Emberiza elegans)",
// "乘法逆 | multiplicative inverse (math.)", "蝎虎座 | Lacerta (constellation)"
TEST(ReadNote, KnowsFields) {
  EXPECT_EQ(subjects(u"bird species of China"), setOf(Subject::kZoology));
  EXPECT_EQ(subjects(u"math."), setOf(Subject::kMathematics));
  EXPECT_EQ(subjects(u"constellation"), setOf(Subject::kPhysics));
  EXPECT_EQ(subjects(u"TCM"), setOf(Subject::kMedicine));
  EXPECT_EQ(subjects(u"Emberiza elegans"), 0U);
}

// "computing, math.", "sports etc", "in grammar", "used in TCM"
TEST(ReadNote, KnowsFieldsAmongOtherWords) {
  EXPECT_EQ(subjects(u"computing, math."),
            setOf(Subject::kComputing) | setOf(Subject::kMathematics));
  EXPECT_EQ(subjects(u"sports etc"), setOf(Subject::kSport));
  EXPECT_EQ(subjects(u"in grammar"), setOf(Subject::kLanguage));
  EXPECT_EQ(subjects(u"used in TCM"), setOf(Subject::kMedicine));
}

// "默拉皮 | Merapi (volcano on Java)", "雷恩 | Rennes (French town)", "(city in Norway)"
TEST(ReadNote, KnowsPlacesAndPersons) {
  EXPECT_EQ(subjects(u"city in Norway"), setOf(Subject::kPlace));
  EXPECT_EQ(subjects(u"French town"), setOf(Subject::kPlace));
  EXPECT_EQ(subjects(u"name"), setOf(Subject::kPerson));
  EXPECT_EQ(subjects(u"Japanese surname"), setOf(Subject::kPerson));
  EXPECT_EQ(subjects(u"brand name"), 0U);
  EXPECT_EQ(subjects(u"river bank"), 0U);
  EXPECT_EQ(subjects(u"state of affairs"), 0U);
}

// "频宽 | (Tw) bandwidth", "3Q | (Internet slang) thank you (loanword)",
// "烏龍指 | (neologism c. 2014) fat-finger error"
TEST(ReadNote, KnowsMarksOfUsage) {
  for (const std::u16string_view note :
       {u"Tw", u"HK, Tw", u"old", u"bound form", u"literary", u"northern dialect",
        u"Internet slang", u"neologism c. 2014", u"loanword from Japanese \"kata\"", u"slang"}) {
    EXPECT_TRUE(readNote(note).usage) << std::string(note.begin(), note.end());
  }
  EXPECT_FALSE(readNote(u"coll.").usage);
  EXPECT_FALSE(readNote(u"of an old house").usage);
}

// "撕逼 | (slang) (lit.) to tear …/(fig.) (of females) to have a catfight", "(lit. and fig.)"
TEST(ReadNote, KnowsLiteralAndFigurativeMeanings) {
  EXPECT_TRUE(readNote(u"lit.").literal);
  EXPECT_FALSE(readNote(u"lit.").figurative);
  EXPECT_TRUE(readNote(u"fig.").figurative);
  EXPECT_TRUE(readNote(u"lit. and fig.").literal);
  EXPECT_TRUE(readNote(u"lit. and fig.").figurative);
}

// "刷牙 | to brush (food) …": what is not known says nothing
TEST(ReadNote, TakesNothingFromObjects) {
  for (const std::u16string_view note : {u"food", u"a car, floor etc", u"of a place", u""}) {
    const NoteMeaning meaning = readNote(note);
    EXPECT_EQ(meaning.subjects, 0U);
    EXPECT_FALSE(meaning.usage || meaning.label || meaning.literal || meaning.figurative);
  }
}

}  // namespace
