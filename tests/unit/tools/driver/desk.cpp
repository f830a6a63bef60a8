#include "tests/unit/tools/driver/desk.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <unistd.h>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/frame.h"
#include "base/controls/grid.h"
#include "base/controls/list_box.h"
#include "base/controls/menu.h"
#include "base/controls/report_sheet.h"
#include "base/controls/shown.h"
#include "base/controls/tabs.h"
#include "base/controls/text_box.h"
#include "base/database/database_error.h"
#include "base/text/utf8.h"
#include "tests/unit/tools/driver/paper_form.h"
#include "tools/driver/drive.h"

namespace ovindra::driver {
namespace {

constexpr KeyFilter kCapitals{
    [](TextControl&, KeyPress& press) { press.character = UpperCase(press.character); }};

class frmflash : public Form {
 public:
  explicit frmflash(Module1& module) : Form(module.machine, "frmflash", "Splash"), module_(module) {
    Plain(load, &frmflash::OnLoad);
    Plain(Timer1.timer, &frmflash::OnTick);
    Plain(unload, &frmflash::OnUnload);
  }

 private:
  void OnLoad() {
    machine().pointer.Set(PointerShape::kHourglass);
    Label1.SetCaption(machine().program_folder.FirstLine("\\version.txt").value_or("no version"));
  }
  void OnTick() {
    if (++ticks_ == 3) Close();
  }
  void OnUnload() {
    module_.OpenConnections();
    module_.forms.Show("frmlogin");
    machine().pointer.Set(PointerShape::kDefault);
  }

  Module1& module_;
  Label Label1{*this, "Label1", ""};
  Timer Timer1{*this, "Timer1", 100};
  int ticks_ = 0;
};

class frmlogin : public Form {
 public:
  explicit frmlogin(Module1& module) : Form(module.machine, "frmlogin", "Login"), module_(module) {
    Plain(Command1.click, &frmlogin::LogIn);
    Plain(Command2.click, &frmlogin::Cancel);
    Plain(Timer1.timer, &frmlogin::Turn);
  }

 private:
  void LogIn() {
    module_.CurrentUserName = "DESK";
    module_.forms.Show("MDIForm1");
    Close();
  }
  void Cancel() { host().End(); }
  void Turn() {
    if (!machine().program_folder.Has("\\key1.ico")) throw FileNotFound();
  }

  Module1& module_;
  Button Command1{*this, "Command1", "&Ok"};
  Button Command2{*this, "Command2", "Ca&ncel"};
  Timer Timer1{*this, "Timer1", 10};
};

class MDIForm1 : public Form {
 public:
  explicit MDIForm1(Module1& module) : Form(module.machine, "MDIForm1", "MAIN"), module_(module) {
    m1_0.SetEnabled(false);
    Plain(m1_1.click, &MDIForm1::OpenDesk);
    Plain(MNUEXIT.click, &MDIForm1::Calculate);
  }

 private:
  void OpenDesk() { module_.forms.Show("frmDesk"); }
  void Calculate() { machine().calculator.Start(); }

  Module1& module_;
  MenuItem MNUEXIT{*this, "MNUEXIT", "E&XIT"};
  MenuItem m1_0{*this, MNUEXIT, "m1", 0, "Off", Shortcut{""}};
  MenuItem m1_1{*this, MNUEXIT, "m1", 1, "Desk", Shortcut{""}};
  StatusBar StatusBar1{
      *this, "StatusBar1", {{PanelKind::kText, "credit"}, {PanelKind::kDate, ""}, {PanelKind::kTime, ""}}};
};

class frmDesk : public Form {
 public:
  explicit frmDesk(Module1& module) : Form(module.machine, "frmDesk", "The &Desk"), module_(module) {
    for (const char* entry : {"ASHA", "RAM", "ASHA"}) {
      Combo1.AddItem(entry);
      Combo2.AddItem(entry);
      List1.AddItem(entry);
    }
    DTPicker1.SetValue(machine().clock.Today());
    MonthView1.SetValue(machine().clock.Today());
    Grid1.SetRows(1);
    Grid1.AddItem("A1\tASHA");
    Grid1.AddItem("A2\tRAM");
    WireNotes();
    Plain(Text1.validate, &frmDesk::KeepBadText);
    Plain(Text4.got_focus, &frmDesk::SelectText4);
    Plain(Command1.click, &frmDesk::Ask);
    Guarded(Command2.click, &frmDesk::RunText2);
    Plain(Command3.click, &frmDesk::CloseDesk);
    Plain(Command4.click, &frmDesk::RunText2);
    Plain(Command5.click, &frmDesk::TellTwice);
    Plain(Command6.click, &frmDesk::RunHospital);
    Plain(key_down, &frmDesk::OnKey);
  }

