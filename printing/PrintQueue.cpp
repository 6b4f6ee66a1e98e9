#include "PrintQueue.h"

namespace quend::printing {

#ifdef QUEND_CUPS

#include <cups/cups.h>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;

/// How often a waiting call checks whether to stop, in seconds. A tenth was too often: on a busy
/// machine about one job in thirty was reported as failed although the server had printed it.
constexpr double LookEvery = 1;

/// A connection that gives up when it is stopped or its patience runs out.
class Connection {
public:
    /// Without `patience` it waits without a limit.
    Connection(std::optional<Milliseconds> patience, std::stop_token stop)
        : m_stop(std::move(stop)) {
        if (patience) {
            m_deadline = Clock::now() + *patience;
        }
        const std::stop_callback cancel(m_stop, [this] { m_cancel = 1; });
        const Milliseconds connecting = patience.value_or(std::chrono::seconds(30));
        m_http.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                  static_cast<int>(connecting.count()), &m_cancel));
        if (m_http) {
            httpSetTimeout(m_http.get(), LookEvery, &Connection::WaitOn, this);
        }
    }
    Q_DISABLE_COPY_MOVE(Connection)
    ~Connection() = default;

    http_t* Http() const { return m_http.get(); }
    bool Stopped() const { return m_stop.stop_requested(); }

private:
    static int WaitOn(http_t* /*http*/, void* user) {
        const auto* self = static_cast<const Connection*>(user);
        const bool late = self->m_deadline && Clock::now() >= *self->m_deadline;
        return self->Stopped() || late ? 0 : 1;
    }
    struct Closed {
        void operator()(http_t* http) const { httpClose(http); }
    };

    std::stop_token m_stop;
    std::optional<Clock::time_point> m_deadline;
    int m_cancel = 0;
    std::unique_ptr<http_t, Closed> m_http;
};

struct Deleted {
    void operator()(ipp_t* message) const { ippDelete(message); }
};
using Message = std::unique_ptr<ipp_t, Deleted>;

/// Sends a request, which it takes over, and returns the answer; null if there is none.
Message Ask(const Connection& server, ipp_t* request) {
    if (server.Http() == nullptr) {
        ippDelete(request);
        return nullptr;
    }
    return Message(cupsDoRequest(server.Http(), request, "/"));
}

/// A server that does not know this queue answers, too. That is no fault, because it may create
/// one.
PrintOutcome StateOf(const Connection& server, const QString& queue) {
    constexpr std::size_t longest = 1024;
    std::array<char, longest> uri{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr,
                     "localhost", 0, "/printers/%s", queue.toUtf8().constData());
    const char* wanted = "printer-is-accepting-jobs";
    ipp_t* request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 wanted);
    const Message answer = Ask(server, request);
    if (!answer) {
        return {PrintFault::NoServer};
    }
    ipp_attribute_t* accepting = ippFindAttribute(answer.get(), wanted, IPP_TAG_BOOLEAN);
    const bool rejects = accepting != nullptr && ippGetBoolean(accepting, 0) == 0;
    return rejects ? PrintOutcome{PrintFault::Rejects, queue} : PrintOutcome();
}

/// The options in the form that the server's functions take.
class Options {
public:
    explicit Options(const QueuedDocument& document) {
        for (const auto& [name, value] : document.options) {
            m_count = cupsAddOption(name.constData(), value.constData(), m_count, &m_first);
        }
    }
    Q_DISABLE_COPY_MOVE(Options)
    ~Options() { cupsFreeOptions(m_count, m_first); }

    int Count() const { return m_count; }
    cups_option_t* First() const { return m_first; }

private:
    int m_count = 0;
    cups_option_t* m_first = nullptr;
};

/// The server's last error in this thread.
PrintOutcome LastFault(const QString& queue) {
    switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
        return {PrintFault::Rejects, queue};
    case IPP_STATUS_ERROR_NOT_FOUND:
        return {PrintFault::Gone, queue};
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
        return {PrintFault::NoServer};
    default:
        return {PrintFault::Failed, QString::fromUtf8(cupsLastErrorString())};
    }
}

