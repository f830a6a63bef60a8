// The card on which a report shows how many of its children are boys and girls. The form that holds it fills
// and shows it.
#pragma once

#include "base/controls/buttons.h"
#include "base/controls/frame.h"
#include "base/controls/text_box.h"

namespace ovindra {

struct SexCount {
  explicit SexCount(Form& form) : Frame3(form, "Frame3", "Spectacle Report", Hidden) {}

  Frame Frame3;
  TextBox Text1{Frame3, "Text1", "Male"};
  TextBox Text2{Frame3, "Text2", "Female"};
  TextBox Text3{Frame3, "Text3", "Total"};
  Button Command6{Frame3, "Command6", "&OK"};
};

}  // namespace ovindra
