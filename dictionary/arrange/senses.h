#pragma once

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

#include "dictionary/translation/entry.h"

/// Which of an entry's equivalents the general dictionary offers, in their order of importance, and
/// which terms it offers without their optional characters.
namespace dictionary {

/// Kinds of equivalents, by the subject tags of their lines.
enum class SenseKind : std::uint8_t { kOrdinary, kName, kWeb };

/// An equivalent that an entry offers; the word belongs to the entry.
struct Sense {
  const std::u16string* word = nullptr;
  SenseKind kind = SenseKind::kOrdinary;
  PartOfSpeechSet parts = 0;  ///< of all lines that hold it
  bool reference = false;     ///< names the form of another word: "take的过去分词"
  bool title = false;         ///< the title of a work: "《工具论》"
  bool subject = false;       ///< from the line of a subject, or from one as well
};

/// Up to this rank by frequency a word is common. The words up to it make up most of running text;
/// every eighth of them has ten equivalents or more in the source.
inline constexpr std::uint32_t kCommonRank = 5'000;

/// Returns whether the word of the entry is common.
inline bool isCommon(const Entry& entry) { return entry.rank > 0 && entry.rank <= kCommonRank; }

/// Returns whether the entry translates an ordinary word: whether a line that names its part of
/// speech has an equivalent that is of no subject. Otherwise it may be an abbreviation: "plc".
bool isWord(const Entry& entry);

/// Returns the entry's distinct equivalents: ordinary ones, then names, then those from the web,
/// each in the order of the source, which is its order of importance.
///
/// Of a common word, and of an entry that names the form of another word and may be as common as
/// that, only some are returned, since its rows are sorted by their Chinese text, so that any rare
/// sense may come first:
/// - at most ten ordinary ones, besides names of forms ("take的过去分词"). They are taken in turn
///   from the entry's lines, that is, from its parts of speech;
/// - among these at most two of a subject, which that subject's dictionary has as well, and none if
///   the word is a function word or one of the most frequent, or if all else is the name of a form;
/// - no slang, no program, command or protocol of computing, nothing that the word in capitals
///   stands for as an abbreviation ("cat": 计算机辅助测试), and none from the web.
/// The last two hold only beside an ordinary sense that is neither slang nor of a subject.
std::vector<Sense> sensesOf(const Entry& entry);

/// Returns whether a piece of the entry has a short form, that is, optional characters.
bool hasShortForm(const Entry& entry);

/// The Chinese headwords of all entries, in which short forms are looked up: of "硬脑[脊]膜" the
/// short form 硬脑膜 is a word, of "全适供[血]者" it is not; the source tells by having it
/// somewhere else as it stands.
class ShortForms {
 public:
  /// Adds the entry's headwords. Copies the texts.
  void record(const Entry& entry);

  /// Adds those short forms of the entry's pieces which are headwords by themselves, as pieces at
  /// the end of their lines without a text for subject dictionaries.
  void complete(Entry& entry) const;

 private:
  std::unordered_set<std::u16string> words_;
};

}  // namespace dictionary