 private:
  template <typename... Args>
  void Note(Event<Args...>& event, const char* what) {
    event.Handle([this, what](Args...) { Log.SetText(Log.text() + what + ' '); });
  }

  void WireNotes() {
    Note(Label1.click, "label");
    Note(Combo1.click, "combo");
    Note(List1.click, "list");
    Note(List1.double_click, "list-twice");
    Note(Option2.click, "option");
    Note(Check1.click, "check");
    Note(TabStrip1.click, "tab");
    Note(DTPicker1.change, "date");
    Note(MonthView1.date_click, "day");
    Note(Grid1.click, "grid");
    Note(Grid1.double_click, "grid-twice");
    Note(Grid1.cell_moved, "moved");
    Note(Timer1.timer, "tick");
    Note(Text2.lost_focus, "lost");
    Note(List1.key_press, "key");
  }

  void KeepBadText(bool& keep) { keep = Text1.text() == "BAD"; }
  void SelectText4() { Text4.SelectAll(); }
  void Ask() {
    const Answer answer =
        machine().message_box.Show({"Sure?", "OVD", MessageIcon::kQuestion, MessageButtons::kYesNo});
    Log.SetText(answer == Answer::kYes ? "yes" : "no");
  }
  void RunText2() { module_.ScreeningConnection.Execute(WholeStatement(Text2.text())); }
  void RunHospital() { module_.HospitalConnection.Execute(WholeStatement("keep ward")); }
  void CloseDesk() { Close(); }
  void TellTwice() {
    machine().message_box.Show({"first\nline", "one", MessageIcon::kInformation, MessageButtons::kOk});
    machine().message_box.Show({"second", "", MessageIcon::kPlain, MessageButtons::kOk});
  }
  void OnKey(KeyName key) {
    if (key == KeyName::kF8) Frame1.SetEnabled(!Frame1.enabled());
  }

  Module1& module_;
  TextBox Text1{*this, "Text1", "Name", MaxLength{5}, kCapitals};
  TextBox Text2{*this, "Text2", "Statement"};
  TextBox Text4{*this, "Text4", "Selected"};
  TextBox Log{*this, "Log", "What fired"};
  Label Label1{*this, "Label1", "From : "};
  ComboBox Combo1{*this, "Combo1", "Pick", DropDownList};
  ComboBox Combo2{*this, "Combo2", "Type", DropDownCombo};
  ListBox List1{*this, "List1", "List"};
  Frame Frame1{*this, "Frame1", "&Gender", Disabled};
  OptionButton Option1{Frame1, "Option1", "&Male"};
  OptionButton Option2{Frame1, "Option2", "&Female"};
  CheckBox Check1{*this, "Check1", "Check"};
  TabStrip TabStrip1{*this, "TabStrip1", {"One", "Two"}};
  DatePicker DTPicker1{*this, "DTPicker1", "Date"};
  MonthView MonthView1{*this, "MonthView1"};
  Grid Grid1{*this, "Grid1", {"No.", "Name"}};
  Timer Timer1{*this, "Timer1", 100};
  Button Command1{*this, "Command1", "&Ask"};
  Button Command2{*this, "Command2", "Run guarded"};
  Button Command3{*this, "Command3", "&Close"};
  Button Command4{*this, "Command4", "Run"};
  Button Command5{*this, "Command5", "Tell"};
  Button Command6{*this, "Command6", "Hospital"};
  Button Hidden1{*this, "Hidden1", "Hidden", Hidden};
};

/// A report of a few cells; Command2 prints it.
class frmsheet : public Form {
 public:
  explicit frmsheet(Module1& module) : Form(module.machine, "frmsheet", "Report") {
    Plain(Command1.click, &frmsheet::Get);
    Plain(Command2.click, &frmsheet::Print);
  }

