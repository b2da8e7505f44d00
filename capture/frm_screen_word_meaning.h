#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "capture/popup.h"
#include "capture/popup_watch.h"
#include "capture/word_place.h"
#include "data/data_control.h"
#include "data/headword_lookup.h"
#include "forms/form.h"
#include "forms/rich_text_box.h"
#include "forms/timer.h"

/// The popup with the meanings of a captured word, above all windows, below and right of the
/// pointer. It never takes the focus. It unloads itself as soon as the pointer has moved away from
/// where it was when the popup was loaded, and starts capture again. It does so too when it has
/// outlived its word while the pointer rests (capture/popup_watch.h), but leaves capture stopped
/// where a window of ours or the toolbar's switch holds it off, and no word is looked for at that
/// place until the pointer has left it.
class frmScreenWordMeaning : public forms::Form {
 public:
  frmScreenWordMeaning();

  /// Deliberate: a little larger than the form until the first word is shown.
  forms::RichTextBox txtOut{*this, {0, 0, 3375, 1335}, forms::RichTextBox::Look::kToolTip};
  forms::Timer Timer1{*this, 20, true};
  /// Looks whether the word is still there and the user at rest; runs once the popup is loaded.
  forms::Timer watchTimer{*this, 50};
  data::DataControl Adodc1;

  /// Sets the bounds for `word`, whose quotes are doubled. Throws data::Error.
  void getBound(std::u16string_view word, data::DataControl& control);
  /// Returns the meaning query for `word`, whose quotes are doubled; "" for a class that is neither
  /// E nor C and, without a message, on an error.
  std::u16string findword(std::u16string_view EorC, std::u16string_view word);
  /// Looks `word` up by `control`, once more without its last character if nothing is found, and
  /// shows the popup. The quotes of `word` are doubled in the caller's variable. Returns the text
  /// shown; "" on an error, without a message and with the popup as far as it got.
  std::u16string showMeaning(std::u16string& word, data::DataControl& control);

  /// The bounds of the last lookup; for tests.
  [[nodiscard]] data::Bounds bounds() const { return lookup_.bounds(); }

 private:
  void Form_Load() override;
  void Form_Unload() override;
  void Timer1_Timer();
  void watchTimer_Timer();
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  void lookUp(std::u16string_view escapedWord, data::DataControl& control);
  void write(const capture::PopupText& text);
  void place(const capture::PopupText& text);

  POINT StartPos{};  ///< where the pointer was at loading, in screen pixels
  POINT CurPos{};    ///< and at the last tick
  data::HeadwordLookup lookup_;
  std::optional<capture::WordPlace> wordPlace_;
  std::optional<capture::PopupWatch> watch_;
  bool placed_ = false;  ///< a word was shown; the size is the popup's own from then on
};
