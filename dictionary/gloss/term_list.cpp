#include "dictionary/gloss/term_list.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

#include "dictionary/console.h"
#include "dictionary/source/characters.h"
#include "dictionary/source/cleanup.h"
#include "dictionary/source/csv_reader.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// The longest Chinese equivalent, as those of the other sources.
constexpr std::size_t kMaxChinese = 20;

/// Whether the text can be a Chinese headword as it stands.
bool isChineseTerm(std::u16string_view text) {
  return text.size() <= kMaxChinese && std::ranges::any_of(text, isHan) &&
         std::ranges::all_of(text, [](char16_t unit) {
           return isHan(unit) || isAsciiLetter(unit) || isDigit(unit) || isGreek(unit) ||
                  std::u16string_view(u"·-+.").find(unit) != std::u16string_view::npos;
         });
}

/// The file of words of no subject.
constexpr std::string_view kGeneral = "general";
/// The folder of terms that a source gives as well.
constexpr std::string_view kGiven = "given";

/// The place of a file among all: 0 for words of no subject, else 1 more than the subject.
std::optional<std::size_t> placeOf(std::string_view name) {
  if (name == kGeneral) return 0;
  const auto* const found = std::ranges::find(kSubjectInfos, name, &SubjectInfo::table);
  if (found == kSubjectInfos.end()) return std::nullopt;
  return static_cast<std::size_t>(found - kSubjectInfos.begin()) + 1;
}

/// Reads the files of one folder, see readTermList().
std::vector<Term> readFolder(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  std::error_code error;
  for (const auto& file : std::filesystem::directory_iterator(folder, error)) {
    if (file.path().extension() == ".csv") files.push_back(file.path());
  }
  if (error) throw Failure("cannot read the folder " + displayName(folder));
  std::array<std::vector<Term>, kSubjectCount + 1> lists;
  for (const std::filesystem::path& file : files) {
    const std::optional<std::size_t> place = placeOf(utf8Path(file.stem()));
    if (!place) throw Failure(displayName(file) + " has no subject's name");
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw Failure("cannot read " + displayName(file));
    const auto subject =
        *place == 0 ? std::nullopt : std::optional(static_cast<Subject>(*place - 1));
    lists.at(*place) = readTerms(stream, subject, displayName(file));
  }
  std::vector<Term> terms;
  for (std::vector<Term>& list : lists) std::ranges::move(list, std::back_inserter(terms));
  return terms;
}

}  // namespace

std::vector<Term> readTerms(std::istream& stream, std::optional<Subject> subject,
                            std::string_view name) {
  std::vector<Term> terms;
  std::vector<std::string> fields;
  std::string line;
  for (std::size_t number = 1; std::getline(stream, line); ++number) {
    const auto fail = [&](std::string_view what) {
      throw Failure(std::string(name) + ", line " + std::to_string(number) + ": " +
                    std::string(what));
    };
    fields.clear();
    if (splitCsvLine(line, fields) != LineFault::kNone || fields.size() != 2) {
      fail("not an English and a Chinese term");
    }
    Term term{text::toUtf16(fields[0]), text::toUtf16(fields[1]), subject};
    if (headword(term.english) != term.english) fail("the English term cannot be looked up");
    if (!isChineseTerm(term.chinese)) fail("the Chinese term cannot be looked up");
    terms.push_back(std::move(term));
  }
  return terms;
}

std::vector<Term> readTermList(const std::filesystem::path& folder) {
  std::vector<Term> terms = readFolder(folder);
  const std::filesystem::path given = folder / kGiven;
  if (std::filesystem::exists(given)) {
    for (Term& term : readFolder(given)) {
      term.given = true;
      terms.push_back(std::move(term));
    }
  }
  return terms;
}

}  // namespace dictionary
