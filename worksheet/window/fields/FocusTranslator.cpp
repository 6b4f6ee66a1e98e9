#include "FocusTranslator.h"

#include "ControlMap.h"
#include "FailureReport.h"
#include "FieldEdits.h"
#include "FieldHandlers.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace quend::window {

namespace {

/// The focus leaves for a moment and returns: the field is still being edited. The pop-up of a list
/// takes the focus for its entries with OtherFocusReason.
bool IsPassing(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason || QApplication::activePopupWidget() != nullptr;
}

bool IsControlCharacter(QChar key) {
    constexpr char16_t firstPrinted = 32;
    constexpr char16_t deleteKey = 127;
    return key.unicode() < firstPrinted || key.unicode() == deleteKey;
}

/// Otherwise turning the wheel over another field would leave the one being edited.
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
        // Composed characters would bypass the key filter.
        if (RuleOf(field->id).IsTyped()) {
            control->setAttribute(Qt::WA_InputMethodEnabled, false);
        }
        if (auto* edit = qobject_cast<EntryEdit*>(control)) {
            edit->SetIsNumber(RuleOf(field->id).IsNumber());
        }
    }
}

bool FocusTranslator::Commit() {
    if (!m_edited) {
        return true;
    }
    const Field field = *m_edited;
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
    case QEvent::ShortcutOverride:
        m_keyDownIn.reset(); // a key press follows unless the key is a shortcut
        return false;
    case QEvent::FocusIn:
        return OnFocusIn(*field, *static_cast<QFocusEvent*>(event));
    case QEvent::FocusOut:
        return OnFocusOut(*field, *static_cast<QFocusEvent*>(event));
    case QEvent::KeyPress:
        return OnKeyPress(*field, *static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        return OnKeyRelease(*field, *static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod:
        return RuleOf(field->id).IsTyped(); // dead keys, too
    case QEvent::Wheel:
        // The wheel changes no list and no date, not even the focused one: one notch over the name
        // would load another worksheet. A scroll area around it may scroll.
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
    // The focus moved while the window was inactive, so the previous field got no event.
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

/// False if the field is refused and must keep the focus.
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
        // The press that moved the focus is not yet delivered to the control under the mouse.
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
    if (!RuleOf(field.id).IsTyped()) {
        return false;
    }
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        Commit();
        return true;
    }
    return OnTypedKey(field, event);
}

/// True for a key that must not type. Access keys and shortcuts were handled earlier. Ctrl with Alt
/// is the third level of some keyboards.
bool FocusTranslator::OnTypedKey(Field field, const QKeyEvent& event) {
    const QString typed = event.text();
    const Qt::KeyboardModifiers held =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (held == Qt::ControlModifier || std::ranges::all_of(typed, IsControlCharacter)) {
        return false;
    }
    if (held == Qt::AltModifier || held.testFlag(Qt::MetaModifier)) {
        return true;
    }
    const bool isKeypadPoint = event.modifiers().testFlag(Qt::KeypadModifier) &&
                               (event.key() == Qt::Key_Period || event.key() == Qt::Key_Comma);
    if (isKeypadPoint && RuleOf(field.id).IsNumber()) {
        const QChar separator = m_handlers->DecimalSeparator();
        if (m_handlers->KeyPress(field, separator)) {
            m_controls->ControlOf<QLineEdit>(field)->insert(separator);
        }
        return true;
    }
    return !std::ranges::all_of(typed, [&](QChar key) { return m_handlers->KeyPress(field, key); });
}

/// Only for a key pressed in the same field: a key that closed a list or menu is released here, and
/// so is a shortcut with an arrow key.
bool FocusTranslator::OnKeyRelease(Field field, const QKeyEvent& event) {
    bool used = false;
    if (m_keyDownIn == field) {
        m_report->Guard([&] { used = m_handlers->KeyUp(field, event.key()); });
    }
    return used;
}

} // namespace quend::window
