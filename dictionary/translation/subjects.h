#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The subject dictionaries, and the tags by which the source assigns a line to them.
namespace dictionary {

/// The subject dictionaries, in the order of the catalogue. The order is part of the database:
/// another one gives other row numbers in [Index].
enum class Subject : std::uint8_t {
  kMedicine,
  kChemistry,
  kComputing,
  kEconomy,
  kLaw,
  kElectricity,
  kMechanics,
  kArchitecture,
  kZoology,
  kBotany,
  kGeology,
  kBiology,
  kPhysics,
  kArt,
  kSport,
  kReligion,
  kLanguage,
  kLightIndustry,
  kSociety,
  kMilitary,
  kMathematics,
  kPerson,
  kPlace,
  kWeb,
};

inline constexpr std::size_t kSubjectCount = 24;

/// A set of subjects: bit n for the subject of value n.
using SubjectSet = std::uint32_t;

/// Returns the set of that subject alone.
constexpr SubjectSet setOf(Subject subject) {
  return SubjectSet{1} << static_cast<std::uint8_t>(subject);
}

/// The subjects whose pieces are names: they are parsed and rated otherwise.
inline constexpr SubjectSet kNameSubjects = setOf(Subject::kPerson) | setOf(Subject::kPlace);

/// A subject dictionary in the catalogue.
struct SubjectInfo {
  std::string_view table;    ///< table name: ASCII letters, no SQL keyword, no fixed table's name
  std::u16string_view name;  ///< what the windows show
};

/// By Subject: table names and captions.
extern const std::array<SubjectInfo, kSubjectCount> kSubjectInfos;

/// The dictionary that is preselected when the multi-dictionary window opens, until the user
/// chooses another default: the largest one.
inline constexpr Subject kDefaultSubject = Subject::kMedicine;

/// Returns the subjects that a bracketed tag names ("医", "动物学"); 0 for a mark of usage or a
/// note. `tag` is without its brackets. A tag may name several subjects.
SubjectSet subjectsOfTag(std::u16string_view tag);

}  // namespace dictionary
