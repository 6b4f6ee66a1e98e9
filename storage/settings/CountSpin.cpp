#include "CountSpin.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include <algorithm>

namespace quend::storage {

namespace {

bool IsDigit(QChar character) { return character >= u'0' && character <= u'9'; }

} // namespace

CountSpin::CountSpin(QWidget* parent) : QAbstractSpinBox(parent) {
    setFocusPolicy(Qt::StrongFocus); // but not by the mouse wheel
    setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    setInputMethodHints(Qt::ImhDigitsOnly);
    connect(lineEdit(), &QLineEdit::textChanged, this, &CountSpin::OnTextChanged);
}

void CountSpin::SetRange(int minimum, int maximum) {
    m_minimum = minimum;
    m_maximum = maximum;
    updateGeometry();
    update();
}

void CountSpin::SetNumber(int number) { lineEdit()->setText(QString::number(number)); }

std::optional<int> CountSpin::Number() const {
    bool isNumber = false;
    const int number = text().toInt(&isNumber);
    return isNumber && number >= m_minimum && number <= m_maximum ? std::optional(number)
                                                                  : std::nullopt;
}

/// The starting value of the buttons: the maximum when there are too many digits, 0 when there are
/// none.
int CountSpin::NearestNumber() const {
    bool isNumber = false;
    const int number = text().toInt(&isNumber);
    if (!isNumber && !text().isEmpty()) {
        return m_maximum + 1;
    }
    return std::clamp(number, m_minimum - 1, m_maximum + 1);
}

void CountSpin::stepBy(int steps) {
    SetNumber(std::clamp(NearestNumber() + steps, m_minimum, m_maximum));
    selectAll();
}

QAbstractSpinBox::StepEnabled CountSpin::stepEnabled() const {
    StepEnabled enabled = StepNone;
    enabled.setFlag(StepUpEnabled, NearestNumber() < m_maximum);
    enabled.setFlag(StepDownEnabled, NearestNumber() > m_minimum);
    return enabled;
}

QValidator::State CountSpin::validate(QString& text, int& /*caret*/) const {
    return std::ranges::all_of(text, IsDigit) ? QValidator::Acceptable : QValidator::Invalid;
}

/// Drops other characters before they replace the selection.
void CountSpin::keyPressEvent(QKeyEvent* event) {
    const QString typed = event->text();
    const bool isShortcut =
        (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (!isShortcut && !typed.isEmpty() && typed.front().isPrint() && !IsDigit(typed.front())) {
        return;
    }
    QAbstractSpinBox::keyPressEvent(event);
}

/// The wheel must not change a number that does not have the focus.
void CountSpin::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QAbstractSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

/// The base class reserves no width for the number, because it does not know the range.
QSize CountSpin::sizeHint() const {
    const int number = fontMetrics().horizontalAdvance(QString::number(m_maximum) + u'0');
    return QAbstractSpinBox::sizeHint() + QSize(number, 0);
}

QSize CountSpin::minimumSizeHint() const { return sizeHint(); }

void CountSpin::OnTextChanged() {
    update(); // a button may have reached its limit and be disabled
    QAccessibleValueChangeEvent changed(this, ValueOrZero());
    QAccessible::updateAccessibility(&changed);
}

} // namespace quend::storage
