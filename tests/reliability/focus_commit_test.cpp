// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// A box that stores its text when the focus leaves it must store it into the field it was typed
// for, also when the host changes the collection while the person is still in the box.

#include "control/designer_fixture.h"

namespace morvel::testing {
namespace {

class FocusCommit : public DesignerTest {};

// Found by the random run: the order-by box still held the sub link's text when the host added a
// field, and leaving it only after the added field was shown wrote the text into the wrong field.
// After a removal, the box must not carry the typed text over to the field shown next.
TEST_F(FocusCommit, TextTypedBeforeTheHostAddsOrRemovesAFieldStaysWithItsField) {
    auto fields = give({{"Parent", 1002}, {"First", 200}, {"Gone", 200}, {"Signed", 10009}});
    designer.TabStrip.click(2);
    typeInto(designer.txtSubLinkOrderBy, "Name");
    fields->Add("Added", 200);
    EXPECT_EQ(testkit::storeSnapshot(fields->Item("Parent")->Properties()) + "/" +
                  testkit::storeSnapshot(fields->Item("Added")->Properties()),
              "SubLnk.OB=\"Name\"/");

    clickRow("Signed");
    designer.TabStrip.click(2);
    typeInto(designer.txtSignatureFields, "First;Gone");
    fields->Remove("Gone");
    designer.cmdFind.setFocus();
    EXPECT_EQ(designer.SelectedFieldDef()->Properties().Lookup("Sign.Flds"), nullptr);
}

} // namespace
} // namespace morvel::testing
