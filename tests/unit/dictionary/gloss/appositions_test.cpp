#include "dictionary/gloss/appositions.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using dictionary::describesPlace;
using dictionary::withoutApposition;

// "街市 | wet market, i.e. a marketplace …", "麦冬 | dwarf lilyturf, whose tuber is used in TCM",
// "蛋氨酸 | methionine, an essential amino acid", "四大发明 | the four great Chinese inventions: …"
TEST(WithoutApposition, CutsBeforeAMarker) {
  EXPECT_EQ(withoutApposition(u"wet market, i.e. a marketplace"), u"wet market");
  EXPECT_EQ(withoutApposition(u"dwarf lilyturf, whose tuber is used"), u"dwarf lilyturf");
  EXPECT_EQ(withoutApposition(u"methionine, an essential amino acid"), u"methionine");
  EXPECT_EQ(withoutApposition(u"four great inventions: paper, printing"), u"four great inventions");
  EXPECT_EQ(withoutApposition(u"triad, Chinese crime gang"), u"triad");
}

// "以眼还眼,以牙还牙 | an eye for an eye, a tooth for a tooth", "韵事 | in literature, the cue for
// a poem", "其他 | other times, other manners"
TEST(WithoutApposition, LeavesSentencesWhole) {
  for (const std::u16string_view gloss :
       {u"an eye for an eye, a tooth for a tooth", u"in literature, the cue for a poem",
        u"other times, other manners", u"to wait, a little", u"to be frank"}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
}

// "努克 | Nuuk, capital of Greenland", "旧金山 | San Francisco, California",
// "中日韩 | China, Japan and Korea", "苏绣 | Suzhou embroidery, one of the four …"
TEST(WithoutApposition, CutsNames) {
  EXPECT_EQ(withoutApposition(u"Nuuk, capital of Greenland"), u"Nuuk");
  EXPECT_EQ(withoutApposition(u"San Francisco, California"), u"San Francisco");
  EXPECT_EQ(withoutApposition(u"Suzhou embroidery, Jiangsu style"), u"Suzhou embroidery");
  EXPECT_EQ(withoutApposition(u"China, Japan and Korea"), u"China, Japan and Korea");
}

// "亚非拉 | Asia, Africa and Latin America", "夏商周 | Xia, Shang and Zhou, the earliest …",
// "孟连县 | Menglian Dai, Lahu and Va autonomous county in Pu'er …", "威宁…自治县 | Weining Yi,
// Hui, and Miao Autonomous County, in Bijie City", "帝国理工学院 | Imperial College of Science,
// Technology …", "国家新闻出版广电总局 | State Administration for Press, Publication, …", "陕甘宁 |
// Shaanxi, …"
TEST(WithoutApposition, KeepsListsInsideNames) {
  for (const std::u16string_view gloss :
       {u"Asia, Africa and Latin America", u"Shaanxi, Gansu and Ningxia provinces",
        u"China, Taiwan, Hong Kong and Macau",
        u"State Administration for Press, Publication, Radio, Film and Television",
        u"Commission for Science, Technology and Industry for National Defense"}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
  EXPECT_EQ(withoutApposition(u"Xia, Shang and Zhou, the earliest named Chinese dynasties"),
            u"Xia, Shang and Zhou");
  EXPECT_EQ(withoutApposition(u"Menglian Dai, Lahu and Va autonomous county in Pu'er, Yunnan"),
            u"Menglian Dai, Lahu and Va autonomous county");
  EXPECT_EQ(withoutApposition(u"Weining Yi, Hui, and Miao Autonomous County, in Bijie City"),
            u"Weining Yi, Hui, and Miao Autonomous County");
  EXPECT_EQ(withoutApposition(u"Imperial College of Science, Technology and Medicine, London"),
            u"Imperial College of Science, Technology and Medicine");
}

// "波义耳 | Robert Boyle (1627-91), British and Irish scientist …", "韦慕庭 | Clarence Martin
// Wilbur, US Sinologist and Professor of Columbia University", "美国国家航空航天局 | NASA, National
// …"
TEST(WithoutApposition, CutsWhatOnlyLooksLikeAList) {
  EXPECT_EQ(withoutApposition(u"Robert Boyle, British and Irish scientist"), u"Robert Boyle");
  EXPECT_EQ(withoutApposition(u"Clarence Martin Wilbur, US Sinologist and Professor of Columbia"),
            u"Clarence Martin Wilbur");
  EXPECT_EQ(withoutApposition(u"NASA, National Aeronautics and Space Administration, agency"),
            u"NASA");
}

// "开尔文 | Lord Kelvin 1824-1907, British physicist", "秦始皇帝 | the First Emperor 259-210 BC"
TEST(WithoutApposition, CutsYears) {
  EXPECT_EQ(withoutApposition(u"Lord Kelvin 1824-1907, British physicist"), u"Lord Kelvin");
  EXPECT_EQ(withoutApposition(u"First Emperor 259-210 BC"), u"First Emperor");
  EXPECT_EQ(withoutApposition(u"Boeing 747"), u"Boeing 747");
}

// "骊姬之乱 | Li Ji Rebellion in 657-651 BC, where …", "三反 | "Three Anti" campaign (…), early PRC
// purge of 1951–52", "杨坚 | first Sui emperor Yang Jian (541-604), reigned 581-604", "羌族 | Qiang
// ethnic group, nowadays esp. in north Sichuan"
TEST(WithoutApposition, LeavesNoOpenEnd) {
  EXPECT_EQ(withoutApposition(u"Li Ji Rebellion in 657-651 BC, where she"), u"Li Ji Rebellion");
  EXPECT_EQ(withoutApposition(u"\"Three Anti\" campaign, early PRC purge of 1951-52"),
            u"\"Three Anti\" campaign");
  EXPECT_EQ(withoutApposition(u"first Sui emperor Yang Jian, reigned 581-604"),
            u"first Sui emperor Yang Jian");
  EXPECT_EQ(withoutApposition(u"Qiang ethnic group, nowadays esp. in Sichuan"),
            u"Qiang ethnic group");
}

// "鸦片战争 | the Opium Wars of 1840-1842 and 1860-1861"
TEST(WithoutApposition, LeavesTwoSpansOfYears) {
  EXPECT_EQ(withoutApposition(u"Opium Wars of 1840-1842 and 1860-1861"),
            u"Opium Wars of 1840-1842 and 1860-1861");
}

// "二十年目睹之怪现状 | The Strange State of the World Witnessed Over 20 Years, novel by …"
TEST(WithoutApposition, LeavesTitlesWhole) {
  EXPECT_EQ(withoutApposition(u"Strange State of the World Witnessed"),
            u"Strange State of the World Witnessed");
}

// "投桃报李 | Scratch my back, and I'll scratch yours.", "安得 | Oh, if only there were..."
TEST(WithoutApposition, TellsNamesFromSentences) {
  for (const std::u16string_view gloss :
       {u"Scratch my back, and I'll scratch yours", u"Oh, if only there were",
        u"Jiang Ziya is fishing, take the hook"}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
}

// "交城 | Jiaocheng county in Lüliang, Shanxi", "鹿野乡 | Luye or Luyeh township in Taitung
// County", "雅拉雪山 | Mt Tiantai near Shaoxing in Zhejiang", "新源县 | Xinyuan County or Künes
// nahiyisi in …", "清水寺 | Kiyomizu temple in east Kyōto 京都, Japan"
TEST(WithoutApposition, CutsPlacesBehindTheirKind) {
  EXPECT_EQ(withoutApposition(u"Jiaocheng county in Luliang, Shanxi"), u"Jiaocheng county");
  EXPECT_EQ(withoutApposition(u"Luye or Luyeh township in Taitung County"),
            u"Luye or Luyeh township");
  EXPECT_EQ(withoutApposition(u"Xinyuan County or Kunes nahiyisi in Ili"),
            u"Xinyuan County or Kunes nahiyisi");
  EXPECT_EQ(withoutApposition(u"Kiyomizu temple in east Kyoto, Japan"), u"Kiyomizu temple");
  EXPECT_EQ(withoutApposition(u"Mt Tiantai near Shaoxing in Zhejiang"), u"Mt Tiantai");
  EXPECT_EQ(withoutApposition(u"Alice in Wonderland"), u"Alice in Wonderland");
  EXPECT_EQ(withoutApposition(u"City of London"), u"City of London");
}

// "国徽法 | Law on the National Emblem of the PRC, …", "歧路灯 | Lamp in the Side Street, novel by
// …", "中国制造2025 | Made in China 2025, …", "联合国海洋法公约 | United Nations Convention on the
// Law of the Sea", "早C晚A | Vitamin C in the morning, Vitamin A in the evening"
TEST(WithoutApposition, CutsNoTitleAtAPreposition) {
  for (const std::u16string_view gloss :
       {u"River on a spring night, long yuefu poem", u"Law on the National Emblem of the PRC",
        u"Convention on the Rights of the Child", u"Lamp in the Side Street",
        u"Made in China 2025 plan", u"United Nations Convention on the Law of the Sea",
        u"Vitamin C in the morning, Vitamin A in the evening"}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
  EXPECT_EQ(withoutApposition(u"Lushan at the north of Jiangxi Province"), u"Lushan");
}

// "国家军品贸易管理委员会 | State Administration Committee on Military Products Trade (SACMPT)",
// "中央 人民政府驻香港特别行政区联络办公室 | Liaison Office of the Central People's Government in
// the Hong Kong Special Administrative Region"
TEST(WithoutApposition, KeepsWhatAnOfficeIsFor) {
  for (const std::u16string_view gloss :
       {u"State Administration Committee on Military Products Trade",
        u"Liaison Office of the Central People's Government in the Hong Kong Special Region"}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
}

// "虎跳峡 | Tiger Leaping Gorge on the Jinsha River …", "爱尔兰海 | Irish Sea between Ireland and
// north England", "鹿野乡 | Luye or Luyeh township …"
TEST(WithoutApposition, CutsWhereTheNameIsAPlace) {
  EXPECT_EQ(withoutApposition(u"Tiger Leaping Gorge on the Jinsha River"), u"Tiger Leaping Gorge");
  EXPECT_EQ(withoutApposition(u"Irish Sea between Ireland and north England"), u"Irish Sea");
}

// "中俄北京条约 | the Treaty of Beijing of 1860 between Qing China and Tsarist Russia"
TEST(WithoutApposition, CutsTheDateBeforeTheParties) {
  EXPECT_EQ(withoutApposition(u"Treaty of Beijing of 1860 between Qing China and Tsarist Russia"),
            u"Treaty of Beijing");
}

// "吐鲁番盆地 | the Turpan Depression in Xinjiang", "淯水 | old name of Baihe 白河 in Henan"
TEST(WithoutApposition, CutsShortNamesOfPlaces) {
  EXPECT_EQ(withoutApposition(u"Turpan Depression in Xinjiang"), u"Turpan Depression");
  EXPECT_EQ(withoutApposition(u"Baihe in Henan"), u"Baihe");
}

// "忽冷忽热 | now hot, now cold", "大球 | sports such as soccer, basketball and volleyball that use
// large balls", "虎父无犬子 | … With a distinguished father such as you, the son is sure to do
// well."
TEST(WithoutApposition, LeavesWhatNeedsTheRest) {
  for (const std::u16string_view gloss :
       {u"now hot, now cold", u"sports such as soccer that use large balls",
        u"With a father such as you, the son will do well"}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
  EXPECT_EQ(withoutApposition(u"marine worm such as the spoon worm"), u"marine worm");
}

// "夏代 | Xia or Hsia dynasty c. 2000 BC", "细思极恐 | scary to think about (…) coined c. 2013",
// "吕嘉民 | Lu Jiamin aka Jiang Rong, …", "前寒武纪 | pre-Cambrian, geological period before c.
// 540m …"
TEST(WithoutApposition, CutsDatesAndOtherNames) {
  EXPECT_EQ(withoutApposition(u"Xia or Hsia dynasty c. 2000 BC"), u"Xia or Hsia dynasty");
  EXPECT_EQ(withoutApposition(u"scary to think about coined c. 2013"), u"scary to think about");
  EXPECT_EQ(withoutApposition(u"Lu Jiamin aka Jiang Rong"), u"Lu Jiamin");
  EXPECT_EQ(withoutApposition(u"Achang also called Ngac'ang"), u"Achang");
  EXPECT_EQ(withoutApposition(u"Shaoxing wine a.k.a. yellow wine"), u"Shaoxing wine");
  EXPECT_EQ(withoutApposition(u"Uzziah before c. 750 BC"), u"Uzziah before c. 750 BC");
}

// "爱屋及乌 | Love me, love my dog.", "名不副实 | Excellent theory, but …", "走你 | Come on, you
// can do this!", "耐克 | Nike, Inc.", "伍子胥 | Wu Zixu (–484 BC), Chu-born strategist for Wu.
// After …"
TEST(WithoutApposition, LeavesTextsThatEndAsSentencesDo) {
  for (const std::u16string_view gloss :
       {u"Love me, love my dog.", u"Come on, you can do this!", u"Yeah, right.",
        u"Excellent theory, but the practice does not bear it out."}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
  EXPECT_EQ(withoutApposition(u"Nike, Inc."), u"Nike");
  EXPECT_EQ(withoutApposition(u"Wu Zixu, strategist for Wu. After he fled, he came back."),
            u"Wu Zixu");
}

// "人算不如天算 | man proposes, God disposes (idiom)", "一日千里 | lit. one day, a thousand miles
// (idiom)", "抗美援朝 | Resist US, help North Korea (1950s slogan)", "青天白日 | (idiom) …/KMT
// emblem, a white sun on a blue background"
TEST(WithoutApposition, LeavesPhrasesWhole) {
  for (const std::u16string_view gloss :
       {u"man proposes, God disposes", u"one day, a thousand miles", u"Food first, niceties second",
        u"Resist US, help North Korea", u"any Tom, Dick or Harry"}) {
    EXPECT_EQ(withoutApposition(gloss, true), gloss);
    EXPECT_NE(withoutApposition(gloss), gloss);
  }
  EXPECT_EQ(withoutApposition(u"KMT emblem, a white sun", true), u"KMT emblem");
}

// "姜还是老的辣 | the older, the wiser", "三光 | the sun, the moon, and the stars", "检警调 |
// public prosecutors, the police, and …", "卍 | swastika, a sacred and auspicious symbol in
// Hinduism, …"
TEST(WithoutApposition, LeavesListsWithArticles) {
  for (const std::u16string_view gloss :
       {u"the older, the wiser", u"the sun, the moon, and the stars",
        u"public prosecutors, the police, and the Investigation Bureau"}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
  EXPECT_EQ(withoutApposition(u"swastika, a symbol in Hinduism, Buddhism, and Jainism"),
            u"swastika");
  EXPECT_EQ(withoutApposition(u"the spurges, the mercuries"), u"the spurges");
}

// "下沉市场 | the Chinese market, excluding first- and second-tier cities", "人矿 | the Chinese
// people, seen as a resource …", "子鼠 | Year 1, year of the Rat", "三无企业 | enterprise with no
// premises, capital or regular staff", "小心地滑 | caution – wet floor", "五刑 | Han dynasty
// onwards: whipping", "毛泽东：… | Mao: The Unknown Story by Jung Chang", "剩女 | "leftover woman"
// – a woman who …"
TEST(WithoutApposition, TellsExplanationsFromMeanings) {
  for (const std::u16string_view gloss :
       {u"Chinese market, excluding first-tier cities", u"Chinese people, seen as a resource",
        u"enterprise with no premises, capital or regular staff", u"caution - wet floor",
        u"Han dynasty onwards: whipping", u"Mao: The Unknown Story"}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
  EXPECT_EQ(withoutApposition(u"Year 1, year of the Rat"), u"year of the Rat");
  EXPECT_EQ(withoutApposition(u"leftover woman - a woman who is single"), u"leftover woman");
  EXPECT_EQ(withoutApposition(u"state in the south of it, capital Nuuk"),
            u"state in the south of it");
}

// "蹴鞠 | cuju, ancient Chinese football (soccer)", "狮虎兽 | liger, hybrid cross between …", "远志
// | milkwort (…), with roots used in Chinese medicine", "阴平 | high and level tone, the first tone
// of putonghua", "里 | li, ancient measure of length, approx. 500 m", "羊脂白玉 | sheep-fat white
// jade, a type of jade", "隔音符号 | apostrophe, as used in pinyin orthography"
TEST(WithoutApposition, CutsWhatIsToldOfANoun) {
  EXPECT_EQ(withoutApposition(u"cuju, ancient Chinese football"), u"cuju");
  EXPECT_EQ(withoutApposition(u"liger, hybrid cross between a lion and a tigress"), u"liger");
  EXPECT_EQ(withoutApposition(u"milkwort, with roots used in Chinese medicine"), u"milkwort");
  EXPECT_EQ(withoutApposition(u"high and level tone, the first tone of putonghua"),
            u"high and level tone");
  EXPECT_EQ(withoutApposition(u"li, ancient measure of length, approx. 500 m"), u"li");
  EXPECT_EQ(withoutApposition(u"sheep-fat white jade, a type of jade"), u"sheep-fat white jade");
  EXPECT_EQ(withoutApposition(u"apostrophe, as used in pinyin orthography"), u"apostrophe");
}

// "胡姬花 | Vanda miss joaquim (hybrid orchid), national flower of Singapore", "乌齐雅 | Uzziah son
// of Amaziah, king of Judah c. 750 BC", "东方红 | The East is Red, north Shaanxi folk song",
// "达兰萨拉 | Dharamsala in Himachal Pradesh, north India, home of …", "蛇岛蝮 | Snake island viper
// (…), feeding on migrating birds", "国徽法 | Law on the National Emblem of the PRC, promulgated in
// 1991"
TEST(WithoutApposition, CutsWhatIsToldOfAName) {
  EXPECT_EQ(withoutApposition(u"Vanda miss joaquim, national flower of Singapore"),
            u"Vanda miss joaquim");
  EXPECT_EQ(withoutApposition(u"Uzziah son of Amaziah, king of Judah"), u"Uzziah");
  EXPECT_EQ(withoutApposition(u"The East is Red, north Shaanxi folk song"), u"The East is Red");
  EXPECT_EQ(withoutApposition(u"Dharamsala in Himachal Pradesh, north India, home of"),
            u"Dharamsala");
  EXPECT_EQ(withoutApposition(u"Snake island viper, feeding on migrating birds"),
            u"Snake island viper");
  EXPECT_EQ(withoutApposition(u"Law on the National Emblem of the PRC, promulgated in 1991"),
            u"Law on the National Emblem of the PRC");
}

// "猪精 | … a person who, like a pig, is fat and ugly …", "有其父必有其子 | like father, like son
// (idiom)", "天香国色 | divine fragrance, national grace (idiom); …", "角 | unit of money …"
TEST(WithoutApposition, CutsNoClauseOrLongText) {
  for (const std::u16string_view gloss :
       {u"a person who, like a pig, is fat", u"like father, like son",
        u"divine fragrance, national grace", u"to sing, like a bird",
        u"one of five or six words, the first in a row"}) {
    EXPECT_EQ(withoutApposition(gloss, false), gloss);
  }
}

// "普定县 | Puding, a county in Anshun City, Guizhou", "榆次区 | Yuci district of Jinzhong city"
TEST(DescribesPlace, ReadsNameAndApposition) {
  EXPECT_TRUE(describesPlace(u"Puding, a county in Anshun City, Guizhou"));
  EXPECT_TRUE(describesPlace(u"Hengyang, prefecture-level city in Hunan Province"));
  EXPECT_TRUE(describesPlace(u"Nuuk, capital of Greenland"));
  EXPECT_TRUE(describesPlace(u"Yuci district of Jinzhong city"));
  EXPECT_FALSE(describesPlace(u"Karl Marx, German philosopher"));
  EXPECT_FALSE(describesPlace(u"city wall"));
  EXPECT_FALSE(describesPlace(u"wild dog"));
}

// "八美 | Bamay in Dawu County 道孚縣|道孚县…", "伊通火山群 | Yitong volcanic area in Yitong …
// autonomous county …", "黎 | Li ethnic group of Hainan Province", "暨南大学 | Jinan University in
// Guangdong Province, …"
TEST(DescribesPlace, ReadsWhereTheNameIs) {
  EXPECT_TRUE(describesPlace(u"Bamay in Dawu County, Sichuan"));
  EXPECT_TRUE(describesPlace(u"Yitong volcanic area in Yitong Manchurian autonomous county"));
  EXPECT_FALSE(describesPlace(u"Li ethnic group of Hainan Province"));
  EXPECT_FALSE(describesPlace(u"Jinan University in Guangdong Province, with 4 campuses"));
}

}  // namespace
