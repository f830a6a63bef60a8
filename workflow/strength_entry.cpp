#include "workflow/strength_entry.h"

#include "core/entry/lists.h"
#include "core/entry/standard_dialogs.h"
#include "core/text/text.h"

namespace ovindra {
namespace {

constexpr const char* kClasses[] = {"1", "2", "3",  "4",  "5",  "6",   "7",
                                    "8", "9", "10", "11", "12", "LKG", "UKG"};

/// The total box becomes its number plus the given one.
void AddTo(TextBox& total, double count) {
  total.SetText(NumberText(Val(total.text()) + count));
}

}  // namespace

frmNew::frmNew(Module1& module) : Form(module.machine, "frmNew", "New Format"), module_(module) {
  Plain(load, &frmNew::OnLoad);
  Plain(Text1.got_focus, &frmNew::SelectSchoolName);
  Plain(Text2.got_focus, &frmNew::SelectBoys);
  Plain(Text3.got_focus, &frmNew::SelectGirls);
  Plain(Command1.click, &frmNew::Submit);
  Guarded(Command2.click, &frmNew::Save);
}

void frmNew::OnLoad() {
  EmptyTextBox();
  FillList(database(), sql("Select VC_Name from Vision_Center order by VC_Name"), "VC_Name", Combo1);
  for (const char* school_class : kClasses) Combo2.AddItem(school_class);
}

void frmNew::SelectSchoolName() {
  Text1.SelectAll();
}

void frmNew::SelectBoys() {
  Text2.SelectAll();
}

void frmNew::SelectGirls() {
  Text3.SelectAll();
}

void frmNew::Submit() {
  const double boys = Val(Text2.text());
  const double girls = Val(Text3.text());
  MSFlexGrid1.AddRow({std::string(Combo2.trimmed()), std::string(Text2.trimmed()),
                      std::string(Text3.trimmed()), NumberText(boys + girls)});
  AddTo(Text6, boys);
  AddTo(Text5, girls);
  AddTo(Text4, boys + girls);
  Text2.SetText("");
  Text3.SetText("");
  Combo2.SetListIndex(Combo2.list_index() + 1);
  Command2.SetEnabled(true);
  Text2.SetFocus();
}

void frmNew::Save() {
  if (RecordExists()) {
    Tell(machine(), {"Record Already Exist", "Duplicate !", MessageIcon::kExclamation});
    return;
  }
  if (Text1.trimmed().empty()) {
    Tell(machine(), {"Enter School Name", "Null not allowed !", MessageIcon::kInformation});
    Text1.SetFocus();
    return;
  }
  if (!AskToSave(machine())) return;
  SaveNewInfo();
  for (int row = MSFlexGrid1.fixed_rows(); row < MSFlexGrid1.rows(); ++row) SaveClassRow(row);
  TellSaved(machine());
  EmptyTextBox();
  Text1.SetFocus();
}

void frmNew::EmptyTextBox() {
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6}) box->SetText("");
  MSFlexGrid1.SetRows(MSFlexGrid1.fixed_rows());
}

std::string frmNew::GetVCID() {
  return Trim(database().Execute(
      sql("Select VC_ID from Vision_Center where VC_Name=", quoted(Combo1.text())))["VC_ID"]);
}

bool frmNew::RecordExists() {
  const std::string center = GetVCID();
  return !database()
              .Execute(sql("Select * from NewInfo where VC_ID=", quoted(center),
                           " and School_Name=", quoted(Text1)))
              .Eof();
}

void frmNew::SaveNewInfo() {
  const std::string center = GetVCID();
  database().Execute(sql("insert into NewInfo(VC_ID,School_Name,Boys,Girls,Total) values(", quoted(center),
                         ",", quoted(Text1), ",", quoted(Text6), ",", quoted(Text5), ",", quoted(Text4),
                         ")"));
  const Recordset saved = database().Execute(
      sql("Select SrNo from NewInfo where VC_ID=", quoted(center), " and School_Name=", quoted(Text1)));
  Text7.SetText(Trim(saved["SrNo"]));
}

void frmNew::SaveClassRow(int row) {
  database().Execute(sql("insert into ClassWiseStrength(SrNo,Class,Boys,Girls,Total) values(", quoted(Text7),
                         ",", quoted(MSFlexGrid1.Cell(row, 0)), ",", quoted(MSFlexGrid1.Cell(row, 1)), ",",
                         quoted(MSFlexGrid1.Cell(row, 2)), ",", quoted(MSFlexGrid1.Cell(row, 3)), ")"));
}

}  // namespace ovindra
