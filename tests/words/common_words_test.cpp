// The full dictionary, build/kk.dat, against common_words.tsv: what the popup shows for the words
// that readers meet. A dictionary that is not there is a failure; "./test.sh words" builds it.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "dictionary/coverage/popup_lookup.h"
#include "dictionary/translation/entry.h"
#include "dictionary/translation/supplement.h"
#include "text/order.h"
#include "text/utf.h"

namespace {

using Texts = std::vector<std::u16string>;

/// A line of the list.
struct CommonWord {
  std::u16string word;
  std::vector<Texts> senses;  ///< of each, the wordings of which one must be there
  Texts forbidden;            ///< parts of texts that must not be there
};

Texts split(std::u16string_view text, char16_t separator) {
  Texts parts;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(separator, begin), text.size());
    parts.emplace_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return parts;
}

/// Reads a line; an empty wording or text is a mistake in the list, since every text contains it.
CommonWord parse(std::u16string_view line) {
  const Texts fields = split(line, u'\t');
  CommonWord word;
  EXPECT_TRUE(fields.size() == 2 || fields.size() == 3) << text::toUtf8(line);
  if (fields.size() < 2) return word;
  word.word = fields[0];
  for (const std::u16string& sense : split(fields[1], u' ')) {
    word.senses.push_back(split(sense, u'|'));
  }
  if (fields.size() > 2) word.forbidden = split(fields[2], u'|');
  Texts all = word.forbidden;
  for (const Texts& wordings : word.senses) {
    all.insert(all.end(), wordings.begin(), wordings.end());
  }
  EXPECT_EQ(std::ranges::count(all, u""), 0) << text::toUtf8(line);
  return word;
}

std::filesystem::path root() {
  return std::filesystem::path(__FILE__).parent_path().parent_path().parent_path();
}

const std::vector<CommonWord>& commonWords() {
  static const std::vector<CommonWord> words = [] {
    std::ifstream stream(root() / "tests" / "words" / "common_words.tsv", std::ios::binary);
    std::vector<CommonWord> read;
    for (std::string line; std::getline(stream, line);) {
      if (!line.empty() && line[0] != '#') read.push_back(parse(text::toUtf16(line)));
    }
    return read;
  }();
  return words;
}

std::string joined(const Texts& texts) {
  std::u16string all;
  for (const std::u16string& one : texts) all += (all.empty() ? u"" : u"；") + one;
  return text::toUtf8(all);
}

class CommonWords : public testing::Test {
 protected:
  dictionary::PopupLookup lookup_{root() / "build" / "kk.dat"};
};

TEST(CommonWordList, HasHundredsOfWordsEachOnce) {
  std::set<std::u16string> words;
  std::size_t withForbidden = 0;
  for (const CommonWord& one : commonWords()) {
    EXPECT_TRUE(words.insert(text::toLower(one.word)).second) << text::toUtf8(one.word);
    if (!one.forbidden.empty()) ++withForbidden;
  }
  EXPECT_GE(words.size(), 500U);
  EXPECT_GE(withForbidden, 100U);
}

TEST_F(CommonWords, HaveTheirSenses) {
  for (const CommonWord& one : commonWords()) {
    const Texts meanings = lookup_.meanings(one.word);
    for (const Texts& wordings : one.senses) {
      const bool found = std::ranges::any_of(wordings, [&](const std::u16string& wording) {
        return std::ranges::find(meanings, wording) != meanings.end();
      });
      EXPECT_TRUE(found) << text::toUtf8(one.word) << " lacks " << joined(wordings) << ", has "
                         << joined(meanings);
    }
  }
}

TEST_F(CommonWords, HaveNothingThatMisleads) {
  for (const CommonWord& one : commonWords()) {
    for (const std::u16string& meaning : lookup_.meanings(one.word)) {
      for (const std::u16string& part : one.forbidden) {
        EXPECT_EQ(meaning.find(part), std::u16string::npos)
            << text::toUtf8(one.word) << " has " << text::toUtf8(meaning);
      }
    }
  }
}

/// Expects the equivalents that `table` gives its words among the rows of these.
void expectRows(dictionary::PopupLookup& lookup, std::span<const dictionary::Supplement> table) {
  for (const dictionary::Supplement& one : table) {
    const Texts meanings = lookup.meanings(one.word);
    const auto entry = dictionary::extractEntry({text::toUtf8(one.word), ""});
    for (const dictionary::TranslationLine& line : entry.value().lines) {
      for (const dictionary::Piece& piece : line.pieces) {
        EXPECT_EQ(std::ranges::count(meanings, piece.equivalent.word), 1)
            << text::toUtf8(one.word) << " lacks " << text::toUtf8(piece.equivalent.word)
            << ", has " << joined(meanings);
      }
    }
  }
}

// A supplement for a word that has a translation in the source changes nothing, and nobody sees it.
TEST_F(CommonWords, HaveTheirSupplements) { expectRows(lookup_, dictionary::supplements()); }

TEST_F(CommonWords, HaveTheirCorrections) { expectRows(lookup_, dictionary::corrections()); }

TEST_F(CommonWords, HaveTheirGivenNames) { expectRows(lookup_, dictionary::givenNames()); }

}  // namespace
