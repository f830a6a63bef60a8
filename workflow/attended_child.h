// Attended child: marks that a child has come to the hospital, with the hospital's record number typed by
// hand.
#pragma once

#include "base/controls/buttons.h"
#include "base/controls/form.h"
#include "base/controls/frame.h"
#include "base/controls/grid.h"
#include "base/controls/text_box.h"
#include "core/startup/module1.h"

namespace ovindra {

class frmattend : public Form {
 public:
  explicit frmattend(Module1& module);

 private:
  TextBox Text1{*this, "Text1", "Enter Enroll No.", Disabled};
  TextBox Text2{*this, "Text2", "Mr. No.", Disabled};
  Button Command1{*this, "Command1", "Add"};
  Button Command2{*this, "Command2", "Ca&ncel"};
  Frame Frame1{*this, "Frame1", "Child Details"};
  Grid MSFlexGrid1{Frame1, "MSFlexGrid1", {"", ""}};
  Button Command3{*this, "Command3", "&Close"};

  void AddOrSave();
  void Add();
  void Save();
  void Cancel();
  void PressInEnrollNo(KeyPress& press);
  void ShowDetails();

  Module1& module_;
};

}  // namespace ovindra
