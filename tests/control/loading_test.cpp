#include "control/designer_fixture.h"

#include <utility>
#include <vector>

namespace morvel::testing {
namespace {

using Loading = DesignerTest;

TEST_F(Loading, LinkFieldWithoutPropertiesShowsTheReadDefaults) {
    give({{"Owner", 1000}});
    EXPECT_EQ(designer.txtOrderField.text(), "DisplayName");
    EXPECT_EQ(designer.txtLinkDisplayField.text(), "DisplayName");
    EXPECT_EQ(designer.txtLinkIDField.text(), "zrID");
    EXPECT_EQ(designer.txtObjectType.text(), "");
    EXPECT_EQ(designer.chkLinkParent.value(), 0);
    EXPECT_TRUE(designer.chkLinkParent.visible());
    // Object type 0 is a link to a table: no database, so the free-text table box.
    EXPECT_TRUE(designer.txtLinkTableName.visible());
    EXPECT_FALSE(designer.cboLinkTableName.visible());
    EXPECT_FALSE(designer.txtCoreFilter.visible());
}

TEST_F(Loading, SecurityFieldsWithoutPropertiesShowAesShaAndDefaultLengths) {
    give({{"Secret", 20200}, {"zrSignature", 10009}});
    EXPECT_EQ(selectedData(designer.cboEncryption), 1);
    EXPECT_EQ(selectedData(designer.cboEncryptionKeyLen), 0);
    EXPECT_EQ(designer.cboEncryptionKeyLen.listCount(), 4);
    clickRow("zrSignature");
    EXPECT_EQ(selectedData(designer.cboSignatureHash), 1);
    EXPECT_EQ(selectedData(designer.cboSignatureKeyLen), 0);
}

TEST_F(Loading, StoredSettingsAreShown) {
    auto defs = give({{"Owner", 1000}, {"Remote", 1001}, {"Secret", 20008}, {"Parts", 1002}});
    auto& owner = defs->Item("Owner")->Properties();
    owner.SetValue("zrDirect.OT", 12, true);
    owner.SetValue("Lnk.Parent", true, true);
    auto& remote = defs->Item("Remote")->Properties();
    remote.SetValue("ADO.ID", "typed", true);
    remote.SetValue("ADO.IDField", "shown", true);
    auto& secret = defs->Item("Secret")->Properties();
    secret.SetValue("Encyrpt.Type", 2, true);
    secret.SetValue("Encyrpt.KeyLen", 448, true);
    defs->Item("Parts")->Properties().SetValue("SubLnk.Lnk", "OWNER", true);

    clickRow("Owner");
    EXPECT_EQ(designer.txtObjectType.text(), "12");
    EXPECT_EQ(designer.chkLinkParent.value(), 1);
    EXPECT_TRUE(designer.txtCoreFilter.visible()) << "a link to objects is filtered";
    EXPECT_TRUE(designer.txtStatus.visible());
    EXPECT_FALSE(designer.txtLinkTableName.visible());
    EXPECT_FALSE(designer.txtLinkIDField.visible());

    clickRow("Remote");
    EXPECT_EQ(designer.txtIDField.text(), "shown");

    clickRow("Secret");
    EXPECT_EQ(selectedData(designer.cboEncryption), 2);
    EXPECT_EQ(selectedData(designer.cboEncryptionKeyLen), 448);
    EXPECT_TRUE(designer.txtSize.visible());

    clickRow("Parts");
    EXPECT_EQ(entries(designer.cboLinkFields), "Owner");
    EXPECT_EQ(designer.cboLinkFields.text(), "Owner") << "matched without regard to case";
}

TEST_F(Loading, TemplateSuggestionsFollowTheType) {
    give({{"Lines", 5000}, {"Flag", 11}});
    EXPECT_EQ(entries(designer.txtCtrlEdit), "SUBTABLEBUTTON");
    EXPECT_EQ(designer.txtCtrlReadOnly.listCount(), 0);
    clickRow("Flag");
    EXPECT_EQ(entries(designer.txtCtrlEdit), "CHECKBOX|VALUELABEL");
    EXPECT_EQ(entries(designer.txtCtrlReadOnly), "VALUELABEL");
}

// Showing a field is not an edit: whatever the handlers that the filling raises would do,
// nothing reaches the field.
TEST_F(Loading, LoadingWritesNothingToTheField) {
    auto defs = give({{"Owner", 1000},
                      {"Many", 1010},
                      {"Remote", 1001},
                      {"User", 3000},
                      {"Lines", 5000},
                      {"Parts", 1002},
                      {"Secret", 20008},
                      {"zrSignature", 10009},
                      {"Choice", 1100},
                      {"Code", 8}});
    auto lines = defs->Item("Lines");
    lines->SetCtrlEdit("SUBTABLEBUTTON");
    lines->SetCreateOnDemand(true);
    lines->SetValidation(1);
    lines->SetDescription("Order lines");
    defs->Item("Owner")->Properties().SetValue("zrDirect.Table", "Customers", true);
    defs->Item("Parts")->Properties().SetValue("SubLnk.Lnk", "owner", true);
    defs->Item("Secret")->Properties().SetValue("Encyrpt.Type", 2, true);
    attachDatabase();

    int writes = 0;
    Connection counting = defs->changed.connect([&](const FieldChange&) { ++writes; });
    for (const auto& field : *defs)
        clickRow(field->Name());
    clickRow("Owner");
    designer.TabStrip.click(2);
    for (const auto& field : *defs)
        clickRow(field->Name());
    EXPECT_EQ(writes, 0);
}

TEST_F(Loading, PreExistingRowsLockNameTypeAndEncryptionButNotSignature) {
    auto defs = give({{"Secret", 20008}, {"zrSignature", 10009}});
    EXPECT_TRUE(designer.txtName.locked());
    EXPECT_TRUE(designer.cboType.locked());
    EXPECT_TRUE(designer.cboEncryption.locked());
    EXPECT_TRUE(designer.cboEncryptionKeyLen.locked());
    clickRow("zrSignature");
    EXPECT_FALSE(designer.cboSignatureHash.locked());
    EXPECT_FALSE(designer.cboSignatureKeyLen.locked());

    defs->Add("Added", 20200);
    EXPECT_FALSE(designer.txtName.locked());
    EXPECT_FALSE(designer.cboType.locked());
    EXPECT_FALSE(designer.cboEncryption.locked());
}

TEST_F(Loading, CanModifyExistingUnlocksFromTheNextLoadOn) {
    give({{"Secret", 20008}, {"Other", 200}});
    designer.SetCanModifyExisting(true);
    EXPECT_TRUE(designer.txtName.locked()) << "the field shown keeps its locks";
    clickRow("Secret");
    EXPECT_FALSE(designer.txtName.locked());
    EXPECT_FALSE(designer.cboType.locked());
    EXPECT_FALSE(designer.cboEncryption.locked());
}

TEST_F(Loading, TheTypePageStaysSelectedBetweenTabbedTypesAndGoesForOthers) {
    give({{"Owner", 1000}, {"zrSignature", 10009}, {"Notes", 200}});
    designer.TabStrip.click(2);
    ASSERT_TRUE(designer.pic(2).visible());
    clickRow("zrSignature");
    ASSERT_EQ(designer.TabStrip.count(), 2);
    EXPECT_EQ(designer.TabStrip.caption(2), "Signature");
    EXPECT_EQ(designer.TabStrip.selectedIndex(), 2);
    EXPECT_TRUE(designer.pic(6).visible());
    EXPECT_FALSE(designer.pic(2).visible());

    clickRow("Notes");
    EXPECT_EQ(designer.TabStrip.count(), 1);
    EXPECT_TRUE(designer.pic(1).visible());
    EXPECT_FALSE(designer.pic(6).visible());
}

TEST_F(Loading, EachTypeGetsItsPageCaption) {
    const std::vector<std::pair<int, std::string>> pages{{1000, "Link Properties"},
                                                         {1010, "Link Properties"},
                                                         {1001, "Database"},
                                                         {1011, "Database"},
                                                         {3001, "Database"},
                                                         {5000, "Sub Table"},
                                                         {1002, "Sub Link"},
                                                         {20008, "Encryption"},
                                                         {20200, "Encryption"},
                                                         {10009, "Signature"},
                                                         {8, ""},
                                                         {1100, ""},
                                                         {10005, ""}};
    for (const auto& [code, caption] : pages) {
        give({{"Field", code}});
        const std::string shown =
            designer.TabStrip.count() == 2 ? designer.TabStrip.caption(2) : "";
        EXPECT_EQ(shown, caption) << code;
    }
}

TEST_F(Loading, ReLoadingTheSameValuesKeepsTheLinkPageSplit) {
    // The object-type box keeps its text from one link field to the next, so its Change does
    // not fire; the page must still follow the field.
    auto defs = give({{"A", 1000}, {"B", 1000}});
    defs->Item("A")->Properties().SetValue("zrDirect.OT", 5, true);
    defs->Item("B")->Properties().SetValue("zrDirect.OT", 5, true);
    clickRow("A");
    designer.txtCoreFilter.setVisible(false);
    clickRow("B");
    EXPECT_TRUE(designer.txtCoreFilter.visible());
}

} // namespace
} // namespace morvel::testing
