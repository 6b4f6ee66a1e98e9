#pragma once

#include "KeptWorksheets.h"
#include "RenameCommand.h"
#include "StorageNames.h"
#include "WorksheetStore.h"

#include <QObject>
#include <QString>

namespace quend::window {
class Loan;
class LoanNameBox;
} // namespace quend::window

namespace quend::storage {

/// The File menu's New, Save, Rename, Delete and Bring Back, and the loan name box: selects, saves,
/// renames, deletes, restores and clears worksheets. Asks before unsaved changes are dropped.
class FileCommands : public QObject {
    Q_OBJECT

public:
    /// The window must outlive the commands. Enables the menu entries.
    FileCommands(Loan& window, WorksheetStore store, AskForName askForName = AskForNewName);

    /// Asks about unsaved changes and saves them on request. False when the worksheet must stay:
    /// the user cancelled, or it could not be saved.
    bool MayDrop();

    /// After the window was filled from elsewhere, such as a file: a save must not take the stored
    /// worksheet of that name for an earlier state of this one.
    void ForgetStored() { m_store.Forget(); }

    /// Opens a worksheet that was closed unsaved, as one with unsaved changes. If those of the
    /// window must stay, it is kept.
    void OpenUnsaved(const KeptWorksheet& worksheet);
    /// Bring Back offers it from now on.
    void Keep(const KeptWorksheet& worksheet);

private:
    void mnuFileNew_Click();
    void mnuFileSave_Click();
    void mnuFileDelete_Click();
    void mnuFileBringBack_Click();
    void cboLoanName_DropDown();
    void cboLoanName_Click(const QString& picked);

    void RefreshLoanList();
    void ShowKept();
    void Show(const KeptWorksheet& unsaved);
    bool SaveLoan();
    bool SaveOrMark();
    void LoadLoan(const QString& name);
    bool DeleteLoan();
    void ClearWorksheet();
    bool CanSave() const;
    void Report(const QString& text, const QString& details = {}) const;

    Loan* m_window;
    KeptWorksheets m_store;
    RenameCommand m_rename;
    Worksheet* m_worksheet;
    LoanNameBox* m_cboLoanName;
};

} // namespace quend::storage
