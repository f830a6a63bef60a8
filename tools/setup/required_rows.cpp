#include "tools/setup/required_rows.h"

#include <algorithm>
#include <array>

#include "base/text/utf8.h"
#include "tools/setup/statement.h"

namespace ovindra {
namespace {

/// A table of codes and names, and the rows of it that must exist.
struct ReferenceTable {
  std::string_view name;
  /// The rows as two columns, code and name.
  Fragment select;
  /// An INSERT up to its values.
  Fragment insert;
  /// An UPDATE of the name, in two pieces; empty where no name is tested.
  Fragment update = "";
  Fragment where = "";
  /// The codes whose names are not tested, and those tested by the first word and whatever follows it. All
  /// others are tested as a whole.
  std::string_view untested = {};
  std::string_view by_first_word = {};
};

constexpr auto kTables = std::to_array<ReferenceTable>({
    {"Running_Number", "select RNControl_Code,Control_String from Running_Number",
     "insert into Running_Number (Control_Value,RNControl_Code,Control_String) values (1,"},
    {"Location_Master", "select Location_ID,Location_Name from Location_Master",
     "insert into Location_Master (Location_ID,Location_Name) values (",
     "update Location_Master set Location_Name=", " where Location_ID=", "", "AVH"},
    {"Programme_Master", "select Programme_Code,Programme_Name from Programme_Master",
     "insert into Programme_Master (Active,Programme_Code,Programme_Name) values ('Y',"},
    {"Center_Type", "select Type_ID,Type_Description from Center_Type",
     "insert into Center_Type (Type_ID,Type_Description) values ("},
    {"ScreenedbyType", "select Type_Code,Description from ScreenedbyType",
     "insert into ScreenedbyType (Type_Code,Description) values ("},
    {"TPerson_Type_Master", "select Type_Code,Description from TPerson_Type_Master",
     "insert into TPerson_Type_Master (Type_Code,Description) values (",
     "update TPerson_Type_Master set Description=", " where Type_Code="},
    {"Category_Master", "select Category_Code,Category from Category_Master",
     "insert into Category_Master (Category_Code,Category) values (",
     "update Category_Master set Category=", " where Category_Code=", "56"},
    {"Treatment_Master", "select Treatment_Code,Description from Treatment_Master",
     "insert into Treatment_Master (Treatment_Code,Description) values (",
     "update Treatment_Master set Description=", " where Treatment_Code=", "14567"},
});

/// A list in the order of its rows.
struct OpticalList {
  std::string_view name;
  Fragment select;
  Fragment insert;
};

constexpr auto kOpticalLists = std::to_array<OpticalList>({
    {"Spherical", "select Spherical from Spherical", "insert into Spherical (Spherical) values"},
    {"Cylendrical", "select Cylendrical from Cylendrical", "insert into Cylendrical (Cylendrical) values"},
    {"Axis", "select Axis from Axis", "insert into Axis (Axis) values"},
    {"VA", "select VA_Text from VA", "insert into VA (VA_Text) values"},
});

struct CodeAndName {
  std::string code;
  std::string name;
  bool has_name;
};

std::vector<CodeAndName> ReadRows(Session& session, const ReferenceTable& table) {
  std::vector<CodeAndName> rows;
  for (Recordset row = Execute(session, sql(table.select)); !row.Eof(); row.MoveNext())
    rows.push_back({Trim(row.At(0)), Trim(row.At(1)), !row.At(1).IsNull()});
  return rows;
}

bool Holds(std::string_view codes, std::string_view code) {
  return codes.find(code) != std::string_view::npos;
}

/// Whether the program would know the row by this name.
bool PassesTest(const ReferenceTable& table, const CodeAndName& required, std::string_view name) {
  if (table.update.text().empty() || Holds(table.untested, required.code)) return true;
  if (!Holds(table.by_first_word, required.code)) return SameWithoutCase(name, required.name);
  // The program matches the first word letter for letter.
  return name.starts_with(std::string_view(required.name).substr(0, required.name.find(' ')));
}

Fault MissingRow(Session& screening, const ReferenceTable& table, const CodeAndName& required) {
  std::string text = "The table " + std::string(table.name) + " has no row " + required.code;
  if (required.has_name) text += " (" + required.name + ")";
  return {text + ".", [&screening, &table, required] {
            const SqlText name = required.has_name ? sql(quoted(required.name)) : sql("null");
            Execute(screening, sql(table.insert, quoted(required.code), ",", name, ")"));
          }};
}

Fault UnknownName(Session& screening, const ReferenceTable& table, const CodeAndName& required,
                  const std::string& name) {
  return {"The row " + required.code + " of " + std::string(table.name) + " is named \"" + name +
              "\", but the program knows it as \"" + required.name + "\".",
          [&screening, &table, required] {
            Execute(screening, sql(table.update, quoted(required.name), table.where, quoted(required.code)));
          }};
}

void FindInTable(Session& screening, Session& pristine, const ReferenceTable& table,
                 std::vector<Fault>& faults) {
  const std::vector<CodeAndName> rows = ReadRows(screening, table);
  for (const CodeAndName& required : ReadRows(pristine, table)) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const CodeAndName& row) {
      return SameWithoutCase(row.code, required.code);
    });
    if (found == rows.end()) {
      faults.push_back(MissingRow(screening, table, required));
    } else if (!PassesTest(table, required, found->name)) {
      faults.push_back(UnknownName(screening, table, required, found->name));
    }
  }
}

void FillList(Session& screening, Session& pristine, const OpticalList& list) {
  RowWriter rows(screening, list.insert);
  for (Recordset row = Execute(pristine, sql(list.select)); !row.Eof(); row.MoveNext())
    rows.Add(Row(quoted(Trim(row.At(0)))));
}

}  // namespace

void FindMissingRows(Session& screening, Session& pristine, std::vector<Fault>& faults) {
  for (const ReferenceTable& table : kTables) FindInTable(screening, pristine, table, faults);
  for (const OpticalList& list : kOpticalLists) {
    if (!Execute(screening, sql(list.select)).Eof()) continue;
    faults.push_back({"The list " + std::string(list.name) + " of optical values is empty.",
                      [&screening, &pristine, &list] { FillList(screening, pristine, list); }});
  }
}

}  // namespace ovindra
