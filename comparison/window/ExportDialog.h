#pragma once

#include "CompareWorld.h"

namespace quend::compare {

/// Asks where to export to, with Qt's dialog, which asks before it replaces a file. `name` has no
/// ending; that of the chosen filter is added where the user types none.
CompareWorld::ExportFile AskForExportFile(QWidget& parent, const QString& name,
                                          const QStringList& filters);

} // namespace quend::compare
