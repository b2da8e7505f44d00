#include "dictionary/translation/subjects.h"

#include <unordered_map>

namespace dictionary {
namespace {

/// The spellings of each subject's tag in the source, separated by blanks. Marks of usage (美 英 口
/// 俚 古 诗 …) and countries are no subjects.
constexpr std::array<std::u16string_view, kSubjectCount> kTags = {
    // Medicine
    u"医 医学 药 药物 药学 解 解剖 解剖学 生理 生理学 病理 病理学 免疫 免疫学 胚 胚胎 兽 兽医 "
    u"兽医学 外科 外科学 内科 牙 病毒 临床 特医 基医 肿瘤 耳鼻喉 眼科 皮肤 妇产 口腔 神经",
    // Chemistry
    u"化 化学 化工 有化 无化 分化 物化 有机 有机化学 生化 生物化学 高分子 助剂 涂料 胶体 试剂",
    // Computing
    u"计 计算机 电脑 自 自动化",
    // Economy
    u"经 经济 经济学 财 财政 商 商业 贸易 经贸 会计 会计学 金融 税收 劳经 工经 农经 经管 企 保险 "
    u"证券",
    // Law
    u"法 律 法律 法学 法史",
    // Electricity
    u"电 电子 电子学 电学 电工 电工学 电力 电信 电信学 电讯 无 无线电 通信 信 电视 广播",
    // Mechanics
    u"机 机械 机械学 机械工程 冶 冶金 冶金学 材 材料 材料学 动力 汽 汽车 测 计量 计量学 五金 炉窑",
    // Architecture
    u"建 建筑 建筑学 建筑业 建筑工程 土木 土木工程 水利",
    // Zoology
    u"动 动物 动物学 鸟 鸟类 鸟类学 昆 昆虫 昆虫学 鱼 鱼类 鱼类学 无脊椎 无脊椎动物 "
    u"无脊椎动物学 脊椎 脊椎动物 爬行动物 贝",
    // Botany
    u"植 植物 植物学 真菌",
    // Geology
    u"矿 矿业 矿物 矿物学 采矿 地 地质 地质学 地理 地理学 地物 地球物理学 地化 岩 油气 水文 海洋 "
    u"土壤",
    // Biology
    u"生 生物 生物学 微 微生物 微生物学 遗 遗传 遗传学 生态 生态学 古生 古生物 古生物学 细胞 "
    u"细胞生物学 细菌 基因 生物物理",
    // Physics, astronomy, weather
    u"物 物理 物理学 核 核物理学 核子物理学 原子 高能 中子 天 天文 天文学 气 气象 气象学 光 光学 "
    u"激光 声 声学 晶 晶体 晶体学 力 热 流 电光 大气 电磁学 等离子",
    // Arts
    u"音 音乐 乐 乐器 电影 电影、电视 戏 戏剧 摄 摄影 摄影术 画 绘画 美术 艺 文艺 芭蕾 芭蕾舞 舞蹈",
    // Sport and games
    u"体 体育 棒 棒球 牌 牌戏 桥牌 棋 高尔夫 网球 篮 篮球 橄 橄榄球 美橄 美式橄榄球 英式橄榄球 "
    u"冰球 板 板球 足球 举重 赛马 台球 击剑 游泳 划船 曲棍球 钓鱼 登山",
    // Religion and myths
    u"宗 宗教 基督教 天主教 罗马天主教 东正教 圣 圣经 犹太教 佛教 印度教 伊斯兰教 神学 神话 神 "
    u"希神 罗神 印神 希腊神话 罗马神话 希腊、罗马神话 北欧神话 占星术",
    // Language and literature
    u"语 语言 语言学 修 修辞 修辞学 语音 语音学 语法 语法学 韵律 韵律学 文学",
    // Light industry and agriculture
    u"纺 纺织 纺织业 印 印刷 刷 装订 农 农学 农业 农机 农药 林 林业 园艺 园艺学 作物 植保 畜牧 牧 "
    u"渔业 水产 食 食品 烹 烹饪 服装 缝纫 皮革 纸 造纸 家具 陶瓷 玻璃 橡胶 塑料 轻 粮食",
    // Philosophy and society
    u"哲 哲学 心 心理 心理学 史 历史 英史 考古 考古学 社 社会 社会学 教育 教育学 政 政治 图情 "
    u"纹章 纹章学 人类学",
    // Military and traffic
    u"军 军事 军械 美军 空 航 航空 航空学 航天 船 造船 海 航海 航海学 水运 交 交通 铁 铁路 公路",
    // Mathematics and logic
    u"数 数学 几何学 统 统计 统计学 逻 逻辑 逻辑学",
    // Persons
    u"人名 男子名 女子名 姓氏 姓 男名 女名",
    // Places
    u"地名 城 旅",
    // Web
    u"网络",
};

using TagMap = std::unordered_map<std::u16string_view, SubjectSet>;

TagMap makeTagMap() {
  TagMap map;
  for (std::size_t i = 0; i < kTags.size(); ++i) {
    std::u16string_view rest = kTags[i];
    while (!rest.empty()) {
      const std::u16string_view tag = rest.substr(0, rest.find(u' '));
      map[tag] |= setOf(static_cast<Subject>(i));
      rest.remove_prefix(tag.size() < rest.size() ? tag.size() + 1 : rest.size());
    }
  }
  return map;
}

}  // namespace

const std::array<SubjectInfo, kSubjectCount> kSubjectInfos = {{
    {"med", u"医学"},          {"chem", u"化学化工"},  {"comp", u"计算机"},
    {"econ", u"经济贸易"},     {"law", u"法律"},       {"elec", u"电工电子"},
    {"mech", u"机械工程"},     {"arch", u"建筑土木"},  {"zool", u"动物学"},
    {"bot", u"植物学"},        {"geol", u"地质矿业"},  {"bio", u"生物学"},
    {"phys", u"物理天文气象"}, {"art", u"音乐艺术"},   {"sport", u"体育娱乐"},
    {"relig", u"宗教神话"},    {"lang", u"语言文学"},  {"light", u"轻工农业"},
    {"soc", u"哲学社会"},      {"mil", u"军事交通"},   {"math", u"数学逻辑"},
    {"person", u"人名译名"},   {"place", u"地名译名"}, {"web", u"网络释义"},
}};

SubjectSet subjectsOfTag(std::u16string_view tag) {
  static const TagMap kMap = makeTagMap();
  const auto found = kMap.find(tag);
  return found == kMap.end() ? 0 : found->second;
}

}  // namespace dictionary
