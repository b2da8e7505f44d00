#include "dictionary/gloss/names/sites.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using dictionary::nameOfPeople;
using dictionary::namesPeople;
using dictionary::withoutSite;

// "岱 | Mt Tai in Shandong", "天池 | Lake Tianchi in Xinjiang", "玉龙雪山 | Mt Yulong or Jade
// dragon in Lijiang …", "太湖 | Lake Tai near Wuxi City …"
TEST(WithoutSite, CutsMountainsAndLakes) {
  EXPECT_EQ(withoutSite(u"Mt Tai in Shandong"), u"Mt Tai");
  EXPECT_EQ(withoutSite(u"Lake Tianchi in Xinjiang"), u"Lake Tianchi");
  EXPECT_EQ(withoutSite(u"Lake Tai near Wuxi City"), u"Lake Tai");
  EXPECT_EQ(withoutSite(u"Mt Yulong or Jade dragon in Lijiang"), u"Mt Yulong or Jade dragon");
  EXPECT_EQ(withoutSite(u"Mount of Olives"), u"Mount of Olives");
}

// "武当山 | Wudang Mountain range in northwest Hubei", "喀拉喀托 | Krakatoa island and volcano in
// the Sunda Strait", "唐古拉 | Dangla or Tanggula mountain range on …", "赵州桥 | Zhaozhou Bridge
// over Xiao River …", "克朗代克 | Klondike in northwest Canada", "回族 | Hui Islamic ethnic group
// living across China", "中山陵 | Dr Sun Yat-sen's mausoleum in Nanjing", "静冈县 | Shizuoka
// prefecture southwest of Tokyo, Japan"
TEST(WithoutSite, CutsBehindTheKind) {
  EXPECT_EQ(withoutSite(u"Wudang Mountain range in northwest Hubei"), u"Wudang Mountain range");
  EXPECT_EQ(withoutSite(u"Krakatoa island and volcano in the Sunda Strait"),
            u"Krakatoa island and volcano");
  EXPECT_EQ(withoutSite(u"Dangla or Tanggula mountain range on the Plateau"),
            u"Dangla or Tanggula mountain range");
  EXPECT_EQ(withoutSite(u"Zhaozhou Bridge over Xiao River"), u"Zhaozhou Bridge");
  EXPECT_EQ(withoutSite(u"Klondike in northwest Canada"), u"Klondike");
  EXPECT_EQ(withoutSite(u"Hui Islamic ethnic group living across China"),
            u"Hui Islamic ethnic group");
  EXPECT_EQ(withoutSite(u"Dr Sun Yat-sen's mausoleum in Nanjing"), u"Dr Sun Yat-sen's mausoleum");
  EXPECT_EQ(withoutSite(u"Shizuoka prefecture southwest of Tokyo"), u"Shizuoka prefecture");
}

// "中关村 | Zhongguancun neighborhood of Beijing", "马拉地 | Marathi language of west India",
// "克耶邦 | Kaya state of Myanmar", "仡佬族 | Gelao or Klau ethnic group of Guizhou", "柏柏尔 |
// Berber people of North Africa"
TEST(WithoutSite, CutsBeforeOf) {
  EXPECT_EQ(withoutSite(u"Zhongguancun neighborhood of Beijing"), u"Zhongguancun neighborhood");
  EXPECT_EQ(withoutSite(u"Marathi language of west India"), u"Marathi language");
  EXPECT_EQ(withoutSite(u"Kaya state of Myanmar"), u"Kaya state");
  EXPECT_EQ(withoutSite(u"Gelao or Klau ethnic group of Guizhou"), u"Gelao or Klau ethnic group");
  EXPECT_EQ(withoutSite(u"Berber people of North Africa"), u"Berber people");
}

