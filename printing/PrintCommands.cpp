#include "PrintCommands.h"

#include "CompareTextNumbers.h"
#include "FailureReport.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "MessageQueue.h"
#include "NotSaved.h"
#include "PdfDocument.h"
#include "Plugin.h"
#include "PrinterInterface.h"
#include "Report.h"
#include "ReportInputReader.h"
#include "SaveFile.h"
#include "TextNumbers.h"
#include "VersionRecord.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QLocale>
#include <QPageLayout>

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
    SetBusy(false);
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
/// it. Quitting therefore waits until the document is sent.
bool PrintCommands::eventFilter(QObject* watched, QEvent* event) {
    if (m_job && event->type() == QEvent::Quit && watched == QCoreApplication::instance()) {
        m_quits = true;
        m_job->EndSoon();
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void PrintCommands::SetBusy(bool busy) {
    m_window->Form().mnuFilePrint->setEnabled(!busy);
    m_window->Form().mnuFilePrintSetup->setEnabled(!busy);
    Q_EMIT Busy(busy);
}

/// Reports what went wrong, if anything.
bool PrintCommands::MayGoOn(const PrintOutcome& outcome) const {
    if (outcome.fault == PrintFault::None) {
        return true;
    }
    m_window->GetMessages().Post(TextOf(outcome));
    return false;
}

/// Whether the user wants to print and the printer accepts a document.
bool PrintCommands::Ask(QWidget& parent) {
    const auto answer = m_printer->AskHowToPrint(parent);
    return answer && MayGoOn(*answer);
}

/// A refused field stops the command, because the offers were not computed from the text it shows.
void PrintCommands::mnuFilePrint_Click() {
    if (!m_job && m_window->Commit() && Ask(*m_window)) {
        StartJob(*m_window,
                 {.message = GetResourceText(TextNumber::Printing) + QStringLiteral("%1..."),
                  .name = m_window->Form().cboLoanName->currentText(),
                  .drawing = BeginReport()},
                 TextNumber::MarginsTooWide);
    }
}

void PrintCommands::mnuFilePrintSetup_Click() {
    if (!m_job) {
        MayGoOn(m_printer->AskSetUp(*m_window));
    }
}

void PrintCommands::Print(QWidget& parent, const QString& title, const DrawDocument& draw) {
    if (m_job) {
        m_window->GetMessages().Post(GetResourceText(TextNumber::StillPrinting));
        return;
    }
    m_window->Report().Guard(
        [&] {
            if (Ask(parent)) {
                StartJob(parent,
                         {.message = GetResourceText(TextNumber::PrintingDocument),
                          .name = title,
                          .drawing = draw(PaperOf(m_printer->PageSpace()))},
                         TextNumber::PageTooSmall);
            }
        },
        MissingPart);
}

std::unique_ptr<Report> PrintCommands::BeginReport() const {
    const QSizeF space = m_printer->PageSpace();
    const double widest =
        Report::WidestWindow(space.width(), LabelPoints(*m_window), PixelsPerPoint(*m_window));
    return std::make_unique<printing::Report>(ReadForm(*m_window, widest), space, m_metrics);
}

/// Documents have the type of the main window, as its report does.
Paper PrintCommands::PaperOf(QSizeF space) const {
    return {.space = space,
            .metrics = &m_metrics,
            .font = {.family = LabelFamily(*m_window), .points = LabelPoints(*m_window)},
            .legalNotice = GetResourceText(TextNumber::LegalNotice)};
}

bool PrintCommands::ExportPdf(const QString& file, const QString& title, const DrawDocument& draw,
                              QString& error) const {
    QPageLayout layout = PageOfFile(QLocale(), QPageLayout::Portrait);
    std::unique_ptr<Drawing> drawing = draw(PaperOf(SpaceOf(layout)));
    if (drawing->PrefersLandscape()) {
        layout = PageOfFile(QLocale(), QPageLayout::Landscape);
        drawing = draw(PaperOf(SpaceOf(layout)));
    }
    const QByteArray pdf =
        PdfOf(DrawWhole(*drawing), {.title = title,
                                    .creator = QString::fromUtf8(VersionRecord::ProductName),
                                    .layout = layout});
    const SaveOutcome outcome =
        pdf.isEmpty() ? SaveOutcome{SaveFault::Failed} : SaveFile(file, pdf);
    error = NotSavedText(file, outcome);
    return outcome.fault == SaveFault::None;
}

/// The job belongs to its window, which may be destroyed before it ends.
void PrintCommands::StartJob(QWidget& parent, frmPrint::Job job, int refusal) {
    if (!job.drawing->Fits()) {
        m_window->GetMessages().Post(GetResourceText(refusal));
        return;
    }
    m_job = std::make_unique<frmPrint>(parent, std::move(job), *m_printer, m_pace);
    const auto endJob = [this, job = m_job.get()] {
        if (m_job.get() == job) {
            EndJob();
        }
    };
    connect(m_job.get(), &frmPrint::Unloaded, this, endJob, Qt::QueuedConnection);
    connect(m_job.get(), &QObject::destroyed, this, &PrintCommands::JobIsGone);
    SetBusy(true);
    m_job->show();
}

void PrintCommands::EndJob() {
    const PrintOutcome outcome = m_job->Outcome();
    m_job.reset();
    MayGoOn(outcome);
    if (std::exchange(m_quits, false)) {
        m_window->GetMessages().ShowRest(); // later the event loop no longer runs
        QCoreApplication::quit();
    }
}

/// The job was deleted, here or by its window; after that it must not be deleted again.
void PrintCommands::JobIsGone() {
    static_cast<void>(m_job.release());
    SetBusy(false);
}

} // namespace quend::printing
