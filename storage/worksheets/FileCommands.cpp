#include "FileCommands.h"

#include "CMouse.h"
#include "Captions.h"
#include "EditTextNumbers.h"
#include "FailureReport.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "LoanNameBox.h"
#include "MessageQueue.h"
#include "OfferRows.h"
#include "StoreNotice.h"
#include "TextNumbers.h"
#include "Worksheet.h"

#include <QAction>
#include <QVariant>

#include <utility>

namespace quend::storage {

namespace {

/// The question about a loan: the text before the name, the name, the text after it.
QString WithName(int question, const QString& name) {
    return GetResourceText(question) + name + GetResourceText(TextNumber::NameEnd);
}

/// The name as a menu entry or the line below the rows quotes it.
QString ShownName(const QString& name) {
    return Worksheet::IsEmptyName(name) ? GetResourceText(TextNumber::WithoutName)
                                        : Shortened(name);
}

} // namespace

FileCommands::FileCommands(Loan& window, WorksheetStore store, AskForName askForName)
    : m_window(&window), m_store(std::move(store)),
      m_rename(window, m_store, std::move(askForName)), m_worksheet(&window.GetWorksheet()),
      m_cboLoanName(window.Form().cboLoanName) {
    struct Command {
        QAction* entry;
        void (FileCommands::*run)();
    };
    const Ui::Loan& form = window.Form();
    for (const Command& command :
         {Command{form.mnuFileNew, &FileCommands::mnuFileNew_Click},
          Command{form.mnuFileSave, &FileCommands::mnuFileSave_Click},
          Command{form.mnuFileDelete, &FileCommands::mnuFileDelete_Click},
          Command{form.mnuFileBringBack, &FileCommands::mnuFileBringBack_Click}}) {
        command.entry->setEnabled(true);
        connect(command.entry, &QAction::triggered, this, [this, run = command.run] {
            m_window->Report().Guard([&] {
                if (m_window->Commit()) {
                    (this->*run)();
                }
            });
        });
    }
    connect(m_cboLoanName, &LoanNameBox::DropDown, this,
            [this] { m_window->Report().Guard([this] { cboLoanName_DropDown(); }); });
    connect(m_cboLoanName, &LoanNameBox::Picked, this, [this](const QString& picked) {
        m_window->Report().Guard([&] { cboLoanName_Click(picked); });
    });
    // Its caption holds a name, so it is set here in every language.
    form.mnuFileBringBack->setProperty(TextProperty::Caption, QVariant());
    connect(m_window, &Loan::LanguageChanged, this, &FileCommands::ShowKept);
    ShowKept();
}

/// The entry brings back what was kept last.
void FileCommands::ShowKept() {
    QAction* const entry = m_window->Form().mnuFileBringBack;
    const bool any = !m_store.Kept().empty();
    entry->setEnabled(any);
    entry->setVisible(any);
    if (any) {
        entry->setText(
            GetResourceText(TextNumber::BringBack)
                .arg(ShownName(m_store.Kept().back().name).replace(u'&', QStringLiteral("&&"))));
    }
}

/// The question and the save use the name typed, even if another is selected afterwards.
void FileCommands::cboLoanName_DropDown() {
    m_window->Commit();
    RefreshLoanList();
}

/// Keeps the text typed in the box.
void FileCommands::RefreshLoanList() {
    const QString typed = m_cboLoanName->currentText();
    m_cboLoanName->clear();
    m_cboLoanName->addItem(GetResourceText(TextNumber::NewLoan));
    m_cboLoanName->addItems(m_store.Names());
    m_cboLoanName->setCurrentIndex(-1);
    m_cboLoanName->setEditText(typed);
}

void FileCommands::mnuFileNew_Click() {
    RefreshLoanList();
    m_cboLoanName->setCurrentIndex(0);
    cboLoanName_Click(m_cboLoanName->currentText());
    m_cboLoanName->setFocus();
}

void FileCommands::mnuFileSave_Click() {
    if (Worksheet::IsEmptyName(m_cboLoanName->currentText())) {
        m_window->MarkNameMissing();
        return;
    }
    SaveLoan();
}

bool FileCommands::MayDrop() {
    if (!m_worksheet->Dirty()) {
        return true;
    }
    const QString name = m_worksheet->LoanName();
    const QString title = GetResourceText(TextNumber::SaveTitle);
    const QString text =
        Worksheet::IsEmptyName(name) ? title : WithName(TextNumber::SaveQuestion, name);
    switch (m_window->GetMessages().Ask({text, title, true})) {
    case Answer::Yes:
        return SaveOrMark();
    case Answer::No:
        return true;
    default:
        return false;
    }
}

/// Saves before another action: if the worksheet has no name it is kept, and the user is asked for
/// a name.
bool FileCommands::SaveOrMark() {
    if (!Worksheet::IsEmptyName(m_worksheet->LoanName())) {
        return SaveLoan();
    }
    m_window->MarkNameMissing();
    m_cboLoanName->setFocus();
    return false;
}

void FileCommands::cboLoanName_Click(const QString& picked) {
    if (!MayDrop()) {
        m_worksheet->Show({FieldId::LoanName});
    } else if (picked == GetResourceText(TextNumber::NewLoan)) {
        ClearWorksheet();
    } else {
        LoadLoan(picked);
    }
    m_window->Reenter();
}

bool FileCommands::CanSave() const {
    const NameFault fault = WorksheetStore::FaultOf(m_worksheet->LoanName());
    if (fault != NameFault::None) {
        Report(NameFaultText(fault));
        return false;
    }
    for (Row row{0}; row <= m_worksheet->HighestOfferRow(); ++row.value) {
        if (!WorksheetStore::CanHoldLender(m_worksheet->OfferOfRow(row).Who())) {
            Report(GetResourceText(TextNumber::LenderTooLong).arg(row.value + 1));
            return false;
        }
    }
    return true;
}

bool FileCommands::SaveLoan() {
    if (!CanSave()) {
        return false;
    }
    CMouse mouse;
    mouse.SetPointer(MousePointer::Hourglass);
    bool replaced = false;
    try {
        replaced = m_store.Save(*m_worksheet);
    } catch (const Failure& failure) { // its message says what became of the worksheet
        Report(GetResourceText(TextNumber::NotSaved), StoreFailureText(failure));
        return false;
    }
    m_window->ShowTitle();
    m_window->Announce(
        replaced ? GetResourceText(TextNumber::SavedOver).arg(ShownName(m_worksheet->LoanName()))
                 : GetResourceText(TextNumber::Saved));
    ShowKept();
    return true;
}

/// If no worksheet has the name any more, only the name is set. If the store cannot be read, that
/// is unknown and nothing changes.
void FileCommands::LoadLoan(const QString& name) {
    CMouse mouse;
    mouse.SetPointer(MousePointer::Hourglass);
    const LoadOutcome outcome =
        m_store.Load(*m_worksheet, name, [this](Row last) { m_window->Rows().GrowTo(last); });
    if (outcome.trouble != StoreTrouble::None) {
        Report(GetResourceText(TextNumber::NotLoaded), ErrorText(outcome.trouble));
        m_worksheet->Show({FieldId::LoanName});
        return;
    }
    if (!outcome.exists) {
        m_worksheet->SetLoanName(name);
        return;
    }
    m_window->ClearNameMark();
    if (outcome.incomplete) {
        Report(GetResourceText(TextNumber::LoanIncomplete));
    }
    if (!outcome.failures.empty()) {
        Report(GetResourceText(TextNumber::ValuesNotLoaded), FailureLines(outcome.failures));
    }
}

void FileCommands::mnuFileDelete_Click() {
    const QString name = m_worksheet->LoanName();
    if (Worksheet::IsEmptyName(name) && m_worksheet->Dirty()) {
        ClearWorksheet();
    } else if (WorksheetStore::FaultOf(name) == NameFault::NoKey) {
        Report(GetResourceText(TextNumber::NoSuchNameToDelete));
        return;
    } else {
        const Question question{WithName(TextNumber::DeleteQuestion, name),
                                GetResourceText(TextNumber::DeleteTitle)};
        if (m_window->GetMessages().Ask(question) != Answer::Yes || !DeleteLoan()) {
            return;
        }
        ClearWorksheet();
        RefreshLoanList();
    }
    m_cboLoanName->setFocus();
    m_window->Reenter();
}

/// False when the worksheet still exists.
bool FileCommands::DeleteLoan() {
    if (Worksheet::IsEmptyName(m_worksheet->LoanName())) {
        Report(GetResourceText(TextNumber::NoNameToDelete));
        return true;
    }
    CMouse mouse;
    mouse.SetPointer(MousePointer::Hourglass);
    const QString name = m_worksheet->LoanName();
    bool deleted = false;
    try {
        deleted = m_store.Delete(name);
    } catch (const StoreFailure& failure) { // as above
        Report(GetResourceText(TextNumber::NotDeleted), ErrorText(failure.Trouble()));
        return false;
    }
    if (deleted) {
        m_window->Announce(GetResourceText(TextNumber::DeletedAndKept).arg(ShownName(name)));
    }
    ShowKept();
    return true;
}

/// What is brought back is chosen first, because answering the question may keep more.
void FileCommands::mnuFileBringBack_Click() {
    const KeptWorksheet back = m_store.Kept().back();
    if (!MayDrop()) {
        return;
    }
    try {
        m_store.BringBack(back);
    } catch (const Failure& failure) { // as above
        return Report(GetResourceText(TextNumber::NotBroughtBack), StoreFailureText(failure));
    }
    if (back.wasStored) {
        LoadLoan(back.name);
    } else {
        Show(back);
    }
    m_window->Announce(GetResourceText(TextNumber::BroughtBack));
    ShowKept();
    m_window->Reenter();
}

void FileCommands::Keep(const KeptWorksheet& worksheet) {
    m_store.Keep(worksheet);
    ShowKept();
}

void FileCommands::OpenUnsaved(const KeptWorksheet& worksheet) {
    if (!m_window->Commit() || !MayDrop()) {
        return Keep(worksheet);
    }
    Show(worksheet);
    m_window->Reenter();
}

void FileCommands::Show(const KeptWorksheet& unsaved) {
    const LoadOutcome outcome =
        WorksheetStore::Load(*m_worksheet, unsaved.name, unsaved.values,
                             [this](Row last) { m_window->Rows().GrowTo(last); });
    m_store.Forget();
    m_worksheet->MarkUnsaved();
    m_window->ShowTitle();
    m_window->ClearNameMark();
    if (!outcome.failures.empty()) {
        Report(GetResourceText(TextNumber::ValuesNotLoaded), FailureLines(outcome.failures));
    }
}

void FileCommands::ClearWorksheet() {
    m_worksheet->Clear();
    m_store.Forget();
    m_window->ClearNameMark();
}

void FileCommands::Report(const QString& text, const QString& details) const {
    m_window->GetMessages().Post(details.isEmpty() ? text
                                                   : text + QStringLiteral("\n\n") + details);
}

} // namespace quend::storage
