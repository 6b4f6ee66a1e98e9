#include "UndoCommands.h"

#include "ControlMap.h"
#include "EditTextNumbers.h"
#include "FailureReport.h"
#include "FocusTranslator.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "OfferRows.h"
#include "PaymentNotice.h"
#include "StepTexts.h"
#include "Worksheet.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

#include <utility>

namespace quend::window {

namespace {

/// More than anybody takes back; a step keeps two states of some kilobytes.
constexpr int MostSteps = 500;

/// The edit that types for a widget with the focus: a list and a date picker have one inside.
const QLineEdit* EditIn(const QObject& widget) {
    const auto* edit = qobject_cast<const QLineEdit*>(&widget);
    return edit != nullptr ? edit : widget.findChild<QLineEdit*>();
}

/// Whether the text itself can undo, or redo, by this key.
bool IsForText(const QLineEdit& edit, const QKeyEvent& key) {
    return !edit.isReadOnly() &&
           (key.matches(QKeySequence::Undo) ? edit.isUndoAvailable() : edit.isRedoAvailable());
}

} // namespace

/// A step in the stack. The worksheet has made it already when it is pushed.
class UndoCommands::Command : public QUndoCommand {
public:
    Command(Worksheet& sheet, WorksheetStep step) : m_sheet(&sheet), m_step(std::move(step)) {}

    const StepName& Name() const { return m_step.name; }

    void undo() override { m_sheet->Restore(m_step.before); }
    void redo() override {
        if (std::exchange(m_isMade, false)) {
            return;
        }
        m_sheet->Restore(m_step.after);
    }

private:
    Worksheet* m_sheet;
    WorksheetStep m_step;
    bool m_isMade = true;
};

UndoCommands::UndoCommands(Loan& window, Worksheet& worksheet, const ControlMap& controls,
                           FocusTranslator& focus, OfferRows& rows, PaymentNotice& notice)
    : m_window(&window), m_worksheet(&worksheet), m_controls(&controls), m_focus(&focus),
      m_rows(&rows), m_notice(&notice) {
    m_steps.setUndoLimit(MostSteps);
    const Ui::Loan& form = window.Form();
    const auto wire = [this](QAction& entry, void (UndoCommands::*handler)()) {
        connect(&entry, &QAction::triggered, this,
                [this, handler] { m_window->Report().Guard([&] { (this->*handler)(); }); });
    };
    wire(*form.mnuEditUndo, &UndoCommands::mnuEditUndo_Click);
    wire(*form.mnuEditRedo, &UndoCommands::mnuEditRedo_Click);
    form.mnuEditRedo->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});
    connect(&m_steps, &QUndoStack::indexChanged, this, &UndoCommands::ShowEntries);
    connect(form.mnuEdit, &QMenu::aboutToShow, this, &UndoCommands::ShowEntries);
    connect(&window, &Loan::LanguageChanged, this, &UndoCommands::ShowEntries);
    worksheet.OnStep(
        [this](WorksheetStep step) { m_steps.push(new Command(*m_worksheet, std::move(step))); },
        [this] { m_steps.clear(); });
    Watch(window);
}

/// The stack announces that it is emptied when the form is gone.
UndoCommands::~UndoCommands() {
    m_steps.disconnect(this);
    m_worksheet->OnStep({}, {});
}

void UndoCommands::Watch(const QWidget& parent) {
    for (QLineEdit* edit : parent.findChildren<QLineEdit*>()) {
        edit->installEventFilter(this);
        edit->parentWidget()->installEventFilter(this); // a list passes keys to its edit
    }
}

/// An edit claims the keys of undo even if its text has nothing to undo; then they are the menu's.
bool UndoCommands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    const QLineEdit* edit = EditIn(*watched);
    if (edit == nullptr || IsForText(*edit, key) ||
        (!key.matches(QKeySequence::Undo) && !key.matches(QKeySequence::Redo))) {
        return false;
    }
    event->ignore();
    return true;
}

QString UndoCommands::Caption(int plain, int ofStep, int index) const {
    const auto* command = static_cast<const Command*>(m_steps.command(index));
    if (command == nullptr || TypedEdit() != nullptr) {
        return GetResourceText(plain);
    }
    const StepName& name = command->Name();
    const Worksheet& sheet = *m_worksheet;
    const int number = name.offer ? sheet.RowOfOffer(*name.offer).value + 1 : 0;
    return GetResourceText(ofStep).arg(TextOf(name, number));
}

/// The keys work also while the menu is closed, so the entries follow at once.
void UndoCommands::ShowEntries() {
    const QLineEdit* typed = TypedEdit();
    const Ui::Loan& form = m_window->Form();
    form.mnuEditUndo->setEnabled(m_steps.canUndo() || typed != nullptr);
    form.mnuEditUndo->setText(Caption(TextNumber::Undo, TextNumber::UndoStep, m_steps.index() - 1));
    form.mnuEditRedo->setEnabled(m_steps.canRedo());
    form.mnuEditRedo->setText(Caption(TextNumber::Redo, TextNumber::RedoStep, m_steps.index()));
}

/// The edit of the field being edited, if its text can be undone.
QLineEdit* UndoCommands::TypedEdit() const {
    const auto field = m_focus->Edited();
    if (!field) {
        return nullptr;
    }
    QWidget* control = m_controls->ControlOf(*field);
    auto* edit = qobject_cast<QLineEdit*>(control);
    edit = edit != nullptr ? edit : control->findChild<QLineEdit*>();
    return edit != nullptr && edit->isUndoAvailable() ? edit : nullptr;
}

void UndoCommands::mnuEditUndo_Click() {
    if (QLineEdit* edit = TypedEdit()) {
        edit->undo();
    } else {
        Run(m_steps.index() - 1, &QUndoStack::undo);
    }
}

/// What is being typed is a step after the ones that could be redone.
void UndoCommands::mnuEditRedo_Click() {
    if (TypedEdit() == nullptr || m_focus->Commit()) {
        Run(m_steps.index(), &QUndoStack::redo);
    }
}

void UndoCommands::Run(int index, void (QUndoStack::*run)()) {
    const auto* command = static_cast<const Command*>(m_steps.command(index));
    if (command == nullptr) {
        return;
    }
    const StepName name = command->Name();
    (m_steps.*run)();
    m_notice->Withdraw();
    GoTo(name);
}

/// The field being edited is not left: leaving stores, which would be a step after the ones undone.
void UndoCommands::GoTo(const StepName& step) {
    Field field{step.field};
    if (step.offer) {
        field.row = m_worksheet->RowOfOffer(*step.offer);
        m_rows->ShowOfferRow(field.row);
    }
    QWidget* control = RuleOf(field.id).control.isNull() ? nullptr : m_controls->ControlOf(field);
    if (control == nullptr || m_focus->Edited() == field) {
        m_focus->Reenter();
        return;
    }
    m_focus->Forget();
    control->setFocus(Qt::OtherFocusReason);
}

} // namespace quend::window
