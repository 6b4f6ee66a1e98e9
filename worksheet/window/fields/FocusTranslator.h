#pragma once

#include "ClickSwallower.h"
#include "Field.h"
#include "WindowNames.h"

#include <QObject>

#include <optional>

class QFocusEvent;
class QKeyEvent;
class QWidget;

namespace quend::window {

class ControlMap;
class FailureReport;
class FieldHandlers;

/// Translates Qt's focus and key events into the four events of FieldBehaviour: got focus, key
/// press, validate, lost focus. A menu, a pop-up list, a tooltip or another program does not count
/// as leaving the field. A refused field keeps the focus, and the click that would have left it
/// does nothing. The only class that handles Qt's focus events.
class FocusTranslator : public QObject {
    Q_OBJECT

public:
    FocusTranslator(FieldHandlers& handlers, const ControlMap& controls, FailureReport& report);

    /// Watches every field control below `parent`.
    void Watch(const QWidget& parent);

    /// Stores the field being edited, if any, as if it were left, and shows it in entry form again.
    /// False if it is refused; the user has been told.
    bool Commit();

    /// The field being edited, if any, even while the window is inactive.
    std::optional<Field> Edited() const { return m_edited; }

    /// The field being edited is no longer; nothing is stored. For a worksheet whose values have
    /// been replaced.
    void Forget() { m_edited.reset(); }

    /// Shows the field being edited, if any, in entry form again: its value may have changed.
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

} // namespace quend::window
