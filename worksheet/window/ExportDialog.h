#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace quend::window {

/// The file to export to, and the chosen one of the name filters; an empty name: cancelled.
struct ExportFile {
    QString name;
    QString filter;
};

/// Asks where to export to, with Qt's dialog, which asks before it replaces a file. The ending of
/// the chosen filter is added where the user types none.
ExportFile AskForExportFile(QWidget& parent, const QString& name, const QStringList& filters);

} // namespace quend::window
