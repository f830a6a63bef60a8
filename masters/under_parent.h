// A master whose names each stand under a parent that is picked from a list: code, name, parent, and the list
// of all three. Forms that have just these controls derive from it and add their statements.
#pragma once

#include <array>
#include <string_view>

#include "masters/master_form.h"

namespace ovindra {

/// What is written on such a form.
struct UnderParentWords {
  std::string_view form;
  std::string_view caption;
  std::string_view code;
  std::string_view name;
  std::string_view parent;
  std::array<std::string_view, 3> heads;
};

class UnderParent : public MasterForm {
 protected:
  UnderParent(Module1& module, const UnderParentWords& words);

  /// Takes the form's table, which needs to tell nothing of the controls.
  void Use(Master master);

  const UnderParentWords& words_;
  TextBox Text1{*this, "Text1", words_.code, Disabled};
  TextBox Text2{*this, "Text2", words_.name, Capitals, Disabled};
  ComboBox Combo1{*this, "Combo1", words_.parent, DropDownList, Disabled};
  MasterButtons buttons_{*this};
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {words_.heads[0], words_.heads[1], words_.heads[2]}};
};

}  // namespace ovindra
