#include "masters/under_parent.h"

#include <utility>

namespace ovindra {

UnderParent::UnderParent(Module1& module, const UnderParentWords& words)
    : MasterForm(module, words.form, words.caption), words_(words) {}

void UnderParent::Use(Master master) {
  master.parent = &Combo1;
  master.combos = {&Combo1};
  master.entry = Entry::Alike({&Text2, &Combo1});
  MasterForm::Use({&Text1, &Text2, &MSFlexGrid1, buttons_.ByStep()}, std::move(master));
}

}  // namespace ovindra
