#pragma once

#include <qlogging.h>

class QString;

/// While it lives the toolkit's warnings are no faults: it may complain of what a fuzzer gives it.
class QuietToolkit {
public:
    QuietToolkit()
        : m_before(
              qInstallMessageHandler([](QtMsgType /*type*/, const QMessageLogContext& /*where*/,
                                        const QString& /*text*/) {})) {}
    QuietToolkit(const QuietToolkit&) = delete;
    QuietToolkit& operator=(const QuietToolkit&) = delete;
    QuietToolkit(QuietToolkit&&) = delete;
    QuietToolkit& operator=(QuietToolkit&&) = delete;
    ~QuietToolkit() { qInstallMessageHandler(m_before); }

private:
    QtMessageHandler m_before;
};
