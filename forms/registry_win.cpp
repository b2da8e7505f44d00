#include "forms/registry.h"

#include "forms/exception_barrier.h"

namespace forms {

Registry& Registry::instance() {
  static Registry registry;
  return registry;
}

Form* Registry::find(std::type_index type) const {
  const auto found = forms_.find(type);
  return found == forms_.end() ? nullptr : found->second.get();
}

Form& Registry::add(std::type_index type, std::unique_ptr<Form> form) {
  return *forms_.emplace(type, std::move(form)).first->second;
}

void Registry::retire(const Form& form) {
  for (auto entry = forms_.begin(); entry != forms_.end(); ++entry) {
    if (entry->second.get() != &form) continue;
    retired_.push_back(std::move(entry->second));
    forms_.erase(entry);
    return;
  }
}

void Registry::purge() {
  if (ScopedHandler::depth() == 0) retired_.clear();
}

std::vector<Form*> Registry::ownedBy(const Form& owner) const {
  std::vector<Form*> owned;
  for (const auto& [type, form] : forms_) {
    if (GetWindow(form->handle(), GW_OWNER) == owner.handle()) owned.push_back(form.get());
  }
  return owned;
}

std::vector<Form*> Registry::all() const {
  std::vector<Form*> all;
  for (const auto& [type, form] : forms_) all.push_back(form.get());
  return all;
}

}  // namespace forms
