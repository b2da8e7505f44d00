#pragma once

#include <string>
#include <unordered_set>

#include "dictionary/translation/entry.h"

/// Terms without their optional characters. Of "硬脑[脊]膜" the short form 硬脑膜 is a word, of
/// "全适供[血]者" it is not; the source tells by having it somewhere else as it stands.
namespace dictionary {

/// Returns whether a piece of the entry has a short form.
bool hasShortForm(const Entry& entry);

/// The Chinese headwords of all entries, which short forms are looked up in.
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
