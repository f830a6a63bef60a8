#include "core/entry/standard_dialogs.h"

namespace ovindra {

void Tell(Machine& machine, const Message& message) {
  machine.message_box.Show(message);
}

bool Ask(Machine& machine, std::string_view text, std::string_view title) {
  return machine.message_box.Show({std::string(text), std::string(title), MessageIcon::kQuestion,
                                   MessageButtons::kYesNo}) == Answer::kYes;
}

bool AskToSave(Machine& machine) {
  return Ask(machine, "Are You Sure Want to Save it", "Sure ?");
}

bool AskToEdit(Machine& machine) {
  return Ask(machine, "Are You Sure Want to Edit", "Sure ?");
}

bool AskToDelete(Machine& machine) {
  return Ask(machine, "DO YOU WANT TO DELETE IT", "DELETE IT ?");
}

void TellSaved(Machine& machine) {
  Tell(machine, {"This Record Saved", "Saved", MessageIcon::kInformation});
}

void TellDeleted(Machine& machine) {
  Tell(machine, {"This Record Deleted", "Deleted!!!", MessageIcon::kInformation});
}

void TellDuplicate(Machine& machine) {
  Tell(machine, {"This Record Already Exist", "Duplicate", MessageIcon::kExclamation});
}

}  // namespace ovindra
