#pragma once

#include <vector>

#include "forms/widget.h"

namespace forms {

/// A flat list of nodes, numbered from 1. It keeps the nodes' texts itself and lets the control ask
/// for them: new texts cost one repaint, however many they are.
class TreeView : public Widget {
 public:
  TreeView(Form& form, const WidgetBox& box);

  [[nodiscard]] std::size_t count() const { return nodes_.size(); }
  void add(const std::u16string& text);
  void remove(std::size_t number);
  void setText(std::size_t number, const std::u16string& text);
  [[nodiscard]] const std::u16string& text(std::size_t number) const;

  /// Selects a node from code, which is no choice of the user's, and brings it into view.
  void select(std::size_t number);
  /// Number of the selected node; 0 for none.
  [[nodiscard]] std::size_t selected() const;

  /// Shows at once what changed.
  void refresh();

  /// The user chose a node: a click on it (the selected one included), the highlight moved to it
  /// with the keys, or Enter on it.
  Event<std::size_t> onNodeClick;

  LRESULT notify(const NMHDR& header) override;

  /// While one lives, the control does not repaint; then once.
  class RepaintHeld {
   public:
    explicit RepaintHeld(const TreeView& tree);
    ~RepaintHeld();
    RepaintHeld(const RepaintHeld&) = delete;
    RepaintHeld& operator=(const RepaintHeld&) = delete;

   private:
    HWND window_;
  };

 private:
  struct Node {
    HTREEITEM item = nullptr;
    std::u16string text;
  };
  [[nodiscard]] std::size_t numberOf(HTREEITEM item) const;
  void giveText(NMTVDISPINFOW& info) const;
  void clicked();

  std::vector<Node> nodes_;
};

}  // namespace forms
