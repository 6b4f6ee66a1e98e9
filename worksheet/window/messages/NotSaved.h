#pragma once

#include "SaveFile.h"

#include <QString>

namespace quend::window {

/// What the user reads about a file that was not saved; empty if it was.
QString NotSavedText(const QString& path, const SaveOutcome& outcome);

} // namespace quend::window
