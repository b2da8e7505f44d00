#include "dictionary/gloss/notes.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using dictionary::NotedText;
using dictionary::withoutGlossNotes;

std::u16string text(std::u16string_view gloss) { return withoutGlossNotes(gloss).text; }

// "打蜡 | to wax (a car, floor etc)", "提督 | provincial governor (in Qing and Ming times)",
// "登载 | to publish (in newspapers (or magazines))"
TEST(WithoutGlossNotes, RemovesNotes) {
  EXPECT_EQ(text(u"to wax (a car, floor etc)"), u"to wax");
  EXPECT_EQ(text(u"(of a woman) slim"), u"slim");
  EXPECT_EQ(text(u"to publish (in newspapers (or magazines))"), u"to publish");
  EXPECT_EQ(text(u"to regard (sb) as"), u"to regard as");
  EXPECT_EQ(text(u"Karl Marx (1818-1883), philosopher"), u"Karl Marx, philosopher");
}

// "兼施 | using several (methods)", "这位 | this (person)", "杂七杂八 | lots of different
// (skills)", "今 | this (day, year etc)", "变声 | to sound different (when angry etc)"
TEST(WithoutGlossNotes, KeepsTheNounAtTheEnd) {
  EXPECT_EQ(text(u"using several (methods)"), u"using several methods");
  EXPECT_EQ(text(u"this (person)"), u"this person");
  EXPECT_EQ(text(u"lots of different (skills)"), u"lots of different skills");
  EXPECT_EQ(text(u"this (day, year etc)"), u"this");
  EXPECT_EQ(text(u"to sound different (when angry etc)"), u"to sound different");
}

// "谭盾 | Tan Dun (1957-) Chinese composer", "高云 | Gao Yun (died 409) emperor of …", "大禹 | Yu
// the Great (c. 21st century BC) mythical leader …", "尼布楚条约 | Treaty of Nerchinsk (1689)
// between …", "郕 | Zhou Dynasty (1046–256 BCE) vassal state", "魏晋 | Wei (220-265) and Jin
// (265-420) dynasties"
TEST(WithoutGlossNotes, PartsANameFromItsDescriptionAtTheYears) {
  EXPECT_EQ(text(u"Tan Dun (1957-) Chinese composer"), u"Tan Dun, Chinese composer");
  EXPECT_EQ(text(u"Gao Yun (died 409) emperor"), u"Gao Yun, emperor");
  EXPECT_EQ(text(u"Yu the Great (c. 21st century BC) leader"), u"Yu the Great, leader");
  EXPECT_EQ(text(u"Treaty of Nerchinsk (1689) between"), u"Treaty of Nerchinsk between");
  EXPECT_EQ(text(u"Zhou Dynasty (1046-256 BCE) vassal state"), u"Zhou Dynasty vassal state");
  EXPECT_EQ(text(u"Wei (220-265) and Jin (265-420) dynasties"), u"Wei and Jin dynasties");
  EXPECT_EQ(text(u"Karl Marx (philosopher) and"), u"Karl Marx and");
  EXPECT_EQ(text(u"a composer (1957-) in China"), u"a composer in China");
}

// "手提包 | (hand)bag", "里脊 | (tender)loin", "味蕾 | taste bud(s)", "弃子 | … child(ren)"
TEST(WithoutGlossNotes, KeepsPartsOfWords) {
  EXPECT_EQ(text(u"(hand)bag"), u"handbag");
  EXPECT_EQ(text(u"taste bud(s)"), u"taste bud");
  EXPECT_EQ(text(u"brother(s) and sister(s)"), u"brother and sister");
  EXPECT_EQ(text(u"to abandon one's child(ren)"), u"to abandon one's child");
  EXPECT_EQ(text(u"folk prescription(same as before)"), u"folk prescription");
}

// "氢氧化钙 | calcium hydroxide Ca(OH)2", "巴黎绿 | copper(II) acetoarsenite …",
// "甘油醛 | glyceraldehyde (CH2O)3", "淀粉 | starch; amylum (C6H10O5)n"
TEST(WithoutGlossNotes, KeepsFormulas) {
  EXPECT_EQ(text(u"calcium hydroxide Ca(OH)2"), u"calcium hydroxide Ca(OH)2");
  EXPECT_EQ(text(u"copper(II) acetoarsenite"), u"copper(II) acetoarsenite");
  EXPECT_EQ(text(u"glyceraldehyde (CH2O)3"), u"glyceraldehyde");
  EXPECT_EQ(text(u"amylum (C6H10O5)n"), u"amylum");
}

