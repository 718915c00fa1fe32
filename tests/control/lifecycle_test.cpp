// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/designer_fixture.h"
#include "control/property_bag.h"
#include "testing/memory_property_bag.h"

namespace morvel::testing {
namespace {

using Lifecycle = DesignerTest;

TEST_F(Lifecycle, StartsWithListsFilledPanelDisabledAndOnlyTheGeneralTab) {
    EXPECT_EQ(designer.cboType.listCount(), 40);
    EXPECT_EQ(designer.cboValidation.listCount(), 3);
    EXPECT_EQ(entries(designer.cboEncryption) + "|" + entries(designer.cboSignatureHash),
              "AES (best for security)|Blowfish (best for performance)|"
              "SHA (best for security)|MD5 (best for performance)");
    EXPECT_FALSE(designer.cboType.enabled() || designer.lblType.enabled() ||
                 designer.cmdLocale.enabled());
    EXPECT_EQ(panelState(), "-|-1|Properties*,|pic1|cod0");
}

TEST_F(Lifecycle, EmptyCollectionLeavesTheListEmptyAndThePanelClearedAndDisabled) {
    give({{"Amount", 3}});
    give({});
    EXPECT_EQ(designer.lst.count(), 0);
    EXPECT_EQ(designer.SelectedFieldDef(), nullptr);
    EXPECT_EQ(panelState(), "-|-1|Properties*,|pic1|cod0");
}

TEST_F(Lifecycle, CanModifyExistingIsPersistedUnderCmeAndDefaultsToFalse) {
    testkit::MemoryPropertyBag bag;
    designer.SetCanModifyExisting(true);
    designer.UserControl_ReadProperties(bag);
    EXPECT_FALSE(designer.CanModifyExisting()) << "a container that never saved gives False";

    designer.SetCanModifyExisting(true);
    designer.UserControl_WriteProperties(bag);
    EXPECT_EQ(bag.ReadProperty("CME", false), Value(true));
    control::Morvel reloaded(prompter, modalHost);
    reloaded.UserControl_ReadProperties(bag);
    EXPECT_TRUE(reloaded.CanModifyExisting());
}

TEST_F(Lifecycle, SettingTheDatabaseRefreshesNothing) {
    give({{"Owner", 1000}});
    int rowChanges = 0;
    Connection counting = designer.lst.rowsChanged.connect([&](auto&) { ++rowChanges; });
    auto db = attachDatabase();
    EXPECT_EQ(rowChanges, 0);
    EXPECT_TRUE(db->calls().empty());
    EXPECT_FALSE(designer.cboLinkTableName.visible());
}

TEST_F(Lifecycle, CurrentFieldChangedIsRaisedOnlyWhenAnotherFieldBecomesCurrent) {
    std::string seen;
    Connection watching = designer.currentFieldChanged.connect(
        [&](const auto& field) { seen += (field ? field->Name() : "-") + ";"; });
    give({{"A", 200}, {"B", 3}});
    clickRow("B");
    clickRow("B");
    give({});
    EXPECT_EQ(seen, "A;B;-;");
}

} // namespace
} // namespace morvel::testing
