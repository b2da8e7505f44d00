#include "dictionary/gloss/english.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using dictionary::englishHeadword;

std::u16string word(std::u16string_view gloss) { return englishHeadword(gloss).value_or(u""); }

// "同乐 | to enjoy together", "使节团 | a diplomatic group", "造物 | the Creator"
TEST(EnglishHeadword, RemovesParticleAndArticle) {
  EXPECT_EQ(word(u"to enjoy together"), u"enjoy together");
  EXPECT_EQ(word(u"to be hard to bear"), u"be hard to bear");
  EXPECT_EQ(word(u"a diplomatic group"), u"diplomatic group");
  EXPECT_EQ(word(u"the Creator"), u"Creator");
}

// "着边 | to the point", "尽兴 | to one's heart's content", "少许 | a little", "中国式 | à la
// chinoise"
TEST(EnglishHeadword, KeepsThemWhereTheyBelong) {
  EXPECT_EQ(word(u"to the point"), u"to the point");
  EXPECT_EQ(word(u"to one's heart's content"), u"to one's heart's content");
  EXPECT_EQ(word(u"a little"), u"a little");
  EXPECT_EQ(word(u"à la chinoise"), u"a la chinoise");
  EXPECT_EQ(word(u"the more"), u"the more");
}

// "暗自 | to oneself", "往死里 | (coll.) (to beat etc) to death", "皆大欢喜 | to everyone's delight
// and satisfaction", "萝卜白菜，各有所爱 | … to each his own", "迄今 | to date", "拍拖 | to date
// sb", "追溯 | to date from"
TEST(EnglishHeadword, KeepsThePreposition) {
  for (const std::u16string_view gloss :
       {u"to oneself", u"to death", u"to everyone's delight", u"to each his own", u"to date"}) {
    EXPECT_EQ(word(gloss), gloss);
  }
  EXPECT_EQ(word(u"to date sb"), u"date somebody");
  EXPECT_EQ(word(u"to date from"), u"date from");
}

// "姜还是老的辣 | the older, the wiser", "三光 | the sun, the moon, and the stars"
TEST(EnglishHeadword, KeepsTheFirstOfSeveralArticles) {
  EXPECT_EQ(word(u"the older, the wiser"), u"the older, the wiser");
  EXPECT_EQ(word(u"the sun, the moon, and the stars"), u"the sun, the moon, and the stars");
}

// "死无对证 | the dead cannot testify", "良禽择木 | a fine bird chooses a tree to nest in",
// "行百里者半九十 | fig. the closer one is to completing a task, the tougher it gets"
TEST(EnglishHeadword, KeepsTheArticleOfASentence) {
  for (const std::u16string_view sentence :
       {u"the dead cannot testify", u"the die is cast", u"a fine bird chooses a tree to nest in",
        u"the closer one is to completing a task, the tougher it gets"}) {
    EXPECT_EQ(word(sentence), sentence);
  }
}

// "阳光明媚 | the sun shines brightly", "夕阳西下 | the sun sets in the west", "顾客至上 | the
// customer reigns supreme", "煮熟的鸭子飞了 | the cooked duck flew away", "百花齐放 | a hundred
// flowers bloom", "一元复始 | a new year begins", "千钧一发 | a thousand pounds hangs by a thread"
TEST(EnglishHeadword, KeepsTheArticleOfASentenceInAnIdiom) {
  for (const std::u16string_view sentence :
       {u"the sun shines brightly", u"the sun sets in the west", u"the customer reigns supreme",
        u"the cooked duck flew away", u"a hundred flowers bloom", u"a new year begins",
        u"a thousand pounds hangs by a thread"}) {
    EXPECT_EQ(englishHeadword(sentence, true), sentence);
  }
  EXPECT_EQ(word(u"the dried leaves on a tree"), u"dried leaves on a tree") << "a term";
}

// "家喻户晓 | a household name", "百废待兴 | a thousand things to do", "宾客盈门 | a house full of
// distinguished visitors", "相夫教子 | the traditional roles of a good wife", "患难之交 | a friend
// in times of tribulations", "老蚌生珠 | an old oyster producing a pearl", "卸肩儿 | a weight off
// one's shoulders", "琴棋书画 | the four arts of the Chinese scholar", "炙手可热 | a mighty figure
// no-one dares approach", "豆蔻 | a girl's teenage years"
TEST(EnglishHeadword, RemovesTheArticleOfANounInAnIdiom) {
  for (const std::u16string_view noun :
       {u"a household name", u"a thousand things to do", u"a house full of distinguished visitors",
        u"the traditional roles of a good wife", u"a friend in times of tribulations",
        u"an old oyster producing pearls", u"a weight off one's shoulders",
        u"the four arts of the Chinese scholar", u"a dog who catches mice",
        u"a mighty figure no-one dares approach", u"a girl's teenage years"}) {
    EXPECT_EQ(englishHeadword(noun, true), noun.substr(noun.find(u' ') + 1));
  }
}

