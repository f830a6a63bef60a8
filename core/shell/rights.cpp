#include "core/shell/rights.h"

#include <charconv>

#include "base/text/blanks.h"

namespace ovindra {
namespace {

constexpr std::size_t kPrefixLength = 2;

/// What stands between the first and the last character behind the menu's name.
int IndexOf(std::string_view access) {
  std::string_view index = access.substr(kPrefixLength);
  if (index.size() < 2) throw TypeMismatch();
  index = Trim(index.substr(1, index.size() - 2));
  int value = 0;
  const auto read = std::from_chars(index.data(), index.data() + index.size(), value);
  if (read.ec != std::errc{} || read.ptr != index.data() + index.size()) throw TypeMismatch();
  return value;
}

}  // namespace

std::string MenuRight::name() const {
  return std::string(menu) + "(" + std::to_string(index) + ")";
}

std::optional<MenuRight> ReadRight(std::string_view access) {
  const std::string_view menu = access.substr(0, kPrefixLength);
  if (menu != "m1" && menu != "m2" && menu != "m3") return {};
  return MenuRight{menu, IndexOf(access)};
}

RuntimeError NoSuchItem(const MenuRight& right) {
  return {340, "Control array element '" + std::to_string(right.index) + "' doesn't exist"};
}

void ApplyRights(Connection& connection, std::string_view user_name, Form& main_window) {
  const std::string user_code = Trim(connection.Execute(
      sql("Select User_Code from User_Master where User_Name=", quoted(Trim(user_name))))["User_Code"]);
  Recordset rights =
      connection.Execute(sql("Select Access from User_Rights where User_Code=", bare(user_code)));
  for (; !rights.Eof(); rights.MoveNext()) {
    const std::string access = Trim(rights["Access"]);
    const auto right = ReadRight(access);
    if (!right) continue;
    Control* item = main_window.Find(right->name());
    if (item == nullptr) throw NoSuchItem(*right);
    item->SetEnabled(true);
  }
}

}  // namespace ovindra
