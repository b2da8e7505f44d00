#include "dictionary/gloss/symbols.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using dictionary::NamedText;
using dictionary::withoutSymbol;

std::u16string text(std::u16string_view gloss) { return withoutSymbol(gloss).text; }

// "葡萄糖 | glucose C6H12O6", "石青 | copper azurite 2CuCO3-Cu(OH)2", "烧碱 | caustic soda NaOH",
// "山奈钾 | potassium cyanide KCN", "醛基 | aldehyde group -COH", "氢氧根离子 | hydroxide ion OH-"
TEST(WithoutSymbol, RemovesFormulas) {
  EXPECT_EQ(text(u"glucose C6H12O6"), u"glucose");
  EXPECT_EQ(text(u"copper azurite 2CuCO3-Cu(OH)2"), u"copper azurite");
  EXPECT_EQ(text(u"caustic soda NaOH"), u"caustic soda");
  EXPECT_EQ(text(u"potassium cyanide KCN"), u"potassium cyanide");
  EXPECT_EQ(text(u"aldehyde group -COH"), u"aldehyde group");
  EXPECT_EQ(text(u"hydroxide ion OH-"), u"hydroxide ion");
  EXPECT_EQ(withoutSymbol(u"nitrous oxide N2O").initials, u"");
}

// "苯并噻吩 | benzothiophene C8H9, a heterocyclic compound", "阿托品 | atropine C17H23NO3, alkaloid
// drug derived from deadly nightshade", "黄色炸药 | trinitrotoluene (TNT), C6H2(NO2)3CH3"
TEST(WithoutSymbol, RemovesWhatFollowsAFormula) {
  EXPECT_EQ(text(u"benzothiophene C8H9, a heterocyclic compound"), u"benzothiophene");
  EXPECT_EQ(text(u"atropine C17H23NO3, alkaloid drug"), u"atropine");
  EXPECT_EQ(text(u"trinitrotoluene, C6H2(NO2)3CH3"), u"trinitrotoluene");
}

// "泛酸 | vitamin B5", "会阴穴 | (TCM) acupuncture point CV-1", "均可 | both are OK", "美英 | US
// and UK", "掌上电脑 | Pocket PC", "宅配 | delivery service, primarily C2C and B2C", "啊 | Ah, OK"
TEST(WithoutSymbol, LeavesOtherSymbolsAlone) {
  for (const std::u16string_view gloss :
       {u"vitamin B5", u"acupuncture point CV-1", u"both are OK", u"US and UK", u"Pocket PC",
        u"delivery service, primarily C2C and B2C", u"Ah, OK", u"to emit CO2", u"CO2", u"",
        u"carbon dioxide CO2 laser"}) {
    EXPECT_EQ(text(gloss), gloss);
  }
}

// "昴星团 | Pleiades M45", "猎户座大星云 | the Great Nebula in Orion M42"
TEST(WithoutSymbol, RemovesNumbersOfNebulae) {
  EXPECT_EQ(text(u"Pleiades M45"), u"Pleiades");
  EXPECT_EQ(text(u"Great Nebula in Orion M42"), u"Great Nebula in Orion");
  EXPECT_EQ(text(u"tank M45"), u"tank M45");
}

// "玫瑰星云 | Rosette nebula NGC 2237", "仙女座大星云 | great nebula in Andromeda or Andromeda
// galaxy M31", "曲池穴 | Quchi acupoint LI11, at the …", "丁卯 | fourth year D4 of the 60 year
// cycle, …"
TEST(WithoutSymbol, RemovesNumbersOfCatalogues) {
  EXPECT_EQ(text(u"Rosette nebula NGC 2237"), u"Rosette nebula");
  EXPECT_EQ(text(u"great nebula or Andromeda galaxy M31"), u"great nebula or Andromeda galaxy");
  EXPECT_EQ(text(u"Quchi acupoint LI11, at the elbow"), u"Quchi acupoint");
  EXPECT_EQ(text(u"fourth year D4 of the 60 year cycle"), u"fourth year of the 60 year cycle");
  EXPECT_EQ(text(u"37th year G1 of the 60-year cycle"), u"37th year of the 60-year cycle");
  for (const std::u16string_view gloss :
       {u"NGC 2237", u"Airbus A380", u"stage Q4 of the 60 year cycle", u"Boeing 747"}) {
    EXPECT_EQ(text(gloss), gloss);
  }
}

// "八法拳 | Ba Fa Quan "Eight Methods" - Martial Art", "劈挂拳 | Piguaquan "Chop-Hanging Fist"
// (…)", "几何原本 | Euclid's "Elements""
TEST(WithoutSymbol, PartsANameFromItsTranslation) {
  const NamedText named = withoutSymbol(u"Ba Fa Quan \"Eight Methods\" - Martial Art");
  EXPECT_EQ(named.text, u"Ba Fa Quan");
  EXPECT_EQ(named.initials, u"Eight Methods");
  EXPECT_EQ(text(u"Piguaquan \"Chop-Hanging Fist\""), u"Piguaquan");
  for (const std::u16string_view gloss :
       {u"Euclid's \"Elements\"", u"class \"A\"", u"Coop, branded as \"coop\"",
        u"Project \"Hope\" schools"}) {
    EXPECT_EQ(text(gloss), gloss);
  }
}

// "居民消费价格指数 | consumer price index CPI", "北方民族大学 | Northern Nationalities University
// NNU at Yingchuan, Ningxia", "洲际导弹 | intercontinental ballistic missile ICBM", "吉电子伏 |
// giga electron volt GeV", "理科学士 | Bachelor of Science B.Sc.", "节奏布鲁斯 | Rhythm and Blues
// R&B", "手足口病 | hand foot and mouth disease, HFMD, caused by …"
TEST(WithoutSymbol, GivesInitials) {
  const auto expectInitials = [](std::u16string_view gloss, std::u16string_view name,
                                 std::u16string_view initials) {
    const NamedText named = withoutSymbol(gloss);
    EXPECT_EQ(named.text, name);
    EXPECT_EQ(named.initials, initials);
  };
  expectInitials(u"consumer price index CPI", u"consumer price index", u"CPI");
  expectInitials(u"Northern Nationalities University NNU at Yingchuan, Ningxia",
                 u"Northern Nationalities University", u"NNU");
  expectInitials(u"intercontinental ballistic missile ICBM", u"intercontinental ballistic missile",
                 u"ICBM");
  expectInitials(u"giga electron volt GeV", u"giga electron volt", u"GeV");
  expectInitials(u"Bachelor of Science B.Sc.", u"Bachelor of Science", u"B.Sc.");
  expectInitials(u"Rhythm and Blues R&B", u"Rhythm and Blues", u"R&B");
  expectInitials(u"hand foot and mouth disease, HFMD, caused by a number of viruses",
                 u"hand foot and mouth disease", u"HFMD");
}

// "长平之战 | Battle of Changping of 260 BC", "西门子公司 | Siemens AG", "卫视 | satellite TV",
// "党中央 | Central Committee of the CCP"
TEST(WithoutSymbol, LeavesCapitalsThatAreNoInitials) {
  for (const std::u16string_view gloss : {u"Battle of Changping of 260 BC", u"Siemens AG",
                                          u"satellite TV", u"Central Committee of the CCP"}) {
    EXPECT_EQ(text(gloss), gloss);
    EXPECT_EQ(withoutSymbol(gloss).initials, u"");
  }
}

}  // namespace
