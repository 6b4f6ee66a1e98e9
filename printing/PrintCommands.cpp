#include "PrintCommands.h"

#include "FailureReport.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "MessageQueue.h"
#include "Plugin.h"
#include "PrinterInterface.h"
#include "ReportInputReader.h"
#include "TextNumbers.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>

#include <utility>

namespace quend::printing {

namespace {

QString TextOf(const PrintOutcome& outcome) {
    switch (outcome.fault) {
    case PrintFault::None:
        break;
    case PrintFault::NoPrinter:
        return GetResourceText(TextNumber::NoPrinter);
    case PrintFault::NoServer:
        return GetResourceText(TextNumber::NoPrintServer);
    case PrintFault::Gone:
        return GetResourceText(TextNumber::PrinterGone).arg(outcome.detail);
    case PrintFault::Rejects:
        return GetResourceText(TextNumber::PrinterRejects).arg(outcome.detail);
    case PrintFault::Failed:
        return GetResourceText(TextNumber::NotPrinted) + QStringLiteral("\n\n") + outcome.detail;
    }
    return {};
}

/// A missing printing plugin is reported; every other failure ends the command in silence.
QString MissingPart(const std::exception& failure) {
    const auto* missing = dynamic_cast<const ComponentFailure*>(&failure);
    return missing == nullptr ? QString()
                              : GetResourceText(TextNumber::PartMissing)
                                    .arg(PluginFile(QString::fromStdString(missing->Source())));
}

} // namespace

PrintCommands::PrintCommands(Loan& window, PrinterInterface& printer, frmPrint::Pace pace)
    : m_window(&window), m_printer(&printer), m_pace(std::move(pace)) {
    const Ui::Loan& form = window.Form();
    connect(form.mnuFilePrint, &QAction::triggered, this,
            [this] { m_window->Report().Guard([this] { mnuFilePrint_Click(); }, MissingPart); });
    connect(form.mnuFilePrintSetup, &QAction::triggered, this, [this] {
        m_window->Report().Guard([this] { mnuFilePrintSetup_Click(); }, MissingPart);
    });
    QCoreApplication::instance()->installEventFilter(this);
    EnableEntries(true);
}

PrintCommands::~PrintCommands() {
    if (m_job) {
        m_quits = false;
        m_job->EndSoon();
        while (m_job) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        m_window->GetMessages().ShowRest();
    }
}

/// Quitting would close the progress window, which would cancel the job without the user wanting
/// it. Quitting therefore waits until the report is sent.
bool PrintCommands::eventFilter(QObject* watched, QEvent* event) {
    if (m_job && event->type() == QEvent::Quit && watched == QCoreApplication::instance()) {
        m_quits = true;
        m_job->EndSoon();
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void PrintCommands::EnableEntries(bool enabled) {
    m_window->Form().mnuFilePrint->setEnabled(enabled);
    m_window->Form().mnuFilePrintSetup->setEnabled(enabled);
}

/// Reports what went wrong, if anything.
bool PrintCommands::MayGoOn(const PrintOutcome& outcome) const {
    if (outcome.fault == PrintFault::None) {
        return true;
    }
    m_window->GetMessages().Post(TextOf(outcome));
    return false;
}

/// A refused field stops the command, because the offers were not computed from the text it shows.
void PrintCommands::mnuFilePrint_Click() {
    if (m_job || !m_window->Commit()) {
        return;
    }
    const auto answer = m_printer->AskHowToPrint(*m_window);
    if (answer && MayGoOn(*answer)) {
        StartJob();
    }
}

void PrintCommands::mnuFilePrintSetup_Click() {
    if (!m_job) {
        MayGoOn(m_printer->AskSetUp(*m_window));
    }
}

void PrintCommands::StartJob() {
    const QSizeF space = m_printer->PageSpace();
    const double widest =
        Report::WidestWindow(space.width(), LabelPoints(*m_window), PixelsPerPoint(*m_window));
    Report report(ReadForm(*m_window, widest), space, m_metrics);
    if (!report.HasRoomForARow()) {
        m_window->GetMessages().Post(GetResourceText(TextNumber::MarginsTooWide));
        return;
    }
    m_job = std::make_unique<frmPrint>(
        *m_window,
        frmPrint::Job{.loanName = m_window->Form().cboLoanName->currentText(),
                      .report = std::move(report)},
        *m_printer, m_pace);
    connect(m_job.get(), &frmPrint::Unloaded, this, &PrintCommands::EndJob, Qt::QueuedConnection);
    EnableEntries(false);
    m_job->show();
}

void PrintCommands::EndJob() {
    const PrintOutcome outcome = m_job->Outcome();
    m_job.reset();
    EnableEntries(true);
    MayGoOn(outcome);
    if (std::exchange(m_quits, false)) {
        m_window->GetMessages().ShowRest(); // later the event loop no longer runs
        QCoreApplication::quit();
    }
}

} // namespace quend::printing
