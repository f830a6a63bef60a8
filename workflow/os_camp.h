// The OS camp record: what the surgeon finds when a school's children are seen at a camp. It stands beside
// the assistant's examination, in tables and under numbers of its own, and is never corrected.
#pragma once

#include "workflow/examination_form.h"

namespace ovindra {

class Form2 : public ExaminationForm {
 public:
  explicit Form2(Module1& module);

 protected:
  void FillPlaces() override;
  SqlText WaitingChildren() override;
  SqlText RecordInsert() override;
  void AfterSave() override;
  void EmptyBox() override;

 private:
  Button Command9{*this, "Command9", "&Close"};

  void GetScName();
  std::string GetSankulCode();
  std::string GetSchoolCode();
};

}  // namespace ovindra
