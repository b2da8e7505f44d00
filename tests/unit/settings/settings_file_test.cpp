#include "settings/settings_file.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using user::profileValue;
using user::toInteger16;

TEST(ProfileValue, IsTheBufferWithoutItsBlanks) {
  EXPECT_EQ(profileValue(4, u"3500", u"d"), u"3500");
  EXPECT_EQ(profileValue(8, u"  3500  ", u"d"), u"3500");
  EXPECT_EQ(profileValue(3, u"a b", u"d"), u"a b");
}

TEST(ProfileValue, IsTheDefaultWhereNothingWasRead) {
  EXPECT_EQ(profileValue(0, u"", u"d"), u"d");
  EXPECT_EQ(profileValue(0, std::u16string(255, u' '), u"d"), u"d");
  EXPECT_EQ(profileValue(0, u"left over", u"d"), u"d");
  EXPECT_EQ(profileValue(0, u"", u""), u"");
}

TEST(ProfileValue, IsTheDefaultWhereOnlyBlanksWereRead) {
  EXPECT_EQ(profileValue(3, u"   ", u"d"), u"d");
  EXPECT_EQ(profileValue(2, u"", u"d"), u"d");
}

TEST(ProfileValue, OnlyBlanksAreTrimmed) {
  EXPECT_EQ(profileValue(3, u"\t1\t", u"d"), u"\t1\t");
  EXPECT_EQ(profileValue(2, u"\u30001", u"d"), u"\u30001");
}

TEST(ProfileValue, TheDefaultIsGivenAsItIs) { EXPECT_EQ(profileValue(0, u"", u" d "), u" d "); }

TEST(Integer16, TakesWholeNumbers) {
  EXPECT_EQ(toInteger16(u"3500"), 3500);
  EXPECT_EQ(toInteger16(u"0"), 0);
  EXPECT_EQ(toInteger16(u"00012"), 12);
  EXPECT_EQ(toInteger16(u"+7"), 7);
  EXPECT_EQ(toInteger16(u"-7"), -7);
  EXPECT_EQ(toInteger16(u"  42 "), 42);
}

TEST(Integer16, EndsAt16Bits) {
  EXPECT_EQ(toInteger16(u"32767"), 32767);
  EXPECT_EQ(toInteger16(u"-32768"), -32768);
  EXPECT_EQ(toInteger16(u"32768"), std::nullopt);
  EXPECT_EQ(toInteger16(u"-32769"), std::nullopt);
  EXPECT_EQ(toInteger16(u"40000"), std::nullopt);
  EXPECT_EQ(toInteger16(std::u16string(254, u'9')), std::nullopt);
  EXPECT_EQ(toInteger16(u"4294967296"), std::nullopt);
}

TEST(Integer16, RefusesEverythingElse) {
  for (const char16_t* value :
       {u"", u" ", u"abc", u"12a", u"a12", u"1 2", u"--1", u"+-1", u"-", u"+", u"1.5", u"1e3",
        u"0x10", u"１２", u"十", u"1\t", u"C:\\windows\\system32\\system.ini"}) {
    EXPECT_EQ(toInteger16(value), std::nullopt) << std::u16string(value).size();
  }
}

TEST(IsOn, TakesTheNumberOne) {
  for (const char16_t* value : {u"1", u" 1 ", u"+1", u"01"}) EXPECT_TRUE(user::isOn(value));
  for (const char16_t* value : {u"", u"0", u"2", u"-1", u"11", u"yes", u"true", u"on", u"１"}) {
    EXPECT_FALSE(user::isOn(value)) << std::u16string(value).size();
  }
}

}  // namespace
