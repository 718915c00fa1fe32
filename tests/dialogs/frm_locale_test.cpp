#include "dialogs/dialog_support.h"
#include "dialogs/frm_locale.h"
#include "fields/error.h"
#include "view/modal_host.h"

#include <functional>
#include <gtest/gtest.h>

namespace morvel::testing {
namespace {

using view::MsgBoxButtons;
using view::MsgBoxIcon;
using view::MsgBoxResult;

class LocaleTest : public ::testing::Test {
protected:
    std::shared_ptr<FieldDef>
    makeField(int type, std::initializer_list<std::pair<const char*, const char*>> locales,
              std::initializer_list<const char*> linkLocales = {}) {
        auto field = std::make_shared<FieldDef>("Customer", type);
        for (const auto& [key, text] : locales)
            field->Locales().SetValue(key, text, true);
        for (const char* key : linkLocales)
            field->Properties().SetValue(key, std::string("link ") + key, true);
        return field;
    }
    // Shows the editor for the field and runs the steps while it is open; counts the writes.
    void show(const std::shared_ptr<FieldDef>& field, std::function<void()> steps = {}) {
        auto counting = field->onChanged([this](const FieldChange&) { ++writes; });
        host.setScript([&](view::Form&) {
            if (steps)
                steps();
        });
        form.ShowForm(field);
        host.setScript({});
    }
    void click(const char* key) { form.lstLocale.clickItem(form.lstLocale.item(key)); }

