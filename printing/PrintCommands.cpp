#include "PrintCommands.h"

#include "CompareTextNumbers.h"
#include "EditTextNumbers.h"
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
#include "Worksheet.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QEventLoop>
#include <QLocale>
#include <QPageLayout>

#include <utility>

namespace quend::printing {

namespace {

constexpr int PreviewTopic = 1141; // of the help

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

/// A file that is not saved is always reported.
QString MissingPartOrFailure(const std::exception& failure) {
    const QString missing = MissingPart(failure);
    return missing.isEmpty() ? FailureMessage(failure) : missing;
}

/// Saves pages; the error if that fails, otherwise empty.
QString SavePdf(const QString& file, const PrintedPages& pages, const QString& title,
                const QPageLayout& layout) {
    const QByteArray pdf = PdfOf(pages, {.title = title,
                                         .creator = QString::fromUtf8(VersionRecord::ProductName),
                                         .layout = layout});
    return NotSavedText(file, pdf.isEmpty() ? SaveOutcome{SaveFault::Failed} : SaveFile(file, pdf));
}

} // namespace

PrintCommands::PrintCommands(Loan& window, PrinterInterface& printer, frmPrint::Pace pace,
                             AskForFile askForFile)
    : m_window(&window), m_printer(&printer), m_pace(std::move(pace)),
      m_askForFile(std::move(askForFile)) {
    const Ui::Loan& form = window.Form();
    const auto wire = [this](const QAction& entry, void (PrintCommands::*handler)(),
                             FailureReport::Wording wording = MissingPart) {
        connect(&entry, &QAction::triggered, this, [this, handler, wording] {
            m_window->Report().Guard([&] { (this->*handler)(); }, wording);
        });
    };
    wire(*form.mnuFilePrint, &PrintCommands::mnuFilePrint_Click);
    wire(*form.mnuFilePrintSetup, &PrintCommands::mnuFilePrintSetup_Click);
    wire(*form.mnuFilePrintPreview, &PrintCommands::mnuFilePrintPreview_Click);
    wire(*form.mnuFileExportPdf, &PrintCommands::mnuFileExportPdf_Click, MissingPartOrFailure);
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
    const Ui::Loan& form = m_window->Form();
    for (QAction* entry : {form.mnuFilePrint, form.mnuFilePrintSetup, form.mnuFilePrintPreview,
                           form.mnuFileExportPdf}) {
        entry->setEnabled(!busy);
    }
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
        PrintReport();
    }
}

void PrintCommands::PrintReport() {
    StartJob(*m_window,
             {.message = GetResourceText(TextNumber::Printing) + QStringLiteral("%1..."),
              .name = m_window->Form().cboLoanName->currentText(),
              .drawing = BeginReport(m_printer->PageSpace())},
             TextNumber::MarginsTooWide);
}

void PrintCommands::mnuFilePrintSetup_Click() {
    if (!m_job) {
        MayGoOn(m_printer->AskSetUp(*m_window));
    }
}

void PrintCommands::mnuFilePrintPreview_Click() {
    if (m_job || !m_window->Commit()) {
        return;
    }
    const auto ask = [this](QWidget& parent) {
        bool prints = false;
        m_window->Report().Guard([&] { prints = Ask(parent); }, MissingPart);
        return prints;
    };
    const auto draw = [this](QSizeF space) {
        PrintedPages pages{.space = space, .pages = {}};
        m_window->Report().Guard([&] { pages = ReportPages(space); });
        return pages;
    };
    const Preview preview{.title = GetResourceText(TextNumber::PreviewOf).arg(WorksheetName()),
                          .helpTopic = PreviewTopic,
                          .draw = draw,
                          .print = ask};
    if (m_printer->ShowPreview(*m_window, preview)) {
        PrintReport();
    }
}

/// The page is that of the preview and of the paper.
void PrintCommands::mnuFileExportPdf_Click() {
    if (m_job || !m_window->Commit()) {
        return;
    }
    const QString name = WorksheetName();
    const ExportFile file = m_askForFile(*m_window, name + QStringLiteral(".pdf"),
                                         {GetResourceText(TextNumber::ExportPdf)});
    if (file.name.isEmpty()) {
        return;
    }
    const QPageLayout page = m_printer->Page();
    const PrintedPages pages = ReportPages(SpaceOf(page));
    if (pages.pages.empty()) {
        return;
    }
    const QString error = SavePdf(file.name, pages, name, page);
    if (!error.isEmpty()) {
        return m_window->GetMessages().Post(error);
    }
    m_window->Announce(
        GetResourceText(TextNumber::SavedAsFile).arg(QDir::toNativeSeparators(file.name)));
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

/// For windows and files, which need a name.
QString PrintCommands::WorksheetName() const {
    const QString name = m_window->Form().cboLoanName->currentText();
    return Worksheet::IsEmptyName(name) ? GetResourceText(TextNumber::UnnamedWorksheet) : name;
}

/// None if the page is too small, which is reported.
PrintedPages PrintCommands::ReportPages(QSizeF space) const {
    const std::unique_ptr<printing::Report> report = BeginReport(space);
    if (report->Fits()) {
        return DrawWhole(*report);
    }
    m_window->GetMessages().Post(GetResourceText(TextNumber::MarginsTooWide));
    return {.space = space, .pages = {}};
}

std::unique_ptr<Report> PrintCommands::BeginReport(QSizeF space) const {
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
    error = SavePdf(file, DrawWhole(*drawing), title, layout);
    return error.isEmpty();
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
