#include "RenameCommand.h"

#include "CMouse.h"
#include "EditTextNumbers.h"
#include "FailureReport.h"
#include "KeptWorksheets.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "MessageQueue.h"
#include "StoreNotice.h"
#include "TextNumbers.h"
#include "Worksheet.h"

#include <QAction>
#include <QInputDialog>
#include <QLineEdit>

#include <utility>

namespace quend::storage {

std::optional<QString> AskForNewName(QWidget& parent, const QString& name) {
    QInputDialog dialog(&parent);
    dialog.setWindowTitle(GetResourceText(TextNumber::RenameTitle));
    dialog.setLabelText(GetResourceText(TextNumber::RenameTo));
    dialog.setTextValue(name);
    // So that the title is whole, too. The dialog derives its own least width from its contents.
    constexpr int characters = 50;
    dialog.findChild<QLineEdit*>()->setMinimumWidth(dialog.fontMetrics().averageCharWidth() *
                                                    characters);
    dialog.setOkButtonText(GetResourceText(TextNumber::Ok));
    dialog.setCancelButtonText(GetResourceText(TextNumber::Cancel));
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.textValue()) : std::nullopt;
}

RenameCommand::RenameCommand(Loan& window, KeptWorksheets& store, AskForName ask)
    : m_window(&window), m_store(&store), m_ask(std::move(ask)) {
    QAction* const entry = window.Form().mnuFileRename;
    entry->setEnabled(true);
    connect(entry, &QAction::triggered, this, [this] {
        m_window->Report().Guard([this] {
            if (m_window->Commit()) {
                mnuFileRename_Click();
            }
        });
    });
}

void RenameCommand::mnuFileRename_Click() {
    const QString from = m_window->GetWorksheet().LoanName();
    if (!m_store->Holds(from)) {
        return Report(GetResourceText(TextNumber::NothingToRename));
    }
    const auto to = m_ask(*m_window, from);
    if (!to || *to == from) {
        return;
    }
    const NameFault fault = WorksheetStore::FaultOf(*to);
    if (fault != NameFault::None) {
        return Report(NameFaultText(fault));
    }
    Rename(from, *to);
}

void RenameCommand::Rename(const QString& from, const QString& to) {
    CMouse mouse;
    mouse.SetPointer(MousePointer::Hourglass);
    try {
        switch (m_store->Rename(from, to)) {
        case RenameOutcome::Kind::Missing:
            return Report(GetResourceText(TextNumber::NothingToRename));
        case RenameOutcome::Kind::Taken:
            return Report(GetResourceText(TextNumber::NameTaken).arg(to));
        case RenameOutcome::Kind::Renamed:
            break;
        }
    } catch (const Failure& failure) { // becomes the message
        return Report(GetResourceText(TextNumber::NotRenamed) + QStringLiteral("\n\n") +
                      StoreFailureText(failure));
    }
    Worksheet& worksheet = m_window->GetWorksheet();
    const bool wasDirty = worksheet.Dirty();
    worksheet.SetLoanName(to);
    if (!wasDirty) {
        worksheet.ClearDirty();
    }
    m_window->ForgetSteps(); // undone, they would bring the old name back
    m_window->ShowTitle();
    m_window->Announce(GetResourceText(TextNumber::Renamed));
    m_window->Reenter();
}

void RenameCommand::Report(const QString& text) const { m_window->GetMessages().Post(text); }

} // namespace quend::storage
