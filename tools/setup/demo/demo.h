// A demonstration programme: places, people and children as two years of work would have left them, the same
// at every call. The same generator fills databases of any size for measurements. It owns nothing; a refusal
// of the database passes through and leaves the databases partly filled.
#pragma once

#include <span>
#include <string_view>

#include "base/database/connection.h"
#include "base/date.h"
#include "tools/setup/users.h"

namespace ovindra {

/// How large the programme is.
struct DemoScale {
  int children = 3000;
  int schools = 42;
  int schools_of_center = 4;
  int blocks = 8;
  int sankuls = 10;
  int vision_centers = 6;
  int anganwadi_centers = 12;
  int hospitals = 3;
  /// Children of one center who have just been enrolled and not yet screened.
  int waiting = 120;

  /// A programme of that many children: from some ten thousand on a school has about 300 of them and a center
  /// 17 schools, and from 100,000 on to a million each location, the center that waits too, has the same
  /// share of the children, so that two programmes differ in their size alone.
  static DemoScale ForChildren(int children);
};

/// The days of the first and the last enrollment.
inline constexpr Date kDemoFirstDay{std::chrono::year(2014), std::chrono::June, std::chrono::day(2)};
inline constexpr Date kDemoLastDay{std::chrono::year(2016), std::chrono::May, std::chrono::day(31)};

/// A user of the demonstration.
struct DemoUser {
  std::string_view name;
  std::string_view password;
  std::string_view duty;
  std::span<const MenuItems> rights;
};

/// The users, the administrator first.
std::span<const DemoUser> DemoUsers();

/// Fills both databases, which must hold their schemas and the rows that must exist, and nothing else. Every
/// row is a statement: on a database file the whole is to be run as one transaction, or each is put on the
/// disk by itself.
void FillDemo(Session& screening, Session& hospital, const DemoScale& scale = {});

}  // namespace ovindra
