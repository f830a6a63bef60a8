#include <iostream>
#include <string>
#include <vector>

#include "app/forms.h"
#include "tools/driver/drive.h"
#include "tools/driver/store/database_store.h"
#ifdef OVINDRA_HAS_WINDOW_PLAYER
#include "tools/driver/window_player.h"
#endif

int main(int argc, char** argv) {
  using namespace ovindra;
  driver::DriveParts parts{AllForms(), driver::DatabasesFrom, driver::MakeControlsPlayer, {}};
#ifdef OVINDRA_HAS_WINDOW_PLAYER
  parts.on_windows = driver::MakeWindowPlayer;
#endif
  return driver::Drive(std::vector<std::string>(argv + 1, argv + argc), parts, std::cout, std::cerr);
}
