#pragma once

#include <gtest/gtest.h>

#include "forms/loaded_forms.h"
#include "tests/support/wait.h"
#include "tests/support/window/event_form.h"
#include "tests/support/window/injected_input.h"
#include "tests/support/window/message_boxes.h"
#include "tests/support/window/window_geometry.h"

namespace support {

/// Starts every test without any window of ours and ends it so. A message box that no test took
/// note of fails it; a menu that stays open is closed and fails it as well.
class WindowTest : public ::testing::Test {
 protected:
  WindowTest();
  ~WindowTest() override;

  void TearDown() override;

  /// Shows a form and waits until it has the foreground and all events of its opening are raised.
  template <class F>
  F& opened() {
    auto& form = forms::form<F>();
    form.show();
    awaitActive(form);
    return form;
  }

  /// Waits until `form` has the foreground; brings it there where the window manager does not.
  static void awaitActive(const forms::Form& form);

  /// Gives a form a size, in twips, that it has kept once no window manager answers any more.
  static void resize(forms::Form& form, int width, int height);

  MessageBoxes boxes;

 private:
  ModalPoller menuGuard_;
};

/// Unloads all forms of this thread.
void unloadAll();

}  // namespace support
