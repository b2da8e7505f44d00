#include "dictionary/source/word_frequencies.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <string_view>
#include <system_error>

#include "dictionary/console.h"
#include "text/characters.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// Splits off what precedes the next blank.
std::string_view takeField(std::string_view& line) {
  const std::size_t blank = line.find(' ');
  const std::string_view field = line.substr(0, blank);
  line.remove_prefix(blank == std::string_view::npos ? line.size() : blank + 1);
  return field;
}

}  // namespace

std::vector<WordFrequency> readWordFrequencies(std::istream& stream) {
  std::vector<WordFrequency> words;
  std::string line;
  while (std::getline(stream, line)) {
    std::string_view rest = line;
    const std::string_view word = takeField(rest);
    const std::string_view number = takeField(rest);
    WordFrequency entry{text::toUtf16(word), 0, rest.starts_with("nr")};
    const auto [end, error] =
        std::from_chars(number.data(), number.data() + number.size(), entry.frequency);
    if (error != std::errc() || end != number.data() + number.size()) continue;
    if (std::ranges::any_of(entry.word, text::isHan)) words.push_back(std::move(entry));
  }
  if (words.empty()) throw Failure("the list of Chinese word frequencies holds no word");
  std::ranges::stable_sort(words, std::ranges::greater(), &WordFrequency::frequency);
  return words;
}

std::vector<WordFrequency> readWordFrequencies(const std::filesystem::path& file) {
  requireFile(file);
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw Failure("cannot read " + displayName(file));
  return readWordFrequencies(stream);
}

WordRanks rankWords(const std::vector<WordFrequency>& words) {
  WordRanks ranks;
  for (const WordFrequency& entry : words) {
    if (!entry.personalName) {
      ranks.try_emplace(entry.word, static_cast<std::uint32_t>(ranks.size() + 1));
    }
  }
  return ranks;
}

}  // namespace dictionary
