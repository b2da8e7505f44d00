#include "dictionary/part_of_speech.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// What is left of a text behind its mark.
std::u16string rest(const std::u16string& text) {
  return text.substr(dictionary::partOfSpeechLength(text));
}

TEST(PartOfSpeech, IsReadWithItsBlanks) {
  EXPECT_EQ(rest(u"n. 数据"), u"数据");
  EXPECT_EQ(rest(u"n.数据"), u"数据");
  EXPECT_EQ(rest(u"abbr. 数据"), u"数据");
  EXPECT_EQ(rest(u"adj．温暖的"), u"温暖的");
}

TEST(PartOfSpeech, MayConsistOfSeveral) {
  EXPECT_EQ(rest(u"n. & adj. 等剂量"), u"等剂量");
  EXPECT_EQ(rest(u"vt.vi. 加速"), u"加速");
  EXPECT_EQ(rest(u"n.&vt. 加速"), u"加速");
  EXPECT_EQ(rest(u"vt., vi. 加速"), u"加速");
  EXPECT_EQ(rest(u"a. & 加速"), u"加速");
}

TEST(PartOfSpeech, MayLackItsStopBeforeChinese) {
  EXPECT_EQ(rest(u"n 数据"), u"数据");
  EXPECT_EQ(rest(u"v …成"), u"…成");
  EXPECT_EQ(rest(u"n<古>.乡下人"), u"<古>.乡下人");
  EXPECT_EQ(rest(u"a[生化].叶绿素的"), u"[生化].叶绿素的");
}

TEST(PartOfSpeech, IsNoOtherWord) {
  for (const std::u16string text : {u"数据", u"N. 数据", u"Dr. 数据", u"no. 数据", u"a级",
                                    u"n型半导体", u"v", u"n.", u"a b", u""}) {
    if (text == u"n.") {
      EXPECT_EQ(rest(text), u"");
    } else {
      EXPECT_EQ(rest(text), text);
    }
  }
}

}  // namespace
