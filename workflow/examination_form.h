// The examination unit: refraction of both eyes, eye condition, diagnoses and treatments of one child, as the
// ophthalmic assistant's record and the surgeon's OS camp share it. What differs between the two stands in a
// table (ExaminationKind) and in the few procedures that each overrides.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/form.h"
#include "base/controls/frame.h"
#include "base/controls/grid.h"
#include "base/controls/list_box.h"
#include "base/controls/shown.h"
#include "base/controls/text_box.h"
#include "core/entry/key_filters.h"
#include "core/entry/running_number.h"
#include "core/startup/module1.h"

namespace ovindra {

/// Whether the place of the examination is chosen by its programme too.
enum class PlaceChoice { kWithProgramme, kWithoutProgramme };

/// Where one kind of examination is written, and what it says and asks differently.
struct ExaminationKind {
  std::string_view form_name;
  std::string_view caption;
  PlaceChoice place_choice;
  std::string_view place_caption;
  const RunningNumber& counter;
  Fragment insert_diagnosis;
  Fragment insert_treatment;
  Fragment insert_plain_treatment;
  std::string_view nobody_waits;
};

class ExaminationForm : public Form {
 protected:
  ExaminationForm(Module1& module, const ExaminationKind& kind);

  Button Command6{*this, "Command6", "&Add"};
  std::unique_ptr<ComboBox> Combo14;  // the programme, where the kind has one
  ComboBox Combo12{*this, "Combo12", "Type", DropDownList};
  ComboBox Combo1;
  ComboBox Combo13{*this, "Combo13", "School Name", DropDownCombo, NoTyping};
  Button Command12{*this, "Command12", "&List", Disabled};
  ComboBox Combo2{*this, "Combo2", "Select Enroll No.", DropDownList};
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {"", ""}};
  DatePicker DTPicker1{*this, "DTPicker1", "Date"};
  Button Command1{*this, "Command1", ""};
  MonthView MonthView1{*this, "MonthView1", Hidden};
  Frame Frame8{*this, "Frame8", "Eye Condition"};
  OptionButton Option3{Frame8, "Option3", "Normal"};
  OptionButton Option4{Frame8, "Option4", "Defected", On};
  Frame Frame4{*this, "Frame4", "Right Eye"};
  ComboBox Combo7{Frame4, "Combo7", "Sph.", DropDownCombo};
  ComboBox Combo8{Frame4, "Combo8", "Cyl.", DropDownCombo};
  ComboBox Combo9{Frame4, "Combo9", "Axis", DropDownCombo};
  ComboBox Combo10{Frame4, "Combo10", "VA", DropDownCombo};
  Frame Frame3{*this, "Frame3", "Left Eye"};
  ComboBox Combo3{Frame3, "Combo3", "Sph.", DropDownCombo};
  ComboBox Combo4{Frame3, "Combo4", "Cyl.", DropDownCombo};
  ComboBox Combo5{Frame3, "Combo5", "Axis", DropDownCombo};
  ComboBox Combo6{Frame3, "Combo6", "VA", DropDownCombo};
  ComboBox Combo11{*this, "Combo11", "Select Category", DropDownList};
  ListBox List3{*this, "List3", "Select Diagnosis"};
  Frame Frame5{*this, "Frame5", ""};
  Button Command3{Frame5, "Command3", ">"};
  Button Command2{Frame5, "Command2", "<"};
  ListBox List1{*this, "List1", "Selected Diagnosis"};
  ListBox List4{*this, "List4", "Select Treatment"};
  Frame Frame6{*this, "Frame6", ""};
  Button Command4{Frame6, "Command4", ">"};
  Button Command5{Frame6, "Command5", "<"};
  ListBox List2{*this, "List2", "Selected Treatment"};
  Label Label19{*this, "Label19", "Spectacle", Hidden};
  Frame Frame7{*this, "Frame7", "Select Paid/Free", Hidden};
  OptionButton Option1{Frame7, "Option1", "Paid"};
  OptionButton Option2{Frame7, "Option2", "Free"};
  Button Command10{Frame7, "Command10", "&Ok"};
  Button Command11{Frame7, "Command11", "Cancel"};
  Button Command8{*this, "Command8", "&Save", Disabled};
  Button Command7{*this, "Command7", "Ca&ncel", Disabled};

  /// Fills the lists of the place.
  virtual void FillPlaces() = 0;
  /// The statement that finds the children to examine; an empty one where no place can be told.
  virtual SqlText WaitingChildren() = 0;
  /// The statement that writes the record under its number.
  virtual SqlText RecordInsert() = 0;
  /// The state of the form after a save.
  virtual void AfterSave() = 0;
  virtual void EmptyBox();

  void OnLoad();
  void Add();
  void List();
  void PickChild();
  void PickCategory();
  void ChooseDefected();
  void OpenCalendar();
  void Save();
  void Cancel();

  void GetList();
  void GetDetails();
  void GetSph();
  void GetCylendrical();
  void GetAxis();
  void GetVA();
  void GetCategory();
  void GetDiagnosis();
  void GetTreatment();
  bool Validation();
  std::string GetCategoryCode();
  std::string GetDiagCode(int index);
  std::string GetTreatmentCode(int index);
  void GetRecordNo();
  void IncreamentRno();

  /// The optical lists, the categories and the treatments.
  void FillValueLists();
  void ResetSpectacleLabel() { Label19.SetCaption("Spectacle"); }
  void AddToSpectacleLabel(std::string_view ending);

  /// A statement for each selected diagnosis under the given number.
  void SaveDiagnoses(const std::string& record_no);
  /// The statement for one selected treatment; true when it carried Paid or Free.
  bool SaveTreatment(const std::string& record_no, int index);

  /// "N" or "D" by the options.
  std::string_view EyeCondition() const { return Option4.on() ? "D" : "N"; }
  /// The eight refraction values, left eye first, as they stand in an INSERT.
  SqlText RefractionValues() const;

  Connection& database() { return module_.ScreeningConnection; }
  const std::string& RecordNo() const { return record_no_; }
  Module1& module() { return module_; }

 private:
  void Wire();
  void SaveChildRecord();
  void TakeCalendarDay();
  void PressInCalendar(KeyPress& press);
  void SelectDiagnosis();
  void DeselectDiagnosis();
  void PressInDiagnoses(KeyPress& press);
  void PressInSelectedDiagnoses(KeyPress& press);
  void SelectTreatment();
  void DeselectTreatment();
  void PressInTreatments(KeyPress& press);
  void PressInSelectedTreatments(KeyPress& press);
  void AcceptPaidOrFree();
  void CancelPaidOrFree();
  void AskPaidOrFree();
  void PreferFree();

  Module1& module_;
  const ExaminationKind& kind_;
  std::string record_no_;
};

}  // namespace ovindra
