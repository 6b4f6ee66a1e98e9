#pragma once

#include "Report.h"

#include <QDialog>

#include <chrono>
#include <functional>
#include <memory>

namespace Ui {
class frmPrint;
}

class PrinterDoor;

/// The job of printing one report, and the window that shows it at work. Draws the report section
/// by section and lets Cancel be pressed in between; stays up for three seconds at least; hands the
/// pages to the printer once it closes uncancelled, and then only. Does not know what the report
/// looks like.
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

    /// The program ends: a report that is all drawn is printed without waiting any longer, one that
    /// is not never will be.
    void EndNow();

    void reject() override { cmdCancel_Click(); }

Q_SIGNALS:
    /// The job has ended, one way or the other, and nothing of it runs any more.
    void Unloaded();

protected:
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
};
