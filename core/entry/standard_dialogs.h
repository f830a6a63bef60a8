// The message boxes that all entry forms share, text by text.
#pragma once

#include "base/machine/machine.h"

namespace ovindra {

/// Shows a box with OK alone.
void Tell(Machine& machine, const Message& message);

/// Asks with Yes and No; true for Yes.
bool Ask(Machine& machine, std::string_view text, std::string_view title);

bool AskToSave(Machine& machine);
bool AskToEdit(Machine& machine);
bool AskToDelete(Machine& machine);
void TellSaved(Machine& machine);
void TellDeleted(Machine& machine);
void TellDuplicate(Machine& machine);

}  // namespace ovindra
