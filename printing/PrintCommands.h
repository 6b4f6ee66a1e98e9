#pragma once

#include "PagePainter.h"
#include "PrintingNames.h"
#include "frmPrint.h"

#include <QObject>

#include <memory>

namespace quend::window {
class Loan;
}

namespace quend::printing {

/// The File menu's Print and Print Setup. One report is printed at a time: until it is sent the
/// entries are disabled and the program does not quit. A document that cannot be printed is
/// reported once; a dialog that was cancelled or that failed is not.
class PrintCommands : public QObject {
    Q_OBJECT

public:
    /// Window and printer must outlive this object. Enables the entries.
    PrintCommands(Loan& window, PrinterInterface& printer, frmPrint::Pace pace = {});
    Q_DISABLE_COPY_MOVE(PrintCommands)
    /// Finishes printing the current report first, unless the user cancels it.
    ~PrintCommands() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void mnuFilePrint_Click();
    void mnuFilePrintSetup_Click();

    void StartJob();
    void EndJob();
    void EnableEntries(bool enabled);
    bool MayGoOn(const PrintOutcome& outcome) const;

    Loan* m_window;
    PrinterInterface* m_printer;
    frmPrint::Pace m_pace;
    FontMetrics m_metrics;
    std::unique_ptr<frmPrint> m_job;
    bool m_quits = false; ///< the program was asked to quit during the job
};

} // namespace quend::printing
