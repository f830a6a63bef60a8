// Users and their rights, written as the login reads them: a right is a row with the name of a menu item.
// Every function works on an open screening database and fails with the server's refusal.
#pragma once

#include <span>
#include <string_view>

#include "base/database/connection.h"

namespace ovindra {

/// The items of one menu, from the first index to the last: m1 is data entry, m2 reports, m3 masters.
struct MenuItems {
  std::string_view menu;
  int first;
  int last;
};

/// Every item of the three menus that a user needs a right for, as the form of the users offers them; the
/// others are open to everybody.
std::span<const MenuItems> EveryMenuItem();

/// Adds a user with the rights to these items. Neither text may hold a quote: the login could not ask for it.
void AddUser(Session& screening, std::string_view name, std::string_view password,
             std::span<const MenuItems> rights);

}  // namespace ovindra
