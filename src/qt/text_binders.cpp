// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/text_binders.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>

namespace morvel::qt {

namespace {
QString toQString(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
// A position in the model's UTF-8 text as a position in the widget's UTF-16 text.
int toQtPosition(const std::string& text, std::int32_t position) {
    const auto bytes =
        std::clamp<std::size_t>(static_cast<std::size_t>(std::max(position, 0)), 0, text.size());
    return static_cast<int>(QString::fromUtf8(text.data(), static_cast<qsizetype>(bytes)).size());
}
// A locked box looks read-only the way a form's box does: the window's colour behind its text
// instead of the colour of a field that takes typing. A drop-down, which several styles draw
// like a button whatever its colours, also shows its text dimmed.
void showLocked(QWidget& widget, bool locked, bool dimText = false) {
    const QPalette usual = widget.parentWidget() ? widget.parentWidget()->palette() : QPalette();
    QPalette palette = widget.palette();
    for (auto group : {QPalette::Active, QPalette::Inactive}) {
        for (auto role : {QPalette::Base, QPalette::Button})
            palette.setColor(group, role, usual.color(group, locked ? QPalette::Window : role));
        if (dimText)
            for (auto role : {QPalette::Text, QPalette::ButtonText})
                palette.setColor(group, role,
                                 locked ? usual.color(QPalette::Disabled, role)
                                        : usual.color(group, role));
    }
    widget.setPalette(palette);
}

// A drop-down that changes only when the person means it: the wheel turns it only while it has
// the keyboard focus (a wheel passing over the panel scrolls nothing away), and a locked one
// neither opens its list nor moves its choice from the keyboard.
class ChoiceBox : public QComboBox {
public:
    explicit ChoiceBox(QWidget* parent)
        : QComboBox(parent) {
        setFocusPolicy(Qt::StrongFocus);
        // Long lists (the 40 types) open as a short list with a scroll bar.
        setMaxVisibleItems(20);
    }

    void setLocked(bool locked) { m_locked = locked; }

    void showPopup() override {
        if (!m_locked)
            QComboBox::showPopup();
    }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (m_locked || !hasFocus()) {
            event->ignore();
            return;
        }
        QComboBox::wheelEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (m_locked && changesChoice(*event)) {
            event->ignore();
            return;
        }
        QComboBox::keyPressEvent(event);
    }

private:
    static bool changesChoice(const QKeyEvent& event) {
        switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_Space:
        case Qt::Key_F4:
            return true;
        default:
            // A non-editable combo also jumps to the entry whose text starts with a typed letter.
            return !event.text().isEmpty() && event.text().at(0).isPrint();
        }
    }

    bool m_locked = false;
};

QWidget& makeTextWidget(const view::TextBox& box, QWidget& parent) {
    if (!box.multiLine())
        return *new QLineEdit(&parent);
    auto* plain = new QPlainTextEdit(&parent);
    plain->setTabChangesFocus(true);
    return *plain;
}
} // namespace

TextBoxBinder::TextBoxBinder(FormBinding& binding, view::TextBox& box, QWidget& parent)
    : ControlBinder(binding, box, makeTextWidget(box, parent))
    , m_box(box)
    , m_line(qobject_cast<QLineEdit*>(&widget()))
    , m_plain(qobject_cast<QPlainTextEdit*>(&widget())) {
    if (m_line)
        QObject::connect(m_line, &QLineEdit::textEdited, this, &TextBoxBinder::typed);
    else
        QObject::connect(m_plain, &QPlainTextEdit::textChanged, this,
                         [this] { typed(m_plain->toPlainText()); });
}

void TextBoxBinder::typed(const QString& text) {
    act([&] { m_box.type(text.toStdString()); });
    // Refused typing (a locked box) or a handler that rewrote the text: show the model's text.
    toWidget(view::Property::Text);
}

void TextBoxBinder::toWidget(view::Property what) {
    switch (what) {
    case view::Property::Text: {
        const QString text = toQString(m_box.text());
        if (m_line && m_line->text() != text) {
            const QSignalBlocker blocker(m_line);
            const int cursor = m_line->cursorPosition();
            m_line->setText(text);
            m_line->setCursorPosition(std::min(cursor, static_cast<int>(text.size())));
        } else if (m_plain && m_plain->toPlainText() != text) {
            const QSignalBlocker blocker(m_plain);
            m_plain->setPlainText(text);
        }
        return;
    }
    case view::Property::Locked:
        if (m_line)
            m_line->setReadOnly(m_box.locked());
        else
            m_plain->setReadOnly(m_box.locked());
        showLocked(widget(), m_box.locked());
        return;
    case view::Property::Selection:
        if (m_line) {
            const int start = toQtPosition(m_box.text(), m_box.selStart());
            const int end = toQtPosition(m_box.text(), m_box.selStart() + m_box.selLength());
            m_line->setSelection(start, end - start);
        }
        return;
    default:
        ControlBinder::toWidget(what);
    }
}

ComboBoxBinder::ComboBoxBinder(FormBinding& binding, view::ComboBox& box, QWidget& parent)
    : ControlBinder(binding, box, *new ChoiceBox(&parent))
    , m_box(box)
    , m_widget(static_cast<QComboBox&>(widget())) {
    m_widget.setEditable(box.style() == view::ComboBox::Style::Editable);
    QObject::connect(&m_widget, &QComboBox::activated, this, [this](int index) {
        act([&] { m_box.pick(index); });
        syncSelection();
    });
    if (QLineEdit* line = m_widget.lineEdit()) {
        // The entries are suggestions: no inline completion and no entries added on Enter.
        m_widget.setCompleter(nullptr);
        m_widget.setInsertPolicy(QComboBox::NoInsert);
        QObject::connect(line, &QLineEdit::textEdited, this, [this](const QString& text) {
            act([&] { m_box.type(text.toStdString()); });
            syncSelection();
        });
    }
}

void ComboBoxBinder::toWidget(view::Property what) {
    switch (what) {
    case view::Property::Items:
        syncItems();
        syncSelection();
        return;
    case view::Property::ListIndex:
    case view::Property::Text:
        syncSelection();
        return;
    case view::Property::Locked:
        static_cast<ChoiceBox&>(m_widget).setLocked(m_box.locked());
        if (QLineEdit* line = m_widget.lineEdit())
            line->setReadOnly(m_box.locked());
        showLocked(m_widget, m_box.locked(), true);
        return;
    default:
        ControlBinder::toWidget(what);
    }
}

void ComboBoxBinder::syncItems() {
    const int count = m_box.listCount();
    bool same = m_widget.count() == count;
    for (int i = 0; same && i < count; ++i)
        same = m_widget.itemText(i) == toQString(m_box.list(i));
    if (same)
        return;
    const QSignalBlocker blocker(m_widget);
    m_widget.clear();
    QStringList texts;
    texts.reserve(count);
    for (int i = 0; i < count; ++i)
        texts.push_back(toQString(m_box.list(i)));
    m_widget.addItems(texts);
}

void ComboBoxBinder::syncSelection() {
    const QSignalBlocker blocker(m_widget);
    if (m_widget.currentIndex() != m_box.listIndex())
        m_widget.setCurrentIndex(m_box.listIndex());
    if (QLineEdit* line = m_widget.lineEdit()) {
        const QString text = toQString(m_box.text());
        if (line->text() != text) {
            const int cursor = line->cursorPosition();
            line->setText(text);
            line->setCursorPosition(std::min(cursor, static_cast<int>(text.size())));
        }
    }
}

} // namespace morvel::qt
