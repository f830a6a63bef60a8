// The percent figures of reports.
#pragma once

namespace ovindra {

/// So many of each hundred, to two decimals, a tie to the even digit. Of a whole of zero it is error 11, or 6
/// where the part is zero too.
double Percent(double part, double whole);

}  // namespace ovindra
