#pragma once

#include <qlogging.h>

class QString;

/// Discards Qt's warnings while it exists, because Qt may complain about fuzzed input.
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
