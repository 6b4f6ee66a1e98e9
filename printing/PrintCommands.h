#pragma once

#include "Drawing.h"
#include "ExportDialog.h"
#include "PagePainter.h"
#include "PrintingNames.h"
#include "frmPrint.h"

#include <QObject>

#include <functional>
#include <memory>

namespace quend::window {
class Loan;
}

namespace quend::printing {

class Report;

/// The File menu's Print, Print Setup, Print Preview and Export as PDF, all with the same pages,
/// and the first of them also for the documents of other windows, of which it knows only how to
/// begin them. One document is printed at a time: until it is sent the entries are disabled and the
/// program does not quit. A document that cannot be printed is reported once; a dialog that was
/// cancelled or that failed is not.
class PrintCommands : public QObject {
    Q_OBJECT

public:
    /// Asks for the file to export to.
    using AskForFile =
        std::function<ExportFile(QWidget& parent, const QString& name, const QStringList& filters)>;

    /// Window and printer must outlive this object. Enables the entries.
    PrintCommands(Loan& window, PrinterInterface& printer, frmPrint::Pace pace = {},
                  AskForFile askForFile = AskForExportFile);
    Q_DISABLE_COPY_MOVE(PrintCommands)
    /// Finishes printing the current document first, unless the user cancels it.
    ~PrintCommands() override;

    /// Asks how to print and prints a document of another window, to which the dialogs and the
    /// progress window then belong; if that window is destroyed meanwhile, nothing is printed. The
    /// progress window shows the title. Says so if another document is being printed.
    void Print(QWidget& parent, const QString& title, const DrawDocument& draw);

    /// Saves a document as a PDF file, on the paper of the locale's country. False if it was not
    /// saved: then `error` says why, and an older file is unchanged. Throws what `draw` throws.
    bool ExportPdf(const QString& file, const QString& title, const DrawDocument& draw,
                   QString& error) const;

    /// A document is being printed.
    bool IsBusy() const { return m_job != nullptr; }

Q_SIGNALS:
    /// IsBusy() has changed.
    void Busy(bool busy);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void mnuFilePrint_Click();
    void mnuFilePrintSetup_Click();
    void mnuFilePrintPreview_Click();
    void mnuFileExportPdf_Click();

    bool Ask(QWidget& parent);
    QString WorksheetName() const;
    std::unique_ptr<Report> BeginReport(QSizeF space) const;
    PrintedPages ReportPages(QSizeF space) const;
    void PrintReport();
    void StartJob(QWidget& parent, frmPrint::Job job, int refusal);
    void EndJob();
    void JobIsGone();
    void SetBusy(bool busy);
    bool MayGoOn(const PrintOutcome& outcome) const;
    Paper PaperOf(QSizeF space) const;

    Loan* m_window;
    PrinterInterface* m_printer;
    frmPrint::Pace m_pace;
    AskForFile m_askForFile;
    FontMetrics m_metrics; ///< outlives the job, which measures with it
    std::unique_ptr<frmPrint> m_job;
    bool m_quits = false; ///< the program was asked to quit during the job
};

} // namespace quend::printing
