#include "AmountEntry.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaObject>

#include <utility>

namespace quend::compare {

AmountEntry::AmountEntry(QLineEdit& edit, Rules rules) : m_edit(&edit), m_rules(std::move(rules)) {
    edit.installEventFilter(this);
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

/// Return takes a new amount, and is nothing else then: a default button must not use an answer
/// that has not been read yet.
bool AmountEntry::OnKey(const QKeyEvent& key) {
    const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!isReturn || !m_edit->isModified()) {
        return false;
    }
    Commit();
    return true;
}

bool AmountEntry::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_edit && event->type() == QEvent::KeyPress) {
        return OnKey(*static_cast<QKeyEvent*>(event));
    }
    const bool isFocus = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (watched != m_edit || !isFocus) {
        return false;
    }
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason) {
        return false; // the field stays the edited one
    }
    // Not when the focus comes back to a refused text: the user has been told why.
    if (event->type() == QEvent::FocusOut && !Commit()) {
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
