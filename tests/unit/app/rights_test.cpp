// A user reaches the forms that are granted and the four that are open to everybody, and no other: by no
// click, no shortcut, no row of rights that somebody has written by hand.
#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QTest>
#include <algorithm>
#include <functional>
#include <set>

#include <gtest/gtest.h>

#include "app/forms.h"
#include "base/controls/menu.h"
#include "tools/driver/controls/controls_player.h"
#include "tools/driver/store/database_store.h"
#include "tools/driver/window_player.h"
#include "tools/driver/world/world.h"

namespace ovindra::driver {
namespace {

using Names = std::set<std::string>;

/// The items that every user has.
const Names kOpenToAll = {"m1(5)", "m1(6)", "m2(11)", "m2(12)"};

/// The main window after a login as RANI, who has the rows of rights given.
class LoggedIn {
 public:
  LoggedIn(Player& player, const std::vector<std::string>& rights)
      : player_(player), world_(AllForms(), DatabasesFrom(""), player, trace_) {
    Store("insert into User_Master(User_Name,Password) values('BOSS','boss'),('RANI','rani')");
    Store("insert into User_Rights values(1,'m3(7)'),(1,'m1(0)'),(12,'m3(0)')");
    for (const std::string& access : rights) Store("insert into User_Rights values(2,'" + access + "')");
    world_.Open("frmlogin");
    player_.Pick({"frmlogin", "Combo1"}, "RANI");
    player_.Type({"frmlogin", "Text1"}, "rani");
    player_.Click({"frmlogin", "Command1"});
  }

  Program& program() { return world_.program(); }
  Form& main_window() { return *world_.FindForm("MDIForm1"); }

  Names EnabledItems() {
    Names names;
    for (const Control* control : main_window().controls()) {
      if (IsWork(*control) && control->CanAct()) names.insert(control->full_name());
    }
    return names;
  }

  /// The items that bring up a form when they are clicked, whatever state they are in.
  Names ItemsThatOpen() {
    Names names;
    const std::vector<Control*> controls = main_window().controls();
    for (Control* control : controls) {
      if (!IsWork(*control)) continue;
      program().Perform([&] { control->UserClick(); });
      if (CloseWorkForms() > 0) names.insert(control->full_name());
    }
    return names;
  }

  /// Closes what is open beside the main window; how many that were.
  int CloseWorkForms() {
    int count = 0;
    for (Form* form : program().OpenForms()) {
      if (form == &main_window()) continue;
      ++count;
      program().Perform([&] { program().Unload(*form); });
    }
    return count;
  }

 private:
  /// An item of the menus whose items are granted.
  static bool IsWork(const Control& control) {
    return control.name() == "m1" || control.name() == "m2" || control.name() == "m3";
  }

  void Store(const std::string& statement) {
    world_.databases().RunDirectly(DatabaseName::kScreening, statement);
  }

  Player& player_;
  Trace trace_;
  World world_;
};

Names With(const Names& more) {
  Names all = kOpenToAll;
  all.insert(more.begin(), more.end());
  return all;
}

struct CraftedRow {
  std::string access;
  /// What it opens beyond what is open to all.
  Names opens;
};

TEST(Rights, OpenNothingThatTheyDoNotName) {
  const CraftedRow rows[] = {
      {"", {}},
      {"m", {}},
      {"m4(1)", {}},
      {"M3(7)", {}},
      {"x3(7)", {}},
      {"MNUMASTER", {}},
      {"frmuser", {}},
      {"m5(7)", {}},
      {"%", {}},
      {"m3(7)", {"m3(7)"}},
      {" m3(7) ", {"m3(7)"}},
      {"m3( 7 )", {"m3(7)"}},
  };
  ControlsPlayer player;
  for (const CraftedRow& row : rows) {
    SCOPED_TRACE(row.access);
    LoggedIn user(player, {row.access});
    ASSERT_FALSE(user.program().has_ended());
    EXPECT_EQ(user.EnabledItems(), With(row.opens));
    EXPECT_EQ(user.ItemsThatOpen(), With(row.opens));
  }
}

TEST(Rights, ARowThatNamesNoItemEndsTheProgramBeforeItsMainWindow) {
  ControlsPlayer player;
  for (const char* access : {"m1", "m3(", "m3(7", "m3()", "m3(x)", "m3(99)", "m3(-1)", "m3(7)m1(0)",
                             "m3(7;m1)", "m1(7)", "m2(13)", "m3(12)", "m3(7.0)"}) {
    SCOPED_TRACE(access);
    LoggedIn user(player, {"m1(1)", access, "m3(7)"});
    EXPECT_TRUE(user.program().has_ended());
    EXPECT_TRUE(user.program().end_error().has_value());
  }
}

QMainWindow& MainWindow() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* window = qobject_cast<QMainWindow*>(widget); window != nullptr && window->isVisible())
      return *window;
  }
  throw StepFailure("a main window", "none");
}

/// Everything that a person can try on the window: each shortcut, each item by its action.
void TryAll(LoggedIn& user, const std::function<void(const QAction&)>& opened) {
  QMainWindow& window = MainWindow();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (QAction* action : window.findChildren<QAction*>()) {
    if (!action->objectName().startsWith('m')) continue;
    const auto look = [&] {
      QApplication::processEvents();
      if (user.CloseWorkForms() > 0) opened(*action);
    };
    if (!action->shortcut().isEmpty()) {
      QTest::keySequence(&window, action->shortcut());
      look();
    }
    action->trigger();
    look();
  }
}

TEST(Rights, NoShortcutOpensWhatIsNotGranted) {
  const std::unique_ptr<Player> player = MakeWindowPlayer(Look::kLight);
  for (const bool is_granted : {false, true}) {
    LoggedIn user(*player,
                  is_granted ? std::vector<std::string>{"m1(0)", "m3(4)"} : std::vector<std::string>{});
    std::vector<std::string> opened;
    TryAll(user, [&](const QAction& action) { opened.push_back(action.text().toStdString()); });
    // The two that are granted have a shortcut, so that each comes twice.
    std::vector<std::string> expected = {"Attended Child", "New Format", "Turnup Child List",
                                         "Indivisual Children Report"};
    if (is_granted)
      expected.insert(expected.end(),
                      {"Enrolled Child", "Enrolled Child", "Screening Center", "Screening Center"});
    std::sort(opened.begin(), opened.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(opened, expected);
  }
}

}  // namespace
}  // namespace ovindra::driver
