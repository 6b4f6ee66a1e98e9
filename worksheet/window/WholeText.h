#pragma once

#include <QObject>

class QLineEdit;
class QWidget;

/// Lets a text be read whole that is too wide for its field: the field's tooltip then begins with
/// it. Changes neither the text nor the tooltip that the field has.
class WholeText : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The fields among these controls have been made.
    void Watch(const QWidget& parent);

    /// The tooltip of a field as it would show now, as rich text where the text is cut.
    static QString ToolTipOf(const QLineEdit& edit);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
