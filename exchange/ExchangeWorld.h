#pragma once

#include "ExchangeNames.h"

#include <QString>

#include <functional>

class QWidget;

namespace quend::exchange {

/// What the commands for files of worksheets need of the outside world. An empty path: cancelled.
struct ExchangeWorld {
    /// Asks for the file to open, beginning in this folder.
    std::function<QString(QWidget& parent, const QString& folder)> askToOpen;
    /// Asks where to save, proposing this path, and before a file is replaced.
    std::function<QString(QWidget& parent, const QString& proposed)> askToSave;
};

} // namespace quend::exchange
