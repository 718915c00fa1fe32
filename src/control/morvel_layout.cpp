// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/handler_policy.h"
#include "control/morvel.h"

namespace morvel::control {

namespace {

constexpr std::int32_t kMinimumWidth = 5000;
constexpr std::int32_t kMinimumHeight = 5800;
constexpr std::int32_t kMargin = 120;
// The tab strip's header row, above the panels.
constexpr std::int32_t kTabHeader = 480;
constexpr std::int32_t kButtonGap = 60;

// A control reaches the panel's right edge.
void stretch(view::Control& control, std::int32_t scaleWidth) {
    control.setWidth(scaleWidth - control.left());
}

// A control keeps its width and sits at the panel's right edge.
void anchorRight(view::Control& control, std::int32_t scaleWidth) {
    control.setLeft(scaleWidth - control.width());
}

void follow(view::Control& control, const view::Control& leader) {
    control.setWidth(leader.width());
}

} // namespace

void Morvel::UserControl_Resize() {
    // Below the minimum the control grows instead; growing raises this handler again, and that
    // run lays out.
    if (width() < kMinimumWidth) {
        skipFailingSteps([&] { setWidth(kMinimumWidth); });
        return;
    }
    if (height() < kMinimumHeight) {
        skipFailingSteps([&] { setHeight(kMinimumHeight); });
        return;
    }

    const std::int32_t w = scaleWidth();
    const std::int32_t h = scaleHeight();
    const std::int32_t panelHeight = pic(1).height();
    skipFailingSteps([&] { lst.move(0, 0, w, h - panelHeight - 720); },
                     [&] {
                         const std::int32_t listHeight = lst.height();
                         TabStrip.move(0, listHeight + kMargin, w, h - listHeight - kMargin);
                     },
                     [&] {
                         pic(1).move(kMargin, TabStrip.top() + kTabHeader,
                                     TabStrip.width() - 2 * kMargin, pic(1).height());
                     },
                     [&] { pic(2).move(kMargin, pic(1).top(), pic(1).width(), pic(2).height()); },
                     [&] { pic(3).move(kMargin, pic(1).top(), pic(1).width(), pic(3).height()); },
                     [&] { pic(4).move(kMargin, pic(1).top(), pic(1).width(), pic(4).height()); },
                     [&] { pic(5).move(kMargin, pic(1).top(), pic(1).width(), pic(5).height()); },
                     [&] { pic(6).move(kMargin, pic(1).top(), pic(1).width(), pic(6).height()); },
                     [&] { pic(7).move(kMargin, pic(1).top(), pic(1).width(), pic(7).height()); },
                     // The find buttons ride at the right end of the tab strip's header row.
                     [&] {
                         cmdFindNext.move(w - kMargin - cmdFindNext.width(),
                                          TabStrip.top() + kButtonGap, cmdFindNext.width(),
                                          cmdFindNext.height());
                     },
                     [&] {
                         cmdFind.move(cmdFindNext.left() - kButtonGap - cmdFind.width(),
                                      cmdFindNext.top(), cmdFind.width(), cmdFind.height());
                     });
}

void Morvel::pic_Resize(std::int32_t Index) {
    const std::int32_t s = pic(Index).scaleWidth();
    switch (Index) {
    case 1:
        stretch(txtName, s);
        stretch(txtDisplayName, s);
        ArrangeTypeRow();
        stretch(txtDescription, s);
        stretch(txtDefault, s);
        anchorRight(chkCreateOnDemand, s);
        txtSize.setWidth(s - txtSize.left() - chkCreateOnDemand.width() - kMargin);
        stretch(txtCtrlReadOnly, s);
        stretch(txtCtrlEdit, s);
        stretch(txtCtrlList, s);
        stretch(cboValidation, s);
        anchorRight(cmdLocale, s);
        break;
    case 2:
        anchorRight(txtStatus, s);
        lblStatus.setLeft(txtStatus.left() - lblStatus.width() - 60);
        stretch(cboLinkTableName, s);
        for (view::TextBox* box :
             {&txtLinkTableName, &txtLinkIDField, &txtLinkDisplayField, &txtLinkSelect,
              &txtCoreFilter, &txtAdditionalFilter, &txtOrderField})
            follow(*box, cboLinkTableName);
        break;
    case 3:
        stretch(txtConnStr, s);
        for (view::TextBox* box : {&txtTable, &txtIDField, &txtDispField, &txtSQL})
            follow(*box, txtConnStr);
        break;
    case 4:
        stretch(cboSubTable, s);
        break;
    case 5:
        stretch(cboLinkFields, s);
        for (view::TextBox* box :
             {&txtSubLinkTable, &txtSubLinkPIDField, &txtSubLinkDisplayName, &txtSubLinkOrderBy})
            follow(*box, cboLinkFields);
        break;
    case 6:
        stretch(cboSignatureHash, s);
        follow(cboSignatureKeyLen, cboSignatureHash);
        follow(txtSignatureFields, cboSignatureHash);
        break;
    case 7:
        stretch(cboEncryption, s);
        follow(cboEncryptionKeyLen, cboEncryption);
        break;
    default:
        break;
    }
}

void Morvel::ArrangeTypeRow() {
    const std::int32_t s = pic(1).scaleWidth();
    cmdList.setLeft(s - cmdList.width());
    if (cmdList.visible()) {
        cboType.setWidth(s - cboType.left() - cmdList.width() - kMargin);
        return;
    }
    cboType.setWidth(s - cboType.left());
}

} // namespace morvel::control