 private:
  void Get() {
    Workbook& workbook = F1Book1.Edit();
    workbook.SetText(3, 1, "List of children From : 01/04/2016");
    workbook.SetText(5, 2, "Name");
    workbook.SetColumnWidth(2, 20000);
    workbook.Restyle({5, 2, 5, 2}, [](CellStyle& style) {
      style.font.bold = style.font.underline = true;
      style.font.colour = 0xFF00FF;
      style.alignment = {HorizontalAlign::kCentre, true, VerticalAlign::kCentre};
      style.border = {true, true, true, true, 0xFF0000};
    });
    workbook.Restyle({6, 2, 6, 2}, [](CellStyle& style) {
      style.font.size = 15;
      style.font.italic = true;
      style.border.left = style.border.top = true;
    });
  }
  void Print() {
    PageSetup& setup = F1Book1.Edit().page_setup;
    setup.left_margin = 0;
    setup.grid_lines = false;
    setup.centred = true;
    setup.footer = "&C & Page &P";
    machine().printer.Print(F1Book1.workbook());
  }

  Button Command1{*this, "Command1", "&Get"};
  Button Command2{*this, "Command2", "&Print"};
  ReportSheet F1Book1{*this, "F1Book1"};
};

class DeskSession : public Session {
 public:
  explicit DeskSession(DatabaseContent content) {
    if (content == DatabaseContent::kDemo) kept_.emplace_back("demo");
  }

  Recordset Run(const SqlText& statement) override {
    const std::string& text = statement.text();
    if (text.starts_with("keep ")) {
      kept_.push_back(text.substr(5));
      return Recordset::OfCount(1);
    }
    Recordset rows;
    rows.AddColumn("value");
    if (text == "select kept") {
      for (const std::string& value : kept_) rows.AppendText(value);
    } else if (text == "select empty") {
      rows.AppendText("");
    } else if (text == "select every kind") {
      for (const char* name : {"null", "text", "moment", "real"}) rows.AddColumn(name);
      rows.AppendInteger(7);
      rows.AppendNull();
      rows.AppendText("  a b ");
      rows.AppendMoment(StartOf(Date(std::chrono::year(2016), std::chrono::May, std::chrono::day(31))));
      rows.AppendReal(1.5);
    } else if (text != "select nothing") {
      throw IncorrectSyntax(text);
    }
    return rows;
  }

 private:
  std::vector<std::string> kept_;
};

}  // namespace

FormList DeskForms() {
  return {EntryFor<frmflash>("frmflash"), EntryFor<frmlogin>("frmlogin"), EntryFor<MDIForm1>("MDIForm1"),
          EntryFor<frmDesk>("frmDesk"),   EntryFor<frmsheet>("frmsheet"), PaperForm()};
}

DatabaseMaker DeskDatabases() {
  return [](DatabaseName, DatabaseContent content) { return std::make_unique<DeskSession>(content); };
}

ScratchFolder::ScratchFolder() {
  static std::atomic<int> count = 0;
  folder_ = std::filesystem::temp_directory_path() /
            ("driver-test-" + std::to_string(getpid()) + "-" + std::to_string(++count));
  std::filesystem::create_directories(folder_);
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored_at_the_end;
  std::filesystem::remove_all(folder_, ignored_at_the_end);
}

std::string ScratchFolder::Path(const std::string& name) const {
  return folder_ + "/" + name;
}

std::string ScratchFolder::Write(const std::string& name, const std::string& text) const {
  std::ofstream(Path(name), std::ios::binary) << text;
  return Path(name);
}

Outcome DriveDesk(const std::vector<std::string>& arguments, const WindowPlayerMaker& on_windows) {
  std::ostringstream out;
  std::ostringstream err;
  const DriveParts parts{DeskForms(), [](const std::string&) { return DeskDatabases(); }, MakeControlsPlayer,
                         on_windows};
  const int exit_code = Drive(arguments, parts, out, err);
  return {exit_code, out.str(), err.str()};
}

std::vector<std::string> Failures(const std::string& lines, const WindowPlayerMaker& on_windows) {
  const ScratchFolder folder;
  const std::string file = folder.Write("test.scenario", lines);
  const Outcome outcome = on_windows ? DriveDesk({"--window", file}, on_windows) : DriveDesk({file});
  std::istringstream report(outcome.out + outcome.err);
  std::vector<std::string> failures;
  for (std::string line; std::getline(report, line);) {
    if (line.starts_with(file + ":")) failures.push_back(line.substr(file.size() + 1));
  }
  return failures;
}

}  // namespace ovindra::driver
