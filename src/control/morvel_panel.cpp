#include "base/text.h"
#include "catalogue/field_types.h"
#include "control/morvel.h"
#include "control/morvel_helpers.h"
#include "fields/field_utility.h"

#include <string>

namespace morvel::control {

namespace {

constexpr std::string_view kNoModifyTag = ":NOMODIFY:";

// Reads stored settings with the defaults that an absent key shows.
class Settings {
public:
    explicit Settings(const PropertyStore& store)
        : m_store(store) {}
    std::string text(std::string_view key, Value defaultValue = Value(std::string())) const {
        return m_store.GetValue(key, std::move(defaultValue)).toText();
    }
    std::int32_t number(std::string_view key, Value defaultValue) const {
        return FieldUtility::ToLong(m_store.GetValue(key, std::move(defaultValue)));
    }

private:
    const PropertyStore& m_store;
};

} // namespace

bool Morvel::mayModifyCurrentRow() const {
    if (m_canModifyExisting)
        return true;
    return !(m_currentRow && m_currentRow->tag().find(kNoModifyTag) != std::string_view::npos);
}

void Morvel::LoadPanel() {
    // Showing a field is not editing it: the handlers that the filling raises write nothing.
    ScopedFlag panelLoading(m_panelLoading);
    const FieldDefPtr field = m_currentField;

    if (!field) {
        enableBasicControls(false);
        for (view::TextBox* box :
             {&txtName, &txtSize, &txtDisplayName, &txtDefault, &txtDescription, &txtCtrlList})
            box->setText("");
        txtCtrlReadOnly.setText("");
        txtCtrlEdit.setText("");
        cboType.setListIndex(-1);
        cboValidation.setListIndex(-1);
    } else {
        enableBasicControls(true);
        txtName.setText(field->Name());
        txtSize.setText(std::to_string(field->Size()));
        txtDisplayName.setText(field->DisplayName());
        SelectByItemData(cboType, field->FieldType());
        txtDefault.setText(field->DefaultValue());
        txtDescription.setText(field->Description());
        chkCreateOnDemand.setValue(field->CreateOnDemand() ? 1 : 0);
        // Read-only first: for a sub table it leaves a suggestion in the edit box that the
        // edit fill then clears again.
        FillReadOnlyTemplates(field->FieldType());
        FillEditTemplates(field->FieldType());
        txtCtrlReadOnly.setText(field->CtrlReadOnly());
        txtCtrlEdit.setText(field->CtrlEdit());
        txtCtrlList.setText(field->CtrlList());
        SelectByItemData(cboValidation, field->Validation());
        cmdList.setVisible(false);
        const bool locked = !mayModifyCurrentRow();
        txtName.setLocked(locked);
        cboType.setLocked(locked);
    }

    // Tab 2 belongs to the field's type: the previous field's page goes.
    const std::int32_t selectedTab = TabStrip.selectedIndex();
    if (TabStrip.count() >= 2)
        TabStrip.remove(2);
    if (field) {
        const std::string page = LoadTypePage(*field);
        if (!page.empty()) {
            TabStrip.add(2, page);
            // Moving through the list keeps the user on the type page.
            if (selectedTab == 2)
                TabStrip.setSelectedIndex(2);
        }
        if (catalogue::isEncryptedType(field->FieldType())) {
            const bool locked = !mayModifyCurrentRow();
            cboEncryption.setLocked(locked);
            cboEncryptionKeyLen.setLocked(locked);
        }
    }

    pic_Resize(1);
    TabStrip_Click();
}

std::string Morvel::LoadTypePage(morvel::FieldDef& field) {
    namespace type = catalogue::type;
    const std::int32_t code = field.FieldType();
    const Settings stored(field.Properties());

    // Only ever shown here; hiding them is the type change's business.
    if (catalogue::hasSize(code))
        setAllVisible({&txtSize, &lblSize}, true);

    if (catalogue::isEncryptedType(code)) {
        const std::int32_t cipher = stored.number("Encyrpt.Type", 1);
        SelectByItemData(cboEncryption, cipher);
        FillCipherKeyLengths(cboEncryptionKeyLen, cipher);
        SelectByItemData(cboEncryptionKeyLen, stored.number("Encyrpt.KeyLen", 0));
        return "Encryption";
    }
    if (code == type::Signature) {
        const std::int32_t hash = stored.number("Sign.Type", 1);
        SelectByItemData(cboSignatureHash, hash);
        FillHashKeyLengths(cboSignatureKeyLen, hash);
        SelectByItemData(cboSignatureKeyLen, stored.number("Sign.KeyLen", 0));
        txtSignatureFields.setText(stored.text("Sign.Flds"));
        return "Signature";
    }
    if (code == type::SubTable) {
        txtSubTableFieldID.setText(stored.text("zrDirect.STF", 0));
        txtSubTable.setText(stored.text("zrDirect.ST", 0));
        LoadSubTableList();
        SelectByItemData(cboSubTable, stored.number("zrDirect.ST", 0));
        return "Sub Table";
    }
    if (catalogue::isDirectoryType(code)) {
        txtConnStr.setText(stored.text("zrDirect.ConnStr"));
        return "Database";
    }
    if (catalogue::isAdoLinkType(code)) {
        // The boxes write "ADO.ID", "ADO.Disp" and "ADO.Select"; these keys are the ones shown.
        txtConnStr.setText(stored.text("ADO.ConnStr"));
        txtTable.setText(stored.text("ADO.Table"));
        txtIDField.setText(stored.text("ADO.IDField"));
        txtDispField.setText(stored.text("ADO.DispField"));
        txtSQL.setText(stored.text("ADO.SQL"));
        return "Database";
    }
    if (catalogue::isDirectLinkType(code)) {
        chkLinkParent.setVisible(code == type::Link);
        txtObjectType.setText(stored.text("zrDirect.OT"));
        txtCoreFilter.setText(stored.text("zrDirect.Q"));
        txtAdditionalFilter.setText(stored.text("zrDirect.IQ"));
        txtStatus.setText(stored.text("zrDirect.S"));
        txtOrderField.setText(stored.text("zrDirect.OB", "DisplayName"));
        txtLinkDisplayField.setText(stored.text("zrDirect.Disp", "DisplayName"));
        txtLinkIDField.setText(stored.text("zrDirect.ID", "zrID"));
        txtLinkSelect.setText(stored.text("zrDirect.Select"));
        const std::string table = stored.text("zrDirect.Table");
        txtLinkTableName.setText(table);
        LoadLinkTableList();
        cboLinkTableName.setText(table);
        // Applied last: the box's Change may not fire when its text is already the stored one,
        // and the first table look-up shows a table box even for a link to objects.
        ShowLinkControlsFor(FieldUtility::ToLong(std::string_view(txtObjectType.text())));
        // True is stored as a Boolean; a Long -1 means the same.
        chkLinkParent.setValue(stored.number("Lnk.Parent", false) == -1 ? 1 : 0);
        return "Link Properties";
    }
    if (code == type::SubLink) {
        cboLinkFields.clear();
        if (moFieldDefs)
            for (const FieldDefPtr& each : *moFieldDefs)
                if (each->FieldType() == type::Link)
                    cboLinkFields.addItem(each->Name());
        const std::string linkField = stored.text("SubLnk.Lnk");
        for (std::int32_t i = 0; i < cboLinkFields.listCount(); ++i) {
            if (equalsIgnoringCase(cboLinkFields.list(i), linkField)) {
                cboLinkFields.setListIndex(i);
                break;
            }
        }
        txtSubLinkTable.setText(stored.text("SubLnk.Tbl"));
        txtSubLinkPIDField.setText(stored.text("SubLnk.PID"));
        txtSubLinkDisplayName.setText(stored.text("SubLnk.DN"));
        txtSubLinkOrderBy.setText(stored.text("SubLnk.OB"));
        return "Sub Link";
    }
    if (catalogue::isListType(code))
        cmdList.setVisible(true);
    return {};
}

void Morvel::ShowLinkControlsFor(std::int32_t objectType) {
    // A link to objects is filtered and ordered; a link to a table names its table and columns.
    const bool toObjects = objectType != 0;
    setAllVisible({&lblCoreFilter, &lblAdditionalFilter, &lblOrderField, &lblStatus, &txtCoreFilter,
                   &txtAdditionalFilter, &txtOrderField, &txtStatus},
                  toObjects);
    txtLinkTableName.setVisible(!toObjects && !m_database);
    cboLinkTableName.setVisible(!toObjects && m_database);
    setAllVisible({&txtLinkIDField, &txtLinkDisplayField, &txtLinkSelect, &lblLinkTableName,
                   &lblLinkIDField, &lblLinkDisplayField, &lblLinkSelect},
                  !toObjects);
}

} // namespace morvel::control
