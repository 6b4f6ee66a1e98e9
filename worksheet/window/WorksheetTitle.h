#pragma once

#include "WindowNames.h"

#include <QObject>

class QWidget;

namespace quend::model {
class Worksheet;
}

namespace quend::window {

/// The title of the main window: the names of the worksheet and of the program, with the desktop's
/// mark for unsaved changes. An unnamed worksheet has the program's name alone.
class WorksheetTitle : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the title.
    WorksheetTitle(QWidget& window, const Worksheet& worksheet)
        : m_window(&window), m_worksheet(&worksheet) {}

    void Show();
    /// Shows it once when the current event is over, however often this is called until then.
    void ShowLater();

private:
    QString Text() const;

    QWidget* m_window;
    const Worksheet* m_worksheet;
    bool m_waiting = false;
};

} // namespace quend::window
