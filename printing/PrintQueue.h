#pragma once

#include "PrinterDoor.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <stop_token>
#include <utility>
#include <vector>

// The print server of this system. No call waits for a server that does not answer longer than it
// says. Without a printing system there is no queue, and the toolkit prints by itself.

/// Whether documents go to a print server.
bool HasPrintServer();

/// A document as a queue takes it.
struct QueuedDocument {
    QString queue;
    QString title;
    QByteArray pdf;
    std::vector<std::pair<QByteArray, QByteArray>> options; ///< names and values, of the server's
};

/// A server that is alive answers within milliseconds.
inline constexpr std::chrono::milliseconds ServerPatience{2000};

/// NoServer or None, within ServerPatience.
PrintOutcome AskServer();

/// Whether a queue takes documents: NoServer, Rejects or None, within ServerPatience. A printer
/// that the server has yet to make a queue for counts as one that does.
PrintOutcome AskQueue(const QString& queue);

/// Puts a document into its queue, in any thread. Waits for the server as long as it takes; once a
/// stop is requested it takes the document back, and returns within a second or so.
PrintOutcome Send(const QueuedDocument& document, const std::stop_token& stop);

/// Makes a printer the one that this user's programs start from, where the printing system keeps
/// such a choice; else nothing happens. A printer that is not there is not chosen.
void ChooseUserPrinter(const QString& queue);
