#include "tools/driver/world/world.h"

#include <algorithm>

#include "base/text/utf8.h"

namespace ovindra::driver {
namespace {

constexpr std::string_view kMainWindow = "MDIForm1";

/// The windows that come before the main window or are it.
bool StandsAlone(std::string_view form) {
  constexpr std::string_view kAlone[] = {"frmflash", "frmlogin", kMainWindow};
  return std::any_of(std::begin(kAlone), std::end(kAlone),
                     [&](std::string_view alone) { return SameWithoutCase(alone, form); });
}

}  // namespace

World::World(FormList forms, DatabaseMaker make_database, Player& player, Trace& trace)
    : forms_(std::move(forms)),
      player_(player),
      trace_(trace),
      databases_(std::move(make_database), trace),
      machine_(player, trace) {
  player_.EnterWorld(*this);
}

World::~World() {
  DropProgram();
  player_.LeaveWorld();
}

Program& World::program() {
  if (program_ != nullptr) return *program_;
  MakeProgram();
  Module1& module = program_->module();
  try {
    if (databases_.IsThere(DatabaseName::kScreening)) module.ScreeningConnection.Open(databases_, "DSN=ZQR");
    if (databases_.IsThere(DatabaseName::kHospital)) module.HospitalConnection.Open(databases_, "DSN=ward");
  } catch (const RuntimeError& error) {
    ShowErrorTail(module.machine, error);
  }
  return *program_;
}

void World::StartProgram() {
  DropProgram();
  was_started_ = true;
  MakeProgram();
  program_->Start();
}

void World::SignIn(std::string name) {
  program().module().CurrentUserName = std::move(name);
}

void World::Disconnect(DatabaseName name) {
  databases_.TakeAway(name);
  if (!HasProgram()) return;
  Module1& module = program_->module();
  (name == DatabaseName::kScreening ? module.ScreeningConnection : module.HospitalConnection).Close();
}

bool World::Open(std::string_view form) {
  const bool is_known = std::any_of(forms_.begin(), forms_.end(), [&](const FormEntry& entry) {
    return SameWithoutCase(entry.name, form);
  });
  if (!is_known) return false;
  if (!StandsAlone(form)) BringUpMainWindow();
  program().Perform([&] { program().Show(form); });
  return true;
}

void World::BringUpMainWindow() {
  if (FindForm(kMainWindow) == nullptr) program().Perform([&] { program().Show(kMainWindow); });
}

Form* World::current_form() const {
  const bool has_none = !HasProgram() || program_->has_ended() || turned_to_.empty();
  return has_none ? nullptr : turned_to_.back();
}

void World::TurnTo(Form& form) {
  std::erase(turned_to_, &form);
  turned_to_.push_back(&form);
}

Form* World::FindForm(std::string_view form) const {
  return HasProgram() && !program_->has_ended() ? program_->OpenForm(form) : nullptr;
}

Control* World::Find(const ControlName& name) const {
  const Form* form = FindForm(name.form);
  return form == nullptr ? nullptr : form->Find(name.control);
}

void World::BeginAction() {
  databases_.ForgetStatements();
  machine_.ForgetPapers();
}

void World::FormMade(Form& form) {
  if (ProgramObserver* observer = player_.program_observer()) observer->FormMade(form);
}

void World::FormShown(Form& form) {
  TurnTo(form);
  if (ProgramObserver* observer = player_.program_observer()) observer->FormShown(form);
}

void World::FormUnloaded(Form& form) {
  std::erase(turned_to_, &form);
  if (ProgramObserver* observer = player_.program_observer()) observer->FormUnloaded(form);
}

void World::ActionEnded() {
  if (ProgramObserver* observer = player_.program_observer()) observer->ActionEnded();
}

void World::Ended(const std::optional<RuntimeError>& error) {
  if (ProgramObserver* observer = player_.program_observer()) observer->Ended(error);
}

void World::MakeProgram() {
  program_ = std::make_unique<Program>(machine_.services(), databases_, forms_);
  program_->Observe(this);
  player_.ProgramMade(*program_);
}

void World::DropProgram() {
  if (!HasProgram()) return;
  player_.ProgramGone();
  turned_to_.clear();
  program_.reset();
}

}  // namespace ovindra::driver
