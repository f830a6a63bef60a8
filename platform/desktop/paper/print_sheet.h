// A sheet on the pages of a printer, by its page setup. The printer is the caller's.
#pragma once

#include <QPrinter>

#include "base/workbook/workbook.h"

namespace ovindra::desktop {

/// Prints the pages that the printer was asked for, all where it was asked for none. Lines, fonts and colours
/// are those of the screen; a sheet that is wider than the paper is made smaller; where it has no footer the
/// pages are numbered. Error 482 when the printer takes nothing.
void PrintSheet(const Workbook& workbook, QPrinter& printer);

}  // namespace ovindra::desktop
