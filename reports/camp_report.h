// What the lists of the referred children and of the prescribed spectacles share: children of one block or
// one state, of one kind of location, by the examinations of the ophthalmic assistant or of the OS camp. The
// forms differ in what they list; a failing statement is the form's own matter.
#pragma once

#include <string>
#include <string_view>

#include "base/controls/shown.h"
#include "base/controls/tabs.h"
#include "base/database/sql_text.h"
#include "reports/report_form.h"

namespace ovindra {

enum class Area { kBlock, kState };
enum class Camp { kAssistant, kSurgeon };

/// Whom a list covers, its names turned into codes.
struct CampCoverage {
  Period period;
  Area area = Area::kBlock;
  std::string area_code;
  std::string location;
  Camp camp = Camp::kAssistant;
};

/// The block test is written in two ways.
enum class BlockSpelling { kCapital, kSmall };

/// The condition that narrows the records to the period, and their children to the area and the location.
SqlText RecordsOf(const CampCoverage& coverage, BlockSpelling spelling);

/// The children with their spectacles' remark, PAID or FREE, from the tables of the camp. The columns stand
/// before the remark.
SqlText SpectacleColumns(Fragment columns, Camp camp);

class CampReportForm : public ReportForm {
 protected:
  struct CampNames {
    std::string_view assistant;
    std::string_view surgeon;
  };
  CampReportForm(Module1& module, std::string_view name, std::string_view caption, ReportSheet& sheet,
                 const CampNames& camps);

  /// Sets the dates to today and fills the lists of blocks, states and locations.
  void OpenSelections();

  /// What Get does: asks for the selections, writes the title block, builds the list.
  void BuildReport(std::string_view title_selection, Button& print);

  /// Reads the form's choices. A name that is no block's, state's or location's is error 3021.
  CampCoverage ReadCoverage();

  /// Writes the list below the title block.
  virtual void BuildList() = 0;

  void TellNoChildren();

  TabStrip TabStrip1{*this, "TabStrip1", {"Block Wise", "State Wise"}};
  Label Label4{*this, "Label4", "Select Block"};
  ComboBox Combo1{*this, "Combo1", "", DropDownCombo};
  Label Label5{*this, "Label5", "Select State", Hidden};
  ComboBox Combo2{*this, "Combo2", "", DropDownCombo, Hidden};
  ComboBox Combo4{*this, "Combo4", "Select Center Type", DropDownCombo};
  DatePicker DTPicker1{*this, "DTPicker1", "From : "};
  DatePicker DTPicker2{*this, "DTPicker2", "To : "};
  OptionButton Option1;
  OptionButton Option2;

 private:
  Area ChosenArea() const { return TabStrip1.selected() == 0 ? Area::kBlock : Area::kState; }
  void ShowAreaOfTab();
  bool CheckPlace();
};

}  // namespace ovindra
