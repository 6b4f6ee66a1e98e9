#pragma once

#include "WindowNames.h"

#include <QObject>
#include <QString>

class QLabel;
class QTimer;

namespace quend::window {

/// The line below the rows: the hint how to begin or, for a few seconds, what a command has done.
/// Announcing takes no other place than the hint's, so that the layout does not move.
class HintLine : public QObject {
    Q_OBJECT

public:
    /// The hint keeps its place while it is hidden, and must outlive this object.
    explicit HintLine(QLabel& hint);

    void ShowHint(bool shown);
    /// Shows the text, also to screen readers; what does not fit is elided. The timer
    /// "tmrAnnounced" hides it.
    void Announce(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Fit();
    void End();

    QLabel* m_hint;
    QLabel* m_announced; ///< lblAnnounced
    QTimer* m_timer;
    QString m_text;
    bool m_hintShown = true;
};

} // namespace quend::window
