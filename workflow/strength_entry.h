// New format: how many boys and girls a school under a vision center has, class by class. One save makes the
// row of the school with the grand totals and a row for each class.
#pragma once

#include <string>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/form.h"
#include "base/controls/frame.h"
#include "base/controls/grid.h"
#include "base/controls/tabs.h"
#include "base/controls/text_box.h"
#include "core/entry/key_filters.h"
#include "core/startup/module1.h"

namespace ovindra {

class frmNew : public Form {
 public:
  explicit frmNew(Module1& module);

 private:
  TabControl SSTab1{*this, "SSTab1", {"School Entry"}};
  ComboBox Combo1{*this, "Combo1", "Select VC Name", DropDownList};
  TextBox Text1{*this, "Text1", "School Name", Capitals};
  ComboBox Combo2{*this, "Combo2", "Select VC Name", DropDownList};
  TextBox Text2{*this, "Text2", "Boys"};
  TextBox Text3{*this, "Text3", "Girls"};
  Button Command1{*this, "Command1", "Su&bmit"};
  Frame Frame4{*this, "Frame4", "Class Wise Strength"};
  Grid MSFlexGrid1{
      Frame4,
      "MSFlexGrid1",
      {"Class               ", "Boys                ", "Girls            ", "Total             "}};
  TextBox Text6{*this, "Text6", "G. Total"};
  TextBox Text5{*this, "Text5", ""};
  TextBox Text4{*this, "Text4", ""};
  TextBox Text7{*this, "Text7", "", Hidden};
  Button Command2{*this, "Command2", "&Save", Disabled};

  void OnLoad();
  void Submit();
  void Save();
  void SelectSchoolName();
  void SelectBoys();
  void SelectGirls();

  void EmptyTextBox();
  std::string GetVCID();
  bool RecordExists();
  void SaveNewInfo();
  void SaveClassRow(int row);

  Connection& database() { return module_.ScreeningConnection; }

  Module1& module_;
};

}  // namespace ovindra
