#include "core/entry/running_number.h"

namespace ovindra {

std::string Read(Connection& connection, const RunningNumber& counter) {
  return Trim(connection.Execute(sql(counter.read))[counter.field]);
}

void Increment(Connection& connection, const RunningNumber& counter) {
  connection.Execute(sql(counter.increment));
}

}  // namespace ovindra
