#pragma once

#include "WindowNames.h"

#include <QObject>
#include <QUndoStack>

class QLineEdit;

namespace quend::model {
struct StepName;
class Worksheet;
} // namespace quend::model

namespace quend::window {

class ControlMap;
class FocusTranslator;
class Loan;
class OfferRows;
class PaymentNotice;

/// Undoes and redoes the steps of the worksheet. In a field with something typed, undo is the
/// text's. After a step the field concerned has the focus, and its row is in view.
class UndoCommands : public QObject {
    Q_OBJECT

public:
    /// All of them outlive this object. Enables the menu entries while there is a step.
    UndoCommands(Loan& window, Worksheet& worksheet, const ControlMap& controls,
                 FocusTranslator& focus, OfferRows& rows, PaymentNotice& notice);
    Q_DISABLE_COPY_MOVE(UndoCommands)
    ~UndoCommands() override;

    /// Nothing can be undone any more.
    void Empty() { m_steps.clear(); }

    /// Call when the fields below `parent` have been created.
    void Watch(const QWidget& parent);

    void mnuEditUndo_Click();
    void mnuEditRedo_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Command;

    void ShowEntries();
    QString Caption(int plain, int ofStep, int index) const;
    QLineEdit* TypedEdit() const;
    void Run(int index, void (QUndoStack::*run)());
    void GoTo(const StepName& step);

    Loan* m_window;
    Worksheet* m_worksheet;
    const ControlMap* m_controls;
    FocusTranslator* m_focus;
    OfferRows* m_rows;
    PaymentNotice* m_notice;
    QUndoStack m_steps;
};

} // namespace quend::window
