// The report sheet as a control of a form: so far its place on the form alone.
#pragma once

#include "base/controls/control.h"

namespace ovindra {

class ReportSheet : public Control {
 public:
  ReportSheet(Container& container, std::string_view name) : Control(container, name, "") {}
};

}  // namespace ovindra