// "安第斯山脉 | Andes mountain chain of South America", "黄土高原 | Loess Plateau of northwest
// China", "高甲戏 | Gaojia opera of Fujian and Taiwan", "湘语 | Xiang (Hunanese) dialect spoken in
// Hunan Province", "曼哈顿 | Manhattan borough of New York City", "孔雀王朝 | Maurya Dynasty of
// India (…)"
TEST(WithoutSite, CutsOtherKinds) {
  EXPECT_EQ(withoutSite(u"Andes mountain chain of South America"), u"Andes mountain chain");
  EXPECT_EQ(withoutSite(u"Loess Plateau of northwest China"), u"Loess Plateau");
  EXPECT_EQ(withoutSite(u"Gaojia opera of Fujian and Taiwan"), u"Gaojia opera");
  EXPECT_EQ(withoutSite(u"Xiang dialect spoken in Hunan Province"), u"Xiang dialect");
  EXPECT_EQ(withoutSite(u"Manhattan borough of New York City"), u"Manhattan borough");
  EXPECT_EQ(withoutSite(u"Maurya Dynasty of India"), u"Maurya Dynasty");
}

// "里瓦几亚条约 | Treaty of Livadia (1879) between Russia and China, …", "太平洋战争 | Pacific War
// between Japan and the US, 1941-1945", "南京条约 | Treaty of Nanjing (1842) that concluded the
// First Opium War between Qing China and Britain"
TEST(WithoutSite, CutsTheParties) {
  EXPECT_EQ(withoutSite(u"Treaty of Livadia between Russia and China"), u"Treaty of Livadia");
  EXPECT_EQ(withoutSite(u"Pacific War between Japan and the US"), u"Pacific War");
  EXPECT_EQ(withoutSite(u"Treaty of Nanjing that concluded the First Opium War between China"),
            u"Treaty of Nanjing that concluded the First Opium War between China");
}

// "环秀山庄 | Mountain Villa with Embracing Beauty in Suzhou, Jiangsu", "金阁寺 | Kinkakuji or
// Golden pavilion in northwest Kyōto 京都, Japan", "五灯会元 | Song Dynasty History of Zen Buddhism
// in China, 20 scrolls"
TEST(WithoutSite, CutsTownAndProvince) {
  EXPECT_EQ(withoutSite(u"Mountain Villa with Embracing Beauty in Suzhou, Jiangsu"),
            u"Mountain Villa with Embracing Beauty");
  EXPECT_EQ(withoutSite(u"Kinkakuji or Golden pavilion in northwest Kyoto, Japan"),
            u"Kinkakuji or Golden pavilion");
  EXPECT_EQ(withoutSite(u"Song Dynasty History of Zen Buddhism in China, 20 scrolls"),
            u"Song Dynasty History of Zen Buddhism in China, 20 scrolls");
}

// "荆 | … Zhou Dynasty state of Chu", "莒 | Zhou Dynasty vassal state in modern day Shandong
// Province", "天台宗 | Tiantai school of Buddhism", "俗世奇人 | Extraordinary people in our
// ordinary world, …", "党项 | Tangut branch of the Qiang 羌 ethnic group", "吴下阿蒙 | General Lu
// Meng of the southern state of Wu"
TEST(WithoutSite, LeavesOtherTexts) {
  for (const std::u16string_view gloss :
       {u"Zhou Dynasty state of Chu", u"Zhou Dynasty vassal state in modern day Shandong Province",
        u"Tiantai school of Buddhism", u"Extraordinary people in our ordinary world",
        u"Tangut branch of the Qiang ethnic group", u"Alice in Wonderland",
        u"Human Rights Group in China", u"General Lu Meng of the southern state of Wu",
        u"The bridge in winter", u"mountain range in Tibet", u"I", u"Bridge over River",
        u"Made in Taiwan"}) {
    EXPECT_EQ(withoutSite(gloss), gloss);
  }
}

// "傈僳 | Lisu ethnic group of Yunnan", "僜 | Deng ethnic minority of Tibet", "回族 | Hui Islamic
// ethnic group …", "畲族 | She ethnic group"
TEST(NameOfPeople, ReadsSingleWords) {
  EXPECT_EQ(nameOfPeople(u"Lisu ethnic group"), u"Lisu");
  EXPECT_EQ(nameOfPeople(u"Deng ethnic minority"), u"Deng");
  for (const std::u16string_view text :
       {u"Hui Islamic ethnic group", u"She ethnic group", u"ethnic group", u"small ethnic group",
        u"Lisu", u"I", u""}) {
    EXPECT_EQ(nameOfPeople(text), u"");
  }
  EXPECT_TRUE(namesPeople(u"Hui Islamic ethnic group"));
  EXPECT_FALSE(namesPeople(u"small ethnic group"));
}

}  // namespace
