#include "tools/setup/users.h"

#include <array>
#include <string>

#include "tools/setup/statement.h"

namespace ovindra {

std::span<const MenuItems> EveryMenuItem() {
  static constexpr std::array kItems{MenuItems{"m1", 0, 4}, MenuItems{"m2", 0, 10}, MenuItems{"m3", 0, 11}};
  return kItems;
}

void AddUser(Session& screening, std::string_view name, std::string_view password,
             std::span<const MenuItems> rights) {
  Execute(screening, sql("insert into User_Master (User_Name,Password) values (", quoted(name), ",",
                         quoted(password), ")"));
  const Recordset user =
      Execute(screening, sql("select User_Code from User_Master where User_Name=", quoted(name)));
  const std::string code = Trim(user["User_Code"]);
  for (const MenuItems& items : rights) {
    for (int index = items.first; index <= items.last; ++index) {
      const std::string access = std::string(items.menu) + "(" + std::to_string(index) + ")";
      Execute(screening, sql("insert into User_Rights values(", bare(code), ",", quoted(access), ")"));
    }
  }
}

}  // namespace ovindra
