#include "control/morvel.h"

namespace morvel::control {

// The two editor dialogs, opened for the current field through the host's modal hook.
// IN PROGRESS: bodies are being written on the control-edit branch.

void Morvel::cmdList_Click() {}
void Morvel::cmdLocale_Click() {}

} // namespace morvel::control
