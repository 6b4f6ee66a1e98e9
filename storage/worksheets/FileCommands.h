#pragma once

#include "StorageNames.h"
#include "WorksheetStore.h"

#include <QObject>
#include <QString>

namespace quend::window {
class Loan;
class LoanNameBox;
} // namespace quend::window

namespace quend::storage {

/// The File menu's New, Save and Delete, and the loan name box: selects, saves, deletes and clears
/// worksheets. Asks before unsaved changes are dropped.
class FileCommands : public QObject {
    Q_OBJECT

public:
    /// The window must outlive the commands. Enables the menu entries.
    FileCommands(Loan& window, WorksheetStore store);

    /// Asks about unsaved changes and saves them on request. False when the worksheet must stay:
    /// the user cancelled, or it could not be saved.
    bool MayDrop();

private:
    void mnuFileNew_Click();
    void mnuFileSave_Click();
    void mnuFileDelete_Click();
    void cboLoanName_DropDown();
    void cboLoanName_Click(const QString& picked);

    void RefreshLoanList();
    bool SaveLoan();
    bool SaveOrMark();
    void LoadLoan(const QString& name);
    bool DeleteLoan();
    void ClearWorksheet();
    bool CanSave() const;
    void Report(const QString& text, const QString& details = {}) const;

    Loan* m_window;
    WorksheetStore m_store;
    Worksheet* m_worksheet;
    LoanNameBox* m_cboLoanName;
};

} // namespace quend::storage
