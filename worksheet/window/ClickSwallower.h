#pragma once

#include <QObject>

/// Makes a click do nothing whose press has been judged already: the press still on its way, and
/// what follows up to the release.
class ClickSwallower : public QObject {
    Q_OBJECT

public:
    void SwallowNext();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