    view::ScriptedPrompter prompter;
    view::ScriptedModalHost host;
    dialogs::frmLocale form{prompter, host};
    int writes = 0;
};

TEST_F(LocaleTest, DisplayNameEntriesComeFirstWithTheirDescriptions) {
    show(makeField(200, {{"D1033", "Desc"}, {"DN1033", "Name"}, {"D1031", "Beschreibung"}}));
    EXPECT_EQ(rowsText(form.lstLocale), "1033|Name|Desc");
    EXPECT_EQ(host.shown(), 1);
    // The first row is selected and shown, ready for editing, without writing anything.
    EXPECT_EQ(form.txtDisplayName.text(), "Name");
    EXPECT_EQ(form.txtDescription.text(), "Desc");
    EXPECT_TRUE(form.txtDisplayName.enabled());
    EXPECT_TRUE(form.cmdDeleteLocale.enabled());
    EXPECT_EQ(writes, 0);
}

TEST_F(LocaleTest, DescriptionOnlyAndLinkLocaleSources) {
    show(makeField(200, {{"D1031", "Beschreibung"}}));
    EXPECT_EQ(rowsText(form.lstLocale), "1031||Beschreibung");

    dialogs::frmLocale plain(prompter, host);
    plain.ShowForm(makeField(200, {}, {"LDN1036"}));
    EXPECT_EQ(plain.lstLocale.count(), 0);
    EXPECT_FALSE(plain.txtDisplayName.enabled());
    EXPECT_FALSE(plain.cmdDeleteLocale.enabled());

    dialogs::frmLocale link(prompter, host);
    link.ShowForm(makeField(1000, {}, {"LDN1036"}));
    EXPECT_EQ(rowsText(link.lstLocale), "1036||");
    EXPECT_EQ(link.txtLinkLocale.text(), "link LDN1036");
}

TEST_F(LocaleTest, LinkLocaleRowOnlyForLinkFields) {
    show(makeField(1001, {}));
    EXPECT_EQ(form.height(), 4725);
    EXPECT_FALSE(form.txtLinkLocale.visible());
    EXPECT_FALSE(form.lblLinkLocale.visible());
    EXPECT_EQ(form.cmdClose.top(), 3720);
    EXPECT_LE(form.cmdClose.geometry().bottom(), form.scaleHeight());
    EXPECT_LT(form.txtDescription.geometry().bottom(), form.cmdClose.top());

    dialogs::frmLocale link(prompter, host);
    link.ShowForm(makeField(1000, {}));
    EXPECT_EQ(link.height(), 5145);
    EXPECT_TRUE(link.txtLinkLocale.visible());
    EXPECT_EQ(link.cmdAddLocale.top(), 4080);
    EXPECT_LT(link.txtLinkLocale.geometry().bottom(), link.cmdAddLocale.top());
    EXPECT_LE(link.cmdAddLocale.geometry().bottom(), link.scaleHeight());
}

TEST_F(LocaleTest, AddAsksForANumberAndWritesNothingUntilTyping) {
    // A shown locale fills the boxes, so Add has something to empty.
    auto field = makeField(1000, {{"DN1033", "Name"}});
    show(field, [&] {
        form.cmdAddLocale.click(); // cancelled
        EXPECT_EQ(prompter.prompts().size(), 1U);
        prompter.answer("abc");
        form.cmdAddLocale.click();
        expectMessage(prompter, "Locale ID must be a numeric value", MsgBoxButtons::OK,
                      MsgBoxIcon::Information, "Locale");
        EXPECT_EQ(form.lstLocale.count(), 1);

        prompter.answer("1036");
        form.cmdAddLocale.click();
        const auto& box = std::get<view::InputBoxRequest>(prompter.prompts().front());
        EXPECT_EQ(box.prompt, "What is the Locale ID?");
        EXPECT_EQ(box.title, "Locale");
        EXPECT_EQ(form.txtLCID.text(), "1036");
        EXPECT_EQ(rowsText(form.lstLocale), "1033|Name|; 1036||");
        EXPECT_EQ(form.txtDisplayName.text(), "");
        EXPECT_TRUE(form.lstLocale.item("K1036").selected());
        EXPECT_EQ(writes, 0);

        form.txtDisplayName.type("N");
        form.txtDisplayName.type("Nom");
        form.txtDescription.type("Desc");
        form.txtLinkLocale.type("fr");
    });
    EXPECT_EQ(storeText(field->Locales()), "DN1033=Name; DN1036=Nom; D1036=Desc");
    EXPECT_EQ(storeText(field->Properties()), "LDN1036=fr");
    EXPECT_EQ(rowsText(form.lstLocale), "1033|Name|; 1036|Nom|Desc");
}

TEST_F(LocaleTest, SwitchingLocalesShowsTheirTextsAndWritesOnlyTheSelectedOne) {
    auto field = makeField(200, {{"DN1033", "Name"}, {"DN1031", "Name de"}, {"D1031", "Desc"}});
    show(field, [&] {
        click("K1031");
        EXPECT_EQ(form.txtDescription.text(), "Desc");
        click("K1033");
        EXPECT_EQ(form.txtDescription.text(), "");
        EXPECT_EQ(writes, 0);
        form.txtDescription.type("About");
    });
    EXPECT_EQ(storeText(field->Locales()), "DN1033=Name; DN1031=Name de; D1031=Desc; D1033=About");
}

TEST_F(LocaleTest, DeleteRemovesExactlyTheSelectedLocale) {
    auto field = makeField(1000, {{"DN1033", "A"}, {"D1033", "B"}, {"DN1031", "C"}, {"D1031", "D"}},
                           {"LDN1033", "LDN1031"});
    show(field, [&] {
        click("K1033");
        form.cmdDeleteLocale.click(); // answered No
        expectMessage(prompter, "Are you sure you want to remove the locale 1033",
                      MsgBoxButtons::YesNo, MsgBoxIcon::Information, "");
        EXPECT_EQ(form.lstLocale.count(), 2);

        prompter.answer(MsgBoxResult::Yes);
        form.cmdDeleteLocale.click();
        EXPECT_EQ(form.txtDisplayName.text(), "");
        EXPECT_EQ(form.txtLinkLocale.text(), "");
        EXPECT_TRUE(form.txtDisplayName.enabled());
        // Nothing is selected now: typing has no locale to write to.
        EXPECT_THROW(form.txtDisplayName.type("x"), NotFoundError);
        form.cmdClose.click();
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(rowsText(form.lstLocale), "1031|C|D");
    EXPECT_EQ(storeText(field->Locales()), "DN1031=C; D1031=D");
    EXPECT_EQ(storeText(field->Properties()), "LDN1031=link LDN1031");
}

TEST_F(LocaleTest, ColumnWidthsFollowTheLongestTextAndOptionallyTheHeader) {
    show(makeField(200, {{"DN1033", "A considerably longer display name"}, {"D1033", "x"}}));
    const std::vector<std::int32_t> withHeaders = form.columnWidths();
    ASSERT_EQ(withHeaders.size(), 3U);
    EXPECT_GT(withHeaders[1], withHeaders[0]);
    form.AdjustColumnWidth(form.lstLocale, false);
    EXPECT_EQ(form.columnWidths()[1], withHeaders[1]); // its contents are wider
    EXPECT_LT(form.columnWidths()[2], withHeaders[2]); // "x" is narrower than its header
    EXPECT_LT(form.columnWidths()[0], withHeaders[0]);
}

} // namespace
} // namespace morvel::testing
