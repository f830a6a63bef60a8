#include "masters/diagnosis.h"

#include "core/entry/lists.h"

namespace ovindra {
namespace {

constexpr Lookup kCategory{"select Category_Code from Category_Master where Category=", Match::kExact,
                           "Category_Code"};

}  // namespace

frmdiagmaster::frmdiagmaster(Module1& module) : MasterForm(module, "frmdiagmaster", "Diagnosis Master") {
  Use({&Text1, &Text2, &MSFlexGrid1, buttons_.ByStep()},
      {.parent = &Combo1,
       .combos = {&Combo1},
       .entry = Entry::Alike({&Text2, &Combo1}),
       .rows = "select * from vw_Diagnosis_Category order by category",
       .fields = {"Code", "Diagnosis", "Category"},
       .same_name = "select * from Diagnosis_Master where Diagnosis_Name=",
       .first = &Combo1,
       .checks = {{&Combo1, "Select Category"}, {&Text2, "Enter Diagnosis Name"}},
       .tail = Tail::kEveryStep});
}

void frmdiagmaster::FillLists() {
  FillList(database(), sql("select Category from Category_Master order by Category"), "Category", Combo1);
}

SqlText frmdiagmaster::Insert() {
  const std::string category = CodeOf(database(), kCategory, Combo1);
  return sql("insert into Diagnosis_Master (Diagnosis_name,Category_Code) Values (", quoted(Text2), ",",
             bare(category), ")");
}

}  // namespace ovindra
