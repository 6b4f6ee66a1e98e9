#pragma once

#include "StorageNames.h"

#include <QString>
#include <QStringList>

namespace quend::storage {

// The command line of the window's program, in the current language. Qt's own options are not its
// business: they are gone once the application object exists.

enum class Question { None, Help, Version };

/// What has to be answered instead of starting.
Question QuestionIn(const QStringList& arguments);

/// Lines for standard output.
QString AnswerTo(Question question);

/// Why these arguments, at least one that Qt has left, cannot be used: lines for standard error.
QString RefusalOf(const QStringList& arguments);

} // namespace quend::storage
