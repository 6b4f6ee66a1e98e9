#include "PrintCommands.h"

#include "FormReader.h"
#include "Loan.h"
#include "LoanForm.h"
#include "PrinterDoor.h"

#include <QAction>

#include <exception>
#include <utility>

namespace {

/// No error of printing is ever told.
template <class Handler>
void Quietly(Handler&& handler) {
    try {
        handler();
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch)
    }
}

} // namespace

PrintCommands::PrintCommands(Loan& window, PrinterDoor& printer, frmPrint::Pace pace)
    : m_window(&window), m_printer(&printer), m_pace(std::move(pace)) {
    const Ui::Loan& form = window.Form();
    connect(form.mnuFilePrint, &QAction::triggered, this,
            [this] { Quietly([this] { mnuFilePrint_Click(); }); });
    connect(form.mnuFilePrintSetup, &QAction::triggered, this,
            [this] { Quietly([this] { mnuFilePrintSetup_Click(); }); });
    EnableEntries(true);
}

PrintCommands::~PrintCommands() {
    if (m_job) {
        m_job->disconnect(this);
        m_job->EndNow();
    }
}

void PrintCommands::EnableEntries(bool enabled) {
    m_window->Form().mnuFilePrint->setEnabled(enabled);
    m_window->Form().mnuFilePrintSetup->setEnabled(enabled);
}

/// A field that is refused stops the command: what it shows is not what the offers were computed
/// from.
void PrintCommands::mnuFilePrint_Click() {
    if (!m_job && m_window->Commit() && m_printer->AskHowToPrint(*m_window)) {
        StartJob();
    }
}

void PrintCommands::mnuFilePrintSetup_Click() {
    if (!m_job) {
        m_printer->AskSetUp(*m_window);
    }
}

void PrintCommands::StartJob() {
    const QSizeF space = m_printer->PageSpace();
    const double widest =
        Report::WidestWindow(space.width(), LabelPoints(*m_window), PixelsPerPoint(*m_window));
    m_job = std::make_unique<frmPrint>(
        *m_window,
        frmPrint::Job{.loanName = m_window->Form().cboLoanName->currentText(),
                      .report = Report(ReadForm(*m_window, widest), space, m_metrics)},
        *m_printer, m_pace);
    connect(m_job.get(), &frmPrint::Unloaded, this, &PrintCommands::EndJob, Qt::QueuedConnection);
    EnableEntries(false);
    m_job->show();
}

void PrintCommands::EndJob() {
    m_job.reset();
    EnableEntries(true);
}
