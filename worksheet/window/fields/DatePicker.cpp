#include "DatePicker.h"

#include <QCalendarWidget>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quend::window {

namespace {

QDate Stepped(const QDate& date, char unit, int steps) {
    switch (unit) {
    case 'y':
        return date.addYears(steps);
    case 'M':
        return date.addMonths(steps);
    default:
        return date.addDays(steps);
    }
}

/// Below the field, or above it if there is no room below.
QPoint PlaceOf(const QWidget& popup, const QWidget& field) {
    const QRect screen = field.screen()->availableGeometry();
    const QSize size = popup.sizeHint();
    QPoint at = field.mapToGlobal(QPoint(0, field.height()));
    if (at.y() + size.height() > screen.bottom()) {
        at = field.mapToGlobal(QPoint(0, -size.height()));
    }
    at.setX(
        std::clamp(at.x(), screen.left(), std::max(screen.left(), screen.right() - size.width())));
    return at;
}

} // namespace

DatePicker::DatePicker(QWidget* parent) : QAbstractSpinBox(parent) {
    lineEdit()->installEventFilter(this);
}

void DatePicker::SetWriting(Writing writing) {
    m_writing = std::move(writing);
    updateGeometry();
}

void DatePicker::ShowDate(const QDate& date) {
    m_date = date;
    const QString text = date.isValid() ? m_writing.write(date) : QString();
    // Setting the same text again would move the caret.
    if (lineEdit()->text() != text) {
        lineEdit()->setText(text);
        lineEdit()->setCursorPosition(0);
    }
}

void DatePicker::Pick(const QDate& date) {
    ShowDate(std::clamp(date, m_writing.first, m_writing.last));
    Q_EMIT Picked(m_date);
}

std::vector<DatePart> DatePicker::Parts() const { return m_writing.parts(lineEdit()->text()); }

void DatePicker::Select(std::size_t part) {
    const std::vector<DatePart> parts = Parts();
    if (part < parts.size()) {
        lineEdit()->setSelection(static_cast<int>(parts[part].start),
                                 static_cast<int>(parts[part].length));
    }
}

/// Steps the part at or before the caret; if all is selected, the first part.
void DatePicker::stepBy(int steps) {
    const QDate typed = m_writing.read(lineEdit()->text());
    const QDate from = typed.isValid() ? typed : m_date;
    if (!from.isValid()) {
        return;
    }
    const int caret =
        lineEdit()->hasSelectedText() ? lineEdit()->selectionStart() : lineEdit()->cursorPosition();
    ShowDate(from);
    const std::vector<DatePart> parts = Parts();
    std::size_t part = 0;
    while (part + 1 < parts.size() && parts[part].End() < caret) {
        ++part;
    }
    Pick(Stepped(from, part < parts.size() ? parts[part].unit : 'd', steps));
    Select(part);
}

/// Handles a separator, which ends a part: selects the next part for replacement. A second
/// separator is ignored. False if the separator is to be typed, because no part follows.
bool DatePicker::GoOn() {
    const std::vector<DatePart> parts = Parts();
    const bool selected = lineEdit()->hasSelectedText();
    const qsizetype caret = selected ? lineEdit()->selectionStart() : lineEdit()->cursorPosition();
    for (std::size_t part = 0; part < parts.size(); ++part) {
        const DatePart& here = parts[part];
        const bool isWhole = caret == here.start && lineEdit()->selectionLength() == here.length;
        if (selected && isWhole && parts.size() > 1) {
            if (part == 0) {
                Select(1);
            }
            return true;
        }
        if (!selected && caret >= here.start && caret < here.End()) {
            return false;
        }
        if (!selected && caret < here.start) {
            if (part > 0) {
                Select(part);
            }
            return part > 0;
        }
    }
    return false;
}

