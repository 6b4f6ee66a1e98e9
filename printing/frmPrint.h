#pragma once

#include "Drawing.h"
#include "PrinterInterface.h"
#include "PrintingNames.h"

#include <QDialog>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace Ui {
class frmPrint;
}

namespace quend::printing {

/// One print job and its progress window. Draws the document section by section and allows Cancel
/// in between; stays open for at least three seconds; then sends the pages to the printer in a
/// separate thread, because a print server may take minutes, and closes when they have been sent.
/// Does not know what is drawn and reports no errors: they are in the outcome.
///
/// Closing the window by other means than the job's end is Cancel.
class frmPrint : public QDialog {
    Q_OBJECT

public:
    /// The timing of the job.
    struct Pace {
        std::chrono::milliseconds shownAtLeast{3000};
        /// Processes pending events; empty: QCoreApplication::processEvents.
        std::function<void()> yield;
    };
    struct Job {
        QString message; ///< shown meanwhile; %1: the name, shortened
        QString name;
        std::unique_ptr<Drawing> drawing;
    };
    /// Window and printer must outlive the job. The job starts when the window is shown.
    frmPrint(QWidget& owner, Job job, PrinterInterface& printer, Pace pace);
    Q_DISABLE_COPY_MOVE(frmPrint)
    ~frmPrint() override;

    /// The user pressed Cancel.
    bool PrintCancelled() const { return m_printCancelled; }
    /// The whole document has been drawn.
    bool PrintFinished() const { return m_printFinished; }

    /// The result of sending the document; a cancelled one has no fault.
    const PrintOutcome& Outcome() const { return m_outcome; }

    /// The program is about to quit: sends the document as soon as it is drawn. Cancel keeps
    /// working.
    void EndSoon();

    void reject() override { cmdCancel_Click(); }

Q_SIGNALS:
    /// The job has ended, finished or cancelled, and nothing of it is running.
    void Unloaded();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Form_Load();
    void Form_Activate();
    void Form_Unload();
    void tmrPrint_Timer();
    void cmdCancel_Click();

    void ApplyPrintCaptions();
    PrintOutcome DrawDocument();
    void Yield() const;
    void GiveToPrinter();
    void Arrived(const PrintOutcome& outcome);
    void Unload();

    std::unique_ptr<Ui::frmPrint> m_ui;
    QWidget* m_owner;
    Job m_job;
    PrinterInterface* m_printer;
    Pace m_pace;
    QTimer* m_tmrPrint;
    bool m_activated = false;
    bool m_drawing = false;
    bool m_unloaded = false;
    bool m_printCancelled = false;
    bool m_printFinished = false;
    bool m_endsSoon = false;
    PrintOutcome m_outcome;
    std::jthread m_handingOver; // last member: ends before what it uses
};

} // namespace quend::printing
