#pragma once

#include <qlogging.h>

class QString;

/// Discards Qt's warnings while it exists, because Qt may complain about fuzzed input.
class QuietQt {
public:
    QuietQt()
        : m_before(
              qInstallMessageHandler([](QtMsgType /*type*/, const QMessageLogContext& /*where*/,
                                        const QString& /*text*/) {})) {}
    Q_DISABLE_COPY_MOVE(QuietQt)
    ~QuietQt() { qInstallMessageHandler(m_before); }

private:
    QtMessageHandler m_before;
};
