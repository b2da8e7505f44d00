#include <array>

#include "dictionary/source/substitutes.h"

namespace dictionary {
namespace {

// Found by comparing the entries that contain the substitute with the English words that they
// translate, and with other entries for the same plant, animal or compound. A substitute whose
// meaning is not certain is not listed: isSubstitute() then keeps the text out of the dictionary.
// The books of medicine and chemistry numbered the same lost characters six code points apart:
// U+252E is 芪 (stilbene) in the one and U+2534 in the other. So each line confirms two.
constexpr std::array kSubstitutes = {
    Substitute{u"\u2502", u""},    // a stray mark before some words
    Substitute{u"\u2609", u""},    // a stray mark before some words
    Substitute{u"\u25CB", u"〇"},  // the digit in names of compounds

    // Box drawing characters
    Substitute{u"\u250A", u"槚", Book::kMedicine},           // Anacardium
    Substitute{u"\u2510", u"槚", Book::kChemistry},          // cashew
    Substitute{u"\u2511", u"芴", Book::kChemistry},          // fluorene
    Substitute{u"\u250C", u"䓛", Book::kMedicine},           // chrysene
    Substitute{u"\u2512", u"䓛", Book::kChemistry},          // chrysene
    Substitute{u"\u2510", u"苧", Book::kMedicine},           // Boehmeria, Mosla
    Substitute{u"\u2516", u"苧", Book::kChemistry},          // thujone
    Substitute{u"\u251C", u"牻", Book::kChemistry},          // geraniol
    Substitute{u"\u251C", u"棓", Book::kMedicine},           // pyrogallol
    Substitute{u"\u2522", u"棓", Book::kChemistry},          // gallic
    Substitute{u"\u2523", u"鏻", Book::kChemistry},          // phosphonium
    Substitute{u"\u2524", u"薁", Book::kChemistry},          // azulene
    Substitute{u"\u2526", u"楤", Book::kMedicine},           // Aralia
    Substitute{u"\u2527", u"噁", Book::kMedicine},           // oxazole
    Substitute{u"\u252D", u"噁", Book::kChemistry},          // oxazole
    Substitute{u"\u2527", u"苉", Book::kChemistry},          // picene
    Substitute{u"\u2528", u"䓝", Book::kMedicine},           // menthol
    Substitute{u"\u252E", u"䓝", Book::kChemistry},          // menthol
    Substitute{u"\u252A", u"梾", Book::kMedicine},           // Cornus
    Substitute{u"\u2530", u"梾", Book::kChemistry},          // cornin
    Substitute{u"\u252D", u"䓬", Book::kMedicine},           // azepine
    Substitute{u"\u2533", u"䓬", Book::kChemistry},          // azepine, tropylium
    Substitute{u"\u252E", u"芪", Book::kMedicine},           // stilbene
    Substitute{u"\u2534", u"芪", Book::kChemistry},          // stilbene
    Substitute{u"\u252F", u"萮", Book::kMedicine},           // behenic, Armoracia
    Substitute{u"\u2535", u"萮", Book::kChemistry},          // behenic
    Substitute{u"\u2531", u"呫", Book::kMedicine},           // xanthone
    Substitute{u"\u2537", u"呫", Book::kChemistry},          // xanthene
    Substitute{u"\u2532", u"萹", Book::kMedicine},           // Polygonum aviculare
    Substitute{u"\u2538", u"萹", Book::kChemistry},          // avicularin
    Substitute{u"\u2539", u"葎", Book::kMedicine},           // Oldenlandia
    Substitute{u"\u253F", u"葎", Book::kChemistry},          // humulene
    Substitute{u"\u2539", u"鎓", Book::kChemistry},          // onium
    Substitute{u"\u253A", u"㶲", Book::kChemistry},          // exergy
    Substitute{u"\u253E", u"鉮", Book::kChemistry},          // arsonium
    Substitute{u"\u2541", u"蝲", Book::kChemistry},          // astacene
    Substitute{u"\u2542\u0422", u"榅桲", Book::kMedicine},   // quince
    Substitute{u"\u2548", u"榅", Book::kChemistry},          // cydonin
    Substitute{u"\u2544", u"锡", Book::kChemistry},          // Leipzig yellow, hayatine
    Substitute{u"\u2536", u"藦", Book::kChemistry},          // Asclepias
    Substitute{u"凝血\u252D烷", u"凝血噁烷"},                // thromboxane
    Substitute{u"吡咯烷\u2539", u"吡咯烷鎓"},                // pyrrolidinium
    Substitute{u"异？唑", u"异噁唑"},                        // sulfisoxazole, sulfamethoxazole
    Substitute{u"\u2543", u"䏲", Book::kMedicine},           // stibine
    Substitute{u"\u2549", u"䏲", Book::kChemistry},          // stibine
    Substitute{u"橡\u2525酸", u"橡椀酸", Book::kChemistry},  // valoneaic acid
    Substitute{u"二\u251D烷", u"二噁烷", Book::kMedicine},   // benzodioxan
    Substitute{u"氟碳\u2513镧矿", u"氟碳铈镧矿", Book::kChemistry},  // bastnasite

    // Private use
    Substitute{u"\uE238", u"薁"},                                       // azulene
    Substitute{u"\uE23A", u"棓"},                                       // gallic
    Substitute{u"\uE23C", u"噁"},                                       // oxazole
    Substitute{u"\uE24A", u"楤"},                                       // Aralia
    Substitute{u"\uE24B", u"䏡"},                                       // proteose
    Substitute{u"\uE24D", u"鎓"},                                       // onium
    Substitute{u"\uE24F", u"䓬"},                                       // tropone, diazepine
    Substitute{u"\uE250", u"䓝"},                                       // menthane
    Substitute{u"\uE3CD", u"苧"},                                       // thujane
    Substitute{u"\uE40B", u"噁"},                                       // oxazole
    Substitute{u"\uE41F", u"踇"},                                       // hallux
    Substitute{u"\uE490", u"䏡"},                                       // proteose
    Substitute{u"\uE7AB", u"啰"},                                       // rale
    Substitute{u"\uE7B8", u"牻"},                                       // Geranium
    Substitute{u"鲂\uE248", u"鲂鮄"},                                   // Trigla
    Substitute{u"海\uE23B果", u"海杧果"},                               // Cerbera
    Substitute{u"土\uE7B1儿", u"土圞儿"},                               // Apios
    Substitute{u"一叶\uE3D3", u"一叶萩"},                               // securinine
    Substitute{u"菥\uE7C7", u"菥蓂"},                                   // Thlaspi arvense
    Substitute{u"\uE2E4", u"䏲", Book::kChemistry},                     // stibine
    Substitute{u"\uE356\uE35D", u"鮟鱇", Book::kChemistry},             // Lophius, angler fish
    Substitute{u"\uE28A子花", u"藨子花", Book::kChemistry},             // black currant, Ribes
    Substitute{u"七\uE3AC二", u"七〇二", Book::kChemistry},             // plant hormone 702
    Substitute{u"甲基-\uE3AC五九", u"甲基一〇五九", Book::kChemistry},  // methyl demeton
    Substitute{u"\uE2D1寄生", u"槲寄生", Book::kChemistry},             // Viscum
    Substitute{u"桑\uE7CA", u"桑椹", Book::kMedicine},                  // Morus, morula
    Substitute{u"\uE7CB葱", u"茖葱", Book::kMedicine},                  // Allium victorialis
    Substitute{u"岸\uE41C", u"岸䶄", Book::kMedicine},                  // Clethrionomys
    Substitute{u"\uE7A1\uE7A2", u"鼩鼱", Book::kMedicine},              // Blarina
    Substitute{u"\uE7AD", u"鲣", Book::kMedicine},                      // Katsuwonus
    Substitute{u"\uE7AE", u"鎷", Book::kMedicine},                      // masurium
    Substitute{u"\uE7C9菜", u"莕菜", Book::kMedicine},                  // Nymphoides
    Substitute{u"反\uE7BB胃", u"反刍胃", Book::kMedicine},              // ruminant stomach
    Substitute{u"苇\uE7B9", u"苇莺", Book::kMedicine},                  // Acrocephalus

    // Cyrillic and Bopomofo letters
    Substitute{u"\u0401", u"呎"},    // foot-pound
    Substitute{u"\u0416", u"牙合"},  // occlusal; the one character for it lies beyond U+FFFF
    Substitute{u"\u0436", u"䏡"},    // albumose, proteose
    Substitute{u"\u0449", u"伞"},    // cyme, corymb
    Substitute{u"\u044B", u"踇"},    // hallux
    Substitute{u"\u0451", u"腘"},    // popliteal
    Substitute{u"\u041B", u"梣", Book::kMedicine},            // Fraxinus
    Substitute{u"\u0425", u"栉", Book::kMedicine},            // pecten
    Substitute{u"\u0417", u"孖", Book::kMedicine},            // gemellus
    Substitute{u"\u043A", u"蝲", Book::kMedicine},            // Cambaroides
    Substitute{u"\u0448草", u"缬草", Book::kMedicine},        // valerate
    Substitute{u"枳\u0420", u"枳椇", Book::kMedicine},        // Hovenia
    Substitute{u"菝\u0432", u"菝葜", Book::kMedicine},        // Smilax
    Substitute{u"\u041D藤", u"榼藤", Book::kMedicine},        // Entada
    Substitute{u"\u041A树", u"栾树", Book::kMedicine},        // Koelreuteria
    Substitute{u"\u041A[树]", u"栾[树]", Book::kMedicine},    // Koelreuteria
    Substitute{u"\u042C", u"鱥", Book::kMedicine},            // Tinca, Phoxinus
    Substitute{u"海\u041E果", u"海杧果", Book::kMedicine},    // Cerbera
    Substitute{u"萎\u0433", u"萎蕤", Book::kMedicine},        // Polygonatum officinale
    Substitute{u"\u310F", u"藨", Book::kMedicine},            // Scirpus, Rubus
    Substitute{u"蒴\u3112", u"蒴藋", Book::kMedicine},        // Sambucus chinensis
    Substitute{u"\u310B", u"藟", Book::kMedicine},            // Vitis flexuosa
    Substitute{u"亚\u311C酸", u"亚硒酸", Book::kMedicine},    // selenious acid
    Substitute{u"\u3119荷", u"蘘荷", Book::kMedicine},        // Zingiber mioga
    Substitute{u"玉\u3113", u"玉簪", Book::kMedicine},        // Funkia
    Substitute{u"土马\u3107", u"土马鬃", Book::kMedicine},    // Polytrichum
    Substitute{u"\u0439支托", u"牙合支托", Book::kMedicine},  // occlusal rest
    Substitute{u"\u0439沟", u"牙合沟", Book::kMedicine},      // occlusal sulcus
    Substitute{u"\u0439型", u"牙合型", Book::kMedicine},      // occlusal pattern
    Substitute{u"\u0439[面]", u"牙合[面]", Book::kMedicine},  // bite restoration
    Substitute{u"休止\u0439", u"休止牙合", Book::kMedicine},  // restbite
    Substitute{u"\u044A体", u"繸体", Book::kMedicine},        // Thysanosoma, fringed tapeworm
    Substitute{u"\u041C鳃", u"楯鳃", Book::kMedicine},        // Aspidobranchia
    Substitute{u"刺\u042D", u"刺鲀", Book::kMedicine},        // Diodon
    Substitute{u"锥\u043C属", u"锥蝽属", Book::kMedicine},    // Eutriatoma
    Substitute{u"\u044E", u"酏", Book::kMedicine},            // elixir
    Substitute{u"\u0429鱼", u"鳉鱼", Book::kMedicine},        // Haplochilus
    Substitute{u"\u0421田氏", u"樫田氏", Book::kMedicine},    // Kashida
    Substitute{u"\u0443原", u"篠原", Book::kMedicine},        // Shinowara
    Substitute{u"\u042B鱼属", u"鲟鱼属", Book::kMedicine},    // Acipenser
    Substitute{u"\u0434叶", u"蒌叶", Book::kMedicine},        // betel leaf
    Substitute{u"\u3115菜", u"莼菜", Book::kMedicine},        // Brasenia
    Substitute{u"\u310E菜", u"蔊菜", Book::kMedicine},        // Roripa
    Substitute{u"糖\u310C", u"糖脎", Book::kMedicine},        // osazone
    Substitute{u"\u3118啶", u"吖啶", Book::kMedicine},        // acridine
    Substitute{u"勒\u310D", u"勒欓", Book::kMedicine},        // Zanthoxylum avicennae

    // Vowels with a tone mark
    Substitute{u"荚\u00E8", u"荚蒾", Book::kMedicine},      // Viburnum
    Substitute{u"萝\u011B", u"萝藦", Book::kMedicine},      // Asclepias, Metaplexis
    Substitute{u"\u00F2麻", u"苘麻", Book::kMedicine},      // Abutilon
    Substitute{u"\u00ED菜", u"菾菜", Book::kMedicine},      // Beta
    Substitute{u"\u00E1莶", u"豨莶", Book::kMedicine},      // Siegesbeckia
    Substitute{u"豆\u00EA", u"豆蔻", Book::kMedicine},      // nutmeg, cardamom
    Substitute{u"芎\u00F9", u"芎䓖", Book::kMedicine},      // Cnidium
    Substitute{u"大\u00FC属", u"大薸属", Book::kMedicine},  // Pistia
    Substitute{u"苦\u01D2菜", u"苦荬菜", Book::kMedicine},  // Lactuca denticulata
    Substitute{u"苦\u01DC", u"苦蘵", Book::kMedicine},      // Physalis
    Substitute{u"\u016B\u00FA", u"荠苨", Book::kMedicine},  // Adenophora trachelioides
    Substitute{u"\u0113\u00E9", u"菴䕡", Book::kMedicine},  // Artemisia keiskiana
    Substitute{u"\u01D6\u01D8", u"蒟蒻", Book::kMedicine},  // Amorphophallus konjac
    Substitute{u"\u012B草", u"菵草", Book::kMedicine},      // Beckmannia
    Substitute{u"\u01D0草", u"蒒草", Book::kMedicine},      // Carex kobomugi
    Substitute{u"\u00EC荑", u"葇荑", Book::kMedicine},      // catkin
    Substitute{u"\u01D4耳", u"葈耳", Book::kMedicine},      // clotbur, Xanthium
    Substitute{u"\u01F9豆", u"藊豆", Book::kMedicine},      // Dolichos
    Substitute{u"萆\u00E0", u"萆薢", Book::kMedicine},      // Dioscorea
    Substitute{u"\u00E0宝叶", u"薢宝叶", Book::kMedicine},  // Grewia microcos

    // Question marks
    Substitute{u"？-朗伯", u"呎-朗伯", Book::kMedicine},        // foot-lambert
    Substitute{u"二甲？唑", u"二甲噁唑", Book::kMedicine},      // sulfamoxole
    Substitute{u"苯？唑酮", u"苯噁唑酮", Book::kMedicine},      // fenozolone
    Substitute{u"丙？二唑", u"丙噁二唑", Book::kMedicine},      // oxolamine
    Substitute{u"？动脉障碍", u"腘动脉障碍", Book::kMedicine},  // popliteal artery
    Substitute{u"？虫动物", u"螠虫动物", Book::kMedicine},      // Echiura
    Substitute{u"树？", u"树鼩", Book::kMedicine},              // tree shrew
    Substitute{u"鼬？", u"鼬鳚", Book::kMedicine},              // Ophidion, cusk-eel
    Substitute{u"北？", u"北鳚", Book::kMedicine},              // eelblenny
    Substitute{u"短刺？", u"短刺鲀", Book::kMedicine},          // burrfish
    Substitute{u"密斑刺？", u"密斑刺鲀", Book::kMedicine},      // porcupinefish
    Substitute{u"圆？", u"圆鲀", Book::kMedicine},              // Sphoeroides
    Substitute{u"舟？", u"舟鰤", Book::kMedicine},              // pilotfish
    Substitute{u"平？", u"平鲉", Book::kMedicine},              // Sebastes
    Substitute{u"花溪？", u"花溪鳉", Book::kMedicine},          // Rivulus
    Substitute{u"霸？", u"霸鹟", Book::kMedicine},              // scissor-tailed flycatcher
    Substitute{u"澳洲短？", u"澳洲短䲟", Book::kMedicine},      // Remora australis, whalesucker
    Substitute{u"斯多？迈", u"斯多·迈", Book::kMedicine},       // Bristol-Myers
    Substitute{u"花纳？朗", u"花纳·朗", Book::kMedicine},       // Warner-Lambert
};

}  // namespace

std::span<const Substitute> substitutes() { return kSubstitutes; }

}  // namespace dictionary
