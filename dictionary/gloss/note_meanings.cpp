#include "dictionary/gloss/note_meanings.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "dictionary/gloss/word_list.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// The names of each subject's fields in notes, with a bar after each. Left out are words that are
/// as often an object or an attribute: "to spoil (food)", "(political) party".
constexpr std::array<std::u16string_view, kSubjectCount> kFields = {
    // Medicine
    u"medicine|medical|med.|medical term|TCM|traditional Chinese medicine|Chinese medicine|"
    u"alternative medicine|anatomy|neuroanatomy|physiology|pharmacology|pharm.|pathology|dentistry|"
    u"dental|orthodontics|immunology|epidemiology|obstetrics|surgery|acupuncture|embryology|"
    u"psychiatry|ophthalmology|skin disease|molecular medicine|",
    // Chemistry
    u"chemistry|organic chemistry|chemical|biochemistry|chemical engineering|enzyme|type of sugar|"
    u"petrochemical engineering|",
    // Computing
    u"computing|computer|computers|computer science|computer networking|networking|network|"
    u"computer programming|programming|software|software development|software engineering|"
    u"Internet|cryptography|encryption|media player|computer graphics|graphics|web analytics|"
    u"computer-aided manufacturing|information theory|",
    // Economy
    u"finance|financial|economics|behavioral economics|economy|business|commerce|accounting|"
    u"accountancy|banking|insurance|stock market|share trading|share dealing|derivative trading|"
    u"marketing|investing|taxation|cryptocurrency|budgeting|logistics|",
    // Law
    u"law|legal|PRC law|corporations law|patent law|maritime law|criminal law|civil law|judicial|",
    // Electricity
    u"electronics|electricity|electrical|elec.|electrical engineering|telecommunications|"
    u"telecommunication|telephony|radio|TV|broadcasting|audio engineering|signal processing|"
    u"computer chip manufacture|",
    // Mechanics
    u"mechanical|mechanical engineering|machining|metallurgy|metalworking|engineering|automotive|"
    u"automobile|manufacturing|machine part|machinery|",
    // Architecture
    u"architecture|traditional Chinese architecture|construction|civil engineering|surveying|"
    u"urban planning|",
    // Zoology
    u"zoology|invertebrate zoology|invertebrate anatomy|zoological taxonomy|bird species of China|"
    u"ornithology|entomology|ichthyology|mammology|dog breed|bird|fish|insect|",
    // Botany
    u"botany|mycology|tree|herb|grass|bamboo|grape type|",
    // Geology
    u"geology|geological|geography|mineralogy|mineral|rock-forming mineral|mining|seismology|"
    u"hydrology|soil taxonomy|soil science|geotectonics|",
    // Biology
    u"biology|molecular biology|cell biology|evolutionary biology|marine biology|microbiology|"
    u"genetics|taxonomy|ecology|biotechnology|biogeography|paleontology|",
    // Physics, astronomy, weather
    u"physics|particle physics|molecular physics|nuclear physics|nuclear energy|mechanics|"
    u"quantum mechanics|fluid mechanics|thermodynamics|optics|atmospheric optics|acoustics|"
    u"electromagnetism|crystallography|astronomy|Chinese astronomy|ancient Chinese astronomy|"
    u"cosmology|constellation|Chinese constellation|star|planet|meteorology|",
    // Arts
    u"music|musical|mus.|musical instrument|musical interval|music notation|music genre|"
    u"drum kit component|theater|theatre|opera|Chinese opera|photography|photographic processing|"
    u"cinema|film|film industry|filmmaking|cinematography|painting|dance|ballet|art|"
    u"performance art|calligraphy|Chinese calligraphy|Chinese calligraphic style|sculpture|drawing|"
    u"acting|",
    // Sport and games
    u"sports|sport|ball sports|baseball|basketball|soccer|soccer position|football|"
    u"American football|volleyball|tennis|table tennis|golf|gymnastics|athletics|diving|"
    u"scuba diving|swimming|boxing|archery|fencing|ten-pin bowling|acrobatics|angling|yoga|"
    u"yoga pose|martial arts|Chinese martial art|Chinese Martial Art|chess|Chinese chess|Go|"
    u"mahjong|poker|card game|card games|gambling|gaming|online gaming|video gaming|video game|"
    u"video games|computer game|puzzle game|board game|video game series|",
    // Religion and myths
    u"Buddhism|Zen Buddhism|Buddhist|Daoism|Taoism|religion|Christianity|Christian|Catholicism|"
    u"Catholic|Protestantism|Islam|Judaism|Hinduism|Hindu deity|Norse deity|mythology|"
    u"Chinese mythology|Indian mythology|Greek mythology|Roman mythology|Christian mythology|"
    u"folk religion|Chinese folk religion|Bible|biblical name|divination|astrology|theology|"
    u"section of Catholic mass|feng shui|",
    // Language and literature
    u"linguistics|Chinese linguistics|Japanese linguistics|grammar|Chinese grammar|phonetics|"
    u"Chinese phonetics|phonology|semantics|literature|poetry|language|punct.|punctuation|"
    u"orthography|lexicography|rhetoric|",
    // Light industry and agriculture
    u"agriculture|horticulture|forestry|textiles|textile|textile industry|printing|typography|"
    u"typesetting|publishing|publishing industry|bookbinding|fashion|cosmetics|perfumery|cooking|"
    u"cookery|cuisine|stationery|hairdressing|sewing|",
    // Philosophy and society
    u"philosophy|Hegel's philosophy|psychology|politics|geopolitics|education|pedagogy|"
    u"archaeology|archeology|sociology|anthropology|ethics|history|journalism|Marxism|"
    u"Marxist theory|Marx-Leninist theory|Maoism|Confucianism|",
    // Military and traffic
    u"military|aviation|aeronautics|rocketry|astronautics|nautical|naval|navigation|sailing|"
    u"shipping|railway|railroad|transportation|transport|",
    // Mathematics and logic
    u"math.|math|mathematics|statistics|geometry|coordinate geometry|spherical geometry|"
    u"set theory|calculus|algebra|arithmetic|trigonometry|logic|",
    // Persons
    u"name|person name|personal name|given name|surname|Japanese surname and place name|"
    u"feminine name|male name|female name|",
    // Places
    u"place name|ancient place name|city|town|county|river|",
    // Web
    u"",
};

