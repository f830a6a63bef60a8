// Screening: the result of the first screening of enrolled children. Children of one center are marked one by
// one into a pending batch, and one save writes the whole batch; nothing reaches the database before.
#pragma once

#include <string>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/form.h"
#include "base/controls/frame.h"
#include "base/controls/grid.h"
#include "base/controls/text_box.h"
#include "core/entry/key_filters.h"
#include "core/startup/module1.h"

namespace ovindra {

class frmscreened : public Form {
 public:
  explicit frmscreened(Module1& module);

 private:
  Button Command1{*this, "Command1", "&Add"};
  ComboBox Combo8{*this, "Combo8", "Programme", DropDownList};
  ComboBox Combo4{*this, "Combo4", "Type", DropDownList};
  ComboBox Combo5{*this, "Combo5", "Center Name", DropDownList};
  ComboBox Combo1{*this, "Combo1", "School Name", DropDownCombo, NoTyping};
  Button Command7{*this, "Command7", "&List", Disabled};
  DatePicker DTPicker1{*this, "DTPicker1", "Screening Date"};
  Button Command6{*this, "Command6", "..."};
  MonthView MonthView1{*this, "MonthView1", Hidden};
  ComboBox Combo2{*this, "Combo2", "Enroll No.", DropDownList};
  ComboBox Combo3{*this, "Combo3", "Screened By", DropDownList};
  Frame Frame2{*this, "Frame2", "Eye Condition"};
  OptionButton Option1{Frame2, "Option1", "Normal", On};
  OptionButton Option2{Frame2, "Option2", "Defected"};
  TextBox Text3{*this, "Text3", "Pre. Eye Ex.", Capitals};
  TextBox Text1{*this, "Text1", "F. Occupation", Capitals};
  TextBox Text2{*this, "Text2", "Card", Capitals};
  Frame Frame3{*this, "Frame3", "Do you know our VC?"};
  OptionButton Option4{Frame3, "Option4", "Yes", On};
  OptionButton Option3{Frame3, "Option3", "No"};
  TextBox Text4{*this, "Text4", "Screened By Name", Capitals};
  TextBox Text5{*this, "Text5", "Refer To", Capitals, Disabled};
  Button Command4{*this, "Command4", "Screene&d", Disabled};
  Button Command2{*this, "Command2", "&Save", Disabled};
  Button Command5{*this, "Command5", "Ca&ncel", Disabled};
  Frame Frame4{*this, "Frame4", "List of Screened Child"};
  Grid MSFlexGrid2{Frame4,
                   "MSFlexGrid2",
                   {"Enroll No.", "Child Name", "F/M Name", "Age", "Gender", "Class", "Screened By",
                    "Condition", "Pre Details", "Occupation", "Card", "VC", "ScrBy_Name", "VC Name"}};
  Frame Frame1{*this, "Frame1", "Child Details"};
  Grid MSFlexGrid1{Frame1, "MSFlexGrid1", {"", ""}};
  Button Command3{*this, "Command3", "&Close"};

  void OnLoad();
  void Add();
  void PickType();
  void LeaveType(bool& keep);
  void PickCenter();
  void List();
  void PickChild();
  void ChooseNormal();
  void ChooseDefected();
  void MarkScreened();
  void RemoveFromBatch();
  void Save();
  void Cancel();
  void OpenCalendar();
  void ClickDay();
  void PressInCalendar(KeyPress& press);

  void GetList();
  void GetBalenceEnroll();
  void GetScreenedBy();
  void GetDetails();
  bool CHECKDUPLICACY();
  bool Validation();
  void Screened();
  void SaveScreenedChild();
  std::string GetTypeCode();
  std::string GetConditionCode();
  void EmptyBox();

  SqlText WaitingAt(const std::string& center_code);
  const std::string& BatchCell(int column) const { return MSFlexGrid2.Cell(batch_row_, column); }
  void GoIdle();

  Connection& database() { return module_.ScreeningConnection; }

  Module1& module_;
  int batch_row_ = 0;
};

}  // namespace ovindra
