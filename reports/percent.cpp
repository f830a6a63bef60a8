#include "reports/percent.h"

#include "base/runtime_error.h"
#include "core/text/text.h"

namespace ovindra {

double Percent(double part, double whole) {
  if (whole == 0) throw part == 0 ? Overflow() : DivisionByZero();
  return Round(100 * part / whole, 2);
}

}  // namespace ovindra
