// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/designer_fixture.h"
#include "testing/snapshot.h"

namespace morvel::testing {
namespace {

class SecuritySettings : public DesignerTest {
protected:
    SecuritySettings() {
        designer.SetCanModifyExisting(true); // unlocks the encryption page of these fields
        defs = give({{"Secret", 20200}, {"zrSignature", 10009}});
        designer.TabStrip.click(2);
    }
    static std::string entries(const view::ComboBox& list) {
        std::string out = list.listIndex() < 0 ? "none:" : list.text() + ":";
        for (int i = 0; i < list.listCount(); ++i)
            out += (i ? "|" : "") + list.list(i);
        return out;
    }
    std::string stored(std::int32_t field) const {
        return testkit::storeSnapshot(defs->Item(field)->Properties());
    }
    std::shared_ptr<FieldDefs> defs;
};

TEST_F(SecuritySettings, KeyLengthsFollowTheCipherWhileTheStoredLengthStays) {
    auto& cipher = designer.cboEncryption;
    auto& length = designer.cboEncryptionKeyLen;
    EXPECT_EQ(cipher.text() + "/" + length.text(), "AES (best for security)/Default");
    pickByData(cipher, 2);
    EXPECT_EQ(entries(length),
              "Default:Default|64 (fastest)|128 (typical)|256 (strong)|448 (strongest)");
    pickByData(length, 448);
    pickByData(cipher, 1);
    EXPECT_EQ(entries(length), "none:Default|128 (fastest)|192 (typical)|256 (strongest)");
    EXPECT_EQ(stored(1), "Encyrpt.Type=1;Encyrpt.KeyLen=448");
    pickByData(length, 0);
    cipher.setListIndex(-1);
    EXPECT_EQ(stored(1), "Encyrpt.Type=\"\";Encyrpt.KeyLen=0");
    EXPECT_EQ(entries(length), "Default:Default");
}

TEST_F(SecuritySettings, SignatureChoicesAndFieldsAreStoredAsGiven) {
    clickRow("zrSignature");
    EXPECT_EQ(entries(designer.cboSignatureKeyLen),
              "Default:Default|256 (fastest)|384 (typical)|512 (strongest)");
    pickByData(designer.cboSignatureHash, 2);
    EXPECT_EQ(entries(designer.cboSignatureKeyLen), "Default:Default");
    typeInto(designer.txtSignatureFields, "A, B ");
    designer.cboSignatureHash.setFocus();
    EXPECT_EQ(stored(2), "Sign.Type=2;Sign.Flds=\"A, B \"");
    designer.txtSignatureFields.type("");
    designer.cboSignatureHash.setFocus();
    EXPECT_EQ(stored(2), "Sign.Type=2;Sign.Flds=\"\"");
}

} // namespace
} // namespace morvel::testing
