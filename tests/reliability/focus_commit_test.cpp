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
TEST_F(FocusCommit, TextTypedBeforeTheHostAddsAFieldStaysWithItsField) {
    auto fields = give({{"Parent", 1002}});
    designer.TabStrip.click(2);
    typeInto(designer.txtSubLinkOrderBy, "Name");

    fields->Add("Added", 200);

    EXPECT_EQ(fields->Item("Parent")->Properties().GetValue("SubLnk.OB", "").toText(), "Name");
    EXPECT_EQ(fields->Item("Added")->Properties().Lookup("SubLnk.OB"), nullptr);
}

// The same after a removal: the box must not carry the typed text over to the field shown next.
TEST_F(FocusCommit, TextTypedBeforeTheHostRemovesAFieldStaysWithItsField) {
    auto fields = give({{"First", 200}, {"Gone", 200}, {"Signed", 10009}});
    clickRow("Signed");
    designer.TabStrip.click(2);
    typeInto(designer.txtSignatureFields, "First;Gone");

    fields->Remove("Gone");
    designer.cmdFind.setFocus();

    EXPECT_EQ(fields->Item("First")->Properties().Lookup("Sign.Flds"), nullptr);
}

} // namespace
} // namespace morvel::testing
