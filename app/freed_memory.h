// How the program's memory behaves between two lists.
#pragma once

namespace ovindra {

/// Has the process keep the memory that a list gives back, up to some tens of megabytes, for the next one:
/// asking the system for it anew takes longer than filling it. Where the C library can't be told so, nothing
/// changes.
void KeepFreedMemory();

}  // namespace ovindra
