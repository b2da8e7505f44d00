#include "dictionary/translation/entry.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using dictionary::Piece;
using dictionary::Subject;
using Texts = std::vector<std::u16string>;

/// An entry of the source, cleaned and parsed.
dictionary::Entry entryOf(const std::string& translation) {
  return dictionary::extractEntry({"word", translation, false}).value();
}

/// The Chinese headwords of the entry.
Texts wordsOf(const std::string& translation) {
  Texts result;
  for (const dictionary::TranslationLine& line : entryOf(translation).lines) {
    for (const Piece& piece : line.pieces) {
      if (!piece.equivalent.word.empty()) result.push_back(piece.equivalent.word);
    }
  }
  return result;
}

TEST(ExtractEntry, RefusesAWordThatCannotBeLookedUp) {
  EXPECT_FALSE(dictionary::extractEntry({"100%", "百分之百", false}).has_value());
}

// "Koran | n. <<可兰经>>", "torah | n. 教导, 律法, <<旧约>>之首五卷", "hamburg rules | [经]
// <<汉堡规则>>"
TEST(ExtractEntry, TakesTitlesForText) {
  EXPECT_EQ(wordsOf("n. <<可兰经>>"), (Texts{u"可兰经"}));
  EXPECT_EQ(wordsOf("a. 天启的, <<启示录>>的"), (Texts{u"天启的", u"《启示录》的"}));
  EXPECT_EQ(wordsOf("n. 教导, 律法, <<旧约>>之首五卷"),
            (Texts{u"教导", u"律法", u"《旧约》之首五卷"}));
  EXPECT_EQ(subjectText(entryOf("[经] <<汉堡规则>>").lines.at(0), Subject::kEconomy),
            u"《汉堡规则》");
}

// copy, ATTRIB, EMM386.EXE, "more | [计] DOS外部命令:显示满屏后自动暂停, 并显示:"--More--",
// 按任意键继续"
TEST(ExtractEntry, LeavesOutWhatACommandDoes) {
  const std::string copy =
      "[计] 副本; 复制; DOS内部命令:复制文件\\n将几个文件合并成一个文件, 以及将文件传至外设\\nv. "
      "复印";
  EXPECT_EQ(wordsOf(copy), (Texts{u"副本", u"复制", u"复印"}));
  EXPECT_EQ(subjectText(entryOf(copy).lines.at(0), Subject::kComputing), u"副本；复制");
  EXPECT_EQ(wordsOf("[计] DOS外部命令:显示满屏后自动暂停, 并显示:\"--More--\", 按任意键继续"),
            Texts());
  EXPECT_EQ(wordsOf("[计] DOS外部命令:显示文件的属性\\n只读(R), 保存(A)等"), Texts());
  EXPECT_EQ(wordsOf("[计] DOS设备驱动程序\\n该程序有两项功能"), Texts());
  EXPECT_EQ(wordsOf("[计] DOS批处理命令:改变流程; 转到"), (Texts{u"转到"}));
  EXPECT_EQ(wordsOf("[计] 光盘, 压缩盘, DOS内部命令:显示或改变当前目录"),
            (Texts{u"光盘", u"压缩盘"}));
}

// patio
TEST(ExtractEntry, UsesAnExplanationWhereThereIsNothingElse) {
  const std::string patio = "n. 屋子与花园之间的一片供晴天休息用的石砌空地";
  EXPECT_EQ(wordsOf(patio), (Texts{u"屋子与花园之间的一片供晴天休息用的石砌空地"}));
  EXPECT_EQ(wordsOf(patio + ", 露台"), (Texts{u"露台"}));
  EXPECT_EQ(wordsOf(patio + "\\n= terrace"), Texts());
  EXPECT_EQ(wordsOf("(patio 的复数) " + patio), Texts());
}

// cluttered
TEST(ExtractEntry, EndsASenseAtATag) {
  EXPECT_EQ(
      wordsOf("v. 杂物, 零乱的东西<X>零乱<DDX>vt.( clutter的过去式和过去分词 ); 乱糟糟地堆满"),
      (Texts{u"杂物", u"零乱的东西", u"零乱", u"乱糟糟地堆满"}));
}

// "electronic locator | [电] 见metal detector", "Ezechiel | 即Ezekiel", "Tungting | Lake见Dongting
// Lake"
TEST(ExtractEntry, ReferencesAreAlsoThoseWithAVerb) {
  EXPECT_EQ(entryOf("[电] 见metal detector").references, (Texts{u"metal detector"}));
  EXPECT_EQ(entryOf("即Ezekiel").references, (Texts{u"Ezekiel"}));
  EXPECT_EQ(wordsOf("即Ezekiel"), Texts());
  EXPECT_EQ(entryOf("Lake见Dongting Lake").references, (Texts{u"Dongting Lake"}));
  EXPECT_EQ(entryOf("na. 同“diameter”；“di.”的变体").references, (Texts{u"diameter"}));
  EXPECT_EQ(wordsOf("na. 同\"stir\"；叫醒"), (Texts{u"叫醒"}));
  EXPECT_EQ(entryOf("同 nolo contendere").references, (Texts{u"nolo contendere"}));
  EXPECT_EQ(entryOf("即 TCP协议").references, Texts());
  EXPECT_EQ(entryOf("见").references, Texts());
  EXPECT_EQ(wordsOf("vi. 见"), (Texts{u"见"}));
}

// "-phagous |  表示食, 吃", "dors- | 表示之义", "oleo- | 表示(=oil, =olein)\"油\", \"油的"
TEST(ExtractEntry, OfAWordElementHasItsMeaningWithoutTheLeadIn) {
  const auto wordsOfElement = [](const std::string& word, const std::string& translation) {
    Texts result;
    const auto entry = dictionary::extractEntry({word, translation, false}).value();
    for (const Piece& piece : entry.lines.at(0).pieces) result.push_back(piece.equivalent.word);
    return result;
  };
  EXPECT_EQ(wordsOfElement("-phagous", "表示食, 吃"), (Texts{u"食", u"吃"}));
  EXPECT_EQ(wordsOfElement("-ad", "意为向…方"), (Texts{u"向…方"}));
  EXPECT_EQ(wordsOfElement("oleo-", "表示(=oil, =olein)\"油\""), (Texts{u"油"}));
  EXPECT_EQ(wordsOfElement("dors-", "表示之义, 背"), (Texts{u"", u"背"}));
  EXPECT_EQ(wordsOfElement("hunger strike", "n. 表示抗议的绝食"), (Texts{u"表示抗议的绝食"}));
}

// "bibliog | bibliographic 书目的；bibliographical 书目的", "coelenterate genus | [网络]
// coelenterata属"
TEST(ExtractEntry, LeavesOutForeignWordsButInWhatIsFromTheWeb) {
  EXPECT_EQ(wordsOf("n. origin 起源, 本源; novice等"), (Texts{u"起源", u"本源"}));
  EXPECT_EQ(wordsOf("[网络] katabatic风"), (Texts{u"katabatic风"}));
}

}  // namespace
