#include "dictionary/check/source_check.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "dictionary/check/check.h"
#include "dictionary/console.h"
#include "tests/support/data/sample_database.h"
#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/temp_folder.h"

namespace {

using dictionary::Findings;
using dictionary::Rule;
using dictionary::SourceFacts;

SourceFacts factsOf(const std::string& word, const std::string& translation,
                    bool important = false) {
  SourceFacts facts;
  facts.add({word, translation, important});
  return facts;
}

/// "headword: text" of each.
std::vector<std::u16string> texts(const std::vector<dictionary::SourceText>& facts) {
  std::vector<std::u16string> result;
  result.reserve(facts.size());
  for (const dictionary::SourceText& fact : facts) {
    result.push_back(fact.headword + u": " + fact.text);
  }
  return result;
}

using Texts = std::vector<std::u16string>;

TEST(SourceFacts, NameImportantWordsWithATranslationInChinese) {
  EXPECT_EQ(factsOf("bit", "n. 位", true).important, Texts{u"bit"});
  EXPECT_EQ(factsOf("bit", "n. 位").important, Texts());
  EXPECT_EQ(factsOf("bit", "n. bite", true).important, Texts());
  EXPECT_EQ(factsOf("bit", "n. bite", true).untranslated, Texts{u"bit"});
  EXPECT_EQ(factsOf("bit", "n. bite").untranslated, Texts());
  EXPECT_EQ(factsOf("bit", "n. 位", true).untranslated, Texts());
  EXPECT_EQ(factsOf("b*t", "n. 位", true).important, Texts()) << "no headword";
}

TEST(SourceFacts, NameTitlesOutsideOfNotes) {
  EXPECT_EQ(texts(factsOf("Hosea", "n. 何西阿(希伯来先知), <<何西阿书>>").titles),
            Texts{u"Hosea: 何西阿书"});
  EXPECT_EQ(texts(factsOf("torah", "n. <<旧约>>之首五卷\\n[经] <<律法>>").titles),
            (Texts{u"torah: 旧约", u"torah: 律法"}));
  EXPECT_EQ(texts(factsOf("Goshen", "n. 歌珊地(<<圣经>>中肥沃土地)").titles), Texts());
  EXPECT_EQ(texts(factsOf("x", "<<甲 << >> <<").titles), Texts());
}

TEST(SourceFacts, NameDescriptionsOfCommands) {
  EXPECT_EQ(
      texts(factsOf("more", "[计] 更多; DOS外部命令:显示满屏后暂停, 并显示, 更多").descriptions),
      (Texts{u"more: 显示满屏后暂停", u"more: 并显示"}));
  EXPECT_EQ(texts(factsOf("for", "[计] DOS批处理命令：重复执行\\n为了").descriptions),
            Texts{u"for: 重复执行"});
  EXPECT_EQ(texts(factsOf("ansi", "[计] DOS设备驱动程序:控制屏幕").descriptions),
            Texts{u"ansi: 控制屏幕"});
  EXPECT_EQ(texts(factsOf("himem", "[计] DOS驱动程序:管理内存").descriptions),
            Texts{u"himem: 管理内存"});
  EXPECT_EQ(texts(factsOf("dosgen", "[计] DOS命令").descriptions), Texts());
}

class SourceCheck : public testing::Test {
 protected:
  SourceCheck() : file_(folder_.file(u"kk.dat")) {
    std::filesystem::copy_file(support::smallDatabase(), file_);
  }

  void run(const std::string& sql) { support::Writer(file_).run(sql); }
  Findings check(const SourceFacts& facts) {
    return dictionary::checkDatabase(file_, &facts).findings;
  }

