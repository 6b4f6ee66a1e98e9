#pragma once

#include "PrintedPage.h"

#include <QPageLayout>
#include <QSizeF>
#include <QString>

#include <functional>
#include <optional>
#include <stop_token>

class QWidget;

namespace quend::printing {

/// A refusal: why nothing can be printed or was printed.
enum class PrintFault {
    None,
    NoPrinter, ///< the print server has no printers
    NoServer,  ///< the print server is missing or does not answer
    Gone,      ///< the chosen printer no longer exists
    Rejects,   ///< the printer's queue accepts no jobs
    Failed,    ///< anything else
};

struct PrintOutcome {
    PrintFault fault = PrintFault::None;
    /// The printer's name for Gone and Rejects, the printing system's message for Failed.
    QString detail = {};
};

/// Sends a finished document to the printer; runs once, in any thread. Every refusal is possible.
/// Returns soon after a stop was requested, and then nothing of the document is printed.
using HandOver = std::function<PrintOutcome(const std::stop_token& stop)>;

/// A document shown on the screen as it would be printed. Its functions throw nothing.
struct Preview {
    QString title;     ///< of the window
    int helpTopic = 0; ///< of the window
    /// The pages for a page with this printable part, in twips. Called again when the page changes.
    std::function<PrintedPages(QSizeF space)> draw;
    /// The user wants to print. True if the document is to be printed, and the preview closes.
    std::function<bool(QWidget& preview)> print;
};

/// The interface to printing: dialogs, page size, print queue. Shows nothing but the dialogs.
///
/// A refusal is expected and returned. A failure is an exception, and nothing is printed:
/// ComponentFailure if the printing plugin is missing, from whichever function is called first;
/// otherwise an exception of the printing system or a lack of memory, from any function. A failure
/// before the job ends the command, with a message only for the plugin; a failure of the job
/// becomes its outcome, Failed with the exception's description.
class PrinterInterface {
public:
    virtual ~PrinterInterface() = default;
    /// Asks which printer to use, and how. Empty if the user cancelled; otherwise whether that
    /// printer accepts a document now. Refusals: NoPrinter, NoServer, Rejects.
    virtual std::optional<PrintOutcome> AskHowToPrint(QWidget& parent) = 0;
    /// Asks the same without printing afterwards; cancelling is no refusal. Refusals: NoPrinter,
    /// NoServer.
    virtual PrintOutcome AskSetUp(QWidget& parent) = 0;
    /// Shows a preview until the user closes it or prints; true if the document is to be printed.
    /// Its page is that of Print Setup, and the user may change it. Refuses nothing: without a
    /// printer or a server the page is that of a file.
    virtual bool ShowPreview(QWidget& parent, const Preview& preview) = 0;
    /// The page that a preview begins with. Refuses nothing.
    virtual QPageLayout Page() = 0;
    /// The printable part of a page, in twips. Refuses nothing.
    virtual QSizeF PageSpace() = 0;
    /// Prepares a document for the chosen printer. Pages reach the printer only when the returned
    /// function is called, and refusals are that function's result.
    virtual HandOver Document(const PrintedPages& pages) = 0;
};

} // namespace quend::printing
