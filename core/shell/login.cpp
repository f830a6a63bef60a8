#include "core/shell/login.h"

#include "core/entry/lists.h"
#include "core/entry/standard_dialogs.h"
#include "core/shell/rights.h"

namespace ovindra {
namespace {

constexpr int kAnimationInterval = 10;
constexpr int kStepsPerTick = 14;
constexpr int kLastCount = 1000;
constexpr int kFirstFrameCount = 100;

/// A frame of the turning key, and the count at which it appears.
struct KeyFrame {
  int count;
  const char* file;
};
constexpr KeyFrame kKeyFrames[] = {
    {kFirstFrameCount, "\\key1.ico"}, {400, "\\key2.ico"}, {700, "\\key3.ico"}};

}  // namespace

frmlogin::frmlogin(Module1& module) : Form(module.machine, "frmlogin", "Ovindra Desk"), module_(module) {
  SetDefaultButton(Command1);
  Plain(load, &frmlogin::OnLoad);
  Plain(activate, &frmlogin::OnActivate);
  Plain(Timer1.timer, &frmlogin::TurnKey);
  Plain(Command1.click, &frmlogin::LogIn);
  Plain(Command2.click, &frmlogin::Cancel);
}

void frmlogin::OnLoad() {
  Timer1.SetInterval(kAnimationInterval);
}

void frmlogin::OnActivate() {
  Combo1.SetFocus();
  // Why there is no connection has been told already; the list has nothing to show.
  if (module_.ScreeningConnection.IsOpen()) {
    FillList(module_.ScreeningConnection, sql("Select User_Name from User_Master order by user_Name"),
             "User_Name", Combo1);
  }
  Text1.SetText("");
}

void frmlogin::TurnKey() {
  for (int step = 0; step < kStepsPerTick; ++step) {
    if (++key_count_ > kLastCount) key_count_ = kFirstFrameCount;
    for (const KeyFrame& frame : kKeyFrames) {
      if (frame.count != key_count_) continue;
      if (!machine().program_folder.Has(frame.file)) throw FileNotFound();
      pickey.SetPicture(frame.file);
    }
  }
}

void frmlogin::LogIn() {
  const Recordset user = module_.ScreeningConnection.Execute(
      sql("Select * from User_Master where User_Name=", quoted(Combo1), " and Password=", quoted(Text1)));
  if (user.Eof()) {
    Tell(machine(), {"Enter Correct Password", "Wrong Password !!!", MessageIcon::kCritical});
    Text1.SetFocus();
    return;
  }
  module_.CurrentUserName = Combo1.text();
  if (Form* main_window = module_.forms.Made("MDIForm1")) {
    ApplyRights(module_.ScreeningConnection, Combo1.text(), *main_window);
  }
  module_.forms.Show("MDIForm1");
  Close();
}

void frmlogin::Cancel() {
  module_.forms.End();
}

}  // namespace ovindra
