#include "core/entry/child_details.h"

#include "base/text/blanks.h"

namespace ovindra {
namespace {

struct Detail {
  const char* caption;
  const char* field;
};

constexpr Detail kDetails[] = {
    {"Child Name", "Child_Name"},  {"F/M Name", "FName"},   {"Age", "age"},
    {"Gender", "Gender"},          {"Class", "Class"},      {"Block", "Block_Name"},
    {"District", "District_Name"}, {"State", "State_Name"}, {"Country", "Country_Name"},
};

}  // namespace

void ShowChildDetails(Connection& connection, std::string_view enroll_no, Grid& grid) {
  grid.SetRows(grid.fixed_rows());
  const Recordset child = connection.Execute(sql(
      "select Child_Name,fName,Age,Gender,Class,b.Block_Name,c.District_Name,d.State_Name,e.Country_Name "
      "from "
      "Enroll_Master a,Block_Master b,District_Master c,State_Master d,Country_Master e",
      " where Enroll_No=", quoted(Trim(enroll_no)),
      " and a.Block_Code=b.Block_COde and a.District_Code=c.District_Code and a.State_Code=d.State_Code and "
      "a.Country_Code=e.Country_Code"));
  WriteChildDetails(child, grid);
}

void WriteChildDetails(const Recordset& child, Grid& grid) {
  for (const Detail& detail : kDetails) grid.AddRow({detail.caption, Trim(child[detail.field])});
}

}  // namespace ovindra
