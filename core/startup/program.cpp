#include "core/startup/program.h"

#include <algorithm>

#include "base/text/utf8.h"

namespace ovindra {

Program::Program(Machine& machine, DataSources& data_sources, FormList forms)
    : module_(machine, data_sources, *this), forms_(std::move(forms)) {}

Program::~Program() = default;

void Program::Start() {
  Perform([this] { Show("frmflash"); });
}

void Program::Perform(const std::function<void()>& action) {
  if (has_ended_) return;
  ++depth_;
  try {
    action();
  } catch (const RuntimeError& error) {
    EndWith(error);
  }
  if (--depth_ == 0) FinishAction();
}

void Program::UserClose(Form& form) {
  bool keep = false;
  form.query_close.Fire(keep);
  if (!keep && !has_ended_) Unload(form);
}

Form* Program::Made(std::string_view form_name) {
  if (Form* form = OpenForm(form_name)) return form;
  const auto entry = std::find_if(forms_.begin(), forms_.end(), [&](const FormEntry& candidate) {
    return SameWithoutCase(candidate.name, form_name);
  });
  if (entry == forms_.end()) return nullptr;
  Form* form = open_.emplace_back(entry->make(module_)).get();
  form->HostedBy(*this);
  if (observer_ != nullptr) observer_->FormMade(*form);
  form->load.Fire();
  return form;
}

void Program::Show(std::string_view form_name) {
  Form* form = Made(form_name);
  if (form == nullptr) return;
  if (observer_ != nullptr) observer_->FormShown(*form);
  form->activate.Fire();
}

void Program::Unload(Form& form) {
  const auto found = std::find_if(open_.begin(), open_.end(),
                                  [&](const auto& candidate) { return candidate.get() == &form; });
  if (found == open_.end()) return;
  unloaded_.push_back(std::move(*found));
  open_.erase(found);
  if (observer_ != nullptr) observer_->FormUnloaded(form);
  form.unload.Fire();
}

void Program::End() {
  EndWith({});
}

Form* Program::OpenForm(std::string_view name) const {
  const auto found = std::find_if(open_.begin(), open_.end(),
                                  [&](const auto& form) { return SameWithoutCase(form->name(), name); });
  return found == open_.end() ? nullptr : found->get();
}

std::vector<Form*> Program::OpenForms() const {
  std::vector<Form*> forms;
  for (const auto& form : open_) forms.push_back(form.get());
  return forms;
}

void Program::EndWith(std::optional<RuntimeError> error) {
  if (has_ended_) return;
  has_ended_ = true;
  end_error_ = std::move(error);
}

void Program::FinishAction() {
  for (Form* form : OpenForms()) form->SettleFocus();
  unloaded_.clear();
  if (!has_ended_ && open_.empty()) EndWith({});
  if (observer_ == nullptr) return;
  observer_->ActionEnded();
  if (has_ended_) observer_->Ended(end_error_);
}

}  // namespace ovindra