/// Why no job could be created.
PrintOutcome FaultOfBeginning(const Connection& server, const QString& queue) {
    const PrintOutcome fault = LastFault(queue);
    PrintOutcome state = StateOf(server, queue);
    if (state.fault != PrintFault::None) {
        return state;
    }
    const bool known = cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND;
    return known ? fault : PrintOutcome{PrintFault::Gone, queue};
}

/// Whether the server takes more of the document: it may answer while the last part is written.
bool Goes(http_status_t status) {
    return status != HTTP_STATUS_ERROR && status < HTTP_STATUS_MULTIPLE_CHOICES;
}

/// True if the whole document was sent.
bool Write(const Connection& server, const QueuedDocument& document, const QByteArray& queue,
           int job) {
    constexpr qsizetype most = 32'768;
    if (!Goes(cupsStartDocument(server.Http(), queue.constData(), job,
                                document.title.toUtf8().constData(), CUPS_FORMAT_PDF, 1))) {
        return false;
    }
    for (qsizetype at = 0; at < document.pdf.size(); at += most) {
        const qsizetype count = std::min(most, document.pdf.size() - at);
        if (server.Stopped() ||
            !Goes(cupsWriteRequestData(server.Http(), document.pdf.constData() + at,
                                       static_cast<std::size_t>(count)))) {
            return false;
        }
    }
    return cupsFinishDocument(server.Http(), queue.constData()) <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

/// Uses a new connection, because the other one may have been given up.
void TakeBack(const QByteArray& queue, int job) {
    const Connection server(ServerPatience, {});
    if (server.Http() != nullptr) {
        cupsCancelJob2(server.Http(), queue.constData(), job, 1);
    }
}

} // namespace

bool HasPrintServer() { return true; }

void WithoutServer(const std::function<void()>& run) {
    struct Hidden {
        Hidden() { cupsSetServer("/nonexistent/cups.sock"); }
        Q_DISABLE_COPY_MOVE(Hidden)
        ~Hidden() { cupsSetServer(nullptr); } // the configured one again
    } const hidden;
    run();
}

PrintOutcome AskServer() {
    const Connection server(ServerPatience, {});
    const Message answer = Ask(server, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT));
    return {answer ? PrintFault::None : PrintFault::NoServer};
}

PrintOutcome AskQueue(const QString& queue) {
    return StateOf(Connection(ServerPatience, {}), queue);
}

/// Asks for the state first: a hanging server hangs there, before a job is created.
PrintOutcome Send(const QueuedDocument& document, const std::stop_token& stop) {
    const Connection server({}, stop);
    PrintOutcome state = StateOf(server, document.queue);
    if (state.fault != PrintFault::None || server.Stopped()) {
        return state;
    }
    const QByteArray queue = document.queue.toUtf8();
    const Options options(document);
    const int job =
        cupsCreateJob(server.Http(), queue.constData(), document.title.toUtf8().constData(),
                      options.Count(), options.First());
    if (job == 0) {
        return FaultOfBeginning(server, document.queue);
    }
    const bool sent = Write(server, document, queue, job);
    PrintOutcome outcome = sent ? PrintOutcome() : LastFault(document.queue);
    if (!sent || server.Stopped()) {
        TakeBack(queue, job);
    }
    return outcome;
}

void ChooseUserPrinter(const QString& queue) {
    const Connection server(ServerPatience, {});
    if (server.Http() == nullptr) {
        return;
    }
    cups_dest_t* printers = nullptr;
    const int count = cupsGetDests2(server.Http(), &printers);
    const QByteArray wanted = queue.toUtf8();
    const cups_dest_t* chosen = cupsGetDest(wanted.constData(), nullptr, count, printers);
    if (chosen != nullptr && chosen->is_default == 0) {
        cupsSetDefaultDest(wanted.constData(), nullptr, count, printers);
        cupsSetDests2(server.Http(), count, printers);
    }
    cupsFreeDests(count, printers);
}

#else

bool HasPrintServer() { return false; }
PrintOutcome AskServer() { return {}; }
void WithoutServer(const std::function<void()>& run) { run(); }
PrintOutcome AskQueue(const QString& /*queue*/) { return {}; }
PrintOutcome Send(const QueuedDocument& /*document*/, const std::stop_token& /*stop*/) {
    return {PrintFault::NoServer};
}
void ChooseUserPrinter(const QString& /*queue*/) {}

#endif

} // namespace quend::printing