/// The digit after a complete part belongs to the next part.
void DatePicker::LeaveFullPart() {
    if (lineEdit()->hasSelectedText()) {
        return;
    }
    const std::vector<DatePart> parts = Parts();
    for (std::size_t part = 0; part + 1 < parts.size(); ++part) {
        const DatePart& here = parts[part];
        if (lineEdit()->cursorPosition() == here.End() && here.length >= here.FullLength()) {
            return Select(part + 1);
        }
    }
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    const bool opens = event->key() == Qt::Key_F4 ||
                       (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier);
    if (opens) {
        return OpenCalendar();
    }
    const QString typed = event->text();
    const bool isTyped = typed.size() == 1 && typed.front().isPrint() &&
                         (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    if (isTyped && typed.front().isDigit()) {
        LeaveFullPart();
    } else if (isTyped && !typed.front().isLetter() && GoOn()) {
        return;
    }
    QAbstractSpinBox::keyPressEvent(event);
}

void DatePicker::OpenCalendar() {
    auto* popup = new QFrame(this, Qt::Popup);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto* calendar = new QCalendarWidget(popup);
    calendar->setLocale(m_writing.locale);
    calendar->setFirstDayOfWeek(m_writing.locale.firstDayOfWeek());
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setDateRange(m_writing.first, m_writing.last);
    const QDate typed = m_writing.read(lineEdit()->text());
    calendar->setSelectedDate(typed.isValid() ? typed : m_date);
    auto* layout = new QVBoxLayout(popup);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(calendar);
    const auto pick = [this, popup](const QDate& date) {
        popup->close();
        Pick(date);
        lineEdit()->selectAll();
    };
    connect(calendar, &QCalendarWidget::clicked, this, pick);
    connect(calendar, &QCalendarWidget::activated, this, pick);
    popup->move(PlaceOf(*popup, *this));
    popup->show();
    calendar->setFocus(Qt::PopupFocusReason);
}

void DatePicker::focusInEvent(QFocusEvent* event) {
    QAbstractSpinBox::focusInEvent(event);
    m_click.Entered(event->reason());
}

bool DatePicker::eventFilter(QObject* watched, QEvent* event) {
    return (watched == lineEdit() && m_click.Takes(*event, *lineEdit())) ||
           QAbstractSpinBox::eventFilter(watched, event);
}

void DatePicker::mousePressEvent(QMouseEvent* event) {
    const QStyleOptionComboBox frame = Frame();
    const QRect button =
        style()->subControlRect(QStyle::CC_ComboBox, &frame, QStyle::SC_ComboBoxArrow, this);
    if (event->button() == Qt::LeftButton && button.contains(event->position().toPoint())) {
        OpenCalendar();
    }
}

/// The wheel must not change a date unnoticed.
void DatePicker::wheelEvent(QWheelEvent* event) { event->ignore(); }

QStyleOptionComboBox DatePicker::Frame() const {
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.editable = true;
    option.frame = hasFrame();
    option.subControls = QStyle::SC_All;
    return option;
}

void DatePicker::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, Frame());
}

void DatePicker::PlaceEdit() {
    const QStyleOptionComboBox frame = Frame();
    lineEdit()->setGeometry(
        style()->subControlRect(QStyle::CC_ComboBox, &frame, QStyle::SC_ComboBoxEditField, this));
}

void DatePicker::resizeEvent(QResizeEvent* event) {
    QAbstractSpinBox::resizeEvent(event);
    PlaceEdit();
}

void DatePicker::changeEvent(QEvent* event) {
    QAbstractSpinBox::changeEvent(event);
    PlaceEdit();
    updateGeometry();
}

/// Sized like other date fields of the desktop; the base class does not know the text.
QSize DatePicker::sizeHint() const {
    ensurePolished();
    constexpr int caret = 2;
    const QString widest = m_writing.write ? m_writing.write(QDate(2058, 12, 28)) : QString();
    const QSize text(fontMetrics().horizontalAdvance(widest) + caret,
                     lineEdit()->sizeHint().height());
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, this);
}

} // namespace quend::window
