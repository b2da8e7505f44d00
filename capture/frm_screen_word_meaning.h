#pragma once

#include <string>
#include <string_view>

#include "capture/popup.h"
#include "data/data_control.h"
#include "data/headword_lookup.h"
#include "forms/form.h"
#include "forms/rich_text_box.h"
#include "forms/timer.h"

/// The popup with the meanings of a captured word, below and right of the pointer. It closes as
/// soon as the pointer moves away, and capture goes on then.
class frmScreenWordMeaning : public forms::Form {
 public:
  frmScreenWordMeaning();

  forms::RichTextBox txtOut{*this, {0, 0, 3375, 1335}, forms::RichTextBox::Look::kToolTip};
  forms::Timer Timer1{*this, 20, true};
  data::DataControl Adodc1;

  /// Sets the bounds for `word`, whose quotes are doubled.
  void getBound(std::u16string_view word, data::DataControl& control);
  /// The meaning query for `word`, whose quotes are doubled; "" for a class that is neither E nor C
  /// and, silently, on an error.
  std::u16string findword(std::u16string_view EorC, std::u16string_view word);
  /// Looks `word` up, once more without its last character where there is nothing, and shows the
  /// popup. The quotes of `word` are doubled in the caller's variable. Returns the text shown; ""
  /// on an error, silently, with the popup as far as it got.
  std::u16string showMeaning(std::u16string& word, data::DataControl& control);

  [[nodiscard]] data::Bounds bounds() const { return lookup_.bounds(); }

 private:
  void Form_Load() override;
  void Timer1_Timer();
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  void lookUp(std::u16string_view escapedWord, data::DataControl& control);
  void write(const capture::PopupText& text);
  void place(const capture::PopupText& text);

  POINT StartPos{};
  POINT CurPos{};
  data::HeadwordLookup lookup_;
  bool placed_ = false;
};
