#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/widget.h"

namespace forms {

/// An edit control: a single line of text to type into, or a note of several lines to read. A line
/// takes a text with line ends from the clipboard whole, with a blank for each of them; the control
/// alone would take the first line only. Where the clipboard has no text, or an empty one, or
/// another program holds it, pasting does nothing. While an input method composes, no change is
/// raised; a text that it commits is one change.
class TextBox : public Widget {
 public:
  enum class Look {
    kLine,
    kNote,  ///< wraps its text and cannot be typed into
  };

  /// `box` in twips of the form's client area. Throws like Widget.
  TextBox(WidgetHost& form, const WidgetBox& box, Look look = Look::kLine);

  [[nodiscard]] std::u16string text() const;
  /// Replaces the text and raises onChange before it returns, as typing does, also if the text is
  /// the same.
  void setText(const std::u16string& text);

  /// Replaces the selection, as typing does: the user can take it back. Raises onChange before it
  /// returns.
  void insert(const std::u16string& text);
  void selectAll();

  /// The text was changed, by the user or by setText.
  Event<> onChange;
  /// If set: returns what is inserted for a text of one line that is pasted in place of the whole
  /// text.
  std::function<std::u16string(std::u16string_view)> cleanPasted;

  void command(WORD code) override;
  /// Selects all of a line: the user is back and types anew. A click puts the caret elsewhere.
  void formActivated() override;

 protected:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  /// A line fits if it is not higher than the box; a note, if all of it is seen.
  [[nodiscard]] bool fits(HDC dc, const RECT& room) const override;

 private:
  void paste();
  [[nodiscard]] bool isAllSelected() const;
  LRESULT compose(UINT message, WPARAM wParam, LPARAM lParam);
  void raiseChangeSinceLast();

  Look look_;
  bool composing_ = false;
  std::u16string raisedText_;  ///< while composing: the text of the last change that was raised
};

}  // namespace forms