/// Marks of usage: the text beside them is not what the word means first.
constexpr std::u16string_view kUsage =
    u"Tw|Taiwan|HK|old|archaic|arch.|ancient|obsolete|dated|old term|classical|dialect|dialectal|"
    u"topolect|regional|Cantonese|Shanghainese|slang|Internet slang|loanword|vulgar|derog.|"
    u"bound form|literary|jocular|baby talk|written|formal writing|Japanese kokuji|Korean gugja|"
    u"former times|ancient times|imperial China|euphemism|euphemistic|neologism|jargon|";

/// Notes that name the kind of word.
constexpr std::u16string_view kLabels =
    u"idiom|proverb|saying|onom.|onomatopoeia|phonetic|suffix|prefix|interj.|interjection|"
    u"exclamation|particle|classifier|abbr.|attributive|adj.|adjective|pronoun|intransitive|"
    u"verb complement|coll.|colloquial|spoken|informal|formal|polite|honorific|hon.|humble|"
    u"humble expr.|courteous|PRC|brand|color|esp.|reduplicated|metonym|intensifier|"
    u"any number of possible translations|phonetic \"pol\", used in Korean place names|";

using NoteMap = std::unordered_map<std::u16string_view, NoteMeaning>;

NoteMap makeNoteMap() {
  NoteMap map;
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    forEachListed(kFields[i],
                  [&](auto name) { map[name].subjects |= setOf(static_cast<Subject>(i)); });
  }
  forEachListed(kUsage, [&](auto name) { map[name].usage = true; });
  forEachListed(kLabels, [&](auto name) { map[name].label = true; });
  map[u"lit."].literal = true;
  map[u"literal"].literal = true;
  map[u"literally"].literal = true;
  map[u"fig."].figurative = true;
  map[u"figurative"].figurative = true;
  map[u"figuratively"].figurative = true;
  map[u"lit. and fig."] = {.literal = true, .figurative = true};
  return map;
}

/// Removes words at the beginning and the end that do not change what a note says: "in grammar",
/// "sports etc".
std::u16string_view fieldName(std::u16string_view part) {
  part.remove_prefix(listedBeginning(u"used in |used as |in |esp. |", part).size());
  for (const std::u16string_view end : {u" etc"sv, u" terminology"sv}) {
    if (part.ends_with(end)) part.remove_suffix(end.size());
  }
  return part;
}

constexpr std::u16string_view kPlaces =
    u"city|town|county|province|state|district|area|island|port|river|mountain|region|volcano|"
    u"village|lake|capital|suburb|country|peninsula|";

/// "city in Norway", "English county", "capital of Nepal".
bool namesPlace(std::u16string_view part) {
  const std::u16string_view first = part.substr(0, part.find(u' '));
  const std::u16string_view rest = part.substr(first.size());
  const bool located = (rest.starts_with(u" in ") || rest.starts_with(u" of ")) &&
                       rest.size() > 4 && rest[4] >= u'A' && rest[4] <= u'Z';
  if (located) return isListed(kPlaces, first);
  const bool national = !first.empty() && first[0] >= u'A' && first[0] <= u'Z' && !rest.empty();
  return national && isListed(kPlaces, rest.substr(1));
}

/// "Japanese surname", "Hungarian name", but not "brand name".
bool namesPerson(std::u16string_view part) {
  const bool national = !part.empty() && part[0] >= u'A' && part[0] <= u'Z';
  return national && (part.ends_with(u" surname") || part.ends_with(u" name"));
}

NoteMeaning readPart(std::u16string_view part) {
  static const NoteMap kMap = makeNoteMap();
  NoteMeaning meaning;
  const auto found = kMap.find(fieldName(part));
  if (found != kMap.end()) return found->second;
  if (namesPlace(part)) meaning.subjects = setOf(Subject::kPlace);
  if (namesPerson(part)) meaning.subjects = setOf(Subject::kPerson);
  meaning.usage = part.ends_with(u" dialect") || part.starts_with(u"neologism") ||
                  part.ends_with(u" slang") || part.starts_with(u"loanword") ||
                  part.ends_with(u" loanword");
  meaning.figurative = part.starts_with(u"fig. ");
  return meaning;
}

}  // namespace

NoteMeaning& NoteMeaning::operator|=(const NoteMeaning& other) {
  subjects |= other.subjects;
  usage = usage || other.usage;
  label = label || other.label;
  literal = literal || other.literal;
  figurative = figurative || other.figurative;
  return *this;
}

NoteMeaning readNote(std::u16string_view note) {
  NoteMeaning meaning;
  while (!note.empty()) {
    const std::size_t comma = note.find(u", ");
    const std::size_t semicolon = note.find(u"; ");
    const std::size_t end = std::min(comma, semicolon);
    meaning |= readPart(note.substr(0, end));
    note.remove_prefix(end == std::u16string_view::npos ? note.size() : end + 2);
  }
  return meaning;
}

}  // namespace dictionary