// "跟前 | (in) front", "一点 | … (not) the least bit", "产物 | result (of)"
TEST(WithoutGlossNotes, KeepsLittleWordsAtTheBeginning) {
  EXPECT_EQ(text(u"(in) front"), u"in front");
  EXPECT_EQ(text(u"(not) the least bit"), u"not the least bit");
  EXPECT_EQ(text(u"result (of)"), u"result");
}

// "自古 | (since) ancient times/(from) time immemorial", "众目睽睽 | (idiom) (under) the public
// eye", "长年累月 | (over) many years"
TEST(WithoutGlossNotes, KeepsPrepositionsAtTheBeginning) {
  EXPECT_EQ(text(u"(since) ancient times"), u"since ancient times");
  EXPECT_EQ(text(u"(from) time immemorial"), u"from time immemorial");
  EXPECT_EQ(text(u"(idiom) (under) the public eye"), u"under the public eye");
  EXPECT_EQ(text(u"(over) many years"), u"over many years");
  EXPECT_EQ(text(u"(out of) the corner of one's eyes"), u"out of the corner of one's eyes");
}

// "眼中 | in (sb's) eyes", "候驾 | to await (your) gracious presence", "鸟事 | (not one's) goddamn
// business", "上梁 | (a building's) upper beam", "狄公案 | Dee Gong An (or Judge Dee's) Cases"
TEST(WithoutGlossNotes, KeepsPossessivesInsideAPhrase) {
  EXPECT_EQ(text(u"in (sb's) eyes"), u"in sb's eyes");
  EXPECT_EQ(text(u"to await (your) gracious presence"), u"to await your gracious presence");
  EXPECT_EQ(text(u"(not one's) goddamn business"), u"not one's goddamn business");
  EXPECT_EQ(text(u"(a building's) upper beam"), u"upper beam");
  EXPECT_EQ(text(u"Dee Gong An (or Judge Dee's) Cases"), u"Dee Gong An Cases");
  EXPECT_EQ(text(u"grandfather (mother's father)"), u"grandfather");
}

// "说哭 | to make (sb) cry", "由着 | let (one) have his way", "单用 | to use (sth) on its own",
// "责成 | to assign (sb) the task of", "对于 | as far as (sth) is concerned", "送 | to see (sb)
// off", "对不起 | to let (sb) down", "再改 | to change (sth) again"
TEST(WithoutGlossNotes, KeepsObjectsThatVerbsNeed) {
  EXPECT_EQ(text(u"to make (sb) cry"), u"to make sb cry");
  EXPECT_EQ(text(u"let (one) have his way"), u"let one have his way");
  EXPECT_EQ(text(u"to use (sth) on its own"), u"to use sth on its own");
  EXPECT_EQ(text(u"to assign (sb) the task of"), u"to assign sb the task of");
  EXPECT_EQ(text(u"as far as (sth) is concerned"), u"as far as sth is concerned");
  EXPECT_EQ(text(u"to see (sb) off"), u"to see off");
  EXPECT_EQ(text(u"to let (sb) down"), u"to let down");
  EXPECT_EQ(text(u"to change (sth) again"), u"to change again");
  EXPECT_EQ(text(u"to make (sth)"), u"to make");
}

// "满嘴 | a full mouth of (sth physical)", "依靠 | to rely on sth (for support etc)",
// "诸如 | such as (the following)", "一袭 | an outfit of (clothing)", "堆积如山 | a mountain of
// (paperwork etc)"
TEST(WithoutGlossNotes, KeepsAnObjectThatTheTextNeeds) {
  EXPECT_EQ(text(u"a full mouth of (sth physical)"), u"a full mouth of sth physical");
  EXPECT_EQ(text(u"an outfit of (clothing)"), u"an outfit of clothing");
  EXPECT_EQ(text(u"to act like a (fool)"), u"to act like a fool");
  EXPECT_EQ(text(u"a mountain of (paperwork etc)"), u"a mountain of paperwork etc");
  EXPECT_EQ(text(u"full of (interest, humor etc)"), u"full of");
  EXPECT_EQ(text(u"to belong to (a group)"), u"to belong to") << "verbs do without";
  EXPECT_EQ(text(u"on account of (sth)"), u"on account of") << "any object";
  EXPECT_EQ(text(u"just as (coll.)"), u"just as") << "no object at all";
}

