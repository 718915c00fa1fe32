#include "control/morvel.h"

namespace morvel::control {

// Find and find next over the rows of the field list.
// IN PROGRESS: bodies are being written on the control-edit branch.

void Morvel::cmdFind_Click() {}
void Morvel::cmdFindNext_Click() {}

} // namespace morvel::control
