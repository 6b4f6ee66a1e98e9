#pragma once

#include "LoanStore.h"

#include <QObject>
#include <QString>

class Loan;
class LoanNameBox;

/// The File menu's New, Save and Delete, and the box of the loan's name: worksheets are picked,
/// kept, deleted and started anew, and nothing unsaved goes without a question.
class FileCommands : public QObject {
    Q_OBJECT

public:
    /// The window outlives the commands. Enables the entries.
    FileCommands(Loan& window, LoanStore store);

    /// Asks about unsaved changes and saves them if wanted. False when everything is to stay as it
    /// is: the user wants it so, or the worksheet could not be saved.
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
    void Tell(const QString& text, const QString& details = {}) const;

    Loan* m_window;
    LoanStore m_store;
    Worksheet* m_worksheet;
    LoanNameBox* m_cboLoanName;
};
