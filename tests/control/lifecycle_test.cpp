#include "control/designer_fixture.h"
#include "control/property_bag.h"

namespace morvel::testing {
namespace {

using Lifecycle = DesignerTest;

TEST_F(Lifecycle, StartsWithListsFilledPanelDisabledAndOnlyTheGeneralTab) {
    EXPECT_EQ(designer.cboType.listCount(), 40);
    EXPECT_EQ(entries(designer.cboValidation), "Not Required|Required|Required Enforced");
    EXPECT_EQ(entries(designer.cboEncryption),
              "AES (best for security)|Blowfish (best for performance)");
    EXPECT_EQ(entries(designer.cboSignatureHash),
              "SHA (best for security)|MD5 (best for performance)");
    const std::vector<const view::Control*> basics{
        &designer.txtName, &designer.txtSize, &designer.cboType,  &designer.cboValidation,
        &designer.lblType, &designer.cmdList, &designer.cmdLocale};
    for (const view::Control* basic : basics)
        EXPECT_FALSE(basic->enabled()) << basic->name();
    ASSERT_EQ(designer.TabStrip.count(), 1);
    EXPECT_EQ(designer.TabStrip.caption(1), "Properties");
    EXPECT_TRUE(designer.pic(1).visible());
    for (int i = 2; i <= 7; ++i)
        EXPECT_FALSE(designer.pic(i).visible()) << i;
    EXPECT_EQ(designer.SelectedFieldDef(), nullptr);
}

TEST_F(Lifecycle, ListHasItsKeyedColumnsInTahoma) {
    std::string columns;
    for (int i = 1; i <= designer.lst.columnCount(); ++i) {
        const auto& column = designer.lst.column(i);
        columns += column.key + "=" + column.text + "/" + std::to_string(column.width) + ";";
    }
    EXPECT_EQ(columns, "Name=Field Name/2540;Type=Field Type/2540;Size=Size/1058;"
                       "DisplayName=Display Name/7056;Validation=Validation/2540;"
                       "CtrlReadOnly=Ctrl Read Only/2540;CtrlEdit=Control Edit/2540;"
                       "CtrlList=Control List/2540;");
    EXPECT_EQ(designer.lst.fontName(), "Tahoma");
}

TEST_F(Lifecycle, EmptyCollectionLeavesTheListEmptyAndThePanelClearedAndDisabled) {
    give({{"Amount", 3}});
    ASSERT_TRUE(designer.txtName.enabled());
    give({});
    EXPECT_EQ(designer.lst.count(), 0);
    EXPECT_EQ(designer.SelectedFieldDef(), nullptr);
    EXPECT_FALSE(designer.txtName.enabled());
    EXPECT_EQ(designer.txtName.text(), "");
    EXPECT_EQ(designer.cboType.listIndex(), -1);
    EXPECT_EQ(designer.TabStrip.count(), 1);
}

TEST_F(Lifecycle, CanModifyExistingIsPersistedUnderCmeAndDefaultsToFalse) {
    control::MemoryPropertyBag bag;
    designer.SetCanModifyExisting(true);
    designer.UserControl_ReadProperties(bag);
    EXPECT_FALSE(designer.CanModifyExisting()) << "a container that never saved gives False";

    designer.SetCanModifyExisting(true);
    designer.UserControl_WriteProperties(bag);
    control::Morvel reloaded(prompter, modalHost);
    reloaded.UserControl_ReadProperties(bag);
    EXPECT_TRUE(reloaded.CanModifyExisting());
    EXPECT_EQ(bag.ReadProperty("CME", false), Value(true));
}

TEST_F(Lifecycle, SettingTheDatabaseRefreshesNothing) {
    give({{"Owner", 1000}, {"Lines", 5000}});
    int rowChanges = 0;
    Connection counting =
        designer.lst.rowsChanged.connect([&](const view::ListChange&) { ++rowChanges; });
    const std::string shownTable = designer.txtLinkTableName.text();
    auto db = attachDatabase();
    EXPECT_EQ(rowChanges, 0);
    EXPECT_TRUE(db->calls().empty());
    EXPECT_EQ(designer.txtLinkTableName.text(), shownTable);
}

TEST_F(Lifecycle, CurrentFieldChangedFollowsTheSelection) {
    std::vector<std::string> seen;
    Connection watching = designer.currentFieldChanged.connect(
        [&](const auto& field) { seen.push_back(field ? field->Name() : "<none>"); });
    auto defs = give({{"A", 200}, {"B", 3}});
    clickRow("B");
    clickRow("B");
    give({});
    EXPECT_EQ(seen, (std::vector<std::string>{"A", "B", "<none>"}));
    EXPECT_EQ(designer.SelectedFieldDef(), nullptr);
}

} // namespace
} // namespace morvel::testing
