#pragma once

#include "PrinterInterface.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <stop_token>
#include <utility>
#include <vector>

namespace quend::printing {

// The print server of this system. No call waits longer than stated for a server that does not
// answer. What the server refuses is in the outcome; nothing is thrown but for lack of memory.
// Without a printing system there is no queue, and Qt prints directly.

/// Whether documents go to a print server.
bool HasPrintServer();

/// A document as a print queue accepts it.
struct QueuedDocument {
    QString queue;
    QString title;
    QByteArray pdf;
    std::vector<std::pair<QByteArray, QByteArray>> options; ///< the server's names and values
};

/// A running server answers within milliseconds.
inline constexpr std::chrono::milliseconds ServerPatience{2000};

/// NoServer or None, within ServerPatience.
PrintOutcome AskServer();

/// Runs something while the calling thread finds no server, because Qt looks for one without a time
/// limit.
void WithoutServer(const std::function<void()>& run);

/// Whether a queue accepts documents: NoServer, Rejects or None, within ServerPatience. A printer
/// for which the server has not yet created a queue counts as accepting.
PrintOutcome AskQueue(const QString& queue);

/// Sends a document to its queue, in any thread. Waits for the server without a time limit; once a
/// stop is requested it cancels the document, and returns within about a second.
PrintOutcome Send(const QueuedDocument& document, const std::stop_token& stop);

/// Sets a printer as this user's default printer if the printing system stores one; otherwise does
/// nothing. A printer that does not exist is not set.
void ChooseUserPrinter(const QString& queue);

} // namespace quend::printing
