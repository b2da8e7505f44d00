#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"
#include "win32/handles.h"

namespace forms {

/// A menu that drops down over a form. Items are described once; their states may change. Only the
/// left mouse button and the keys choose.
class PopupMenu {
 public:
  /// One line: a separator where the caption is "-".
  struct Item {
    std::u16string caption;
    std::function<void()> onClick;
    bool enabled = true;
    bool checked = false;
  };

  explicit PopupMenu(std::u16string caption = {}) : caption_(std::move(caption)) {}

  /// The menu's own name, which a menu bar would show; dropped down by itself it shows none.
  [[nodiscard]] const std::u16string& caption() const { return caption_; }

  /// Adds an item at the end and returns its place, from 0.
  std::size_t add(const std::u16string& caption, std::function<void()> onClick = {});
  Item& item(std::size_t place) { return items_.at(place); }
  [[nodiscard]] const Item& item(std::size_t place) const { return items_.at(place); }
  [[nodiscard]] std::size_t count() const { return items_.size(); }

  /// Shows the menu with its top left corner at a screen point and waits until the user has chosen
  /// or left it. Returns the chosen item, or nullptr; its handler has not run yet. A click on
  /// `opener` that closes the menu does nothing further, so that the button that opened the menu
  /// closes it too.
  [[nodiscard]] const Item* choose(const Form& owner, POINT screen,
                                   const Widget* opener = nullptr) const;

 private:
  std::u16string caption_;
  std::vector<Item> items_;
};

}  // namespace forms
