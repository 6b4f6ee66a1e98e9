#include "FileDrop.h"

#include "FailureReport.h"
#include "FileNames.h"

#include <QApplication>
#include <QDropEvent>
#include <QMainWindow>
#include <QMimeData>
#include <QUrl>

namespace quend::window {

namespace {

bool IsDrag(const QEvent& event) {
    return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove ||
           event.type() == QEvent::Drop;
}

/// Never a move: the source would delete its file.
Qt::DropAction ActionOf(const QDropEvent& event) {
    const Qt::DropActions possible = event.possibleActions();
    return possible.testFlag(Qt::CopyAction)   ? Qt::CopyAction
           : possible.testFlag(Qt::LinkAction) ? Qt::LinkAction
                                               : Qt::IgnoreAction;
}

} // namespace

QString DraggedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.hasUrls() ? data.urls() : QList<QUrl>();
    const QString path = urls.size() == 1 ? urls.front().toLocalFile() : QString();
    return path.endsWith(WorksheetEnding, Qt::CaseInsensitive) ? path : QString();
}

bool IsFileDrag(const QEvent& event) {
    return IsDrag(event) &&
           !DraggedFile(*static_cast<const QDropEvent&>(event).mimeData()).isEmpty();
}

FileDrop::FileDrop(QMainWindow& window, const FailureReport& report)
    : QObject(&window), m_report(&report) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (!IsDrag(*event)) {
        return false;
    }
    auto& drag = static_cast<QDropEvent&>(*event);
    const QString path = DraggedFile(*drag.mimeData());
    const Qt::DropAction action = ActionOf(drag);
    const bool isTaken = m_open && !path.isEmpty() && action != Qt::IgnoreAction &&
                         QApplication::activeModalWidget() == nullptr;
    drag.setDropAction(isTaken ? action : Qt::IgnoreAction);
    drag.setAccepted(isTaken);
    if (isTaken && event->type() == QEvent::Drop) {
        // Later, because the program that the file comes from waits for the end of the drop.
        QMetaObject::invokeMethod(
            this, [this, path] { m_report->Guard([&] { m_open ? m_open(path) : void(); }); },
            Qt::QueuedConnection);
    }
    return true;
}

} // namespace quend::window
