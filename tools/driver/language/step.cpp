#include "tools/driver/language/step.h"

namespace ovindra::driver {

std::vector<std::string> Step::Texts(std::size_t i) const {
  std::vector<std::string> texts;
  for (const Value& value : arguments_.at(i)) texts.push_back(std::get<std::string>(value));
  return texts;
}

}  // namespace ovindra::driver
