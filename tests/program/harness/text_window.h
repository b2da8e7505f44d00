#pragma once

#include <windows.h>

#include <string>
#include <thread>

namespace harness {

/// A window of the test's own, filled by one control: for Lexilo another program. It runs on a
/// thread of its own, which can be kept from answering.
class TextWindow {
 public:
  TextWindow(const wchar_t* className, DWORD style, const RECT& place, const std::wstring& text);
  ~TextWindow();
  TextWindow(const TextWindow&) = delete;
  TextWindow& operator=(const TextWindow&) = delete;

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HWND control() const { return control_; }

  /// Where character `index` of an edit control stands on the screen.
  [[nodiscard]] POINT characterPoint(int index) const;

  /// While one lives, the window answers nothing.
  class Busy {
   public:
    explicit Busy(const TextWindow& window);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

   private:
    HWND window_;
    HANDLE free_;
  };

 private:
  void run(const std::wstring& className, DWORD style, RECT place, const std::wstring& text,
           HANDLE ready);

  HWND window_ = nullptr;
  HWND control_ = nullptr;
  std::thread thread_;
};

}  // namespace harness
