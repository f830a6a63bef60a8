#include "reports/percent.h"

#include "base/runtime_error.h"
#include "core/text/text.h"

namespace ovindra {

double Percent(double part, double whole) {
  if (whole == 0) throw part == 0 ? Overflow() : DivisionByZero();
  // A share of ten-thousandths holds every tie exactly; a negative one that rounds to nothing has no sign.
  return Round(10'000 * part / whole, 0) / 100 + 0.0;
}

}  // namespace ovindra
