#include "text/word_characters.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using text::spelled;
using text::UnitKind;
using text::unitKind;
using text::withoutAccents;

void expectKind(UnitKind kind, std::u16string_view units) {
  for (const char16_t unit : units) EXPECT_EQ(unitKind(unit), kind) << std::hex << int{unit};
}

TEST(UnitKind, OfLettersIncludesAccentsLigaturesAndSoftHyphens) {
  expectKind(UnitKind::kLetter, u"AZaz\u00C0\u00FF\u0100\u024F\u1E00\u1EFF\uFB00\uFB06");
  expectKind(UnitKind::kLetter, u"Ａｚ\u0300\u036F\u00AD");
  expectKind(UnitKind::kBreak, u"×÷\u0250\u02FF\u0370\u1DFF\u1F00\uFB07Жα");
}

TEST(UnitKind, OfDigitsAndJointsIncludesTypographicForms) {
  expectKind(UnitKind::kDigit, u"09０９₀₉");
  expectKind(UnitKind::kHyphen, u"-－\u2010\u2011");
  expectKind(UnitKind::kApostrophe, u"'＇`´ʼ‘’‛");
  expectKind(UnitKind::kInner, u".,/&+#()[]\u2013．，（");
}

TEST(UnitKind, OfHanCharactersIncludesCompatibilityIdeographs) {
  expectKind(UnitKind::kHan, u"中〇\u3400\uF900");
}

TEST(UnitKind, IsABreakForEverythingElse) {
  expectKind(UnitKind::kBreak, u" \t\r\n\u00A0\u3000\"“”!?;:_@—…。²\u2012\u208A\xD800");
}

TEST(Spelled, UsesTheCharactersOfDictionaries) {
  EXPECT_EQ(spelled(u"ＣＯ₂－ｒｉｃｈ"), u"CO2-rich");
  EXPECT_EQ(spelled(u"non\u2010stop\u2011er Navier\u2013Stokes"), u"non-stop-er Navier-Stokes");
  EXPECT_EQ(spelled(u"don’t ‘n` O´BʼC‛"), u"don't 'n' O'B'C'");
  EXPECT_EQ(spelled(u"ﬀﬁﬂﬃﬄﬅﬆ"), u"fffiflffifflstst");
  EXPECT_EQ(spelled(u"in\u00ADter\u00ADface"), u"interface");
  EXPECT_EQ(spelled(u"caf\u00E9 cafe\u0301 中文"), u"caf\u00E9 cafe\u0301 中文");
}

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
