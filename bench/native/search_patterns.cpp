#include "bench/native/search_patterns.h"

#include <algorithm>
#include <random>

#include "text/query_text.h"

namespace bench {
namespace {

constexpr std::size_t kLongest = 8;

enum class Kind { kPlain, kPlainToo, kWildcard, kStrange };

class Typist {
 public:
  Typist(const std::vector<Entry>& entries, bool fromTheBeginning)
      : entries_(entries), fromTheBeginning_(fromTheBeginning) {}

  Typed type(std::size_t number, std::size_t count) {
    const Entry& entry = entries_[number * entries_.size() / count];
    const auto kind = static_cast<Kind>(number % 4);
    const Entry& mate = kind == Kind::kStrange ? anyEntry() : entry;
    const std::size_t length = 1 + (number / 4 % kLongest);
    return {change(piece(entry, &Entry::word, length), kind, &Entry::word),
            change(piece(mate, &Entry::meaning, length), kind, &Entry::meaning)};
  }

 private:
  std::size_t below(std::size_t limit) { return random_() % limit; }

  const Entry& anyEntry() { return entries_[below(entries_.size())]; }

  static bool isTyped(const std::u16string& text, std::u16string Entry::*side) {
    const std::u16string_view wanted = side == &Entry::word ? user::kEnglish : user::kChinese;
    const bool blank = text.find_first_not_of(u' ') == std::u16string::npos;
    return !blank && user::getEorC(text) == wanted &&
           text.find_first_of(u"'%_*?") == std::u16string::npos;
  }

  /// A piece of one side that a search takes for that side's language, of this or, where it has
  /// none, of some other entry.
  std::u16string piece(const Entry& entry, std::u16string Entry::*side, std::size_t length) {
    const Entry* from = &entry;
    while (true) {
      const std::u16string& text = from->*side;
      const std::size_t starts = text.size() - std::min(text.size(), length) + 1;
      const std::u16string found = text.substr(fromTheBeginning_ ? 0 : below(starts), length);
      if (isTyped(found, side)) return found;
      from = &anyEntry();
    }
  }

  std::u16string change(std::u16string text, Kind kind, std::u16string Entry::*side) {
    if (text.size() < 2) return text;
    char16_t& inside = text[1 + below(text.size() - 1)];
    const char16_t before = inside;
    if (kind == Kind::kWildcard) inside = below(2) == 0 ? u'*' : u'?';
    if (kind == Kind::kStrange) inside = piece(anyEntry(), side, 1).front();
    if (user::getEorC(text) != (side == &Entry::word ? user::kEnglish : user::kChinese)) {
      inside = before;
    }
    return text;
  }

  const std::vector<Entry>& entries_;
  bool fromTheBeginning_;
  std::mt19937 random_{2'024};
};

}  // namespace

std::vector<Typed> typedPieces(const std::vector<Entry>& entries, std::size_t count,
                               bool fromTheBeginning) {
  Typist typist(entries, fromTheBeginning);
  std::vector<Typed> pieces;
  for (std::size_t i = 0; i < count; ++i) pieces.push_back(typist.type(i, count));
  return pieces;
}

}  // namespace bench
