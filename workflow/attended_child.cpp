#include "workflow/attended_child.h"

#include "core/entry/child_details.h"
#include "core/entry/standard_dialogs.h"

namespace ovindra {
namespace {

constexpr const char* kAdd = "Add";
constexpr const char* kSave = "Save";

}  // namespace

frmattend::frmattend(Module1& module) : Form(module.machine, "frmattend", "Attended Child"), module_(module) {
  Plain(Command1.click, &frmattend::AddOrSave);
  Plain(Command2.click, &frmattend::Cancel);
  Plain(Command3.click, &frmattend::Close);
  Guarded(Text1.key_press, &frmattend::PressInEnrollNo);
}

void frmattend::AddOrSave() {
  if (Command1.caption() == kAdd) {
    Add();
  } else {
    Guard([this] { Save(); });
  }
}

void frmattend::Add() {
  for (TextBox* box : {&Text1, &Text2}) {
    box->SetText("");
    box->SetEnabled(true);
  }
  Text1.SetFocus();
  Command1.SetCaption(kSave);
}

void frmattend::Save() {
  module_.ScreeningConnection.Execute(
      sql("Update Enroll_Master set Attend='Y',Mr_NO=", quoted(Text2), " where Enroll_no=", quoted(Text1)));
  Tell(machine(), {"Updated Successfully !", ""});
  Command1.SetCaption(kAdd);
  Text1.SetText("");
  Text2.SetText("");
}

void frmattend::Cancel() {
  Command1.SetCaption(kAdd);
  Text1.SetEnabled(false);
  Text2.SetEnabled(false);
}

void frmattend::PressInEnrollNo(KeyPress& press) {
  if (press.character == kEnterKey && !Text1.trimmed().empty()) ShowDetails();
}

void frmattend::ShowDetails() {
  ShowChildDetails(module_.ScreeningConnection, Text1.text(), MSFlexGrid1);
}

}  // namespace ovindra
