// The report sheet: the workbook that a report is written into, shown to the person as it stands.
#pragma once

#include "base/controls/control.h"
#include "base/workbook/workbook.h"

namespace ovindra {

class ReportSheet : public Control {
 public:
  ReportSheet(Container& container, std::string_view name) : Control(container, name, "") {}

  const Workbook& workbook() const { return workbook_; }

  /// The workbook for changes, which are shown when the action has ended.
  Workbook& Edit() {
    Changed(Aspect::kItems);
    return workbook_;
  }

 private:
  Workbook workbook_;
};

}  // namespace ovindra
