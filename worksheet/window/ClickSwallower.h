#pragma once

#include <QObject>

namespace quend::window {

/// Swallows a click whose press has already been refused: the pending press and every mouse event
/// up to the release.
class ClickSwallower : public QObject {
    Q_OBJECT

public:
    void SwallowNext();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quend::window
