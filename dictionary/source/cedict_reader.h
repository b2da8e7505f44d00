#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// Reading the second source: a Chinese-English dictionary as a JavaScript module, "export default"
/// and one object of JSON in UTF-8. Its member "all" is an array of records, each an array of the
/// traditional form, the simplified form, the pinyin, one gloss or an array of glosses, and two
/// members that are not used. A full one has 124,000 records in 11 MB.
namespace dictionary {

/// A record as the source gives it, in UTF-16. Several records may have the same simplified form:
/// readings of a character, and characters that became one.
struct CedictRecord {
  std::u16string traditional;
  std::u16string simplified;
  std::u16string pinyin;  ///< syllables with their tones as digits: "Jin1 an1 Qu1"
  std::vector<std::u16string> glosses;
};

/// Returns the records of the module's text, in its order, without those that have no gloss. Throws
/// Failure if the text is no such module, holds no records, or holds one of another form.
std::vector<CedictRecord> parseCedict(std::string_view module);

/// Returns the records of the file. Throws Failure as parseCedict() does, or because the file
/// cannot be read.
std::vector<CedictRecord> readCedictRecords(const std::filesystem::path& file);

}  // namespace dictionary
