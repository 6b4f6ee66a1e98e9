#pragma once

#include "WindowNames.h"

#include <QObject>
#include <QString>

#include <functional>

class QMainWindow;
class QMimeData;

namespace quend::window {

class FailureReport;

/// The path of a dragged file of worksheets; empty for another drag, and for several files.
QString DraggedFile(const QMimeData& data);

/// Whether a widget below the window has to leave this event to the window: it belongs to a drag of
/// a file of worksheets.
bool IsFileDrag(const QEvent& event);

/// A file of worksheets that is dropped anywhere on the main window. Does not read the file.
class FileDrop : public QObject {
    Q_OBJECT

public:
    FileDrop(QMainWindow& window, const FailureReport& report);

    /// Called when the drop is over. Without it (pass {}) no file is accepted.
    void OnDropped(std::function<void(const QString& path)> open) { m_open = std::move(open); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const FailureReport* m_report;
    std::function<void(const QString& path)> m_open;
};

} // namespace quend::window
