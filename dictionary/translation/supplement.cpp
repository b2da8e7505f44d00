#include "dictionary/translation/supplement.h"

#include <algorithm>
#include <array>

#include "text/order.h"

namespace dictionary {
namespace {

/// In the order of their code units. Contractions; words that the source only explains, refers to
/// another spelling or writes with lost characters; abbreviations that it expands without
/// translating them; names that it announces without giving them.
constexpr auto kSupplements = std::to_array<Supplement>({
    {u"adml", u"abbr. 海军上将"},
    {u"ampersand", u"n. 和号"},
    {u"anachronistically", u"adv. 不合时代地"},
    {u"antinomian", u"a. 反律法主义的\\nn. 反律法主义者"},
    {u"ballater", u"n. 巴勒特（地名）"},
    {u"benzodiazepine", u"n. 苯二氮䓬"},
    {u"broome", u"n. 布鲁姆（姓氏、地名）"},
    {u"cambs", u"abbr. 剑桥郡"},
    {u"chalcedonian", u"a. 卡尔西登的"},
    {u"cobden", u"n. 科布登（姓氏）"},
    {u"cockcroft", u"n. 考克饶夫（姓氏）"},
    {u"coleridge", u"n. 柯勒律治（姓氏）"},
    {u"consensually", u"adv. 双方同意地"},
    {u"cracow", u"n. 克拉科夫（波兰城市）"},
    {u"dumpty", u"n. 矮胖的人"},
    {u"eaton", u"n. 伊顿（姓氏）"},
    {u"fortescue", u"n. 福蒂斯丘（姓氏）"},
    {u"garrick", u"n. 加里克（姓氏）"},
    {u"gazzer", u"n. 公报"},
    {u"gotcha", u"interj. 我懂了, 逮到你了"},
    {u"guggenheim", u"n. 古根海姆（姓氏）"},
    {u"handbasket", u"n. 手提篮"},
    {u"hasn't", u"没有, 尚未, 不曾"},
    {u"hj", u"abbr. 长眠于此"},
    {u"hobbit", u"n. 霍比特人"},
    {u"holistically", u"adv. 整体地, 全面地"},
    {u"hypercholesterolaemic", u"a. 高胆固醇血症的"},
    {u"i've", u"我已经, 我有"},
    {u"lautrec", u"n. 劳特累克（姓氏）"},
    {u"leics", u"abbr. 莱斯特郡"},
    {u"leys", u"n. 草地"},
    {u"lindsay", u"n. 琳赛（女子名）, 林赛（姓氏）"},
    {u"mayn't", u"不可以, 可能不"},
    {u"mem", u"n. 存储器, 内存"},
    {u"middx", u"abbr. 米德尔塞克斯郡"},
    {u"mutualistic", u"a. 互利共生的, 互助论的"},
    {u"oughtn't", u"不应该, 不该"},
    {u"pacey", u"a. 快速的"},
    {u"patio", u"n. 露台, 天井, 庭院"},
    {u"phone-in", u"n. 听众来电直播节目"},
    {u"photonic", u"a. 光子的"},
    {u"plata", u"n. 拉普拉塔（河名）"},
    {u"quince", u"n. 榅桲"},
    {u"rata", u"n. 比例"},
    {u"retinoic", u"a. 视黄的"},
    {u"saith", u"v. 说"},
    {u"scratchboard", u"n. 刮画板"},
    {u"sheba", u"n. 示巴（古国名）"},
    {u"snickering", u"n. 窃笑"},
    {u"sqn", u"abbr. 空军中队"},
    {u"substitutionary", u"a. 替代的, 代用的"},
    {u"swansong", u"n. 绝唱, 最后的作品"},
    {u"umm", u"interj. 嗯"},
    {u"utero", u"n. 子宫内"},
    {u"ver", u"n. 版本"},
    {u"vol", u"abbr. 卷, 册, 音量"},
    {u"we'll", u"我们将, 我们会"},
    {u"we're", u"我们是"},
    {u"we've", u"我们已经, 我们有"},
    {u"wenceslas", u"n. 瓦茨拉夫（人名）"},
    {u"whomever", u"pron. 无论谁, 任何人"},
    {u"whomsoever", u"pron. 无论谁, 任何人"},
    {u"worcs", u"abbr. 伍斯特郡"},
    {u"wouldn't", u"不会, 不愿, 不肯"},
    {u"y'all", u"pron. 你们, 你们大家"},
    {u"you'd", u"你会, 你已经"},
    {u"you'll", u"你将, 你会"},
    {u"yours faithfully", u"谨上, 谨启"},
});

/// Contractions that the source expands, describes or has as something else, and words of which it
/// translates an example, a person or the other word of a term, divides a note, runs two names into
/// one, names another unit, or has a common meaning far back, where it is lost among those of a
/// common word; in the order of their code units.
constexpr auto kCorrected = std::to_array<Supplement>({
    {u"brownian", u"a. 布朗的"},
    {u"doesn't", u"不"},
    {u"haven't", u"没有, 尚未"},
    {u"here's", u"这是, 这里有"},
    {u"it'll", u"它将, 它会"},
    {u"it's", u"它是, 它有"},
    {u"largemouth", u"n. 大口黑鲈"},
    {u"lifelessness", u"n. 无生命, 枯燥无味"},
    {u"melba", u"n. 梅尔巴（女子名）"},
    {u"metformin", u"n. 二甲双胍, 甲福明"},
    {u"mustn't", u"不准, 不得, 不可"},
    {u"needn't", u"不必, 不需要"},
    {u"ordinator", u"n. 任命者\\n[医] 苯噁唑酮[中枢兴奋药]"},
    {u"pickwick", u"n. 匹克威克（小说主角）"},
    {u"powerpc", u"n. PowerPC微处理器"},
    {u"rest",
     u"n. 休息, 其余者, 剩余部分, 睡眠, 静止, 稍息\\nvi. 休息, 停止, 依赖, 长眠\\nvt. 使休息"},
    {u"shan't", u"不会, 将不, 不要, 不应该"},
    {u"terahertz", u"[电] 太赫兹"},
    {u"that's", u"那是, 那就是"},
    {u"they'd", u"他们会, 他们已经"},
    {u"they've", u"他们已经, 他们有"},
    {u"unpredictably", u"adv. 无法预料地, 不可预见地"},
    {u"what's", u"什么是, 是什么"},
    {u"zon", u"n. 亚马逊"},
});

/// Given names, in the order of their code units. The source ranks these words by their use as
/// names.
constexpr auto kGivenNames = std::to_array<Supplement>({
    {u"al", u"n. 阿尔（男子名）"},       {u"alex", u"n. 亚历克斯（男子名）"},
    {u"alice", u"n. 爱丽丝（女子名）"},  {u"ben", u"n. 本（男子名）"},
    {u"bill", u"n. 比尔（男子名）"},     {u"billy", u"n. 比利（男子名）"},
    {u"bob", u"n. 鲍勃（男子名）"},      {u"bobby", u"n. 博比（男子名）"},
    {u"carol", u"n. 卡萝尔（女子名）"},  {u"catherine", u"n. 凯瑟琳（女子名）"},
    {u"charlie", u"n. 查利（男子名）"},  {u"charlotte", u"n. 夏洛特（女子名）"},
    {u"dan", u"n. 丹（男子名）"},        {u"dean", u"n. 迪安（男子名）"},
    {u"dick", u"n. 迪克（男子名）"},     {u"don", u"n. 唐（男子名）"},
    {u"ed", u"n. 埃德（男子名）"},       {u"eric", u"n. 埃里克（男子名）"},
    {u"frank", u"n. 弗兰克（男子名）"},  {u"graham", u"n. 格雷厄姆（男子名）"},
    {u"guy", u"n. 盖伊（男子名）"},      {u"harry", u"n. 哈里（男子名）"},
    {u"jack", u"n. 杰克（男子名）"},     {u"jake", u"n. 杰克（男子名）"},
    {u"janet", u"n. 珍妮特（女子名）"},  {u"jenny", u"n. 珍妮（女子名）"},
    {u"jerry", u"n. 杰里（男子名）"},    {u"jimmy", u"n. 吉米（男子名）"},
    {u"john", u"n. 约翰（男子名）"},     {u"johnny", u"n. 约翰尼（男子名）"},
    {u"josh", u"n. 乔希（男子名）"},     {u"ken", u"n. 肯（男子名）"},
    {u"leo", u"n. 利奥（男子名）"},      {u"lewis", u"n. 刘易斯（男子名）"},
    {u"matt", u"n. 马特（男子名）"},     {u"max", u"n. 马克斯（男子名）"},
    {u"mike", u"n. 迈克（男子名）"},     {u"molly", u"n. 莫莉（女子名）"},
    {u"nancy", u"n. 南希（女子名）"},    {u"nick", u"n. 尼克（男子名）"},
    {u"norman", u"n. 诺曼（男子名）"},   {u"oliver", u"n. 奥利弗（男子名）"},
    {u"pat", u"n. 帕特（男子名）"},      {u"peter", u"n. 彼得（男子名）"},
    {u"phil", u"n. 菲尔（男子名）"},     {u"ray", u"n. 雷（男子名）"},
    {u"rob", u"n. 罗布（男子名）"},      {u"robert", u"n. 罗伯特（男子名）"},
    {u"roger", u"n. 罗杰（男子名）"},    {u"ron", u"n. 罗恩（男子名）"},
    {u"rosa", u"n. 罗莎（女子名）"},     {u"ruth", u"n. 露丝（女子名）"},
    {u"sally", u"n. 萨莉（女子名）"},    {u"sam", u"n. 萨姆（男子名）"},
    {u"stella", u"n. 斯特拉（女子名）"}, {u"ted", u"n. 特德（男子名）"},
    {u"terry", u"n. 特里（男子名）"},    {u"thomas", u"n. 托马斯（男子名）"},
    {u"tom", u"n. 汤姆（男子名）"},      {u"tony", u"n. 托尼（男子名）"},
    {u"victor", u"n. 维克托（男子名）"},
});

static_assert(std::ranges::is_sorted(kSupplements, {}, &Supplement::word));
static_assert(std::ranges::is_sorted(kCorrected, {}, &Supplement::word));
static_assert(std::ranges::is_sorted(kGivenNames, {}, &Supplement::word));

template <typename Table>
std::u16string_view translationIn(const Table& table, std::u16string_view word) {
  const std::u16string lower = text::toLower(word);
  const auto found = std::ranges::lower_bound(table, lower, {}, &Supplement::word);
  return found != table.end() && found->word == lower ? found->translation : std::u16string_view();
}

}  // namespace

std::span<const Supplement> supplements() { return kSupplements; }

std::span<const Supplement> corrections() { return kCorrected; }

std::span<const Supplement> givenNames() { return kGivenNames; }

std::u16string_view supplementaryTranslation(std::u16string_view word) {
  return translationIn(kSupplements, word);
}

std::u16string_view correctedTranslation(std::u16string_view word) {
  return translationIn(kCorrected, word);
}

std::u16string_view missingGivenName(std::u16string_view word) {
  return translationIn(kGivenNames, word);
}

}  // namespace dictionary
