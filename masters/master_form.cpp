#include "masters/master_form.h"

#include <utility>

#include "base/text/utf8.h"
#include "core/entry/lists.h"
#include "core/entry/standard_dialogs.h"

namespace ovindra {
namespace {

void EnableAll(const std::vector<Control*>& controls, bool enabled) {
  for (Control* control : controls) control->SetEnabled(enabled);
}

}  // namespace

MasterForm::MasterForm(Module1& module, std::string_view name, std::string_view caption)
    : Form(module.machine, name, caption), module_(module) {}

void MasterForm::Use(const Controls& controls, Master master) {
  controls_ = controls;
  master_ = std::move(master);
  const auto wire = [this](Event<>& event, void (MasterForm::*step)()) {
    if (master_.tail == Tail::kEveryStep) {
      Guarded(event, step);
    } else {
      Plain(event, step);
    }
  };
  const StepButtons& buttons = controls_.buttons;
  wire(buttons.add->click, &MasterForm::Add);
  Guarded(buttons.save->click, &MasterForm::Save);
  wire(buttons.cancel->click, &MasterForm::Cancel);
  wire(buttons.view->click, &MasterForm::ShowList);
  wire(buttons.close->click, &MasterForm::Close);
  wire(controls_.list->click, &MasterForm::ShowRow);
  wire(controls_.list->cell_moved, &MasterForm::ShowRow);
}

void MasterForm::OnLoad() {
  controls_.list->SetRows(2);
  EmptyBox();
}

void MasterForm::Add() {
  EmptyBox();
  EnableAll(master_.entry.add, true);
  controls_.buttons.cancel->SetEnabled(true);
  controls_.buttons.save->SetEnabled(true);
  controls_.buttons.add->SetEnabled(false);
  FillLists();
  Control& first = master_.first == nullptr ? *controls_.name : *master_.first;
  first.SetFocus();
}

void MasterForm::Save() {
  if (Validation()) return;
  if (CheckPairacy()) {
    TellDuplicate(machine());
    EndEntry();
    return;
  }
  const SqlText insert = Insert();
  if (AskToSave(machine())) {
    Store(insert);
    EndEntry();
    TellSaved(machine());
  }
  // A No throws the entry away as a Yes does. The fields stay enabled, and the list is not read again.
  EndEntry();
}

bool MasterForm::Validation() {
  for (const Check& check : master_.checks) {
    if (!check.field->trimmed().empty()) continue;
    Tell(machine(), {std::string(check.message), "OVD", MessageIcon::kCritical});
    check.field->SetFocus();
    return true;
  }
  return false;
}

bool MasterForm::CheckPairacy() {
  return !master_.same_name.text().empty() && !database().Execute(SameRecords()).Eof();
}

void MasterForm::Store(const SqlText& insert) {
  database().Execute(insert);
  // A statement of its own: when it fails the record stays, and the next save reads the same code.
  if (master_.counter != nullptr) Increment(database(), *master_.counter);
}

void MasterForm::ShowList() {
  View();
  OfferAdd();
  EnableAll(master_.entry.view, false);
  controls_.list->SetFocus();
}

void MasterForm::View() {
  FillGrid(database(), sql(master_.rows), master_.fields, *controls_.list);
}

void MasterForm::ShowRow() {
  controls_.code->SetText(RowText(0));
  controls_.name->SetText(RowText(1));
  if (master_.parent != nullptr) ShowOnly(*master_.parent, RowText(2));
  EndShownRow();
}

void MasterForm::EndShownRow() {
  OfferAdd();
  EnableAll(master_.entry.row, false);
}

void MasterForm::Cancel() {
  OfferAdd();
  EnableAll(master_.entry.cancel, false);
  EmptyBox();
}

void MasterForm::EmptyBox() {
  controls_.code->SetText("");
  controls_.name->SetText("");
  for (TextBox* box : master_.more_boxes) box->SetText("");
  for (ComboBox* combo : master_.combos) combo->Clear();
}

void MasterForm::EndEntry() {
  EmptyBox();
  OfferAdd();
}

void MasterForm::OfferAdd() {
  controls_.buttons.add->SetEnabled(true);
  controls_.buttons.save->SetEnabled(false);
  controls_.buttons.cancel->SetEnabled(false);
}

void MasterForm::TrimName() {
  controls_.name->SetText(std::string(controls_.name->trimmed()));
}

void MasterForm::TrimNameToCapitals() {
  std::string capitals;
  for (char32_t character : Characters(controls_.name->trimmed()))
    AppendCharacter(capitals, UpperCase(character));
  controls_.name->SetText(capitals);
}

std::string MasterForm::CodeOr(std::string_view otherwise, const Lookup& lookup, const TextControl& name) {
  const Recordset rows = database().Execute(sql(lookup.statement, quoted(name)));
  return rows.Eof() ? std::string(otherwise) : Trim(rows[lookup.field]);
}

std::string_view MasterForm::RowText(int column) const {
  return Trim(std::string_view(controls_.list->Cell(controls_.list->row(), column)));
}

void ShowOnly(ComboBox& list, std::string_view text) {
  list.Clear();
  list.AddItem(text);
  list.SetListIndex(0);
}

}  // namespace ovindra
