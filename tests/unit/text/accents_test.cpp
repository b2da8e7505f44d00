#include "text/accents.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using text::withoutAccents;

TEST(WithoutAccents, LeavesBaseLetters) {
  EXPECT_EQ(withoutAccents(u"café naïve résumé Zürich"), u"cafe naive resume Zurich");
  EXPECT_EQ(withoutAccents(u"ÀÖØÝàöøÿ"), u"AOOYaooy");
  EXPECT_EQ(withoutAccents(u"Łódź Çeşme Ångström ǎǾǿȘș"), u"Lodz Cesme Angstrom aOoSs");
  EXPECT_EQ(withoutAccents(u"ấỹḂẑ"), u"ayBz");
}

TEST(WithoutAccents, LeavesOutCombiningMarks) {
  EXPECT_EQ(withoutAccents(u"cafe\u0301"), u"cafe");
  EXPECT_EQ(withoutAccents(u"A\u030A\u0323ngstro\u0308m"), u"Angstrom");
  EXPECT_EQ(withoutAccents(u"\u0300\u036F"), u"");
}

TEST(WithoutAccents, WritesDoubleLettersOut) {
  EXPECT_EQ(withoutAccents(u"Straße Æther œuvre Þor ǽ Ǆ ẞ"),
            u"Strasse AEther oeuvre Thor ae DZ SS");
}

TEST(WithoutAccents, KeepsEverythingElse) {
  for (const std::u16string same : {u"", u"plain-'word' 12", u"×÷", u"Ʒʒ", u"中文αβЖ", u"\xD800"}) {
    EXPECT_EQ(withoutAccents(same), same);
  }
  // Past the ends of the tables.
  EXPECT_EQ(withoutAccents(u"\u00BF\u0250\u1DFF\u1F00"), u"\u00BF\u0250\u1DFF\u1F00");
  EXPECT_EQ(withoutAccents(u"\u00C0\u024F\u1E00\u1EF9"), u"AyAy");
}

}  // namespace
