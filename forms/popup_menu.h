#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"
#include "win32/handles.h"

namespace forms {

/// A menu that drops down over a form. Items are described once; their states may change between
/// two calls of choose. Only the left mouse button and the keys choose. User-interface thread only.
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

  /// Adds an item at the end and returns its index, from 0. "&" marks a key as in all menus.
  std::size_t add(const std::u16string& caption, std::function<void()> onClick = {});
  /// Throw std::out_of_range if there is no such item. add() invalidates the reference.
  Item& item(std::size_t index) { return items_.at(index); }
  [[nodiscard]] const Item& item(std::size_t index) const { return items_.at(index); }
  [[nodiscard]] std::size_t count() const { return items_.size(); }

  /// Shows the menu with its top left corner at a screen point (pixels) and runs a modal loop until
  /// the user has chosen or left it. Returns the chosen item, otherwise nullptr; its handler has
  /// not run yet. A click on `opener` that closes the menu does nothing further, so that the button
  /// that opened the menu closes it too.
  [[nodiscard]] const Item* choose(const Form& owner, POINT screen,
                                   const Widget* opener = nullptr) const;

 private:
  std::u16string caption_;
  std::vector<Item> items_;
};

}  // namespace forms
