#include "core/shell/main_window.h"

#include "core/entry/standard_dialogs.h"

namespace ovindra {
namespace {

enum class AtStart { kOff, kOn };

/// An item of a menu: its index in the menu's array is its place in the table. The items that are on at the
/// start are open to every user whatever the rights say.
struct Item {
  const char* caption;
  const char* shortcut;
  const char* opens;
  AtStart at_start = AtStart::kOff;
};

constexpr Item kDataEntry[] = {
    {"Enrolled Child", "Ctrl+E", "frmenroll"},
    {"Screened Child", "Ctrl+S", "frmscreened"},
    {"Examination record", "Ctrl+R", "frmchildrecord"},
    {"Screened School", "", "frmschool_screening"},
    {"OS Camp", "", "Form2"},
    {"Attended Child", "", "frmattend", AtStart::kOn},
    {"New Format", "", "frmNew", AtStart::kOn},
};

constexpr Item kReport[] = {
    {"List of Trained Person", "", "frmtrainedPerlist"},
    {"Referred Children", "", "frmreferallist"},
    {"Spectacle Prescribed", "", "frmspectacle"},
    {"Enroll Report", "", "frmenrollrpt"},
    {"Defected Children", "", "frmdefected"},
    {"Consolidation Report ", "", "frmconsolidation"},
    {"Enroll Child List", "", "frmenrolllist"},
    {"Screened Child List", "", "frmscreenedlist"},
    {"Spectacle Power", "", "frmspectaclepwr"},
    {"Sankul Wise Report", "", "frmsankulwiserpt"},
    {"Missed Child List", "", "Form1"},
    {"Turnup Child List", "", "frmturnup", AtStart::kOn},
    {"Indivisual Children Report", "", "Form3", AtStart::kOn},
};

constexpr Item kMaster[] = {
    {"Country Master", "Ctrl+O", "frmcountrymaster"},
    {"State Master", "Ctrl+T", "frmstatemaster"},
    {"District Master", "Ctrl+D", "frmdistrictmaster"},
    {"Block Master", "Ctrl+B", "FRMBLOCKMASTER"},
    {"Screening Center", "F1", "frmscreeningcenter"},
    {"Trained Person", "Ctrl+P", "frmPerson"},
    {"Diagnosis Master", "F2", "frmdiagmaster"},
    {"User Master", "Ctrl+U", "frmuser"},
    {"Vision Center", "", "frmvcmaster"},
    {"Anganwadi Center", "", "frmawmaster"},
    {"School Master", "", "frmscmaster"},
    {"Sankul Master", "", "frmsankulmaster"},
};

constexpr Item kHelp[] = {
    {"About", "Ctrl+A", "", AtStart::kOn},
    {"Calculator", "Ctrl+C", "", AtStart::kOn},
};

constexpr std::string_view kCalculator = "m4(1)";

}  // namespace

MDIForm1::MDIForm1(Module1& module) : Form(module.machine, "MDIForm1", "OVINDRA DESK"), module_(module) {
  MakeItems();
  // A machine without one must not end the program and the entries that stand open.
  Guarded(Find(kCalculator)->click, &MDIForm1::StartCalculator);
  Plain(MNUEXIT.click, &MDIForm1::Exit);
  Plain(query_close, &MDIForm1::CloseByFrame);
}

void MDIForm1::MakeItems() {
  const auto make = [this](MenuItem& menu, std::string_view array, const auto& table) {
    int index = 0;
    for (const Item& row : table) {
      MenuItem& item = items_.emplace_back(*this, menu, array, index++, row.caption, Shortcut{row.shortcut});
      item.SetEnabled(row.at_start == AtStart::kOn);
      if (*row.opens != '\0') {
        item.click.Handle([this, form = row.opens] { module_.forms.Show(form); });
      }
    }
  };
  make(MNUDATA_ENTRY, "m1", kDataEntry);
  make(MNUREPORT, "m2", kReport);
  make(MNUMASTER, "m3", kMaster);
  make(MNUHELP, "m4", kHelp);
}

void MDIForm1::StartCalculator() {
  machine().calculator.Start();
}

void MDIForm1::Exit() {
  if (Ask(machine(), "DO YOU WANT TO EXIT", "EXIT DEMO")) module_.forms.End();
}

void MDIForm1::CloseByFrame(bool& keep) {
  keep = true;
  Exit();
}

}  // namespace ovindra
