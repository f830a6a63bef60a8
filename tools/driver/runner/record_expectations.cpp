#include <algorithm>

#include "tools/driver/language/token.h"
#include "tools/driver/runner/query_result.h"
#include "tools/driver/runner/stage.h"

namespace ovindra::driver {
namespace {

/// A `*` at the end of what is expected matches any rest.
bool MatchesToStar(std::string_view expected, std::string_view found) {
  if (!expected.ends_with('*')) return expected == found;
  return found.starts_with(expected.substr(0, expected.size() - 1));
}

void PlayMessage(Stage& stage, const Step& step) {
  std::string expected = "message " + Quote(step.Text(0));
  if (step.Has(1)) expected += " title " + Quote(step.Text(1));
  if (step.Has(2)) expected += ' ' + step.Text(2);
  const std::optional<Message> message = stage.world.machine().TakeMessage();
  if (!message) throw StepFailure(expected, "no message");
  const bool holds = MatchesToStar(step.Text(0), message->text) &&
                     (!step.Has(1) || step.Text(1) == message->title) &&
                     (!step.Has(2) || step.Text(2) == IconWord(message->icon));
  if (!holds) throw StepFailure(expected, Describe(*message));
}

void PlayNoMessage(Stage& stage, const Step&) {
  if (const auto message = stage.world.machine().TakeMessage()) {
    stage.world.machine().ForgetMessages();
    throw StepFailure("no message", Describe(*message));
  }
}

void PlayEnded(Stage& stage, const Step& step) {
  const std::string expected = step.Has(0) ? "ended " + Quote(step.Text(0)) : "ended";
  if (!stage.world.HasProgram() || !stage.world.program().has_ended())
    throw StepFailure(expected, "the program is running");
  stage.end_was_seen = true;
  const auto& error = stage.world.program().end_error();
  const std::string found = error ? Quote(Describe(*error)) : "ended in the ordinary way";
  const bool holds = step.Has(0) ? error && MatchesToStar(step.Text(0), Describe(*error)) : !error;
  if (!holds) throw StepFailure(expected, found);
}

std::string QuoteLines(const std::vector<std::string>& statements) {
  std::string all;
  for (const std::string& statement : statements) all += (all.empty() ? "" : ", ") + Quote(statement);
  return all.empty() ? "no statement" : all;
}

const std::vector<std::string>& StatementsOf(Stage& stage, bool hospital) {
  return stage.world.databases().statements(hospital ? DatabaseName::kHospital : DatabaseName::kScreening);
}

void PlayStatement(Stage& stage, const Step& step) {
  const bool refused = step.Has(0);
  const bool contains = step.Has(2);
  const std::string& text = step.Text(3);
  const auto& statements = StatementsOf(stage, step.Has(1));
  const auto match = std::find_if(statements.begin(), statements.end(), [&](const std::string& statement) {
    return contains ? statement.find(text) != std::string::npos : statement == text;
  });
  if ((match == statements.end()) == refused) return;
  const std::string expected = std::string(refused ? "no " : "") + (step.Has(1) ? "hospital " : "") +
                               "statement " + (contains ? "contains " : "") + Quote(text);
  throw StepFailure(expected, refused ? Quote(*match) : QuoteLines(statements));
}

void PlayNoStatementAtAll(Stage& stage, const Step& step) {
  const auto& statements = StatementsOf(stage, step.Has(0));
  if (!statements.empty())
    throw StepFailure(step.Has(0) ? "no hospital statement" : "no statement", QuoteLines(statements));
}

/// Each fragment is looked for behind the one before it, in the same statement or a later one.
void PlayStatements(Stage& stage, const Step& step) {
  const auto& statements = StatementsOf(stage, step.Has(0));
  std::size_t statement = 0;
  std::size_t from = 0;
  for (const std::string& fragment : step.Texts(1)) {
    for (; statement < statements.size(); ++statement, from = 0) {
      const std::size_t found = statements[statement].find(fragment, from);
      if (found == std::string::npos) continue;
      from = found + fragment.size();
      break;
    }
    if (statement == statements.size()) {
      throw StepFailure("statements to contain " + Quote(fragment) + " in this order",
                        QuoteLines(statements));
    }
  }
}

void PlaySql(Stage& stage, const Step& step) {
  const DatabaseName database = step.Has(0) ? DatabaseName::kHospital : DatabaseName::kScreening;
  const std::vector<std::string> query = step.Texts(1);
  const std::string expected = NormalRows(query[1]);
  const std::string wanted = expected.empty() ? "no rows" : "rows " + expected;
  try {
    const Recordset rows = stage.world.databases().RunDirectly(database, query[0]);
    const std::string found = RowsAsText(rows);
    if (found == expected) return;
    throw StepFailure(wanted, rows.row_count() == 0 ? "no rows" : found.empty() ? "an empty field" : found);
  } catch (const RuntimeError& error) {
    throw StepFailure(wanted, Describe(error));
  }
}

void PlayFile(Stage& stage, const Step& step) {
  const auto& written = stage.world.machine().written_files();
  const bool is_written = std::find(written.begin(), written.end(), step.Text(1)) != written.end();
  if (is_written == step.Has(0)) {
    throw StepFailure((step.Has(0) ? "no file " : "file ") + Quote(step.Text(1)),
                      written.empty() ? "no file written" : QuoteLines(written));
  }
}

void PlayPrinted(Stage& stage, const Step& step) {
  const int prints = stage.world.machine().prints();
  if ((prints > 0) == step.Has(0))
    throw StepFailure(step.Has(0) ? "not printed" : "printed", std::to_string(prints) + " prints");
}

void PlayCalculator(Stage& stage, const Step&) {
  if (!stage.world.machine().calculator_was_started())
    throw StepFailure("the calculator started", "it was not");
}

}  // namespace

std::string Describe(const RuntimeError& error) {
  return std::to_string(error.number()) + " " + error.text();
}

const std::vector<HandlerRow>& RecordExpectations() {
  static const std::vector<HandlerRow> rows = {
      {StepKind::kExpectMessage, PlayMessage},
      {StepKind::kExpectNoMessage, PlayNoMessage},
      {StepKind::kExpectEnded, PlayEnded},
      {StepKind::kExpectStatement, PlayStatement},
      {StepKind::kExpectNoStatementAtAll, PlayNoStatementAtAll},
      {StepKind::kExpectStatements, PlayStatements},
      {StepKind::kExpectSql, PlaySql},
      {StepKind::kExpectFile, PlayFile},
      {StepKind::kExpectPrinted, PlayPrinted},
      {StepKind::kExpectCalculator, PlayCalculator},
  };
  return rows;
}

}  // namespace ovindra::driver
