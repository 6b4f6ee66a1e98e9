#pragma once

#include "PagePainter.h"
#include "frmPrint.h"

#include <QObject>

#include <memory>

class Loan;

/// The File menu's Print and Print Setup. One report is printed at a time: until it is on its way
/// the entries are disabled.
class PrintCommands : public QObject {
    Q_OBJECT

public:
    /// Window and printer outlive the commands. Enables the entries.
    PrintCommands(Loan& window, PrinterDoor& printer, frmPrint::Pace pace = {});
    PrintCommands(const PrintCommands&) = delete;
    PrintCommands& operator=(const PrintCommands&) = delete;
    PrintCommands(PrintCommands&&) = delete;
    PrintCommands& operator=(PrintCommands&&) = delete;
    /// A finished report that still waits is printed.
    ~PrintCommands() override;

    /// The job under way, if any.
    frmPrint* Job() const { return m_job.get(); }

private:
    void mnuFilePrint_Click();
    void mnuFilePrintSetup_Click();

    void StartJob();
    void EndJob();
    void EnableEntries(bool enabled);

    Loan* m_window;
    PrinterDoor* m_printer;
    frmPrint::Pace m_pace;
    FontMetrics m_metrics;
    std::unique_ptr<frmPrint> m_job;
};
