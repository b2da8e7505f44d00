#include "dictionary/arrange/senses.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>

#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

/// Senses of a common word that are kept: as many as the popup and the pane show at a glance.
constexpr std::size_t kMaxSenses = 10;
/// Of these, senses from the lines of subjects.
constexpr std::size_t kMaxSubjectSenses = 2;

/// Up to this rank by frequency, that is, among function words and verbs such as "be" and "get",
/// what a subject adds is nearly always an abbreviation in capitals or a command.
constexpr std::uint32_t kBasicRank = 120;

/// A web tag outweighs a name's.
SenseKind kindOf(SubjectSet subjects) {
  if ((subjects & setOf(Subject::kWeb)) != 0) return SenseKind::kWeb;
  return (subjects & kNameSubjects) != 0 ? SenseKind::kName : SenseKind::kOrdinary;
}

/// A sense, and what decides whether it is kept.
struct Candidate {
  Sense sense;
  std::size_t line = 0;
  bool subject = false;
  bool slang = false;
  bool program = false;  ///< see namesProgram() and isExpansion()
  /// Best place where a line repeats it, from 0; in its own line that is after its turn.
  std::size_t repeated = std::numeric_limits<std::size_t>::max();
};

/// Returns whether a sense of computing names a program, a command or a protocol, or what an
/// abbreviation in capitals stands for, of which a common word's line of computing has many: "nut |
/// [计] Novell NetWare服务器实用程序, TCP实用程序", "grant | [计] 授权命令".
bool namesProgram(const Piece& piece) {
  using namespace std::string_view_literals;
  constexpr std::array kEndings = {u"程序"sv, u"命令"sv, u"语句"sv, u"协议"sv, u"信息包"sv};
  const std::u16string& word = piece.equivalent.word;
  return (piece.subjects & setOf(Subject::kComputing)) != 0 &&
         (std::ranges::any_of(word, isAsciiLetter) ||
          std::ranges::any_of(kEndings, [&](auto ending) { return word.ends_with(ending); }));
}

/// Returns whether a sense of a short word is what an abbreviation in capitals stands for: a long
/// one from a line of computing, or from a line that names neither a subject nor a part of speech:
/// "cat | n. 猫, 恶妇\nvi. 呕吐\n计算机辅助教育, 计算机辅助测试\n[计] 计算机辅助排字". Only the
/// length tells: translations of the word itself are shorter.
bool isExpansion(const Entry& entry, const TranslationLine& line, const Piece& piece) {
  constexpr std::size_t kLongestAbbreviation = 5;
  constexpr auto kShortestExpansion = 5;
  const bool computing = (piece.subjects & setOf(Subject::kComputing)) != 0;
  const bool bare = line.parts == 0 && piece.subjects == 0;
  return entry.headword.size() <= kLongestAbbreviation && (computing || bare) &&
         !inflectionIn(piece.equivalent.word) &&
         std::ranges::count_if(piece.equivalent.word, isHan) >= kShortestExpansion && isWord(entry);
}

bool isOrdinary(const Candidate& candidate) { return candidate.sense.kind == SenseKind::kOrdinary; }

/// All distinct senses, by kind.
std::vector<Candidate> candidatesOf(const Entry& entry) {
  std::vector<Candidate> candidates;
  for (const SenseKind kind : {SenseKind::kOrdinary, SenseKind::kName, SenseKind::kWeb}) {
    for (std::size_t i = 0; i < entry.lines.size(); ++i) {
      const TranslationLine& line = entry.lines[i];
      std::size_t place = 0;
      for (const Piece& piece : line.pieces) {
        const std::u16string& word = piece.equivalent.word;
        if (word.empty() || kindOf(piece.subjects) != kind) continue;
        const auto known = std::ranges::find_if(
            candidates, [&](const Candidate& other) { return *other.sense.word == word; });
        if (known != candidates.end()) {
          // "n. 使用, 习惯\nvt. 使用, 利用": a noun's equivalent and a verb's.
          known->sense.parts = static_cast<PartOfSpeechSet>(known->sense.parts | line.parts);
          known->sense.subject = known->sense.subject || piece.subjects != 0;
          known->repeated = std::min(known->repeated, place);
          // "gap | n. 缝隙, 通用汇编程序\n[计] 通用汇编程序"
          if (isExpansion(entry, line, piece)) known->program = true;
          ++place;
          continue;
        }
        ++place;
        const bool reference = inflectionIn(word).has_value();
        const bool title = piece.noted.starts_with(u'《');
        candidates.push_back({{&word, kind, line.parts, reference, title, piece.subjects != 0},
                              i,
                              piece.subjects != 0,
                              piece.slang,
                              namesProgram(piece) || isExpansion(entry, line, piece)});
      }
    }
  }
  return candidates;
}

