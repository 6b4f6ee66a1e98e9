#include "AmountEntry.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QMetaObject>

#include <utility>

namespace quend::compare {

AmountEntry::AmountEntry(QLineEdit& edit, Rules rules) : m_edit(&edit), m_rules(std::move(rules)) {
    edit.installEventFilter(this);
    connect(&edit, &QLineEdit::returnPressed, this, &AmountEntry::Commit);
}

void AmountEntry::SetValue(Money value) {
    m_value = value;
    Show();
}

void AmountEntry::Show() {
    const DisplayFormats& formats = m_rules.formats;
    const bool isEdited = m_edit->hasFocus();
    m_edit->setText(m_value.IsZero() ? QString()
                    : isEdited       ? formats.GeneralNumber(m_value)
                                     : formats.Currency(m_value));
    if (isEdited) {
        m_edit->selectAll();
    }
}

bool AmountEntry::Commit() {
    if (!m_edit->isModified()) {
        return true;
    }
    const std::optional<Money> read = m_rules.read(m_edit->text());
    if (!read) {
        // Queued, because the focus may be moving.
        QMetaObject::invokeMethod(
            m_edit,
            [edit = m_edit] {
                edit->setFocus();
                edit->selectAll();
            },
            Qt::QueuedConnection);
        return false;
    }
    m_edit->setModified(false);
    if (std::exchange(m_value, *read) != *read) {
        Q_EMIT Entered();
    }
    return true;
}

bool AmountEntry::eventFilter(QObject* watched, QEvent* event) {
    const bool isFocus = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (watched != m_edit || !isFocus) {
        return false;
    }
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason) {
        return false; // the field stays the edited one
    }
    if (m_edit->isModified() && !Commit()) {
        return false;
    }
    // Queued, because the edit has not the focus yet, or has it still.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!m_edit->isModified()) {
                Show();
            }
        },
        Qt::QueuedConnection);
    return false;
}

} // namespace quend::compare
