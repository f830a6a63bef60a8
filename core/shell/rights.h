// The rights of a user: rows that each name a menu item of the main window, in the form m3(11), which they
// switch on.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/controls/form.h"
#include "base/database/connection.h"

namespace ovindra {

/// What a row of the rights names.
struct MenuRight {
  /// Of the item, as m3(11).
  std::string name() const;

  std::string_view menu;
  int index;
};

/// Reads a row's text, which must outlive what is returned; nothing for another prefix than m1, m2 and m3. An
/// index that is no number is error 13.
std::optional<MenuRight> ReadRight(std::string_view access);

/// Error 340: a right names an item that is not there.
RuntimeError NoSuchItem(const MenuRight& right);

/// Switches on every item of the main window's menus m1, m2 and m3 that the user's rights name; rows with
/// another prefix are passed over. An index that is no number is error 13, one that names no item error 340.
void ApplyRights(Connection& connection, std::string_view user_name, Form& main_window);

}  // namespace ovindra
