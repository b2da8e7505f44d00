// Forms: whether an entry is a form of another word is known when it is added; that word's
// equivalents only in the end, since it may come later. Three kinds of entries take some of them
// over; a fourth, which notes the form and gives its meaning ("行走（go的第三人称单数形式）"),
// takes the lemma's importance only:
// - those that name the form among their equivalents ("take的过去分词", "毛毯, 毡\n feel的过去式");
// - those that have nothing at all, but are a form by the column "exchange";
// - those that are a form by that column and mean something else, where the form is met more often
//   ("asked" is 卖方要价); hides() estimates which of the two is.

#include "dictionary/arrange/pair_collector.h"

#include <algorithm>
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

PairList::Headword headwordOf(const Entry& entry) {
  return {entry.headword, entry.rank, entry.important, isCommon(entry) && isWord(entry)};
}

}  // namespace

/// What the entry says of the word whose form it is, if it is one; without the places of its pairs,
/// and with an empty lemma if it names none. Its translation may give the form's meaning:
/// "离弃( abandon的第三人称单数 ); 放弃".
PairCollector::FormEntry PairCollector::formOf(const Entry& entry,
                                               const std::vector<Sense>& senses) {
  FormEntry form{.english = 0, .inflection = {}, .noted = true, .alone = true, .next = 0};
  form.alone = std::ranges::all_of(senses, &Sense::reference);
  const auto named = std::ranges::find_if(senses, &Sense::reference);
  const auto noting = std::ranges::find_if(
      entry.lines, [](const TranslationLine& line) { return !line.inflection.empty(); });
  if (named != senses.end()) {
    form.inflection = *inflectionIn(*named->word);
  } else if (noting != entry.lines.end()) {
    form.given = !senses.empty();
    form.inflection = inflectionIn(noting->inflection).value_or(Inflection());
    form.note = noting->inflection;
  } else if (entry.inflection) {
    form.noted = false;
    form.inflection = *entry.inflection;
    form.note = inflectionText(form.inflection);
  }
  return form;
}

/// Records that the headword added last is a form; `pairs` pairs of its own are added.
void PairCollector::recordForm(FormEntry form, std::size_t pairs) {
  if (form.inflection.lemma.empty()) return;
  form.english = static_cast<std::uint32_t>(list_.headwords().size() - 1);
  form.next = pairs;
  form.firstPair = list_.size() - pairs;
  forms_.push_back(std::move(form));
}

/// Adds an entry without equivalents, which may be a form. Returns the number of pairs added.
std::size_t PairCollector::addBareForm(const Entry& entry) {
  FormEntry form = formOf(entry, {});
  if (form.note.empty()) return 0;
  list_.addPair(list_.addHeadword(headwordOf(entry)), form.note,
                entry.important ? Tier::kImportantFirst : Tier::kFirst, 0);
  recordForm(std::move(form), 1);
  return 1;
}

/// Two words may have the same form: the one that is added first counts. A form is none of a word
/// that is a form itself.
void PairCollector::recordForms(const Entry& entry) {
  if (entry.inflection) return;
  for (const WordForm& form : entry.forms) {
    listedForms_.try_emplace(form.word, Inflection{text::toLower(entry.headword), form.forms});
  }
}

/// Adds the listed forms of important words that have no entry of their own: "actioned".
void PairCollector::addMissingForms() {
  std::unordered_set<std::u16string> known;
  for (const auto& headword : list_.headwords()) known.insert(text::toLower(headword.word));
  for (auto& [word, inflection] : listedForms_) {
    if (known.contains(word) || !known.contains(inflection.lemma)) continue;
    FormEntry form{.english = 0, .inflection = {}, .noted = false, .alone = true, .next = 0};
    form.english = list_.addHeadword({.word = word, .important = true});
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
    Reference reference{entry.headword, {}, entry.rank, entry.important};
    for (const std::u16string& other : entry.references) {
      reference.others.push_back(text::toLower(other));
    }
    references_.push_back(std::move(reference));
    if (senses.empty()) return 0;
  }
  if (senses.empty()) return addBareForm(entry);
  const std::uint32_t english = list_.addHeadword(headwordOf(entry));
  const bool form = entry.inflection || std::ranges::any_of(senses, &Sense::reference) ||
                    std::ranges::any_of(entry.lines, [](const TranslationLine& line) {
                      return !line.inflection.empty();
                    });
  std::size_t nth = 0;
  for (std::size_t i = 0; i < senses.size(); ++i) {
    nth = i > 0 && senses[i - 1].kind == senses[i].kind ? nth + 1 : 0;
    const bool only = senses[0].kind == senses[i].kind;
    list_.addPair(english, *senses[i].word, tierOf(entry, form, senses[i], only, nth), i,
                  senses[i].parts);
  }
  recordForm(formOf(entry, senses), senses.size());
  return senses.size();
}

