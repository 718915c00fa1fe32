// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/designer_fixture.h"

namespace morvel::testing {
namespace {

using Loading = DesignerTest;

TEST_F(Loading, FieldsWithoutPropertiesShowTheReadDefaults) {
    give({{"Owner", 1000}, {"Secret", 20200}, {"zrSignature", 10009}, {"Lines", 5000}});
    EXPECT_EQ(designer.txtOrderField.text() + "|" + designer.txtLinkDisplayField.text() + "|" +
                  designer.txtLinkIDField.text() + "|" + designer.txtObjectType.text(),
              "DisplayName|DisplayName|zrID|");
    EXPECT_EQ(designer.chkLinkParent.value(), 0);
    // Object type 0 links to a table; without a database it is named in the free-text box.
    EXPECT_TRUE(designer.txtLinkTableName.visible());
    EXPECT_FALSE(designer.cboLinkTableName.visible() || designer.txtCoreFilter.visible());

    clickRow("Secret");
    EXPECT_EQ(selectedData(designer.cboEncryption), 1);
    EXPECT_EQ(selectedData(designer.cboEncryptionKeyLen), 0);
    clickRow("zrSignature");
    EXPECT_EQ(selectedData(designer.cboSignatureHash), 1);
    EXPECT_EQ(selectedData(designer.cboSignatureKeyLen), 0);
    clickRow("Lines");
    // The read-only fill puts its one suggestion into the edit box, which the edit fill clears.
    EXPECT_EQ(entries(designer.txtCtrlEdit), "SUBTABLEBUTTON");
    EXPECT_EQ(designer.txtCtrlReadOnly.listCount(), 0);
}

TEST_F(Loading, StoredSettingsAreShown) {
    auto defs = give({{"Owner", 1000}, {"Remote", 1001}, {"Secret", 20008}, {"Parts", 1002}});
    defs->Item("Owner")->Properties().SetValue("zrDirect.OT", 12, true);
    defs->Item("Owner")->Properties().SetValue("Lnk.Parent", true, true);
    defs->Item("Remote")->Properties().SetValue("ADO.ID", "typed", true);
    defs->Item("Remote")->Properties().SetValue("ADO.IDField", "shown", true);
    defs->Item("Secret")->Properties().SetValue("Encyrpt.Type", 2, true);
    defs->Item("Secret")->Properties().SetValue("Encyrpt.KeyLen", 448, true);
    defs->Item("Parts")->Properties().SetValue("SubLnk.Lnk", "OWNER", true);

    clickRow("Owner");
    EXPECT_EQ(designer.chkLinkParent.value(), 1);
    EXPECT_TRUE(designer.txtCoreFilter.visible()) << "a link to objects is filtered";
    clickRow("Remote");
    EXPECT_EQ(designer.txtIDField.text(), "shown");
    clickRow("Secret");
    EXPECT_EQ(selectedData(designer.cboEncryptionKeyLen), 448);
    EXPECT_TRUE(designer.txtSize.visible());
    clickRow("Parts");
    EXPECT_EQ(entries(designer.cboLinkFields), "Owner");
    EXPECT_EQ(designer.cboLinkFields.text(), "Owner") << "matched without regard to case";
}

// Whatever the handlers that filling the panel raises would do, showing a field is no edit.
TEST_F(Loading, LoadingWritesNothingToTheField) {
    auto defs = give({{"Owner", 1000},
                      {"Remote", 1001},
                      {"User", 3000},
                      {"Lines", 5000},
                      {"Parts", 1002},
                      {"Secret", 20008},
                      {"zrSignature", 10009},
                      {"Code", 8}});
    defs->Item("Lines")->SetCreateOnDemand(true);
    defs->Item("Lines")->SetValidation(1);
    defs->Item("Owner")->Properties().SetValue("zrDirect.Table", "Customers", true);
    defs->Item("Parts")->Properties().SetValue("SubLnk.Lnk", "owner", true);
    attachDatabase();

    int writes = 0;
    Connection counting = defs->changed.connect([&](const FieldChange&) { ++writes; });
    for (int pass = 1; pass <= 2; ++pass) {
        for (const auto& field : *defs)
            clickRow(field->Name());
        clickRow("Owner");
        designer.TabStrip.click(2); // the second pass runs on the type pages
    }
    EXPECT_EQ(writes, 0);
}

TEST_F(Loading, PreExistingRowsLockNameTypeAndEncryptionButNotSignature) {
    auto defs = give({{"Secret", 20008}, {"zrSignature", 10009}});
    EXPECT_TRUE(designer.txtName.locked() && designer.cboType.locked());
    EXPECT_TRUE(designer.cboEncryption.locked() && designer.cboEncryptionKeyLen.locked());
    clickRow("zrSignature");
    EXPECT_FALSE(designer.cboSignatureHash.locked() || designer.cboSignatureKeyLen.locked());

    defs->Add("Added", 20200);
    EXPECT_FALSE(designer.txtName.locked() || designer.cboType.locked());
    EXPECT_FALSE(designer.cboEncryption.locked());

    clickRow("Secret");
    designer.SetCanModifyExisting(true);
    EXPECT_TRUE(designer.txtName.locked()) << "the field shown keeps its locks until reloaded";
    clickRow("Secret");
    EXPECT_FALSE(designer.txtName.locked() || designer.cboEncryption.locked());
}

TEST_F(Loading, TheTypePageStaysSelectedBetweenTabbedTypesAndGoesForOthers) {
    give({{"Owner", 1000}, {"zrSignature", 10009}, {"Notes", 200}});
    designer.TabStrip.click(2);
    clickRow("zrSignature");
    EXPECT_EQ(panelState(), "zrSignature|10009|Properties,Signature*,|pic6|cod0");
    clickRow("Notes");
    EXPECT_EQ(panelState(), "Notes|200|Properties*,|pic1|cod0");
}

TEST_F(Loading, EachTypeGetsItsPageCaption) {
    std::string captions;
    for (int code : {1000, 1010, 1001, 3001, 5000, 1002, 20008, 20200, 10009, 8, 1100}) {
        give({{"Field", code}});
        captions += (designer.TabStrip.count() == 2 ? designer.TabStrip.caption(2) : "-") + "|";
    }
    EXPECT_EQ(captions, "Link Properties|Link Properties|Database|Database|Sub Table|Sub Link|"
                        "Encryption|Encryption|Signature|-|-|");
}

TEST_F(Loading, TheLinkPageFollowsTheObjectTypeEvenWhenItsBoxKeepsItsText) {
    // Both fields show "5", so the box raises no Change on the second load.
    auto defs = give({{"A", 1000}, {"B", 1000}});
    defs->Item("A")->Properties().SetValue("zrDirect.OT", 5, true);
    defs->Item("B")->Properties().SetValue("zrDirect.OT", 5, true);
    clickRow("A");
    designer.txtCoreFilter.setVisible(false);
    clickRow("B");
    EXPECT_TRUE(designer.txtCoreFilter.visible());
}

TEST_F(Loading, AFirstLinkToObjectsShowsNoTableBoxAfterTheTableLookUp) {
    // The first showing runs the table look-up, which on its own would show a table box.
    attachDatabase();
    auto defs = std::make_shared<FieldDefs>();
    defs->Add("Owner", 1000)->Properties().SetValue("zrDirect.OT", 7, true);
    designer.SetFieldDefs(defs);
    EXPECT_TRUE(designer.txtCoreFilter.visible());
    EXPECT_FALSE(designer.cboLinkTableName.visible() || designer.txtLinkTableName.visible());
}

} // namespace
} // namespace morvel::testing
