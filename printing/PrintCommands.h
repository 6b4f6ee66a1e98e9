#pragma once

#include "PagePainter.h"
#include "frmPrint.h"

#include <QObject>

#include <memory>

class Loan;

/// The File menu's Print and Print Setup. One report is printed at a time: until it is on its way
/// the entries are disabled, and the program does not end. A document that cannot be printed is
/// told of once; a dialog that was cancelled or that failed is not.
class PrintCommands : public QObject {
    Q_OBJECT

public:
    /// Window and printer outlive the commands. Enables the entries.
    PrintCommands(Loan& window, PrinterDoor& printer, frmPrint::Pace pace = {});
    PrintCommands(const PrintCommands&) = delete;
    PrintCommands& operator=(const PrintCommands&) = delete;
    PrintCommands(PrintCommands&&) = delete;
    PrintCommands& operator=(PrintCommands&&) = delete;
    /// A report under way is printed first, unless the user cancels it.
    ~PrintCommands() override;

    /// The job under way, if any.
    frmPrint* Job() const { return m_job.get(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void mnuFilePrint_Click();
    void mnuFilePrintSetup_Click();

    void StartJob();
    void EndJob();
    void EnableEntries(bool enabled);
    bool MayGoOn(const PrintOutcome& outcome) const;
    template <class Handler>
    void Guarded(Handler&& handler) const;

    Loan* m_window;
    PrinterDoor* m_printer;
    frmPrint::Pace m_pace;
    FontMetrics m_metrics;
    std::unique_ptr<frmPrint> m_job;
    bool m_quits = false; ///< the program was about to end while the job was under way
};