/// Adds the first equivalents of `words`. Names and what is from the web count for important words
/// only; that a word is a form itself never does.
void PairCollector::collectMeanings(ReferredWords& words) const {
  for (std::size_t i = 0; i < list_.size(); ++i) {
    const Pair& pair = list_.pair(i);
    if (pair.tier >= Tier::kOnly) continue;
    const PairList::Headword& headword = list_.headwords()[pair.english];
    const auto found = words.find(text::toLower(headword.word));
    if (found == words.end() || found->second.meanings.size() == kMaxMeanings) continue;
    if (inflectionIn(list_.chinese(pair.chinese))) continue;
    found->second.rank = betterRank(found->second.rank, headword.rank);
    found->second.important = found->second.important || headword.important;
    found->second.common = found->second.common || headword.common;
    found->second.meanings.push_back({pair.chinese, list_.parts(i)});
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
    const std::uint32_t english = list_.addHeadword(
        {.word = reference.headword, .rank = reference.rank, .important = reference.important});
    std::size_t position = 0;
    for (const std::u16string& other : reference.others) {
      std::size_t followed = 0;
      for (const Meaning& meaning : words.at(other).meanings) {
        if (followed++ == kMaxFollowed) break;
        const bool first = position == 0;
        const Tier tier = reference.important ? (first ? Tier::kImportantFirst : Tier::kImportant)
                                              : (first ? Tier::kFirst : Tier::kOrdinary);
        // A copy: addPair() may grow the list that holds the word.
        list_.addPair(english, std::u16string(list_.chinese(meaning.chinese)), tier, position++,
                      meaning.parts);
      }
    }
  }
}

/// Whether readers who meet the form most often meet it as one of its lemma, although it has a
/// meaning of its own: whether it has no rank as a word of its own, or a rarer one than the lemma's
/// form. The source ranks lemmas. A verb's single forms have some 2/7 of its occurrences each, and
/// a part of speech that the source names after others is rarer: "used" (641) is a form of "use"
/// (87, a noun first) to most readers, "evening" (651) none of "even" (107, an adjective).
bool PairCollector::hides(const FormEntry& form, const Referred& lemma) const {
  const PartOfSpeechSet wanted = partsOfSpeechOf(form.inflection.forms);
  const auto matches = [&](const Meaning& meaning) { return (meaning.parts & wanted) != 0; };
  if (std::ranges::none_of(lemma.meanings, matches)) return false;
  const std::uint64_t rank = list_.headwords()[form.english].rank;
  if (rank == 0) return true;
  if (lemma.rank == 0) return false;
  const std::uint64_t rarity = matches(lemma.meanings.front()) ? 1 : 2;
  return std::uint64_t{lemma.rank} * rarity * 7 / 2 < rank;
}

/// Adds what a form takes over from its lemma: the note whose form it is and the lemma's first
/// equivalents of that part of speech; of two parts of speech ("hands") from both.
void PairCollector::followForm(const FormEntry& form, const Referred& lemma) {
  const bool important = lemma.important || list_.headwords()[form.english].important;
  const Tier first = important ? Tier::kImportantFirst : Tier::kFirst;
  const Tier further = important ? Tier::kImportant : Tier::kInflected;
  const std::u16string note = inflectionText(form.inflection);
  if (!form.noted && !note.empty()) list_.addPair(form.english, note, further, form.next);

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
  if (other != fitting.end() && other - fitting.begin() >= static_cast<std::ptrdiff_t>(limit)) {
    fitting[limit - 1] = *other;
  }
  fitting.resize(std::min(fitting.size(), limit));
  std::size_t position = form.next;
  for (const Meaning& meaning : fitting) {
    const Tier tier = form.alone && position == form.next ? first : further;
    list_.addPair(form.english, std::u16string(list_.chinese(meaning.chinese)), tier, ++position);
  }
}

/// A form that gives its own meaning ("go的第三人称单数" says 行走) is as important as its lemma.
void PairCollector::raiseForm(const FormEntry& form, const Referred& lemma) {
  if (!lemma.important) return;
  for (std::size_t i = form.firstPair; i < form.firstPair + form.next; ++i) {
    const Tier tier = list_.pair(i).tier;
    if (tier == Tier::kFirst) list_.setTier(i, Tier::kImportantFirst);
    if (tier == Tier::kInflected) list_.setTier(i, Tier::kImportant);
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
    const bool read = form.given || form.noted || form.alone || hides(form, lemma);
    if (!read) continue;  // another word to readers
    if (lemma.common && list_.headwords()[form.english].rank == 0) list_.setCommon(form.english);
    if (form.given) {
      raiseForm(form, lemma);
    } else {
      followForm(form, lemma);
    }
  }
}

Vocabulary PairCollector::finish() && {
  followReferences();
  addMissingForms();
  followForms();
  return std::move(list_).finish();
}

}  // namespace dictionary
