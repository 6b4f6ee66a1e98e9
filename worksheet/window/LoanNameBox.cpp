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

LoanNameBox::LoanNameBox(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr); // a name like another one must be typed as meant
    // One line each: thousands need not be measured before the list can show.
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

/// The names with the most letters: of thousands, measuring each would take longer than showing
/// them.
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

/// Names alike in their first words can be told apart only where they are seen whole.
void LoanNameBox::FitListToNames() {
    const int names = WidthOfLongNames() + view()->verticalScrollBar()->sizeHint().width();
    const int room = screen()->availableGeometry().width() * 3 / 4;
    view()->setTextElideMode(Qt::ElideMiddle);
    view()->setMinimumWidth(std::max(width(), std::min(names, room)));
}

/// The pick is told after its list has closed, within the same event. What the toolkit tells before
/// and after is about the text.
void LoanNameBox::hidePopup() {
    m_picking = view()->isVisible();
    QComboBox::hidePopup();
    QMetaObject::invokeMethod(
        this, [this] { m_picking = false; }, Qt::QueuedConnection);
}

void LoanNameBox::OnActivated(int index) {
    // The toolkit may tell twice of one pick.
    if (std::exchange(m_picking, false)) {
        // A question may follow: not in the middle of the list's own event.
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

/// The click that enters the box would put the caret where it fell; the whole name is to be
/// selected, unless the user has drawn a selection of his own.
bool LoanNameBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonRelease &&
        std::exchange(m_enteredByClick, false) && !lineEdit()->hasSelectedText()) {
        QMetaObject::invokeMethod(this, &LoanNameBox::SelectAll, Qt::QueuedConnection);
    }
    return QComboBox::eventFilter(watched, event);
}
