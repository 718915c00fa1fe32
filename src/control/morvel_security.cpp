#include "control/morvel.h"
#include "fields/field_utility.h"

#include <string_view>

namespace morvel::control {

// Encryption and signature choices. Each choice is stored as the item data of the picked entry,
// or as the empty text when nothing is picked; the key length lists follow the stored algorithm.

namespace {

void storeChoice(FieldDef& field, std::string_view key, const view::ComboBox& list) {
    const std::int32_t index = list.listIndex();
    field.Properties().SetValue(key, index < 0 ? Value(std::string()) : Value(list.itemData(index)),
                                true);
}

std::int32_t storedNumber(const FieldDef& field, std::string_view key, std::int32_t byDefault) {
    return FieldUtility::ToLong(field.Properties().GetValue(key, Value(byDefault)));
}

} // namespace

// The key length list is refilled for the algorithm that is now stored. A stored length that the
// new algorithm does not offer stays stored and leaves the list without a selection.
void Morvel::cboEncryption_Click() {
    if (m_loading)
        return;
    FieldDef& field = currentField();
    if (!m_panelLoading)
        storeChoice(field, "Encyrpt.Type", cboEncryption);
    FillCipherKeyLengths(cboEncryptionKeyLen, storedNumber(field, "Encyrpt.Type", 1));
    SelectByItemData(cboEncryptionKeyLen, storedNumber(field, "Encyrpt.KeyLen", 0));
}

void Morvel::cboEncryptionKeyLen_Click() {
    if (m_loading || m_panelLoading)
        return;
    storeChoice(currentField(), "Encyrpt.KeyLen", cboEncryptionKeyLen);
}

void Morvel::cboSignatureHash_Click() {
    if (m_loading)
        return;
    FieldDef& field = currentField();
    if (!m_panelLoading)
        storeChoice(field, "Sign.Type", cboSignatureHash);
    FillHashKeyLengths(cboSignatureKeyLen, storedNumber(field, "Sign.Type", 1));
    SelectByItemData(cboSignatureKeyLen, storedNumber(field, "Sign.KeyLen", 0));
}

void Morvel::cboSignatureKeyLen_Click() {
    if (m_loading || m_panelLoading)
        return;
    storeChoice(currentField(), "Sign.KeyLen", cboSignatureKeyLen);
}

// Stored as typed: what the list of fields means is the business of whoever reads it.
void Morvel::txtSignatureFields_LostFocus() {
    if (m_panelLoading)
        return;
    currentField().Properties().SetValue("Sign.Flds", Value(txtSignatureFields.text()), true);
}

} // namespace morvel::control
