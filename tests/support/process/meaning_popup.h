#pragma once

#include <optional>
#include <string>

#include "tests/support/process/find.h"
#include "tests/support/process/process.h"

namespace support {

/// The popup with the meaning of the word under the pointer.
class MeaningPopup {
 public:
  explicit MeaningPopup(const Process& lexilo) : lexilo_(lexilo) {}

  /// Its window while it is up, else null.
  [[nodiscard]] HWND window() const;
  [[nodiscard]] bool isUp() const { return window() != nullptr; }

  /// What it shows; "" while it is not up.
  [[nodiscard]] std::wstring text() const;
  /// The first line of that.
  [[nodiscard]] std::wstring headword() const;

  /// Waits for it to open with this headword and returns all that it shows.
  [[nodiscard]] std::wstring waitFor(const std::wstring& headword) const;
  void waitUntilClosed() const;

  /// Whether it stays away for `milliseconds`.
  [[nodiscard]] bool staysAway(DWORD milliseconds) const;

 private:
  const Process& lexilo_;
};

/// A place of the screen on which no test puts a text.
inline constexpr POINT kAwayFromTexts{1240, 980};

}  // namespace support
