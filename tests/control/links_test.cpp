// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/designer_fixture.h"
#include "testing/snapshot.h"

namespace morvel::testing {
namespace {

class LinkSettings : public DesignerTest {
protected:
    std::string stored(std::string_view field) const {
        return testkit::storeSnapshot(defs->Item(field)->Properties());
    }
    std::string shown(std::initializer_list<const view::Control*> controls) const {
        std::string out;
        for (const view::Control* control : controls)
            out += control->visible() ? "1" : "0";
        return out;
    }
    std::shared_ptr<FieldDefs> defs;
};

TEST_F(LinkSettings, DatabasePageWritesTheKeyFamilyOfTheType) {
    defs = give({{"Ado", 1001}, {"Lnk", 1000}, {"Grp", 3001}, {"Txt", 200}});
    for (std::string name : {"Ado", "Lnk", "Grp", "Txt"}) {
        clickRow(name);
        designer.txtTable.setText(name + ".tbl");
        designer.txtConnStr.setText(name + ".dsn");
        designer.txtIDField.setText(name + ".id");
    }
    EXPECT_EQ(stored("Ado"), "ADO.Table=\"Ado.tbl\";ADO.ConnStr=\"Ado.dsn\";ADO.ID=\"Ado.id\"");
    EXPECT_EQ(stored("Lnk"), "zrDirect.Table=\"Lnk.tbl\";zrDirect.ConnStr=\"Lnk.dsn\";"
                             "zrDirect.ID=\"Lnk.id\"");
    EXPECT_EQ(stored("Grp"), "zrDirect.ConnStr=\"Grp.dsn\"");
    EXPECT_EQ(stored("Txt"), "");
    clickRow("Ado"); // the panel shows "ADO.IDField", not the "ADO.ID" that the box wrote
    EXPECT_EQ(designer.txtIDField.text(), "");
}

TEST_F(LinkSettings, LinkPageKeysAndTheObjectTypeSwitchingItsControls) {
    defs = give({{"Owner", 1000}, {"Tags", 1010}});
    designer.chkLinkParent.setValue(1);
    EXPECT_EQ(stored("Owner"), "Lnk.Parent=True"); // showing the field wrote nothing
    designer.chkLinkParent.setValue(0);
    designer.txtObjectType.setText("12");
    EXPECT_EQ(stored("Owner"), "zrDirect.OT=12");
    const auto& d = designer;
    const std::initializer_list<const view::Control*> linkControls = {
        &d.txtStatus, &d.txtLinkIDField, &d.txtLinkTableName, &d.cboLinkTableName};
    EXPECT_EQ(shown(linkControls), "1000");
    designer.txtObjectType.setText("");
    EXPECT_EQ(shown(linkControls), "0110");
    attachDatabase();
    designer.txtObjectType.setText("0x");
    EXPECT_EQ(shown(linkControls), "0101");

    clickRow("Tags");
    designer.txtLinkDisplayField.setText("Title");
    EXPECT_EQ(stored("Tags"), "zrDirect.Disp=\"Title\";zrDirect.Disp123=\"Title\"");
}

TEST_F(LinkSettings, TableLookUpsRunOncePerControlAndFillTheCombos) {
    auto db = attachDatabase();
    defs = give({{"Lines", 5000}, {"Owner", 1000}, {"Child", 1002}});
    clickRow("Owner");
    clickRow("Lines");
    ASSERT_EQ(db->calls().size(), 2u);
    EXPECT_EQ(db->calls()[0].filter + db->calls()[1].filter, "TableType=4TableType=2");
    EXPECT_TRUE(db->calls()[1].second.empty() && db->calls()[1].maximum == 5000);
    EXPECT_EQ(designer.cboLinkTableName.list(0), "Customers");

    designer.TabStrip.click(2);
    pickByData(designer.cboSubTable, 4);
    EXPECT_EQ(stored("Lines"), "zrDirect.ST=4");
    designer.cboSubTable.setListIndex(-1);
    clickRow("Child");
    designer.cboLinkFields.setListIndex(0);
    EXPECT_EQ(stored("Child"), "SubLnk.Lnk=\"Owner\"");
    designer.cboLinkFields.setListIndex(-1);
    EXPECT_EQ(stored("Lines") + stored("Child"), "zrDirect.ST=0SubLnk.Lnk=\"\"");
}

TEST_F(LinkSettings, WithoutDatabaseAtFirstShowingTheSubTableIsTypedForGood) {
    defs = give({{"Lines", 5000}});
    auto db = attachDatabase();
    clickRow("Lines");
    EXPECT_TRUE(db->calls().empty());
    EXPECT_EQ(shown({&designer.txtSubTable, &designer.cboSubTable}), "10");
    designer.txtSubTable.setText("abc");
    EXPECT_EQ(stored("Lines"), "zrDirect.ST=0");
}

} // namespace
} // namespace morvel::testing
