// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "dialogs/dialog_support.h"
#include "dialogs/frm_locale.h"
#include "testing/scripted_modal_host.h"
#include "testing/scripted_prompter.h"
#include "view/modal_host.h"

#include <functional>
#include <gtest/gtest.h>

namespace morvel::testing {
namespace {

using Entries = std::initializer_list<std::pair<const char*, const char*>>;

class LocaleTest : public ::testing::Test {
protected:
    // A field with the given Locales entries and link-locale keys in its Properties.
    static std::shared_ptr<FieldDef> field(int type, Entries locales,
                                           std::initializer_list<const char*> linkKeys = {}) {
        auto made = std::make_shared<FieldDef>("Customer", type);
        for (const auto& [key, text] : locales)
            made->Locales().SetValue(key, text, true);
        for (const char* key : linkKeys)
            made->Properties().SetValue(key, std::string("link ") + key, true);
        return made;
    }
    // Shows the editor for the field and runs the steps while it is open; counts field writes.
    void show(const std::shared_ptr<FieldDef>& edited, std::function<void()> steps = {}) {
        auto counting = edited->onChanged([this](const FieldChange&) { ++writes; });
        host.setScript([&](view::Form&) {
            if (steps)
                steps();
        });
        form.ShowForm(edited);
        host.setScript({});
    }
    void click(const char* key) { form.lstLocale.clickItem(form.lstLocale.item(key)); }

    testkit::ScriptedPrompter prompter;
    testkit::ScriptedModalHost host;
    dialogs::frmLocale form{prompter, host};
    int writes = 0;
};

TEST_F(LocaleTest, RowsComeFromTheFirstSourceThatGivesAnyAndTheTypeShapesTheDialog) {
    show(field(200, {{"D1033", "Desc"}, {"DN1033", "Name"}, {"D1031", "Beschreibung"}}));
    EXPECT_EQ(rowsText(form.lstLocale), "1033|Name|Desc");
    // The first row is shown, ready for editing, and showing it writes nothing.
    EXPECT_EQ(form.txtDisplayName.text() + "/" + form.txtDescription.text(), "Name/Desc");
    EXPECT_TRUE(form.txtDisplayName.enabled() && form.cmdDeleteLocale.enabled());
    EXPECT_EQ(writes, 0);

    dialogs::frmLocale descriptions(prompter, host);
    descriptions.ShowForm(field(200, {{"D1031", "Beschreibung"}}));
    EXPECT_EQ(rowsText(descriptions.lstLocale), "1031||Beschreibung");

    // Link locales count for "Link" fields only, which alone show their row in a taller dialog.
    // "rows; link locale box; height; top of the buttons"
    const auto shape = [&](int type) {
        dialogs::frmLocale shown(prompter, host);
        shown.ShowForm(field(type, {}, {"LDN1036"}));
        EXPECT_LE(shown.cmdAddLocale.geometry().bottom(), shown.scaleHeight());
        EXPECT_EQ(shown.txtDisplayName.enabled() || shown.cmdDeleteLocale.enabled(),
                  shown.lstLocale.count() > 0);
        EXPECT_EQ(shown.lblLinkLocale.visible(), shown.txtLinkLocale.visible());
        return rowsText(shown.lstLocale) + ";" +
               (shown.txtLinkLocale.visible() ? shown.txtLinkLocale.text() : "-") + ";" +
               std::to_string(shown.height()) + ";" + std::to_string(shown.cmdAddLocale.top()) +
               "," + std::to_string(shown.cmdClose.top());
    };
    EXPECT_EQ(shape(1001), ";-;4725;3720,3720");
    EXPECT_EQ(shape(1000), "1036||;link LDN1036;5145;4080,4080");
}

TEST_F(LocaleTest, AddWritesNothingUntilTextsAreTyped) {
    auto edited = field(1000, {{"DN1033", "Name"}});
    show(edited, [&] {
        form.cmdAddLocale.click(); // cancelled: nothing
        EXPECT_EQ(lastPrompt(prompter), "What is the Locale ID?|Locale|");
        prompter.answer("abc");
        form.cmdAddLocale.click();
        EXPECT_EQ(lastPrompt(prompter), "Locale ID must be a numeric value|OK|Information|Locale");
        EXPECT_EQ(form.lstLocale.count(), 1);

        prompter.answer("1036");
        form.cmdAddLocale.click();
        EXPECT_EQ(form.txtLCID.text(), "1036");
        EXPECT_TRUE(form.lstLocale.item("K1036").selected());
        EXPECT_EQ(form.txtDisplayName.text(), "");
        EXPECT_EQ(writes, 0);

        form.txtDisplayName.type("N");
        form.txtDisplayName.type("Nom");
        form.txtDescription.type("Desc");
        form.txtLinkLocale.type("fr");
    });
    EXPECT_EQ(storeText(edited->Locales()), "DN1033=Name; DN1036=Nom; D1036=Desc");
    EXPECT_EQ(storeText(edited->Properties()), "LDN1036=fr");
    EXPECT_EQ(rowsText(form.lstLocale), "1033|Name|; 1036|Nom|Desc");
}

TEST_F(LocaleTest, DeleteRemovesExactlyTheSelectedLocale) {
    auto edited = field(1000, {{"DN1033", "A"}, {"D1033", "B"}, {"DN1031", "C"}, {"D1031", "D"}},
                        {"LDN1033", "LDN1031"});
    show(edited, [&] {
        click("K1031");
        click("K1033");
        EXPECT_EQ(form.txtLinkLocale.text(), "link LDN1033");
        form.cmdDeleteLocale.click(); // answered No
        EXPECT_EQ(lastPrompt(prompter),
                  "Are you sure you want to remove the locale 1033|YesNo|Information|");
        EXPECT_EQ(form.lstLocale.count(), 2);

        prompter.answer(view::MsgBoxResult::Yes);
        form.cmdDeleteLocale.click();
        EXPECT_EQ(form.txtDisplayName.text() + form.txtLinkLocale.text(), "");
        // The boxes stay enabled, but with nothing selected typing has nowhere to go.
        EXPECT_THROW(form.txtDisplayName.type("x"), NotFoundError);
        form.cmdClose.click();
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(rowsText(form.lstLocale), "1031|C|D");
    EXPECT_EQ(storeText(edited->Locales()), "DN1031=C; D1031=D");
    EXPECT_EQ(storeText(edited->Properties()), "LDN1031=link LDN1031");
}

TEST_F(LocaleTest, ColumnWidthsFollowTheLongestTextAndOptionallyTheHeader) {
    show(field(200, {{"DN1033", "A considerably longer display name"}, {"D1033", "x"}}));
    auto widths = [&] {
        std::vector<std::int32_t> out;
        for (std::int32_t c = 1; c <= form.lstLocale.columnCount(); ++c)
            out.push_back(form.lstLocale.column(c).width);
        return out;
    };
    const std::vector<std::int32_t> withHeaders = widths();
    form.AdjustColumnWidth(form.lstLocale, false);
    const std::vector<std::int32_t> contentsOnly = widths();
    EXPECT_EQ(contentsOnly[1], withHeaders[1]); // its contents are wider than the header
    EXPECT_LT(contentsOnly[0], withHeaders[0]);
    EXPECT_LT(contentsOnly[2], withHeaders[2]);
}

} // namespace
} // namespace morvel::testing
