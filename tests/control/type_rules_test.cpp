// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/designer_fixture.h"

namespace morvel::testing {
namespace {

class TypeRules : public DesignerTest {
protected:
    // Pre-existing fields would have their type box locked; these tests change types freely.
    TypeRules() { designer.SetCanModifyExisting(true); }

    std::shared_ptr<FieldDef> giveOne(const std::string& name, int type, bool createOnDemand) {
        auto defs = std::make_shared<FieldDefs>();
        defs->Add(name, type)->SetCreateOnDemand(createOnDemand);
        designer.SetFieldDefs(defs);
        return defs->Item(name);
    }
    void changeType(int code) { selectByData(designer.cboType, code); }
    std::string cell(const char* column) const {
        return std::string(
            designer.lst.selectedItem()->subItem(designer.lst.columnIndex(column) - 1));
    }
};

TEST_F(TypeRules, SubTableToSignatureOnTheTypePageStaysOnTheNewTypePage) {
    auto field = giveOne("Lines", 5000, false);
    designer.TabStrip.click(2);
    changeType(10009);
    EXPECT_EQ(std::to_string(field->FieldType()) + cell("Type"), "10009Signature");
    EXPECT_EQ(panelState(), "zrSignature-|10009|Properties,Signature*,|pic6|cod1");
}

TEST_F(TypeRules, LeavingAReservedNameTypeGivesThePlaceholderName) {
    giveOne("zrSignature", 10009, true);
    changeType(3);
    EXPECT_EQ(panelState(), "NewField|3|Properties*,|pic1|cod0");

    // Only the exact reserved spelling counts.
    giveOne("zrsignature", 200, true);
    changeType(3);
    EXPECT_EQ(panelState(), "zrsignature|3|Properties*,|pic1|cod1");
}

TEST_F(TypeRules, TenantForcesItsNameButLeavesCreateOnDemand) {
    giveOne("Owner", 200, true);
    changeType(10008);
    EXPECT_EQ(panelState(), "zrTenant-|10008|Properties*,|pic1|cod1");
}

TEST_F(TypeRules, SizedTypesShowTheBoxAndTheConvertedNumberInTheSizeColumn) {
    auto field = giveOne("Code", 3, false);
    designer.txtSize.setText("abc");
    changeType(8);
    EXPECT_EQ(cell("Size"), "0");
    EXPECT_TRUE(designer.txtSize.visible() && designer.lblSize.visible());
    designer.txtSize.setText("40");
    changeType(20008);
    EXPECT_EQ(cell("Size"), "40");
    EXPECT_EQ(designer.TabStrip.caption(2), "Encryption");

    changeType(0);
    EXPECT_EQ(field->FieldType(), 0);
    EXPECT_EQ(cell("Type") + "|" + cell("Size"), "Unknown|");
    EXPECT_FALSE(designer.txtSize.visible());
    EXPECT_EQ(designer.TabStrip.count(), 1);
}

TEST_F(TypeRules, ListTypesPutTheValuesButtonBesideTheTypeBox) {
    giveOne("Colour", 200, false);
    changeType(1105);
    ASSERT_TRUE(designer.cmdList.visible());
    EXPECT_EQ(designer.cboType.geometry().right(), designer.cmdList.left() - 120);
    changeType(200);
    EXPECT_FALSE(designer.cmdList.visible());
    EXPECT_EQ(designer.cboType.geometry().right(), designer.pic(1).scaleWidth());
}

TEST_F(TypeRules, LinkAndDirectoryTypesShowTheirConnectionControls) {
    giveOne("Owner", 200, false);
    changeType(1000);
    EXPECT_TRUE(designer.chkLinkParent.visible() && designer.txtTable.visible());
    EXPECT_EQ(designer.TabStrip.caption(2), "Link Properties") << "the reload names the page";
    changeType(1011);
    EXPECT_FALSE(designer.chkLinkParent.visible());
    changeType(3001);
    EXPECT_TRUE(designer.txtConnStr.visible());
    EXPECT_FALSE(designer.txtTable.visible() || designer.lblSQL.visible());
    designer.TabStrip.click(2);
    EXPECT_TRUE(designer.pic(3).visible());
}

TEST_F(TypeRules, WithoutAFieldATypeClickOnlyTakesTheFocus) {
    give({});
    designer.cboType.setEnabled(true);
    changeType(3);
    EXPECT_EQ(designer.TabStrip.count(), 1);
    EXPECT_TRUE(designer.cboType.hasFocus());
}

} // namespace
} // namespace morvel::testing
