#include "dictionary/source/cedict_reader.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "dictionary/console.h"
#include "tests/support/data/temp_folder.h"

namespace {

using dictionary::CedictRecord;
using dictionary::parseCedict;
using Texts = std::vector<std::u16string>;

std::string module(const std::string& records) {
  return "export default {\"all\":[" + records + "],\"variantLookup\":[]}";
}

std::string failureOf(const std::string& text) {
  try {
    parseCedict(text);
  } catch (const dictionary::Failure& failure) {
    return failure.what();
  }
  return "";
}

TEST(ParseCedict, ReadsOneGlossAndSeveral) {
  const std::vector<CedictRecord> records =
      parseCedict(module(R"(["晶瑩","晶莹","jing1 ying2","sparkling and translucent",[],[]],)"
                         R"(["野狗","野狗","ye3 gou3",["wild dog","feral dog"],[],[3]])"));
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(records[0].traditional, u"晶瑩");
  EXPECT_EQ(records[0].simplified, u"晶莹");
  EXPECT_EQ(records[0].pinyin, u"jing1 ying2");
  EXPECT_EQ(records[0].glosses, (Texts{u"sparkling and translucent"}));
  EXPECT_EQ(records[1].glosses, (Texts{u"wild dog", u"feral dog"}));
}

TEST(ParseCedict, KeepsEqualRecordsApart) {
  const std::string record = R"(["干","干","gan1","dry",[],[]])";
  EXPECT_EQ(parseCedict(module(record + "," + record)).size(), 2U);
}

TEST(ParseCedict, DecodesEscapesAndSurrogates) {
  const std::vector<CedictRecord> records =
      parseCedict(module(R"(["\u9c7c","𫠒","x","\"A\" \\ \/",[],[]])") + ";\n");
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0].traditional, u"鱼");
  EXPECT_EQ(records[0].simplified, u"𫠒");
  EXPECT_EQ(records[0].glosses, (Texts{u"\"A\" \\ /"}));
}

TEST(ParseCedict, RefusesRecordsOfAnotherForm) {
  EXPECT_NE(
      failureOf(module(R"(["天","天","tian1","sky"],["天",1,"tian1","sky"])")).find("record 1"),
      std::string::npos);
  EXPECT_NE(failureOf(module(R"(["天","天"])")), "");
  EXPECT_NE(failureOf(module(R"(["天","天","tian1",["sky",null]])")), "");
  EXPECT_NE(failureOf(module(R"(["天","天","tian1",["sky",["day"]]])")), "");
}

TEST(ParseCedict, LeavesOutRecordsWithoutAGloss) {
  EXPECT_EQ(parseCedict(module(R"(["地","地","di4",[]],["天","天","tian1","sky"])")).size(), 1U);
}

TEST(ParseCedict, RefusesWhatIsNoModule) {
  EXPECT_NE(failureOf(""), "");
  EXPECT_NE(failureOf("export default"), "");
  EXPECT_NE(failureOf(R"({"all":[["天","天","tian1","sky"]]})").find("module"), std::string::npos);
  EXPECT_NE(failureOf(R"(export default {"all":[["天","天","tian1","sky"])"), "");
  EXPECT_NE(failureOf(R"(export default {"all":[]})"), "");
  EXPECT_NE(failureOf(R"(export default {"al":[["天","天","tian1","sky"]]})"), "");
  EXPECT_NE(failureOf(module("[\"天\",\"天\",\"tian1\",\"sky\xFF\"]")), "");
}

TEST(ReadCedictRecords, ReadsAFile) {
  const support::TempFolder folder;
  const std::filesystem::path file = folder.file(u"all.js");
  EXPECT_THROW(dictionary::readCedictRecords(file), dictionary::Failure);
  std::ofstream(file, std::ios::binary) << module(R"(["天","天","tian1","sky",[],[]])");
  EXPECT_EQ(dictionary::readCedictRecords(file).size(), 1U);
}

}  // namespace
