#pragma once

#include "StorageNames.h"

#include <QString>
#include <QStringList>

namespace quend::storage {

// The command line of the window's program, in the current language. Qt's own options are not its
// business: they are gone once the application object exists.

enum class Asked { None, Help, Version };

/// What has to be answered instead of starting.
Asked AskedBy(const QStringList& arguments);

/// Lines for standard output.
QString AnswerTo(Asked asked);

/// Whether the program starts with these arguments, which Qt has left: none, or one file to open.
bool CanStartWith(const QStringList& arguments);

/// Why it does not: lines for standard error.
QString RefusalOf(const QStringList& arguments);

} // namespace quend::storage
