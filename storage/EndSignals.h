#pragma once

#include "StorageNames.h"

#include <QObject>

#include <functional>

namespace quend::storage {

/// The operating system's requests to end the program: SIGTERM, SIGHUP and SIGINT. One that the
/// program was started to ignore stays ignored. While one object exists there must be no other.
class EndSignals : public QObject {
    Q_OBJECT

public:
    /// Calls `end` in the event loop at the first request. A second one ends the program at once.
    explicit EndSignals(std::function<void()> end);
    Q_DISABLE_COPY_MOVE(EndSignals)
    ~EndSignals() override;

private:
    void Restore();

    std::function<void()> m_end;
};

} // namespace quend::storage
