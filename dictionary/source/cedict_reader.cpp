#include "dictionary/source/cedict_reader.h"

#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <utility>

#include "dictionary/console.h"
#include "text/utf.h"

namespace dictionary {
namespace {

constexpr std::string_view kPrefix = "export default";

/// The JSON of the module: what follows its first words, without the semicolon that may end it.
std::string_view jsonOf(std::string_view module) {
  if (!module.starts_with(kPrefix)) throw Failure("the second source is no JavaScript module");
  module.remove_prefix(kPrefix.size());
  const std::size_t last = module.find_last_not_of(" \t\r\n;");
  return module.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::u16string textOf(const nlohmann::json& member) {
  return text::toUtf16(member.get_ref<const std::string&>());
}

/// A record whose fourth member is one gloss or an array of glosses. Throws nlohmann's exceptions.
CedictRecord recordOf(const nlohmann::json& members) {
  CedictRecord record{textOf(members.at(0)), textOf(members.at(1)), textOf(members.at(2)), {}};
  const nlohmann::json& glosses = members.at(3);
  if (glosses.is_string()) {
    record.glosses.push_back(textOf(glosses));
  } else {
    for (const nlohmann::json& gloss : glosses) record.glosses.push_back(textOf(gloss));
  }
  return record;
}

}  // namespace

std::vector<CedictRecord> parseCedict(std::string_view module) {
  const std::string_view json = jsonOf(module);
  std::vector<CedictRecord> records;
  std::size_t read = 0;
  try {
    const nlohmann::json root = nlohmann::json::parse(json);
    for (const nlohmann::json& members : root.at("all")) {
      CedictRecord record = recordOf(members);
      ++read;
      if (!record.glosses.empty()) records.push_back(std::move(record));
    }
  } catch (const nlohmann::json::exception& error) {
    throw Failure("record " + std::to_string(read) +
                  " of the second source cannot be read: " + error.what());
  }
  if (records.empty()) throw Failure("the second source has no records");
  return records;
}

std::vector<CedictRecord> readCedictRecords(const std::filesystem::path& file) {
  requireFile(file);
  std::ifstream stream(file, std::ios::binary);
  const std::string module((std::istreambuf_iterator<char>(stream)), {});
  if (!stream || module.empty()) throw Failure("cannot read " + displayName(file));
  return parseCedict(module);
}

}  // namespace dictionary
