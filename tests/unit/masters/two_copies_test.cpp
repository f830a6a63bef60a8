// Two copies of the program on one database file, in the moments in which they can get in each other's way.
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <sstream>

#include <gtest/gtest.h>

#include "app/forms.h"
#include "tools/driver/controls/controls_player.h"
#include "tools/driver/store/database_store.h"
#include "tools/driver/world/world.h"

namespace ovindra::driver {
namespace {

namespace fs = std::filesystem;

/// A person who answers every question with Yes, after something else has happened meanwhile.
class Clerk : public ControlsPlayer {
 public:
  SeenMessage ShowMessage(const Message& message, Answer) override {
    seen_.push_back(message.text);
    if (message.buttons == MessageButtons::kYesNo) std::exchange(before_answer_, [] {})();
    return {message, message.buttons == MessageButtons::kYesNo ? Answer::kYes : Answer::kOk};
  }

  void BeforeAnswer(std::function<void()> what) { before_answer_ = std::move(what); }
  std::vector<std::string> TakeSeen() { return std::exchange(seen_, {}); }

 private:
  std::vector<std::string> seen_;
  std::function<void()> before_answer_ = [] {};
};

/// One copy of the program with the school master open, and who sits at it.
class Desk {
 public:
  explicit Desk(const std::string& folder) : world_(AllForms(), DatabasesFrom(folder), clerk_, trace_) {
    clerk_.EnterWorld(world_);
    world_.Open("frmscmaster");
  }
  ~Desk() { clerk_.LeaveWorld(); }

  void Enter(std::string_view name) {
    clerk_.Click(At("Command1"));
    clerk_.Type(At("Text2"), name);
    clerk_.Pick(At("Combo1"), "MOTIPUR");
    clerk_.Pick(At("Combo2"), "GRANT 2016");
    clerk_.Pick(At("Combo3"), "MOTIPUR CENTER");
  }
  void Save() { clerk_.Click(At("Command3")); }

  std::string Text(std::string_view control) { return clerk_.Text(At(control)); }
  Clerk& clerk() { return clerk_; }
  Databases& databases() { return world_.databases(); }
  std::string Rows(const std::string& statement) {
    std::string text;
    for (Recordset rows = databases().RunDirectly(DatabaseName::kScreening, statement); !rows.Eof();
         rows.MoveNext())
      text += Trim(rows.At(0)) + " " + Trim(rows.At(1)) + ";";
    return text;
  }

 private:
  static ControlName At(std::string_view control) { return {"frmscmaster", std::string(control)}; }

  Clerk clerk_;
  Trace trace_;
  World world_;
};

class TwoCopies : public testing::Test {
 protected:
  TwoCopies() {
    std::string name = (fs::temp_directory_path() / "two_copies_XXXXXX").string();
    root_ = mkdtemp(name.data());
    EXPECT_EQ(RunSetup("create", "--user BOSS --password secret"), 0);
    const auto screening = DatabasesFrom(Folder())(DatabaseName::kScreening, DatabaseContent::kEmpty);
    for (const char* row : {"insert into Block_Master(Block_Name,District_Code) values('MOTIPUR',1)",
                            "insert into Center_Master1(Center_Name,Sankul_ID,Programme_Code) "
                            "values('MOTIPUR CENTER',1,'GRANT2016')"})
      screening->Run(WholeStatement(row));
  }
  ~TwoCopies() override { fs::remove_all(root_); }

  std::string Folder() const { return (root_ / "data").string(); }

  /// Runs a command of the setup program on the databases; its exit code.
  int RunSetup(const std::string& command, const std::string& options) const {
    const std::string line = std::string(SETUP_PROGRAM) + " " + command + " " + Folder() + " " + options +
                             " >" + (root_ / "setup.txt").string() + " 2>&1";
    return std::system(line.c_str());
  }

  fs::path root_;
};

constexpr const char* kKeyError = "-2147217873 ";
constexpr const char* kSchools = "select SC_ID,SC_Name from School_Master order by SC_ID";

using Seen = std::vector<std::string>;

TEST_F(TwoCopies, OfTwoSchoolsSavedAtOneMomentTheSecondIsToldAndSavedAtTheNextTry) {
  Desk first(Folder());
  Desk second(Folder());
  first.Enter("hill");
  second.Enter("lake");
  second.clerk().BeforeAnswer([&] { first.Save(); });
  second.Save();

  EXPECT_EQ(first.clerk().TakeSeen(), (Seen{"Are You Sure Want to Save it", "This Record Saved"}));
  const Seen seen = second.clerk().TakeSeen();
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[1].rfind(kKeyError, 0), 0U) << seen[1];
  EXPECT_EQ(first.Rows(kSchools), "SC1 HILL;");
  EXPECT_EQ(second.Text("Text2"), "LAKE");
  EXPECT_EQ(second.Text("Combo3"), "MOTIPUR CENTER");

  second.Save();
  EXPECT_EQ(second.clerk().TakeSeen(), (Seen{"Are You Sure Want to Save it", "This Record Saved"}));
  EXPECT_EQ(first.Rows(kSchools), "SC1 HILL;SC2 LAKE;");
}

TEST_F(TwoCopies, ACounterThatStayedBehindIsMendedAndThenTheEntryIsSaved) {
  Desk first(Folder());
  Desk second(Folder());
  first.Enter("hill");
  second.Enter("lake");
  // The first copy dies between its two statements.
  first.databases().FailNext(DatabaseName::kScreening, "update Running_Number", {-2147467259, "lost"});
  first.Save();
  for (int tries = 0; tries < 2; ++tries) {
    second.Save();
    const Seen seen = second.clerk().TakeSeen();
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[1].rfind(kKeyError, 0), 0U) << seen[1];
  }
  EXPECT_EQ(second.Rows(kSchools), "SC1 HILL;");

  RunSetup("check", "--repair");
  EXPECT_EQ(RunSetup("check", ""), 0);
  second.Save();
  EXPECT_EQ(second.clerk().TakeSeen(), (Seen{"Are You Sure Want to Save it", "This Record Saved"}));
  EXPECT_EQ(second.Rows(kSchools), "SC1 HILL;SC2 LAKE;");
}

}  // namespace
}  // namespace ovindra::driver
