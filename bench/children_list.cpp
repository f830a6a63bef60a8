#include "bench/children_list.h"

#include <array>

namespace ovindra::bench {

std::string ListText(int row, int column) {
  constexpr std::array<const char*, 6> kNames = {"ASHA DEVI", "RAM LAL", "SITA KUMARI",
                                                 "MOHAN",     "GITA",    "RAVI"};
  const std::string number = std::to_string(row);
  const auto one_of_few = [&](int few) { return std::to_string(row % few); };
  switch (column) {
    case 1:
      return number;
    case 2:
      return "A" + number;
    case 3:
      return kNames[static_cast<std::size_t>(row) % kNames.size()] + (" " + number);
    case 4:
      return kNames[static_cast<std::size_t>(row / 7) % kNames.size()] + (" SON OF " + one_of_few(5'000));
    case 5:
      return one_of_few(16);
    case 6:
      return row % 2 == 0 ? "M" : "F";
    case 7:
      return "PRIMARY SCHOOL NUMBER " + one_of_few(300);
    case 8:
      return "98" + std::to_string(10'000'000 + row);
    case 9:
      return "BLOCK " + one_of_few(40);
    default:
      return column % 2 == 0 ? "31/05/2016" : "6/" + one_of_few(60);
  }
}

Workbook ChildrenList(int rows) {
  Workbook workbook;
  for (int row = 1; row <= rows; ++row) {
    for (int column = 1; column <= kListColumns; ++column)
      workbook.SetText(row, column, ListText(row, column));
  }
  workbook.Restyle({1, 1, rows, kListColumns}, [](CellStyle& style) {
    style.font.colour = 0xFF0000;
    style.border = {true, true, true, true, 0xFF0000};
  });
  return workbook;
}

}  // namespace ovindra::bench
