#include "control/morvel.h"

namespace morvel::control {

// Encryption and signature choices.
// IN PROGRESS: bodies are being written on the control-edit branch.

void Morvel::cboEncryption_Click() {}
void Morvel::cboEncryptionKeyLen_Click() {}
void Morvel::cboSignatureHash_Click() {}
void Morvel::cboSignatureKeyLen_Click() {}
void Morvel::txtSignatureFields_LostFocus() {}

} // namespace morvel::control
