#include "tools/driver/runner/runner.h"

#include <algorithm>
#include <map>
#include <set>

namespace ovindra::driver {
namespace {

/// What may still be asked when the end of the program has been seen, beside what sets the stage anew.
bool OutlivesTheProgram(StepKind kind) {
  static const std::set<StepKind> kinds = {
      StepKind::kExpectSql,           StepKind::kExpectStatement, StepKind::kExpectNoStatementAtAll,
      StepKind::kExpectStatements,    StepKind::kExpectFile,      StepKind::kExpectWorkbookCell,
      StepKind::kExpectWorkbookSheet, StepKind::kExpectEnded,
  };
  const auto& stage_handlers = StageHandlers();
  return kinds.contains(kind) || std::any_of(stage_handlers.begin(), stage_handlers.end(),
                                             [&](const HandlerRow& row) { return row.kind == kind; });
}

}  // namespace

Handler HandlerOf(StepKind kind) {
  static const std::map<StepKind, Handler> handlers = [] {
    std::map<StepKind, Handler> all;
    for (const auto* group : {&StageHandlers(), &ActionHandlers(), &ControlExpectations(),
                              &SheetExpectations(), &RecordExpectations(), &PaperExpectations()}) {
      for (const HandlerRow& row : *group) all.emplace(row.kind, row.play);
    }
    return all;
  }();
  const auto found = handlers.find(kind);
  return found == handlers.end() ? nullptr : found->second;
}

bool IsAction(StepKind kind) {
  const auto& actions = ActionHandlers();
  return std::any_of(actions.begin(), actions.end(), [&](const HandlerRow& row) { return row.kind == kind; });
}

/// One scenario being played.
class Runner::Session {
 public:
  Session(Runner& runner)
      : runner_(runner),
        world_(runner.settings_.forms, runner.settings_.make_database, runner.player_, runner.trace_),
        stage_{world_, runner.player_, runner.settings_.picture_folder} {}

  bool Play(const Scenario& scenario) {
    Place last = scenario.place;
    for (const Step& step : scenario.steps) {
      PlayStep(step);
      last = step.place();
    }
    Check(last, [this] { CheckNothingUnexpected(); });
    return !failed_;
  }

 private:
  void PlayStep(const Step& step) {
    if (IsAction(step.kind())) {
      Check(step.place(), [this] { CheckNothingUnexpected(); });
      world_.BeginAction();
      runner_.trace_.Action(step.line());
    }
    // A program that starts anew would take with it how the last one ended.
    if (step.kind() == StepKind::kStart) Check(step.place(), [this] { CheckNoUnexpectedEnd(); });
    Check(step.place(), [&] {
      if (stage_.end_was_seen && !OutlivesTheProgram(step.kind()))
        throw StepFailure("the program running", "it has ended");
      HandlerOf(step.kind())(stage_, step);
    });
    ComeToRest(step.place());
  }

  /// What the step has caused: windows follow, the steps go to the form that is current now.
  void ComeToRest(const Place& place) {
    Form* const form = world_.current_form();
    if (form != nullptr && form != turned_to_) runner_.player_.TurnTo(form->name());
    turned_to_ = form;
    runner_.player_.Settle();
    if (const auto question = world_.machine().TakeUnansweredQuestion())
      Report(place, {"an answer given ahead to " + Describe(*question), "none"});
  }

  /// A message box that nobody expected, or an end of the program by an error that nobody expected.
  void CheckNothingUnexpected() {
    if (const auto message = world_.machine().TakeMessage()) {
      world_.machine().ForgetMessages();
      throw StepFailure("no message", Describe(*message));
    }
    CheckNoUnexpectedEnd();
  }

  void CheckNoUnexpectedEnd() {
    if (stage_.end_was_seen || !world_.HasProgram()) return;
    if (const auto& error = world_.program().end_error()) {
      stage_.end_was_seen = true;
      throw StepFailure("the program running", "it has ended with " + Describe(*error));
    }
  }

  template <typename Act>
  void Check(const Place& place, Act act) {
    try {
      act();
    } catch (const StepFailure& failure) {
      Report(place, failure);
    }
  }

  void Report(const Place& place, const StepFailure& failure) {
    failed_ = true;
    runner_.out_ << place.text() << ": expected " << failure.expected() << ", found " << failure.found()
                 << '\n';
  }

  Runner& runner_;
  World world_;
  Stage stage_;
  const Form* turned_to_ = nullptr;
  bool failed_ = false;
};

Runner::Runner(RunSettings settings, Player& player, std::ostream& out)
    : settings_(std::move(settings)),
      player_(player),
      out_(out),
      trace_(settings_.trace ? Trace(&out) : Trace()) {}

bool Runner::Play(const Scenario& scenario) {
  return Session(*this).Play(scenario);
}

}  // namespace ovindra::driver
