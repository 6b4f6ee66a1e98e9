#pragma once

#include "Drawing.h"
#include "ExportDialog.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace quend::compare {

/// What the comparison window needs of the outside world.
struct CompareWorld {
    /// Asks how to print, and prints in the background.
    std::function<void(QWidget& parent, const QString& title, const printing::DrawDocument& draw)>
        print;
    /// Why the file could not be written; empty if it was.
    std::function<QString(const QString& file, const QString& title,
                          const printing::DrawDocument& draw)>
        exportPdf;
    std::function<window::ExportFile(QWidget& parent, const QString& name,
                                     const QStringList& filters)>
        askForFile;
    /// Where the window was when it was last closed.
    std::function<void(QWidget& window)> restoreGeometry;
    std::function<void(const QWidget& window)> saveGeometry;
    /// How the user has arranged the columns of the table of costs.
    std::function<QByteArray()> restoreColumns;
    std::function<void(const QByteArray& columns)> saveColumns;
};

} // namespace quend::compare
