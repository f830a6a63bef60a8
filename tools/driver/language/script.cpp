#include "tools/driver/language/script.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "tools/driver/language/grammar.h"

namespace ovindra::driver {
namespace {

namespace fs = std::filesystem;

/// Reads a file and those that it plays into one row of steps.
class FileReader {
 public:
  void Read(const std::string& file) {
    std::ifstream in(file);
    if (!in || fs::is_directory(file)) throw LanguageError(file + ": the file can't be read");
    open_.push_back(fs::weakly_canonical(file));
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) ReadLine({file, number}, line);
    if (in.bad()) throw LanguageError(file + ": the file can't be read");
    open_.pop_back();
  }

  std::vector<Step>& steps() { return steps_; }

 private:
  void ReadLine(const Place& place, std::string& line) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (place.line == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
    if (line.ends_with('\r')) line.pop_back();
    const std::size_t begin = line.find_first_not_of(" \t");
    if (begin == std::string::npos || line[begin] == '#') return;
    Step step = ParseLine(place, line);
    if (step.kind() == StepKind::kPlay) {
      ReadPlayed(step);
    } else {
      steps_.push_back(std::move(step));
    }
  }

  void ReadPlayed(const Step& step) {
    const std::string file = (fs::path(step.place().file).parent_path() / step.Text(0)).string();
    if (std::find(open_.begin(), open_.end(), fs::weakly_canonical(file)) != open_.end())
      throw LanguageError(step.place(), "the file plays itself: '" + step.Text(0) + "'");
    if (!std::ifstream(file))
      throw LanguageError(step.place(), "the file can't be read: '" + step.Text(0) + "'");
    Read(file);
  }

  std::vector<Step> steps_;
  std::vector<fs::path> open_;
};

}  // namespace

std::vector<Scenario> ReadScript(const std::string& file) {
  FileReader reader;
  reader.Read(file);
  std::vector<Step>& steps = reader.steps();
  const auto first = std::find_if(steps.begin(), steps.end(),
                                  [](const Step& step) { return step.kind() == StepKind::kScenario; });
  const std::vector<Step> prelude(steps.begin(), first);
  std::vector<Scenario> scenarios;
  for (auto step = first; step != steps.end(); ++step) {
    if (step->kind() == StepKind::kScenario) {
      scenarios.push_back({step->place(), step->Text(0), prelude});
    } else {
      scenarios.back().steps.push_back(std::move(*step));
    }
  }
  if (scenarios.empty() && !prelude.empty()) scenarios.push_back({{file, 1}, file, prelude});
  return scenarios;
}

}  // namespace ovindra::driver
