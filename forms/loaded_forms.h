#pragma once

#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

#include "forms/form.h"

namespace forms {

/// Owns the forms that are loaded, at most one of each class. User-interface thread only.
class LoadedForms {
 public:
  static LoadedForms& instance();

  /// Returns the loaded form of a class, otherwise nullptr.
  [[nodiscard]] Form* find(std::type_index type) const;
  /// Takes ownership of a form; there must be none of that class.
  Form& add(std::type_index type, std::unique_ptr<Form> form);
  /// Removes a form whose window was destroyed (called by Form); the object lives until purge,
  /// since one of its handlers may be running.
  void retire(const Form& form);
  /// Destroys the removed forms if no handler is running. Called by the message loop after each
  /// message.
  void purge();
  /// Returns the loaded forms whose owner window is `owner`.
  [[nodiscard]] std::vector<Form*> ownedBy(const Form& owner) const;
  [[nodiscard]] std::vector<Form*> all() const;

 private:
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

}  // namespace forms
