#include "masters/under_parent.h"

namespace ovindra {

UnderParent::UnderParent(Module1& module, const UnderParentWords& words)
    : MasterForm(module, words.form, words.caption), words_(words) {}

MasterForm::Master UnderParent::Table() {
  Master table;
  table.code = &Text1;
  table.name = &Text2;
  table.parent = &Combo1;
  table.list = &MSFlexGrid1;
  table.buttons = buttons_.ByStep();
  table.boxes = {&Text1, &Text2};
  table.combos = {&Combo1};
  table.entry = Entry::Alike({&Text2, &Combo1});
  table.first = &Text2;
  return table;
}

}  // namespace ovindra
