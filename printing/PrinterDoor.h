#pragma once

#include "PrintedPage.h"

#include <QSizeF>
#include <QString>

#include <functional>
#include <optional>
#include <stop_token>

class QWidget;

/// Why nothing can be printed, or was not printed.
enum class PrintFault {
    None,
    NoPrinter, ///< the print server knows of none
    NoServer,  ///< it is not there, or it does not answer
    Gone,      ///< the printer that was chosen is not there any more
    Rejects,   ///< the printer's queue takes no jobs
    Failed,    ///< anything else
};

struct PrintOutcome {
    PrintFault fault = PrintFault::None;
    /// The printer's name where it is gone or rejects, the printing system's own words where
    /// anything else failed.
    QString detail = {};
};

/// Gives a finished document to the printer; runs once, in any thread. Ends soon after a stop was
/// requested, and then nothing of the document is printed.
using HandOver = std::function<PrintOutcome(const std::stop_token& stop)>;

/// What the world outside does about paper: its dialogs, its pages, its queue. Nothing here throws
/// or shows the user anything but the dialogs: what went wrong is in the outcome.
class PrinterDoor {
public:
    virtual ~PrinterDoor() = default;
    /// Asks which printer is to print, and how. Nothing when the user gave up; else whether that
    /// printer takes a document now.
    virtual std::optional<PrintOutcome> AskHowToPrint(QWidget& parent) = 0;
    /// The same without anything to be printed afterwards. Tells what kept it from asking.
    virtual PrintOutcome AskSetUp(QWidget& parent) = 0;
    /// The printable part of a page, in twips.
    virtual QSizeF PageSpace() = 0;
    /// Makes a document for the printer that was chosen. Pages reach it when the result is called,
    /// and in no other way.
    virtual HandOver Document(const PrintedPages& pages) = 0;
};
