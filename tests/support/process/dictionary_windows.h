#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/support/process/find.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/process.h"

/// The windows of the subject dictionaries of a running Lexilo.
namespace support {

/// A window of the program by its form's name, "frmMain" say; null where it is not open.
HWND findForm(const Process& program, const std::wstring& form);

/// Waits for one to come to the front, and for as long as a user takes to see that.
HWND waitForForm(const Process& program, const std::wstring& form);

/// The one visible button of a window with that caption.
HWND buttonOf(HWND window, const std::wstring& caption);

/// 多功能查询.
class MultiQuery {
 public:
  /// Opens it by the toolbar's second button.
  explicit MultiQuery(const Lexilo& lexilo);

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HWND input() const { return input_; }
  [[nodiscard]] HWND dictionaries() const { return dictionaries_; }
  [[nodiscard]] HWND results() const { return results_; }

  [[nodiscard]] std::vector<std::wstring> names() const;  ///< of the dictionaries
  [[nodiscard]] std::wstring chosen() const;              ///< name of the selected one; "" for none
  [[nodiscard]] std::vector<std::wstring> lines() const;  ///< of the results

  /// Clicks a dictionary, scrolling to it where need be.
  void choose(const std::wstring& name) const;
  void click(const std::wstring& caption) const;
  /// Types a text and clicks a button.
  void search(const std::wstring& text, const std::wstring& caption = L"确定") const;
  /// The same, and waits for the first line to begin with `first`.
  void searchFor(const std::wstring& text, const std::wstring& caption,
                 const std::wstring& first) const;
  void waitForFirstLine(const std::wstring& first) const;
  void close() const;

 private:
  HWND window_;
  HWND input_;
  HWND dictionaries_;
  HWND results_;
};

/// 特殊查询, opened from 多功能查询.
class SpecialQuery {
 public:
  SpecialQuery(const Process& program, const MultiQuery& owner);

  [[nodiscard]] HWND window() const { return window_; }
  /// Fills both boxes, where a text is given.
  void fill(const std::wstring& english, const std::wstring& chinese) const;
  /// The same, and clicks 确定.
  void ask(const std::wstring& english, const std::wstring& chinese) const;
  void cancel() const;

 private:
  HWND window_;
  HWND english_;
  HWND chinese_;
};

/// 字典设置.
class DictionarySettings {
 public:
  /// Opens it by the toolbar's third button.
  explicit DictionarySettings(const Lexilo& lexilo);

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HWND list() const { return list_; }
  [[nodiscard]] std::vector<std::wstring> names() const;
  [[nodiscard]] std::wstring chosen() const;
  void choose(const std::wstring& name) const;
  void close() const;

 private:
  HWND window_;
  HWND list_;
};

}  // namespace support
