#pragma once

#include "forms/tree_view.h"

namespace query {

/// The list in which the default dictionary is highlighted. With no default no node is highlighted,
/// not even while the list has the focus; the arrow keys, Home and End then enter it at its ends.
class DefaultList : public forms::TreeView {
 public:
  using TreeView::TreeView;

  /// Highlights node `number`, or none for 0.
  void show(std::size_t number);

 protected:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool enter(WPARAM key);
};

}  // namespace query
