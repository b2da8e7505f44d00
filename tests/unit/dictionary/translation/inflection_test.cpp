#include "dictionary/translation/inflection.h"

#include <gtest/gtest.h>

#include <string>

#include "dictionary/translation/part_of_speech.h"

namespace {

using dictionary::Inflection;
using dictionary::inflectionIn;
using dictionary::inflectionOf;
using dictionary::inflectionText;
using dictionary::isReference;
using dictionary::PartOfSpeech;
using dictionary::partsOfSpeechOf;
using dictionary::setOf;

/// The note that the exchange column of `headword` amounts to; "none" without a lemma.
std::u16string noteOf(std::string_view exchange, std::string_view headword) {
  const auto inflection = inflectionOf(exchange, headword);
  return inflection ? inflectionText(*inflection) : u"none";
}

TEST(Inflection, ReadsTheSourcesColumnOfForms) {
  EXPECT_EQ(noteOf("0:ask/1:pd", "asked"), u"ask的过去式和过去分词");
  EXPECT_EQ(noteOf("1:i/0:have", "having"), u"have的现在分词");
  EXPECT_EQ(noteOf("0:hand/1:s3", "hands"), u"hand的复数和第三人称单数");
  EXPECT_EQ(noteOf("0:look/1:i/i:looking/s:lookings", "looking"), u"look的现在分词");
  EXPECT_EQ(noteOf("0:large/1:r", "larger"), u"large的比较级");
  EXPECT_EQ(noteOf("0:good/1:t/r:best/3:bests", "best"), u"good的最高级");
}

TEST(Inflection, TakesAWordThatIsItsOwnLemmaForNoForm) {
  EXPECT_EQ(noteOf("s:asks/i:asking", "ask"), u"none");
  EXPECT_EQ(noteOf("", "was"), u"none");
  EXPECT_EQ(noteOf("p:came/0:come/1:d", "Come"), u"none");
  EXPECT_EQ(noteOf("0:/1:d", "x"), u"none");
  EXPECT_EQ(noteOf("0", "x"), u"none");
  EXPECT_EQ(noteOf("01:ask/1:d", "x"), u"none") << "another key";
}

TEST(Inflection, KnowsALemmaWhoseFormIsNotGiven) {
  const auto inflection = inflectionOf("0:Kudo", "kudos");
  ASSERT_TRUE(inflection.has_value());
  EXPECT_EQ(inflection->lemma, u"kudo");
  EXPECT_EQ(inflection->forms, 0);
  EXPECT_EQ(inflectionText(*inflection), u"");
}

TEST(Inflection, ReadsTheFormsOfALemma) {
  using dictionary::formsIn;
  using dictionary::WordForm;
  const auto forms = formsIn("d:taken/p:took/i:taking/3:takes");
  ASSERT_EQ(forms.size(), 4U);
  EXPECT_EQ(forms[0], (WordForm{u"takes", 2}));
  EXPECT_EQ(forms[1], (WordForm{u"took", 4}));
  EXPECT_EQ(formsIn("p:asked/d:asked"), (std::vector<WordForm>{{u"asked", 12}}));
  EXPECT_EQ(formsIn("3:Takes/s:takes"), (std::vector<WordForm>{{u"takes", 3}}));
}

// can "d:/i:", daydream "3:daydreams'", replete "b:more replete", ski "d:ski'd".
TEST(Inflection, LeavesOutWhatIsNoSingleWord) {
  using dictionary::formsIn;
  using dictionary::WordForm;
  EXPECT_TRUE(formsIn("d:/i:/3:daydreams'/t:most replete/r:-er/s:a").empty());
  EXPECT_TRUE(formsIn("0:take/1:d").empty());
  EXPECT_EQ(formsIn("d:ski'd/p:day-dreamed"),
            (std::vector<WordForm>{{u"day-dreamed", 4}, {u"ski'd", 8}}));
}

/// "lemma: note"; "none" where the text is none.
std::u16string read(std::u16string_view text) {
  const auto inflection = inflectionIn(text);
  return inflection ? inflection->lemma + u": " + inflectionText(*inflection) : u"none";
}

TEST(Inflection, ReadsTranslationsThatNameAForm) {
  EXPECT_EQ(read(u"take的过去分词"), u"take: take的过去分词");
  EXPECT_EQ(read(u"feel的过去式和过去分词"), u"feel: feel的过去式和过去分词");
  EXPECT_EQ(read(u"agora的复数形"), u"agora: agora的复数");
  EXPECT_EQ(read(u"appear的过去形式"), u"appear: appear的过去式");
  EXPECT_EQ(read(u"have的第三人称单数现在式"), u"have: have的第三人称单数");
  EXPECT_EQ(read(u"be的现在时复数或第二人称单数"), u"be: be的第三人称单数");
  EXPECT_EQ(read(u"abscess的三单形式"), u"abscess: abscess的第三人称单数");
  EXPECT_EQ(read(u"A-list的变形"), u"a-list: ");
  EXPECT_EQ(read(u"o′clock的复数"), u"o'clock: o′clock的复数");
  EXPECT_EQ(read(u"o'clock的复数"), u"o'clock: o′clock的复数");
  EXPECT_EQ(read(u"partake过去式"), u"partake: partake的过去式");
  EXPECT_EQ(read(u"bind过去式和过去分词"), u"bind: bind的过去式和过去分词");
  EXPECT_EQ(read(u"post-structuralism变形"), u"post-structuralism: ");
  EXPECT_EQ(read(u"Fourier变换的复数"), u"none");
  EXPECT_EQ(read(u"grow up的过去式"), u"grow up: grow up的过去式");
  EXPECT_EQ(read(u"grow up 的过去式"), u"grow up: grow up的过去式");
  EXPECT_EQ(read(u"p.m.的复数"), u"p.m.: p.m.的复数");
  EXPECT_EQ(read(u"go的现在分词"), u"go: go的现在分词");
  EXPECT_EQ(read(u"large的比较级"), u"large: large的比较级");
  EXPECT_EQ(read(u"be的单三形式"), u"be: be的第三人称单数");
}

TEST(Inflection, TakesNoOtherTextForAForm) {
  EXPECT_EQ(read(u"苹果的复数"), u"none");
  EXPECT_EQ(read(u"的复数"), u"none");
  EXPECT_EQ(read(u"-ism的复数"), u"none");
  EXPECT_EQ(read(u"X的射线"), u"none");
  EXPECT_EQ(read(u"take"), u"none");
  EXPECT_EQ(read(u"A甲的复数"), u"none");
  EXPECT_EQ(read(u""), u"none");
}

TEST(Inflection, KnowsThePartsOfSpeechOfTheLemma) {
  const auto parts = [](std::u16string_view note) {
    return partsOfSpeechOf(inflectionIn(note).value_or(Inflection()).forms);
  };
  EXPECT_EQ(parts(u"x的复数"), setOf(PartOfSpeech::kNoun));
  EXPECT_EQ(parts(u"x的过去式"), setOf(PartOfSpeech::kVerb));
  EXPECT_EQ(parts(u"x的复数和第三人称单数"), setOf(PartOfSpeech::kVerb));
  EXPECT_EQ(parts(u"x的现在分词"), setOf(PartOfSpeech::kVerb));
  EXPECT_EQ(parts(u"x的比较级"), setOf(PartOfSpeech::kAdjective) | setOf(PartOfSpeech::kAdverb));
  EXPECT_EQ(parts(u"x的最高级"), setOf(PartOfSpeech::kAdjective) | setOf(PartOfSpeech::kAdverb));
  EXPECT_EQ(parts(u"x的变形"), dictionary::kAnyPartOfSpeech);
  EXPECT_EQ(partsOfSpeechOf(inflectionOf("0:hand/1:s3", "hands")->forms),
            setOf(PartOfSpeech::kNoun) | setOf(PartOfSpeech::kVerb));
}

TEST(PartsOfSpeech, AreReadFromTheMarks) {
  using dictionary::partsOfSpeechIn;
  EXPECT_EQ(partsOfSpeechIn(u"n. "), setOf(PartOfSpeech::kNoun));
  EXPECT_EQ(partsOfSpeechIn(u"vt. & vi. "), setOf(PartOfSpeech::kVerb));
  EXPECT_EQ(partsOfSpeechIn(u"a., n. "),
            setOf(PartOfSpeech::kAdjective) | setOf(PartOfSpeech::kNoun));
  EXPECT_EQ(partsOfSpeechIn(u"aux. "), setOf(PartOfSpeech::kVerb) | setOf(PartOfSpeech::kFunction));
  EXPECT_EQ(partsOfSpeechIn(u"link-v. "), setOf(PartOfSpeech::kVerb));
  EXPECT_EQ(partsOfSpeechIn(u"adv. "), setOf(PartOfSpeech::kAdverb));
  EXPECT_EQ(partsOfSpeechIn(u"conj. "), setOf(PartOfSpeech::kFunction));
  EXPECT_EQ(partsOfSpeechIn(u"abbr. "), 0);
  EXPECT_EQ(partsOfSpeechIn(u""), 0);
}

TEST(IsReference, NamesAnotherFormOfTheWord) {
  for (const std::u16string_view meaning :
       {u"take的过去式", u"take的过去式和过去分词", u"A-list的变形", u"agora的复数形",
        u"well-off的最高级形式", u"be的单数第一人称", u"direct的第三人称单数现在式", u"Body的变体",
        u"等于complainer", u"同“abbreviated”", u"参见bit"}) {
    EXPECT_TRUE(isReference(meaning));
  }
}

TEST(IsReference, KnowsEveryForm) {
  for (const std::u16string_view form :
       {u"变形", u"复数", u"单数", u"过去式", u"过去时", u"现在分词", u"进行式", u"动名词",
        u"第一人称", u"比较级", u"最高级", u"所有格", u"宾格", u"方言形式", u"变体", u"异体",
        u"古体"}) {
    EXPECT_TRUE(isReference(u"take的" + std::u16string(form)))
        << std::string(form.begin(), form.end());
  }
  for (const std::u16string_view equals : {u"等于", u"同", u"参见", u"见", u"即"}) {
    EXPECT_TRUE(isReference(std::u16string(equals) + u"take"))
        << std::string(equals.begin(), equals.end());
  }
}

TEST(IsReference, IsNoMeaningOfItsOwn) {
  for (const std::u16string_view meaning :
       {u"", u"位", u"复数", u"复数的", u"等于", u"同", u"同意", u"同X射线", u"过去式的take",
        u"take的", u"Atlas的七个女儿", u"AS KNOW AS的缩写", u"be", u"，的复数", u"X射线的形式"}) {
    EXPECT_FALSE(isReference(meaning));
  }
}

}  // namespace