  support::TempFolder folder_;
  std::filesystem::path file_;
};

TEST_F(SourceCheck, FindsNothingInADictionaryMadeOfTheSource) {
  const SourceFacts facts = dictionary::readSourceFacts(support::smallSource());
  EXPECT_GT(facts.important.size(), 10U);
  EXPECT_TRUE(check(facts).empty());
}

TEST_F(SourceCheck, MissesAnImportantWordWithoutARow) {
  const Findings findings = check(factsOf("wordless", "a. 无言的", true));
  ASSERT_EQ(findings.count(Rule::kImportantWords), 1U);
  EXPECT_EQ(findings.examples(Rule::kImportantWords)[0], "«wordless»");
  EXPECT_TRUE(check(factsOf("wordless", "a. 无言的")).empty());
  EXPECT_TRUE(check(factsOf("BIT", "n. 位", true)).empty()) << "case makes no difference";
}

// "cooty | n. =cootie"
TEST_F(SourceCheck, CountsImportantWordsThatTheSourceDoesNotTranslate) {
  SourceFacts facts = factsOf("bit", "n. =bite", true);
  facts.add({"cooty", "n. =cootie", true});
  const dictionary::CheckResult result = dictionary::checkDatabase(file_, &facts);
  EXPECT_TRUE(result.findings.empty());
  EXPECT_EQ(result.untranslatedWords, 2U);
  EXPECT_EQ(result.untranslatedWithoutRow, 1U);
}

TEST_F(SourceCheck, FindsAnImportantWordWithReferencesOnly) {
  const SourceFacts facts = factsOf("bit", "n. 位", true);
  run("update cdict set word='bite的过去式' where cid in"
      " (select cid from edict where word='bit' limit 1)");
  EXPECT_EQ(check(facts).count(Rule::kOwnMeanings), 0U) << "another one is left";
  run("update cdict set word='bite的过去式' where cid in"
      " (select cid from edict where word='bit')");
  ASSERT_EQ(check(facts).count(Rule::kOwnMeanings), 1U);
  EXPECT_EQ(check(facts).examples(Rule::kOwnMeanings)[0], "«bit» has only «bite的过去式»");
}

TEST_F(SourceCheck, LooksForTitlesInBothKindsOfDictionaries) {
  const SourceFacts facts = factsOf("anemia", "<<可兰经>>");
  ASSERT_EQ(check(facts).count(Rule::kTitles), 1U);
  EXPECT_EQ(check(facts).examples(Rule::kTitles)[0], "«anemia»: «可兰经»");
  run("update med set meaning='贫血；《可兰经》' where word='anemia'");
  EXPECT_EQ(check(facts).count(Rule::kTitles), 0U);
  run("update cdict set word='《圣经》学' where cid=(select min(cid) from edict where word='bit')");
  EXPECT_EQ(check(factsOf("bit", "<<圣经>>学")).count(Rule::kTitles), 0U);
}

TEST_F(SourceCheck, FindsWhatACommandDoes) {
  const SourceFacts facts = factsOf("bit", "[计] DOS内部命令:设定位数, 并显示");
  EXPECT_EQ(check(facts).count(Rule::kCommands), 0U);
  run("update cdict set word='并显示' where cid=(select min(cid) from edict where word='bit')");
  ASSERT_EQ(check(facts).count(Rule::kCommands), 1U);
  EXPECT_EQ(check(facts).examples(Rule::kCommands)[0], "«bit»: «并显示»");
}

TEST(ReadSourceFacts, ThrowsForAFileThatCannotBeRead) {
  const support::TempFolder folder;
  EXPECT_THROW(dictionary::readSourceFacts(folder.file(u"none.csv")), dictionary::Failure);
  support::writeFile(folder.file(u"empty.csv"), "");
  EXPECT_THROW(dictionary::readSourceFacts(folder.file(u"empty.csv")), dictionary::Failure);
}

TEST(IsLabel, NamesAKindOfWordOrThing) {
  for (const std::u16string_view label :
       {u"法国服装名牌", u"意大利世界名车", u"DOS内部命令", u"之缩写", u"人名", u"尤指", u"特指",
        u"DOS驱动程序", u"DOS设备驱动程序", u"海宁全名", u"圣戈班公司总部所在地"}) {
    EXPECT_TRUE(dictionary::isLabel(label));
  }
  for (const std::u16string_view word :
       {u"名牌", u"", u"内部命令", u"DOS提示符", u"人名表", u"全名", u"驱动程序"}) {
    EXPECT_FALSE(dictionary::isLabel(word));
  }
}

std::size_t labelsOf(const std::vector<std::u16string>& words) {
  dictionary::HeadwordTable cdict;
  cdict.words = words;
  dictionary::Findings findings;
  dictionary::checkLabels(cdict, findings);
  return findings.count(dictionary::Rule::kLabels);
}

TEST(CheckLabels, AllowsAFewRowsOfALabelThatIsAWord) {
  EXPECT_EQ(labelsOf({u"人名", u"人名", u"人名"}), 0U);
  EXPECT_EQ(labelsOf({u"人名", u"人名", u"人名", u"人名"}), 1U);
  EXPECT_EQ(labelsOf({u"之缩写"}), 1U);
}

}  // namespace
