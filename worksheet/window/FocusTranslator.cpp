#include "FocusTranslator.h"

#include "ControlMap.h"
#include "FailureReport.h"
#include "FieldEdits.h"
#include "FieldHandlers.h"

#include <QApplication>
#include <QDateEdit>
#include <QFocusEvent>
#include <QKeyEvent>

namespace {

/// The focus goes away for a while and comes back: the field is still being edited. The pop-up of a
/// list takes the focus for its entries under no reason of its own.
bool IsPassing(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason || QApplication::activePopupWidget() != nullptr;
}

/// Turned over a field that is passed, the wheel would leave the one being edited.
void TakeNoFocusByWheel(QWidget& control) {
    if (control.focusPolicy() == Qt::WheelFocus) {
        control.setFocusPolicy(Qt::StrongFocus);
    }
}

} // namespace

FocusTranslator::FocusTranslator(FieldHandlers& handlers, const ControlMap& controls,
                                 FailureReport& report)
    : m_handlers(&handlers), m_controls(&controls), m_report(&report) {}

void FocusTranslator::Watch(const QWidget& parent) {
    for (QWidget* control : parent.findChildren<QWidget*>()) {
        const auto field = m_controls->FieldOf(control);
        if (!field || RuleOf(field->id).access != Access::Input) {
            continue;
        }
        control->installEventFilter(this);
        TakeNoFocusByWheel(*control);
        // Composed characters would pass by the filter of the keys.
        const bool isNumber = RuleOf(field->id).IsNumber();
        control->setAttribute(Qt::WA_InputMethodEnabled, !isNumber);
        if (auto* edit = qobject_cast<EntryEdit*>(control)) {
            edit->SetSelectsOnClick(isNumber);
        }
    }
}

bool FocusTranslator::Commit() {
    if (!m_edited) {
        return true;
    }
    const Field field = *m_edited;
    if (auto* picker = m_controls->ControlOf<QDateEdit>(field)) {
        picker->interpretText();
    }
    if (!m_handlers->Validate(field)) {
        return false;
    }
    m_report->Guard([&] { m_handlers->LostFocus(field); });
    Reenter();
    return true;
}

void FocusTranslator::Reenter() {
    if (m_edited) {
        m_report->Guard([&] { m_handlers->GotFocus(*m_edited); });
    }
}

bool FocusTranslator::eventFilter(QObject* watched, QEvent* event) {
    const auto field = m_controls->FieldOf(watched);
    if (!field) {
        return false;
    }
    switch (event->type()) {
    case QEvent::FocusIn:
        return OnFocusIn(*field, *static_cast<QFocusEvent*>(event));
    case QEvent::FocusOut:
        return OnFocusOut(*field, *static_cast<QFocusEvent*>(event));
    case QEvent::KeyPress:
        return OnKeyPress(*field, *static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        return OnKeyRelease(*field, *static_cast<QKeyEvent*>(event));
    case QEvent::Wheel:
        // No list and no date changes by the wheel, not even the one with the keyboard: a notch
        // over the name would make another worksheet of this one. What stands around it may scroll.
        event->ignore();
        return true;
    default:
        return false;
    }
}

bool FocusTranslator::OnFocusIn(Field field, const QFocusEvent& event) {
    if (m_edited == field) {
        return false;
    }
    // The window was not active when the focus moved, so the field before was not told.
    if (!Leave()) {
        Stay(event.reason());
        return true;
    }
    m_edited = field;
    m_report->Guard([&] { m_handlers->GotFocus(field); });
    return false;
}

bool FocusTranslator::OnFocusOut(Field field, const QFocusEvent& event) {
    if (m_edited != field || IsPassing(event.reason())) {
        return false;
    }
    if (!Leave()) {
        Stay(event.reason());
        return true;
    }
    return false;
}

/// False when the field is refused and has to be stayed in.
bool FocusTranslator::Leave() {
    if (!m_edited) {
        return true;
    }
    const Field field = *m_edited;
    if (!m_handlers->Validate(field)) {
        return false;
    }
    m_edited.reset();
    m_report->Guard([&] { m_handlers->LostFocus(field); });
    return true;
}

void FocusTranslator::Stay(Qt::FocusReason reason) {
    if (reason == Qt::MouseFocusReason) {
        // The press that moved the focus is still to be delivered to the control it hit.
        m_clicks.SwallowNext();
    }
    m_controls->ControlOf(*m_edited)->setFocus(Qt::OtherFocusReason);
}

bool FocusTranslator::OnKeyPress(Field field, const QKeyEvent& event) {
    m_keyDownIn = field;
    bool used = false;
    m_report->Guard([&] { used = m_handlers->KeyDown(field, event.key()); });
    if (used) {
        return true;
    }
    if ((event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
        RuleOf(field.id).IsNumber()) {
        Commit();
        return true;
    }
    const bool shortcut =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    return !shortcut && !event.text().isEmpty() &&
           !m_handlers->KeyPress(field, event.text().front());
}

/// Only a key that went down in the same field: one that closed a list or a menu comes up here too.
bool FocusTranslator::OnKeyRelease(Field field, const QKeyEvent& event) {
    bool used = false;
    if (m_keyDownIn == field) {
        m_report->Guard([&] { used = m_handlers->KeyUp(field, event.key()); });
    }
    return used;
}
