#include "masters/diagnosis.h"

#include "core/entry/lists.h"

namespace ovindra {
namespace {

constexpr Lookup kCategory{"select Category_Code from Category_Master where Category=", Match::kExact,
                           "Category_Code"};

}  // namespace

frmdiagmaster::frmdiagmaster(Module1& module) : MasterForm(module, "frmdiagmaster", "Diagnosis Master") {
  Use({.code = &Text1,
       .name = &Text2,
       .parent = &Combo1,
       .list = &MSFlexGrid1,
       .buttons = buttons_.ByStep(),
       .boxes = {&Text1, &Text2},
       .combos = {&Combo1},
       .entry = Entry::Alike({&Text2, &Combo1}),
       .first = &Combo1,
       .checks = {{&Combo1, "Select Category"}, {&Text2, "Enter Diagnosis Name"}},
       .tail = Tail::kEveryStep});
}

void frmdiagmaster::FillLists() {
  FillList(database(), sql("select Category from Category_Master order by Category"), "Category", Combo1);
}

void frmdiagmaster::View() {
  FillGrid(database(), sql("select * from vw_Diagnosis_Category order by category"),
           {"Code", "Diagnosis", "Category"}, MSFlexGrid1);
}

std::optional<SqlText> frmdiagmaster::SameRecords() {
  return sql("select * from Diagnosis_Master where Diagnosis_Name=", quoted(Text2));
}

SqlText frmdiagmaster::Insert() {
  const std::string category = CodeOf(database(), kCategory, Combo1);
  return sql("insert into Diagnosis_Master (Diagnosis_name,Category_Code) Values (", quoted(Text2), ",",
             bare(category), ")");
}

}  // namespace ovindra
