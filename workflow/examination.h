// The examination record: what the ophthalmic assistant finds in a child that screening has marked as
// defected. A record can be brought back by the child's enroll number and corrected.
#pragma once

#include "workflow/examination_form.h"

namespace ovindra {

class frmchildrecord : public ExaminationForm {
 public:
  explicit frmchildrecord(Module1& module);

 protected:
  void FillPlaces() override;
  SqlText WaitingChildren() override;
  SqlText RecordInsert() override;
  void AfterSave() override;

 private:
  TextBox Text1{*this, "Text1", ""};
  Button Command13{*this, "Command13", "&Edit"};
  Button Command14{*this, "Command14", "&Update", Disabled};
  Button Command9{*this, "Command9", "&Close"};

  void PickType();
  void PickCenter();
  void OpenCalendarAtDate();
  void Edit();
  void PressInEnrollNo(KeyPress& press);
  void Update();

  void GetDetailsForUpdate();
  void ShowRecord(std::string_view enroll_no);
  void ShowRefraction(const Recordset& record);
  void ShowDiagnoses(std::string_view enroll_no);
  void ShowTreatments(std::string_view enroll_no);
  void UpdateChildRecord();

  std::string edit_record_no_;
  std::string edit_condition_;
};

}  // namespace ovindra
