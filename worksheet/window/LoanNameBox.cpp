#include "LoanNameBox.h"

#include "Colours.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace quend::window {

LoanNameBox::LoanNameBox(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr); // a name similar to an existing one must be typed unchanged
    // Each entry is one line, so thousands need not be measured before the list opens.
    if (auto* const list = qobject_cast<QListView*>(view())) {
        list->setUniformItemSizes(true);
    }
    lineEdit()->installEventFilter(this);
    connect(this, &QComboBox::activated, this, &LoanNameBox::OnActivated);
}

void LoanNameBox::SetMark(Mark mark) { lineEdit()->setPalette(Colours::MarkedPalette(mark)); }

void LoanNameBox::SelectAll() { lineEdit()->selectAll(); }

void LoanNameBox::showPopup() {
    Q_EMIT DropDown();
    FitListToNames();
    QComboBox::showPopup();
}

/// Measures only the longest names: measuring each of thousands takes longer than showing them.
int LoanNameBox::WidthOfLongNames() const {
    qsizetype letters = 0;
    for (int name = 0; name < count(); ++name) {
        letters = std::max(letters, itemText(name).size());
    }
    int width = 0;
    int measured = 0;
    for (int name = 0; name < count() && measured < 100; ++name) {
        if (itemText(name).size() >= letters * 3 / 4) {
            width = std::max(width, view()->sizeHintForIndex(model()->index(name, 0)).width());
            ++measured;
        }
    }
    return width;
}

/// Names with the same first words can be told apart only if they are shown whole.
void LoanNameBox::FitListToNames() {
    const int names = WidthOfLongNames() + view()->verticalScrollBar()->sizeHint().width();
    const int room = screen()->availableGeometry().width() * 3 / 4;
    view()->setTextElideMode(Qt::ElideMiddle);
    view()->setMinimumWidth(std::max(width(), std::min(names, room)));
}

/// Qt reports the pick within the event that closes the list. Signals before and after that only
/// concern the text.
void LoanNameBox::hidePopup() {
    m_picking = view()->isVisible();
    QComboBox::hidePopup();
    QMetaObject::invokeMethod(
        this, [this] { m_picking = false; }, Qt::QueuedConnection);
}

void LoanNameBox::OnActivated(int index) {
    // Qt may report one pick twice.
    if (std::exchange(m_picking, false)) {
        // Queued, because a question may follow, which must not open during the list's event.
        QMetaObject::invokeMethod(
            this, [this, text = itemText(index)] { Q_EMIT Picked(text); }, Qt::QueuedConnection);
    }
}

void LoanNameBox::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return showPopup();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return;
    default:
        QComboBox::keyPressEvent(event);
    }
}

void LoanNameBox::focusInEvent(QFocusEvent* event) {
    QComboBox::focusInEvent(event);
    m_enteredByClick = event->reason() == Qt::MouseFocusReason;
}

/// Selects the whole name when a click enters the box, instead of placing the caret at the click,
/// unless the user drags a selection.
bool LoanNameBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonRelease &&
        std::exchange(m_enteredByClick, false) && !lineEdit()->hasSelectedText()) {
        QMetaObject::invokeMethod(this, &LoanNameBox::SelectAll, Qt::QueuedConnection);
    }
    return QComboBox::eventFilter(watched, event);
}

} // namespace quend::window
