#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace support {

/// A hidden window that receives words as the program's own host does: disarms, then fetches.
class WordHost {
 public:
  WordHost();
  ~WordHost();
  WordHost(const WordHost&) = delete;
  WordHost& operator=(const WordHost&) = delete;

  [[nodiscard]] HWND window() const { return window_; }

  /// Disarms what was armed and arms the point, as every probe does.
  void probe(POINT point) const;

  /// Probes every 100 ms until a word comes, and returns it; "(none)" where none does.
  std::string wordAt(POINT point);

  /// Waits for the next word and returns it as it was handed over; "(none)" where none comes.
  std::string nextWord(DWORD milliseconds = 2'000);

  /// All texts that were handed over, in order.
  [[nodiscard]] const std::vector<std::string>& words() const { return words_; }
  /// The rectangle that came with the last one.
  [[nodiscard]] RECT rect() const { return rect_; }

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void receive();

  HWND window_ = nullptr;
  std::vector<std::string> words_;
  std::size_t seen_ = 0;
  RECT rect_{};
};

}  // namespace support
