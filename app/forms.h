// Every form of the program by its name, with its maker: the one list that the main window, the scenario
// driver and the tests open forms from.
#pragma once

#include "core/startup/program.h"

namespace ovindra {

FormList AllForms();

}  // namespace ovindra