/// Returns at most `limit` candidates, chosen in turn from each line, the first of every line
/// first; in their order. A candidate that another line repeats has its best turn in either: in
/// "n. 切口, 割伤, 降低, 切\nvt. 切, 割, 减少" 切 is the verb's first.
std::vector<Candidate> inTurn(const std::vector<Candidate>& candidates, std::size_t limit) {
  std::vector<std::size_t> turns(candidates.size());
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    const bool sameLine = i > 0 && candidates[i].line == candidates[i - 1].line;
    turns[i] = sameLine ? turns[i - 1] + 1 : 0;
    order.push_back(i);
  }
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    turns[i] = std::min(turns[i], candidates[i].repeated);
  }
  std::ranges::stable_sort(order, {}, [&](std::size_t index) { return turns[index]; });
  if (order.size() > limit) order.resize(limit);
  std::ranges::sort(order);
  std::vector<Candidate> taken;
  taken.reserve(order.size());
  for (const std::size_t index : order) taken.push_back(candidates[index]);
  return taken;
}

/// What is kept of a common word's senses. `basic`: the word is one of the most frequent.
std::vector<Candidate> chosen(std::vector<Candidate> candidates, bool basic) {
  // Names and what is from the web have a subject.
  const auto plain = [](const Candidate& one) { return !one.slang && !one.subject; };
  const auto plainSenses = std::ranges::count_if(candidates, plain);
  if (plainSenses > 0) {
    std::erase_if(candidates, [](const Candidate& one) {
      return one.sense.kind == SenseKind::kWeb || (isOrdinary(one) && (one.slang || one.program));
    });
  }
  const bool functionWord = std::ranges::any_of(candidates, [](const Candidate& one) {
    return (one.sense.parts & setOf(PartOfSpeech::kFunction)) != 0;
  });
  // Beside "be的单数第一人称" alone, the senses of subjects are those of abbreviations in capitals.
  const bool onlyForm = std::ranges::all_of(
      candidates, [&](const Candidate& one) { return !plain(one) || one.sense.reference; });
  const bool none = basic || functionWord || onlyForm;
  const std::size_t fromSubjects = plainSenses == 0 ? kMaxSenses : none ? 0 : kMaxSubjectSenses;
  std::vector<Candidate> general;
  std::vector<Candidate> subject;
  std::vector<Candidate> others;
  for (Candidate& candidate : candidates) {
    const bool counted = isOrdinary(candidate) && !candidate.sense.reference;
    (counted ? candidate.subject ? subject : general : others).push_back(candidate);
  }
  subject = inTurn(subject, fromSubjects);
  std::vector<Candidate> result = inTurn(general, kMaxSenses - subject.size());
  result.insert(result.end(), subject.begin(), subject.end());
  // References of forms, which are ordinary senses, then names, then what is from the web.
  result.insert(result.end(), others.begin(), others.end());
  return result;
}

}  // namespace

bool isWord(const Entry& entry) {
  return std::ranges::any_of(entry.lines, [](const TranslationLine& line) {
    return line.parts != 0 && std::ranges::any_of(line.pieces, [](const Piece& piece) {
             return piece.subjects == 0 && !piece.equivalent.word.empty();
           });
  });
}

std::vector<Sense> sensesOf(const Entry& entry) {
  std::vector<Candidate> candidates = candidatesOf(entry);
  // A form has no rank, but may be as common as its lemma.
  const bool form = std::ranges::any_of(
      candidates, [](const Candidate& candidate) { return candidate.sense.reference; });
  if (isCommon(entry) || form) {
    const bool basic = entry.rank > 0 && entry.rank <= kBasicRank;
    candidates = chosen(std::move(candidates), basic);
  }
  std::vector<Sense> senses;
  senses.reserve(candidates.size());
  for (const Candidate& candidate : candidates) senses.push_back(candidate.sense);
  return senses;
}

bool hasShortForm(const Entry& entry) {
  return std::ranges::any_of(entry.lines, [](const TranslationLine& line) {
    return std::ranges::any_of(line.pieces,
                               [](const Piece& piece) { return !piece.shortForm.empty(); });
  });
}

void ShortForms::record(const Entry& entry) {
  for (const TranslationLine& line : entry.lines) {
    for (const Piece& piece : line.pieces) {
      if (!piece.equivalent.word.empty()) words_.insert(piece.equivalent.word);
    }
  }
}

void ShortForms::complete(Entry& entry) const {
  for (TranslationLine& line : entry.lines) {
    std::vector<Piece> forms;
    for (const Piece& piece : line.pieces) {
      if (!words_.contains(piece.shortForm)) continue;
      Piece& form = forms.emplace_back();
      form.equivalent.word = piece.shortForm;
      form.subjects = piece.subjects;
    }
    for (Piece& form : forms) line.pieces.push_back(std::move(form));
  }
}

}  // namespace dictionary
