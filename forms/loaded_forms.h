#pragma once

#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

#include "forms/form.h"

/// The forms that are loaded, and the message loop that serves them. User-interface thread only.
namespace forms {

/// Owns the forms that are loaded, at most one of each class.
class LoadedForms {
 public:
  static LoadedForms& instance();

  /// Returns the loaded form of a class, otherwise nullptr.
  [[nodiscard]] Form* find(std::type_index type) const;
  /// Takes ownership of a form; there must be none of that class. Once its window is destroyed the
  /// form is no longer found; the object lives until purge, since one of its handlers may be
  /// running.
  Form& add(std::type_index type, std::unique_ptr<Form> form);
  /// Destroys the forms whose windows were destroyed, if no handler is running. Called by the
  /// message loop after each message.
  void purge();

 private:
  LoadedForms();
  void retire(std::type_index type);

  std::unordered_map<std::type_index, std::unique_ptr<Form>> forms_;
  std::vector<std::unique_ptr<Form>> retired_;
};

/// Returns the form of class `F`; creates and loads it first if it is not loaded. Throws what the
/// constructor of `F` throws; an error in Form_Load is reported instead.
template <class F>
F& form() {
  LoadedForms& forms = LoadedForms::instance();
  if (Form* loaded = forms.find(typeid(F))) return static_cast<F&>(*loaded);
  Form& added = forms.add(typeid(F), std::make_unique<F>());
  added.load();
  return static_cast<F&>(added);
}

/// Returns whether the form of class `F` is loaded; never loads it.
template <class F>
bool isLoaded() {
  return LoadedForms::instance().find(typeid(F)) != nullptr;
}

/// Handles every message that is in the queue, and returns. Leaves WM_QUIT to the message loop, and
/// mouse and keyboard to a modal loop of the system's while one runs: that of a menu, a message
/// box, a window that is moved or sized, a text that is dragged out of a box.
void doEvents();

/// Runs the message loop until WM_QUIT and returns its exit code.
int runMessageLoop();

}  // namespace forms
