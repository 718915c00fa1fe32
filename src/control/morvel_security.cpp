// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/setting_boxes.h"
#include "control/morvel.h"

namespace morvel::control {

// Encryption and signature choices. Each choice is stored as the item data of the picked entry,
// or as the empty text when nothing is picked; the key length lists follow the stored algorithm.

// The key length list is refilled for the algorithm that is now stored. A stored length that the
// new algorithm does not offer stays stored and leaves the list without a selection. Wired
// without the loading guard: while the panel is filled the list still follows, nothing is stored.
void Morvel::cboEncryption_Click() {
    if (m_loading)
        return;
    const FieldDef& field = currentField();
    if (!m_panelLoading)
        writeBox(cboEncryption);
    showSetting(catalogue::settingOf("cboEncryptionKeyLen"), field);
}

void Morvel::cboEncryptionKeyLen_Click() {
    if (m_loading)
        return;
    writeBox(cboEncryptionKeyLen);
}

void Morvel::cboSignatureHash_Click() {
    if (m_loading)
        return;
    const FieldDef& field = currentField();
    if (!m_panelLoading)
        writeBox(cboSignatureHash);
    showSetting(catalogue::settingOf("cboSignatureKeyLen"), field);
}

void Morvel::cboSignatureKeyLen_Click() {
    if (m_loading)
        return;
    writeBox(cboSignatureKeyLen);
}

// Stored as typed: what the list of fields means is the business of whoever reads it.
void Morvel::txtSignatureFields_LostFocus() {
    writeBox(txtSignatureFields);
}

} // namespace morvel::control