// "人心 | the will of the people", "听 | a can", "必经之路 | the road one must follow", "天心 | the
// monarch's will", "双独夫妇 | a married couple allowed dispensation to have second child", "诗礼 |
// … the classics a Confucian scholar must read"
TEST(EnglishHeadword, TellsNounsFromSentences) {
  EXPECT_EQ(word(u"the will of the people"), u"will of the people");
  EXPECT_EQ(word(u"a can"), u"can");
  EXPECT_EQ(word(u"the road one must follow"), u"road one must follow");
  EXPECT_EQ(word(u"the monarch's will"), u"monarch's will");
  EXPECT_EQ(word(u"a married couple allowed to have a child"),
            u"married couple allowed to have a child");
  EXPECT_EQ(word(u"a youth who is strict"), u"youth who is strict");
  EXPECT_EQ(word(u"the classics a scholar must read"), u"classics a scholar must read");
}

// "穷匮 | to be short of sth", "抬举 | to elevate sb", "弃暗 | sb's identity"
TEST(EnglishHeadword, WritesAbbreviationsOut) {
  EXPECT_EQ(word(u"to be short of sth"), u"be short of something");
  EXPECT_EQ(word(u"to elevate sb"), u"elevate somebody");
  EXPECT_EQ(word(u"sb's identity"), u"somebody's identity");
  EXPECT_EQ(word(u"to tell sb."), u"tell somebody");
  EXPECT_EQ(word(u"for sb, sth or both"), u"for somebody, something or both");
  EXPECT_EQ(word(u"sbirro"), u"sbirro");
}

// "蛋奶酥 | soufflé", "绿岛 | Lüdao", "A咖 | class \"A\""
TEST(EnglishHeadword, FoldsWhatHeadwordsDoNotHold) {
  EXPECT_EQ(word(u"soufflé"), u"souffle");
  EXPECT_EQ(word(u"Lüdao"), u"Ludao");
  EXPECT_EQ(word(u"class \"A\""), u"class A");
  EXPECT_EQ(word(dictionary::withAsciiMarks(u"don’t 9–5")), u"don't 9-5");
}

// "安得 | How can this be?", "下午 | p.m.", "卡乐星 | Carl's Jr.", "还不如 | to be better off ..."
TEST(EnglishHeadword, RemovesMarksAround) {
  EXPECT_EQ(word(u"How can this be?"), u"How can this be");
  EXPECT_EQ(word(u"p.m."), u"p.m.");
  EXPECT_EQ(word(u"Carl's Jr."), u"Carl's Jr.");
  EXPECT_EQ(word(u"to be better off ..."), u"be better off");
  EXPECT_EQ(word(u"...or"), u"or");
  EXPECT_EQ(word(u"both ... and ..."), u"both ... and");
}

// "多元 | poly-", "氢氧根离子 | hydroxide ion OH-", "作用 | -ation", "星号 | asterisk * (punct.)",
// "等号 | equals sign ="
TEST(EnglishHeadword, TellsHyphensFromSymbols) {
  EXPECT_EQ(word(u"poly-"), u"poly-");
  EXPECT_EQ(word(u"hydroxide ion OH-"), u"hydroxide ion OH-");
  EXPECT_EQ(word(u"-ation"), u"-ation");
  EXPECT_EQ(word(u"asterisk *"), u"asterisk");
  EXPECT_EQ(word(u"equals sign ="), u"equals sign");
  EXPECT_EQ(word(u"less than, <"), u"less than");
}

// "名驰遐迩 | To have one's fame spread far and wide.", "收件人 | To: (email header)", "暴龙 |
// Tyrannosaurus spp.", "有没有 | Is there a ...?", "敬启者 | To Whom It May Concern"
TEST(EnglishHeadword, ReadsCapitalsAndLatinNames) {
  EXPECT_EQ(word(u"To have one's fame spread"), u"have one's fame spread");
  EXPECT_EQ(word(u"To Whom It May Concern"), u"To Whom It May Concern");
  EXPECT_EQ(word(u"To"), u"To");
  EXPECT_EQ(word(u"Tyrannosaurus spp."), u"Tyrannosaurus");
  EXPECT_FALSE(englishHeadword(u"Is there a ...?"));
  EXPECT_FALSE(englishHeadword(u"what the ...!"));
}

TEST(EnglishHeadword, RefusesWhatCannotBeLookedUp) {
  EXPECT_FALSE(englishHeadword(u""));
  EXPECT_FALSE(englishHeadword(u"..."));
  EXPECT_FALSE(englishHeadword(u"a%b"));
  EXPECT_FALSE(englishHeadword(u"more {adj.} than {noun}"));
  EXPECT_FALSE(englishHeadword(u"to be ...ed"));
  EXPECT_FALSE(englishHeadword(u"radical 頁"));
  EXPECT_TRUE(englishHeadword(std::u16string(64, u'x')));
  EXPECT_FALSE(englishHeadword(std::u16string(65, u'x')));
}

TEST(WordCount, CountsBlanks) {
  EXPECT_EQ(dictionary::wordCount(u""), 0U);
  EXPECT_EQ(dictionary::wordCount(u"wild"), 1U);
  EXPECT_EQ(dictionary::wordCount(u"three-piece suit"), 2U);
  EXPECT_EQ(dictionary::lastWord(u"three-piece suit"), u"suit");
  EXPECT_EQ(dictionary::firstWord(u"suit"), u"suit");
}

}  // namespace
