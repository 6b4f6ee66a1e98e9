#pragma once

#include "ClickSwallower.h"
#include "Field.h"

#include <QObject>

#include <optional>

class ControlMap;
class FailureReport;
class FieldHandlers;
class QFocusEvent;
class QKeyEvent;
class QWidget;

/// Translates the toolkit's events of focus and keys into the four events of the field discipline:
/// got focus, key press, validate, lost focus. Leaving for a menu, a pop-up list, a tooltip or
/// another program is not leaving. A refused field keeps the focus, and the click that would have
/// left it does nothing. The one place where the toolkit's focus is looked at.
class FocusTranslator : public QObject {
    Q_OBJECT

public:
    FocusTranslator(FieldHandlers& handlers, const ControlMap& controls, FailureReport& report);

    /// Watches every control below this one that shows a field.
    void Watch(const QWidget& parent);

    /// Stores the field being edited, if any, as if it were left, and puts it back in entry form.
    /// False when it is refused; the user has been told.
    bool Commit();

    /// The field being edited, if any, also while the window is not active.
    std::optional<Field> Edited() const { return m_edited; }

    /// Puts the field being edited, if any, into entry form: its value may be another one.
    void Reenter();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool OnFocusIn(Field field, const QFocusEvent& event);
    bool OnFocusOut(Field field, const QFocusEvent& event);
    bool OnKeyPress(Field field, const QKeyEvent& event);
    bool OnTypedKey(Field field, const QKeyEvent& event);
    bool OnKeyRelease(Field field, const QKeyEvent& event);
    bool Leave();
    void Stay(Qt::FocusReason reason);

    FieldHandlers* m_handlers;
    const ControlMap* m_controls;
    FailureReport* m_report;
    std::optional<Field> m_edited;
    std::optional<Field> m_keyDownIn;
    ClickSwallower m_clicks;
};
