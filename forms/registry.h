#pragma once

#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

#include "forms/form.h"

namespace forms {

/// The forms that are loaded, each once, addressed by its class.
class Registry {
 public:
  static Registry& instance();

  [[nodiscard]] Form* find(std::type_index type) const;
  Form& add(std::type_index type, std::unique_ptr<Form> form);
  /// Forgets a form whose window has gone; the object goes once no handler runs any more.
  void retire(const Form& form);
  void purge();
  [[nodiscard]] std::vector<Form*> ownedBy(const Form& owner) const;
  [[nodiscard]] std::vector<Form*> all() const;

 private:
  std::unordered_map<std::type_index, std::unique_ptr<Form>> forms_;
  std::vector<std::unique_ptr<Form>> retired_;
};

/// The form of class `F`, loaded first where it is not.
template <class F>
F& single() {
  Registry& registry = Registry::instance();
  if (Form* loaded = registry.find(typeid(F))) return static_cast<F&>(*loaded);
  Form& form = registry.add(typeid(F), std::make_unique<F>());
  form.load();
  return static_cast<F&>(form);
}

template <class F>
bool isLoaded() {
  return Registry::instance().find(typeid(F)) != nullptr;
}

}  // namespace forms
