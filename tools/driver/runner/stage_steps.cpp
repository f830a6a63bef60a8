#include "base/text/utf8.h"
#include "tools/driver/runner/stage.h"

namespace ovindra::driver {
namespace {

DatabaseName DatabaseOf(const Step& step) {
  return step.Has(0) ? DatabaseName::kHospital : DatabaseName::kScreening;
}

void PlayDatabase(Stage& stage, const Step& step) {
  stage.world.databases().Fill(step.Text(0) == "demo" ? DatabaseContent::kDemo : DatabaseContent::kEmpty);
}

void PlaySql(Stage& stage, const Step& step) {
  try {
    stage.world.databases().RunDirectly(DatabaseOf(step), step.Text(1));
  } catch (const RuntimeError& error) {
    throw StepFailure("the statement to run", Describe(error));
  }
}

void PlayToday(Stage& stage, const Step& step) {
  stage.world.machine().SetToday(step.DateOf(0));
}

void PlayClock(Stage& stage, const Step& step) {
  stage.world.machine().SetTime(step.Time(0));
}

void PlayUser(Stage& stage, const Step& step) {
  stage.world.SignIn(step.Text(0));
}

void PlayFail(Stage& stage, const Step& step) {
  stage.world.databases().FailNext(DatabaseOf(step), step.Text(1), {step.Number(2), step.Text(3)});
}

void PlayDisconnect(Stage& stage, const Step& step) {
  stage.world.Disconnect(DatabaseOf(step));
}

void PlayStart(Stage& stage, const Step&) {
  stage.end_was_seen = false;
  stage.world.StartProgram();
}

void PlayFolder(Stage& stage, const Step& step) {
  stage.world.machine().LayFile(step.Text(0), step.Text(1));
}

void PlayMissing(Stage& stage, const Step& step) {
  stage.world.machine().TakeFileAway(step.Text(0));
}

void PlayUnwritable(Stage& stage, const Step& step) {
  stage.world.machine().MakeUnwritable(step.Text(0));
}

void PlayNoApplication(Stage& stage, const Step& step) {
  stage.world.machine().TakeApplicationAway(step.Text(0));
}

/// The main window stands behind every form of a program that was not started through its splash window.
void PlayForm(Stage& stage, const Step& step) {
  World& world = stage.world;
  if (SameWithoutCase(step.Text(0), "MDIForm1") && !world.WasStarted()) world.BringUpMainWindow();
  Form* form = world.FindForm(step.Text(0));
  if (form == nullptr) throw StepFailure(step.Text(0) + " open", "not open");
  world.TurnTo(*form);
}

void PlayAnswer(Stage& stage, const Step& step) {
  stage.world.machine().AnswerNext(step.Text(0) == "yes" ? Answer::kYes : Answer::kNo);
}

void PlaySaveAs(Stage& stage, const Step& step) {
  stage.world.machine().SaveNextAs(step.Text(0));
}

void PlaySaveAsCancel(Stage& stage, const Step&) {
  stage.world.machine().SaveNextAs({});
}

void PlayPrinter(Stage& stage, const Step& step) {
  stage.world.machine().ReplyToNextPrinter(step.Text(0) == "ok");
}

}  // namespace

const std::vector<HandlerRow>& StageHandlers() {
  static const std::vector<HandlerRow> rows = {
      {StepKind::kDatabase, PlayDatabase},
      {StepKind::kSql, PlaySql},
      {StepKind::kToday, PlayToday},
      {StepKind::kClock, PlayClock},
      {StepKind::kUser, PlayUser},
      {StepKind::kFail, PlayFail},
      {StepKind::kDisconnect, PlayDisconnect},
      {StepKind::kStart, PlayStart},
      {StepKind::kFolder, PlayFolder},
      {StepKind::kMissing, PlayMissing},
      {StepKind::kUnwritable, PlayUnwritable},
      {StepKind::kNoApplication, PlayNoApplication},
      {StepKind::kForm, PlayForm},
      {StepKind::kAnswer, PlayAnswer},
      {StepKind::kSaveAs, PlaySaveAs},
      {StepKind::kSaveAsCancel, PlaySaveAsCancel},
      {StepKind::kPrinter, PlayPrinter},
  };
  return rows;
}

}  // namespace ovindra::driver
