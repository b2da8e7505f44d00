#include "forms/loaded_forms.h"

#include "forms/exception_barrier.h"

namespace forms {

LoadedForms& LoadedForms::instance() {
  static LoadedForms forms;
  return forms;
}

Form* LoadedForms::find(std::type_index type) const {
  const auto found = forms_.find(type);
  return found == forms_.end() ? nullptr : found->second.get();
}

Form& LoadedForms::add(std::type_index type, std::unique_ptr<Form> form) {
  return *forms_.emplace(type, std::move(form)).first->second;
}

void LoadedForms::retire(const Form& form) {
  for (auto entry = forms_.begin(); entry != forms_.end(); ++entry) {
    if (entry->second.get() != &form) continue;
    retired_.push_back(std::move(entry->second));
    forms_.erase(entry);
    return;
  }
}

void LoadedForms::purge() {
  if (ScopedHandler::depth() == 0) retired_.clear();
}

std::vector<Form*> LoadedForms::ownedBy(const Form& owner) const {
  std::vector<Form*> owned;
  for (const auto& [type, form] : forms_) {
    if (GetWindow(form->handle(), GW_OWNER) == owner.handle()) owned.push_back(form.get());
  }
  return owned;
}

std::vector<Form*> LoadedForms::all() const {
  std::vector<Form*> all;
  for (const auto& [type, form] : forms_) all.push_back(form.get());
  return all;
}

}  // namespace forms