// "算哪根葱 | who do (you) think (you) are", "痴长 | … to be older than (you) by", "随身 | to
// (carry) on one's person", "支承 | to bear the weight of (a building)", "依靠 | to rely on sth
// (for support etc)"
TEST(WithoutGlossNotes, TellsASentenceThatNeedsItsNotes) {
  EXPECT_EQ(withoutGlossNotes(u"who do (you) think (you) are").whole, u"who do you think you are");
  EXPECT_EQ(withoutGlossNotes(u"to be older than (you) by").whole, u"to be older than you by");
  EXPECT_EQ(withoutGlossNotes(u"to bear the weight of (a building)").whole,
            u"to bear the weight of a building");
  EXPECT_EQ(withoutGlossNotes(u"(coll.) to rely on (sth) for help").whole,
            u"to rely on sth for help");
  EXPECT_EQ(withoutGlossNotes(u"to denounce (sb) as (sth contemptible)").whole,
            u"to denounce sb as sth contemptible");
  EXPECT_EQ(withoutGlossNotes(u"to pass (sth) on (to sb else)").whole, u"");
  EXPECT_EQ(withoutGlossNotes(u"(before a noun) Do (you, they etc) have ...?").whole,
            u"Do you have ...?");
  for (const std::u16string_view gloss :
       {u"to rely on sth (for support etc)", u"to belong to (a group)", u"to regard (sb) as",
        u"(law) appeal", u"(hand)bag", u"why do you (he, etc) say so"}) {
    EXPECT_EQ(withoutGlossNotes(gloss).whole, u"");
  }
}

// "责成 | to charge (an entity) with (a task)", "提交 | to refer (a problem) to sb", "寄托 | to
// place (one's hope, energy etc) in", "驶离 | to steer (the plane) away from", "纠结 | to struggle
// (mentally) with (sth)", "冲泡 | to add water (or other liquid) to (another ingredient …)"
TEST(WithoutGlossNotes, TellsAVerbThatLostItsObject) {
  EXPECT_EQ(withoutGlossNotes(u"to charge (an entity) with (a task)").whole,
            u"to charge an entity with a task");
  EXPECT_EQ(withoutGlossNotes(u"to refer (a problem) to sb").whole, u"to refer a problem to sb");
  EXPECT_EQ(withoutGlossNotes(u"to place (one's hope, energy etc) in").whole,
            u"to place one's hope, energy etc in");
  EXPECT_EQ(withoutGlossNotes(u"to steer (the plane) away from").whole,
            u"to steer the plane away from");
  for (const std::u16string_view gloss :
       {u"to struggle (mentally) with (sth)", u"to add water (or other liquid) to (tea leaves)",
        u"to paint (walls etc)", u"to give sb (a gift) for (sth)", u"(of a plane) to steer from",
        u"to win (a person) over"}) {
    EXPECT_EQ(withoutGlossNotes(gloss).whole, u"");
  }
}

// "世卫 | World Health Organization (WHO)", "美职篮 | National Basketball Association (NBA)",
// "近场通信 | (computing) near-field communication (NFC)"
TEST(WithoutGlossNotes, FindsInitials) {
  EXPECT_EQ(withoutGlossNotes(u"World Health Organization (WHO)").initials, u"WHO");
  EXPECT_EQ(withoutGlossNotes(u"near-field communication (NFC)").initials, u"NFC");
  EXPECT_EQ(withoutGlossNotes(u"Federal Bureau of Investigation (FBI)").initials, u"FBI");
  EXPECT_EQ(withoutGlossNotes(u"bandwidth (PRC)").initials, u"");
}

// "瑀 | (chalcedony)", "鑶 | (onom.) (sound of a bell)", "哒 | (phonetic)"
TEST(WithoutGlossNotes, TakesANoteThatStandsAlone) {
  const NotedText stone = withoutGlossNotes(u"(chalcedony)");
  EXPECT_EQ(stone.text, u"chalcedony");
  EXPECT_TRUE(stone.described);
  EXPECT_EQ(text(u"(onom.) (sound of a bell)"), u"sound of a bell");
  EXPECT_EQ(text(u"(phonetic)"), u"");
  EXPECT_FALSE(withoutGlossNotes(u"agate (chalcedony)").described);
}

TEST(WithoutGlossNotes, DropsANoteThatDoesNotEnd) {
  EXPECT_EQ(text(u"wild dog (or"), u"wild dog");
  EXPECT_EQ(text(u"("), u"");
  EXPECT_EQ(text(u"()"), u"");
  EXPECT_EQ(text(u"wild) dog"), u"wild) dog");
}

}  // namespace
