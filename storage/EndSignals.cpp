#include "EndSignals.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace quend::storage {

namespace {

constexpr std::array Requests{SIGTERM, SIGHUP, SIGINT};

// A signal handler reaches nothing else.
std::array<int, 2> g_pipe{-1, -1};

/// Only calls that are safe in a signal handler.
void Note(int /*number*/) {
    const int error = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(g_pipe[1], &byte, 1);
    errno = error;
}

void Handle(int request, void (*handler)(int)) {
    struct sigaction before = {};
    if (::sigaction(request, nullptr, &before) != 0 || before.sa_handler == SIG_IGN) {
        return;
    }
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(request, &action, nullptr);
}

} // namespace

EndSignals::EndSignals(std::function<void()> end) : m_end(std::move(end)) {
    if (::pipe2(g_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    auto* const notifier = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        Restore();
        m_end();
    });
    for (const int request : Requests) {
        Handle(request, Note);
    }
}

EndSignals::~EndSignals() {
    Restore();
    for (int& end : g_pipe) {
        ::close(std::exchange(end, -1));
    }
}

void EndSignals::Restore() {
    for (const int request : Requests) {
        Handle(request, SIG_DFL);
    }
}

} // namespace quend::storage
