#pragma once

#include <QObject>

class QLineEdit;
class QWidget;

namespace quend::window {

/// Shows a text that is too wide for its field: the field's tooltip then begins with it. Changes
/// neither the text nor the field's own tooltip.
class WholeText : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Call when the fields below `parent` have been created.
    void Watch(const QWidget& parent);

    /// The tooltip that a field would show now, as rich text if the text is cut.
    static QString ToolTipOf(const QLineEdit& edit);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quend::window
