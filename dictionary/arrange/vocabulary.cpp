// Rating: the tier of a pair depends on the kind of the equivalent (senses.h), on whether it is the
// first of its kind, whether the kind is the entry's best, and on the headword: important or not, a
// form of another word or not. So a headword's first equivalent is given up later than its others.
//
// Forms: whether an entry is a form of another word is known when it is added; that word's
// equivalents only in the end, since it may come later. Three kinds of entries take some of them
// over; a fourth, which notes the form and gives its meaning ("行走（go的第三人称单数形式）"),
// takes the lemma's importance only:
// - those that name the form among their equivalents ("take的过去分词", "毛毯, 毡\n feel的过去式");
// - those that have nothing at all, but are a form by the column "exchange";
// - those that are a form by that column and mean something else, where the form is met more often
//   ("asked" is 卖方要价); hides() estimates which of the two is.
//
// Pairs hold indexes while they are collected; the words are sorted once in the end, and the
// indexes replaced. An equivalent in several lines of an entry, or under spellings that differ in
// case, is one pair, with the best tier and position.

#include "dictionary/arrange/vocabulary.h"

#include <algorithm>
#include <numeric>
#include <tuple>
#include <unordered_set>
#include <utility>

#include "text/order.h"

namespace dictionary {
namespace {

/// Equivalents that an entry takes over from the headword that it refers to: its main meanings. The
/// headword itself has them all.
constexpr std::size_t kMaxFollowed = 4;
/// Equivalents that a form takes over from its lemma: of an important one, of another one.
constexpr std::size_t kMaxTaken = 3;
constexpr std::size_t kMaxTakenOfRare = 2;
/// Equivalents of a lemma among which those of the right part of speech are looked for.
constexpr std::size_t kMaxMeanings = 40;
/// Noted names of an important word that are worth as much as its further equivalents.
constexpr std::size_t kMaxNames = 3;

/// The tier of the equivalent `sense` of an important word. `first`: it is the entry's first of its
/// kind; `only`: the entry has no equivalents of a kind that comes before it.
Tier importantTier(const Sense& sense, bool only, std::size_t nth) {
  const bool first = nth == 0;
  if (only) return first ? Tier::kImportantFirst : Tier::kImportant;
  if (sense.kind == SenseKind::kName) return nth < kMaxNames ? Tier::kImportant : Tier::kName;
  return first ? Tier::kWebFirst : Tier::kWeb;
}

/// The tier of any equivalent. `nth`: how many of its kind come before it.
Tier tierOf(const Entry& entry, bool form, const Sense& sense, bool only, std::size_t nth) {
  if (entry.important) return importantTier(sense, only, nth);
  const bool first = nth == 0;
  if (sense.kind == SenseKind::kWeb) {
    if (!first) return Tier::kWeb;
    return only ? Tier::kOnly : Tier::kWebFirst;
  }
  if (sense.kind == SenseKind::kName) return first && only ? Tier::kOnly : Tier::kName;
  if (first) return Tier::kFirst;
  return form ? Tier::kInflected : Tier::kOrdinary;
}

/// Sorts `words`, removes all but the first of those that are equal, and returns the new index of
/// each old one.
std::vector<std::uint32_t> sortWords(std::vector<std::u16string>& words) {
  std::vector<std::uint32_t> order(words.size());
  std::iota(order.begin(), order.end(), 0U);
  std::ranges::sort(order, [&](std::uint32_t a, std::uint32_t b) {
    const int compared = text::compare(words[a], words[b]);
    return compared != 0 ? compared < 0 : a < b;
  });
  std::vector<std::uint32_t> places(words.size());
  std::vector<std::u16string> sorted;
  sorted.reserve(words.size());
  for (const std::uint32_t old : order) {
    if (sorted.empty() || !text::equal(sorted.back(), words[old])) {
      sorted.push_back(std::move(words[old]));
    }
    places[old] = static_cast<std::uint32_t>(sorted.size() - 1);
  }
  words = std::move(sorted);
  return places;
}

}  // namespace

void PairCollector::addHeadword(const std::u16string& word, std::uint32_t rank, bool important) {
  english_.push_back(word);
  headwords_.push_back({rank, important});
}

/// `parts` are the parts of speech of the equivalent's line.
void PairCollector::addPair(std::uint32_t english, const std::u16string& chinese, Tier tier,
                            std::size_t position, PartOfSpeechSet parts) {
  const auto next = static_cast<std::uint32_t>(chinese_.size());
  const auto [place, isNew] = chineseIds_.try_emplace(chinese, next);
  if (isNew) chinese_.push_back(chinese);
  pairs_.push_back({english, place->second, tier,
                    static_cast<std::uint8_t>(std::min(position, Pair::kMaxPosition))});
  parts_.push_back(parts);
}

/// Notes that the entry, whose own pairs are added, is a form. Its translation may give the form's
/// meaning: "离弃( abandon的第三人称单数 ); 放弃". Returns the number of pairs added.
std::size_t PairCollector::addForm(const Entry& entry, const std::vector<Sense>& senses) {
  const auto noting = std::ranges::find_if(
      entry.lines, [](const TranslationLine& line) { return !line.inflection.empty(); });
  const bool inNote = noting != entry.lines.end();
  const auto named = std::ranges::find_if(senses, &Sense::reference);
  FormEntry form{.english = 0, .inflection = {}, .noted = true, .alone = true, .next = 0};
  form.alone = std::ranges::all_of(senses, &Sense::reference);
  std::u16string note;
  if (named != senses.end()) {
    form.inflection = *inflectionIn(*named->word);
  } else if (inNote) {
    form.given = !senses.empty();
    form.inflection = inflectionIn(noting->inflection).value_or(Inflection());
    if (senses.empty()) note = noting->inflection;
  } else if (entry.inflection) {
    form.noted = false;
    form.inflection = *entry.inflection;
    if (senses.empty()) note = inflectionText(form.inflection);
  }
  if (senses.empty() && note.empty()) return 0;
  if (senses.empty()) {
    addHeadword(entry.headword, entry.rank, entry.important);
    addPair(static_cast<std::uint32_t>(english_.size() - 1), note,
            entry.important ? Tier::kImportantFirst : Tier::kFirst, 0);
  }
  form.english = static_cast<std::uint32_t>(english_.size() - 1);
  form.next = std::max<std::size_t>(senses.size(), 1);
  form.firstPair = pairs_.size() - form.next;
  if (!form.inflection.lemma.empty()) forms_.push_back(std::move(form));
  return senses.empty() ? 1 : 0;
}

/// Two words may have the same form: the one that the source lists first counts.
void PairCollector::recordForms(const Entry& entry) {
  if (entry.inflection) return;
  for (const WordForm& form : entry.forms) {
    listedForms_.try_emplace(form.word, Inflection{text::toLower(entry.headword), form.forms});
  }
}

/// Adds the listed forms of important words that have no entry of their own: "actioned".
void PairCollector::addMissingForms() {
  std::unordered_set<std::u16string> known;
  for (const std::u16string& word : english_) known.insert(text::toLower(word));
  for (auto& [word, inflection] : listedForms_) {
    if (known.contains(word) || !known.contains(inflection.lemma)) continue;
    addHeadword(word, 0, true);
    FormEntry form{.english = 0, .inflection = {}, .noted = false, .alone = true, .next = 0};
    form.english = static_cast<std::uint32_t>(english_.size() - 1);
    form.inflection = std::move(inflection);
    forms_.push_back(std::move(form));
  }
  listedForms_.clear();
}

std::size_t PairCollector::add(const Entry& entry) {
  recordForms(entry);
  const std::vector<Sense> senses = sensesOf(entry);
  const bool ordinary = std::ranges::any_of(
      senses, [](const Sense& sense) { return sense.kind == SenseKind::kOrdinary; });
  if (!ordinary && !entry.references.empty()) {
    Reference reference{entry.headword, {}, entry.important};
    for (const std::u16string& other : entry.references) {
      reference.others.push_back(text::toLower(other));
    }
    references_.push_back(std::move(reference));
    if (senses.empty()) return 0;
  }
  if (senses.empty()) return addForm(entry, senses);
  addHeadword(entry.headword, entry.rank, entry.important);
  const auto english = static_cast<std::uint32_t>(english_.size() - 1);
  const bool form = entry.inflection || std::ranges::any_of(senses, &Sense::reference) ||
                    std::ranges::any_of(entry.lines, [](const TranslationLine& line) {
                      return !line.inflection.empty();
                    });
  std::size_t nth = 0;
  for (std::size_t i = 0; i < senses.size(); ++i) {
    nth = i > 0 && senses[i - 1].kind == senses[i].kind ? nth + 1 : 0;
    const bool only = senses[0].kind == senses[i].kind;
    addPair(english, *senses[i].word, tierOf(entry, form, senses[i], only, nth), i,
            senses[i].parts);
  }
  addForm(entry, senses);
  return senses.size();
}

/// Adds the first equivalents of `words`. Names and what is from the web count for important words
/// only; that a word is a form itself never does.
void PairCollector::collectMeanings(ReferredWords& words) const {
  for (std::size_t i = 0; i < pairs_.size(); ++i) {
    const Pair& pair = pairs_[i];
    if (pair.tier >= Tier::kOnly) continue;
    const auto found = words.find(text::toLower(english_[pair.english]));
    if (found == words.end() || found->second.meanings.size() == kMaxMeanings) continue;
    if (inflectionIn(chinese_[pair.chinese])) continue;
    found->second.rank = headwords_[pair.english].rank;
    found->second.important = headwords_[pair.english].important;
    found->second.meanings.push_back({pair.chinese, parts_[i]});
  }
}

/// References to references are not followed.
void PairCollector::followReferences() {
  ReferredWords words;
  for (const Reference& reference : references_) {
    for (const std::u16string& other : reference.others) words.try_emplace(other);
  }
  collectMeanings(words);
  for (const Reference& reference : references_) {
    addHeadword(reference.headword, 0, reference.important);
    const auto english = static_cast<std::uint32_t>(english_.size() - 1);
    std::size_t position = 0;
    for (const std::u16string& other : reference.others) {
      std::size_t followed = 0;
      for (const Meaning& meaning : words.at(other).meanings) {
        if (followed++ == kMaxFollowed) break;
        const bool first = position == 0;
        const Tier tier = reference.important ? (first ? Tier::kImportantFirst : Tier::kImportant)
                                              : (first ? Tier::kFirst : Tier::kOrdinary);
        // A copy: addPair() may grow the list that holds the word.
        addPair(english, std::u16string(chinese_[meaning.chinese]), tier, position++,
                meaning.parts);
      }
    }
  }
}

/// Whether readers who meet the form most often meet it as one of its lemma, although it has a
/// meaning of its own: whether it has no rank as a word of its own, or one behind that of the
/// lemma's form. The source ranks lemmas. A verb's single forms have some 2/7 of its occurrences
/// each, and a part of speech that the source names after others is rarer: "used" (641) is a form
/// of "use" (87, a noun first) to most readers, "evening" (651) none of "even" (107, an adjective).
bool PairCollector::hides(const FormEntry& form, const Referred& lemma) const {
  const PartOfSpeechSet wanted = partsOfSpeechOf(form.inflection.forms);
  const auto matches = [&](const Meaning& meaning) { return (meaning.parts & wanted) != 0; };
  if (std::ranges::none_of(lemma.meanings, matches)) return false;
  const std::uint64_t rank = headwords_[form.english].rank;
  if (rank == 0) return true;
  if (lemma.rank == 0) return false;
  const std::uint64_t rarity = matches(lemma.meanings.front()) ? 1 : 2;
  return std::uint64_t{lemma.rank} * rarity * 7 / 2 < rank;
}

/// Adds what a form takes over from its lemma: the note whose form it is and the lemma's first
/// equivalents of that part of speech; of two parts of speech ("hands") from both.
void PairCollector::followForm(const FormEntry& form, const Referred& lemma) {
  const bool important = lemma.important || headwords_[form.english].important;
  const Tier first = important ? Tier::kImportantFirst : Tier::kFirst;
  const Tier further = important ? Tier::kImportant : Tier::kInflected;
  const std::u16string note = inflectionText(form.inflection);
  if (!form.noted && !note.empty()) addPair(form.english, note, further, form.next);

  const PartOfSpeechSet wanted = partsOfSpeechOf(form.inflection.forms);
  std::vector<Meaning> fitting;
  for (const Meaning& meaning : lemma.meanings) {
    if ((meaning.parts & wanted) != 0) fitting.push_back(meaning);
  }
  if (fitting.empty()) fitting = lemma.meanings;
  const std::size_t limit = important ? kMaxTaken : kMaxTakenOfRare;
  // The last place is for another part of speech, if there is one.
  const auto other = std::ranges::find_if(fitting, [&](const Meaning& meaning) {
    return (meaning.parts & fitting.front().parts) == 0;
  });
  if (fitting.size() > limit && other - fitting.begin() >= static_cast<std::ptrdiff_t>(limit) &&
      other != fitting.end()) {
    fitting[limit - 1] = *other;
  }
  fitting.resize(std::min(fitting.size(), limit));
  std::size_t position = form.next;
  for (const Meaning& meaning : fitting) {
    const Tier tier = form.alone && position == form.next ? first : further;
    addPair(form.english, std::u16string(chinese_[meaning.chinese]), tier, ++position);
  }
}

/// A form that gives its own meaning ("go的第三人称单数" says 行走) is as important as its lemma.
void PairCollector::raiseForm(const FormEntry& form, const Referred& lemma) {
  if (!lemma.important) return;
  for (std::size_t i = form.firstPair; i < form.firstPair + form.next; ++i) {
    Tier& tier = pairs_[i].tier;
    if (tier == Tier::kFirst) tier = Tier::kImportantFirst;
    if (tier == Tier::kInflected) tier = Tier::kImportant;
  }
}

/// After references were followed: "randomised" is a form of "randomise", which is "= randomize".
void PairCollector::followForms() {
  ReferredWords words;
  for (const FormEntry& form : forms_) words.try_emplace(form.inflection.lemma);
  collectMeanings(words);
  for (const FormEntry& form : forms_) {
    const Referred& lemma = words.at(form.inflection.lemma);
    if (lemma.meanings.empty()) continue;
    if (form.given) {
      raiseForm(form, lemma);
      continue;
    }
    if (form.noted || form.alone || hides(form, lemma)) followForm(form, lemma);
  }
}

Vocabulary PairCollector::finish() && {
  followReferences();
  addMissingForms();
  followForms();
  chineseIds_.clear();
  const std::vector<std::uint32_t> englishPlaces = sortWords(english_);
  const std::vector<std::uint32_t> chinesePlaces = sortWords(chinese_);
  for (Pair& pair : pairs_) {
    pair.english = englishPlaces[pair.english];
    pair.chinese = chinesePlaces[pair.chinese];
  }
  const auto key = [](const Pair& pair) {
    return std::tie(pair.english, pair.chinese, pair.tier, pair.position);
  };
  std::ranges::sort(pairs_, {}, key);
  const auto same = [](const Pair& a, const Pair& b) {
    return a.english == b.english && a.chinese == b.chinese;
  };
  // Of equal pairs the first has the best tier and position.
  pairs_.erase(std::unique(pairs_.begin(), pairs_.end(), same), pairs_.end());
  return {std::move(english_), std::move(chinese_), std::move(pairs_)};
}

}  // namespace dictionary
