// Where the player on widgets comes from. Only programs that link the window player library have it.
#pragma once

#include <memory>

#include "tools/driver/player.h"

namespace ovindra::driver {

/// Makes the player and, at its first call in a process, the desktop application that it plays on; offscreen
/// where there is no display.
std::unique_ptr<Player> MakeWindowPlayer(Look look);

}  // namespace ovindra::driver
