// A step of a scenario as the parser hands it on: which kind of step it is and its arguments in the order in
// which the grammar's row names them. Reading an argument as what it is not is a mistake of ours, not of the
// scenario.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "base/controls/control.h"
#include "base/date.h"
#include "tools/driver/language/step_kind.h"

namespace ovindra::driver {

/// Where a line stands, as messages name it.
struct Place {
  std::string file;
  int line = 0;

  std::string text() const { return file + ":" + std::to_string(line); }
};

/// The time of a day.
using TimeOfDay = std::chrono::minutes;

using Value = std::variant<std::string, long, double, Date, TimeOfDay, Key>;

/// What one place of a row has matched: one value, or none or several where the row allows it.
using Argument = std::vector<Value>;

class Step {
 public:
  Step() = default;
  Step(Place place, std::string line, StepKind kind, std::vector<Argument> arguments)
      : place_(std::move(place)), line_(std::move(line)), kind_(kind), arguments_(std::move(arguments)) {}

  const Place& place() const { return place_; }
  /// The line as it stands in the file, without the blanks around it.
  const std::string& line() const { return line_; }
  StepKind kind() const { return kind_; }

  bool Has(std::size_t i) const { return i < arguments_.size() && !arguments_[i].empty(); }
  /// A name, word or text.
  const std::string& Text(std::size_t i) const { return Get<std::string>(i); }
  std::vector<std::string> Texts(std::size_t i) const;
  long Number(std::size_t i) const { return Get<long>(i); }
  double Decimal(std::size_t i) const { return Get<double>(i); }
  int Int(std::size_t i) const { return static_cast<int>(Number(i)); }
  Date DateOf(std::size_t i) const { return Get<Date>(i); }
  TimeOfDay Time(std::size_t i) const { return Get<TimeOfDay>(i); }
  Key KeyOf(std::size_t i) const { return Get<Key>(i); }

 private:
  template <typename T>
  const T& Get(std::size_t i) const {
    return std::get<T>(arguments_.at(i).at(0));
  }

  Place place_;
  std::string line_;
  StepKind kind_ = StepKind::kStart;
  std::vector<Argument> arguments_;
};

}  // namespace ovindra::driver
