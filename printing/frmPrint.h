#pragma once

#include "PrinterDoor.h"
#include "Report.h"

#include <QDialog>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace Ui {
class frmPrint;
}

/// The job of printing one report, and the window that shows it at work. Draws the report section
/// by section and lets Cancel be pressed in between; stays up for three seconds at least; then
/// hands the pages to the printer, in a thread of their own because a print server may take
/// minutes, and closes when they have arrived. Does not know what the report looks like and does
/// not tell what went wrong: that is in the outcome.
///
/// Closing the window by other means than the job's end is Cancel.
class frmPrint : public QDialog {
    Q_OBJECT

public:
    /// How the job takes its time.
    struct Pace {
        std::chrono::milliseconds shownAtLeast{3000};
        /// Lets everything happen that is waiting; the program's own way when empty.
        std::function<void()> yield;
    };
    struct Job {
        QString loanName;
        Report report;
    };
    /// Window and printer outlive the job. Starts by itself once shown.
    frmPrint(QWidget& owner, Job job, PrinterDoor& printer, Pace pace);
    frmPrint(const frmPrint&) = delete;
    frmPrint& operator=(const frmPrint&) = delete;
    frmPrint(frmPrint&&) = delete;
    frmPrint& operator=(frmPrint&&) = delete;
    ~frmPrint() override;

    /// The user pressed Cancel.
    bool PrintCancelled() const { return m_printCancelled; }
    /// The whole report has been drawn.
    bool PrintFinished() const { return m_printFinished; }

    /// What became of the document; nothing is wrong with one that was cancelled.
    const PrintOutcome& Outcome() const { return m_outcome; }

    /// The program is about to end: the report is printed as soon as it is drawn. Cancel goes on
    /// working meanwhile.
    void EndSoon();

    void reject() override { cmdCancel_Click(); }

Q_SIGNALS:
    /// The job has ended, one way or the other, and nothing of it runs any more.
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
    bool DrawReport();
    void Yield() const;
    void GiveToPrinter();
    void Arrived(const PrintOutcome& outcome);
    void Unload();

    std::unique_ptr<Ui::frmPrint> m_ui;
    QWidget* m_owner;
    Job m_job;
    PrinterDoor* m_printer;
    Pace m_pace;
    QTimer* m_tmrPrint;
    bool m_activated = false;
    bool m_drawing = false;
    bool m_unloaded = false;
    bool m_printCancelled = false;
    bool m_printFinished = false;
    bool m_endsSoon = false;
    PrintOutcome m_outcome;
    std::jthread m_handingOver; // the last member: it ends before what it uses
};
