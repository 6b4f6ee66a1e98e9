#include "WholeText.h"

#include "FieldWidth.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

namespace quend::window {

namespace {

bool IsCut(const QLineEdit& edit) {
    return edit.fontMetrics().horizontalAdvance(edit.displayText()) > TextRoomOf(edit);
}

/// The edit inside a list or a date picker shows the tooltip of that widget.
QString OwnToolTip(const QLineEdit& edit) {
    const bool isPart = edit.toolTip().isEmpty() && !edit.parentWidget()->toolTip().isEmpty();
    return isPart ? edit.parentWidget()->toolTip() : edit.toolTip();
}

} // namespace

void WholeText::Watch(const QWidget& parent) {
    for (QLineEdit* edit : parent.findChildren<QLineEdit*>()) {
        edit->installEventFilter(this);
    }
}

QString WholeText::ToolTipOf(const QLineEdit& edit) {
    QString own = OwnToolTip(edit);
    if (!IsCut(edit)) {
        return own;
    }
    // Escaped: a lender may be called "<b>".
    const QString whole = edit.displayText().toHtmlEscaped();
    return QStringLiteral("<p>%1</p>").arg(whole) +
           (own.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(own.toHtmlEscaped()));
}

bool WholeText::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return false;
    }
    const auto* edit = qobject_cast<QLineEdit*>(watched);
    if (edit == nullptr || !IsCut(*edit)) {
        return false;
    }
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), ToolTipOf(*edit));
    return true;
}

} // namespace quend::window
