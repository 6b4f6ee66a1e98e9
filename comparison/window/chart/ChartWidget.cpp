#include "ChartWidget.h"

#include "ChartAccess.h"
#include "ChartWords.h"
#include "CompareTextNumbers.h"
#include "Language.h"
#include "Quantities.h"

#include <QEvent>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace quend::compare {

namespace {

bool IsMoveOfFocus(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

} // namespace

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent), m_formats(QLocale::c()) {
    MakeChartsAccessible();
    setFocusPolicy(Qt::StrongFocus); // but not by the mouse wheel
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Describe();
}

void ChartWidget::SetData(ChartData shown, const DisplayFormats& formats) {
    m_data = std::move(shown);
    m_formats = formats;
    if (m_mark) {
        m_mark = ChartMark{.month = std::min(m_mark->month, Layout().scale.span),
                           .chosen = m_isHovering ? -1 : ChosenLine()};
    }
    Refresh();
    Describe();
}

void ChartWidget::Refresh() {
    m_layout.reset();
    update();
}

const ChartLayout& ChartWidget::Layout() const {
    if (!m_layout) {
        const int focusFrame = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this);
        const double margin = std::max(focusFrame, 2);
        m_layout = LayOutChart(m_data, m_formats, Look(),
                               {.place = QRectF(rect()).adjusted(margin, margin, -margin, -margin),
                                .device = this,
                                .span = m_drag ? m_drag->scale.span : 0});
    }
    return *m_layout;
}

ChartLook ChartWidget::Look() const { return LookOfScreen(palette(), font()); }

/// Fits seventeen names of small type, and the axes.
QSize ChartWidget::minimumSizeHint() const {
    constexpr int letters = 36;
    constexpr int lines = 12;
    return {fontMetrics().averageCharWidth() * letters, fontMetrics().height() * lines};
}

void ChartWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const ChartLook look = Look();
    painter.fillRect(rect(), look.background);
    PaintChart(painter, Layout(), look);
    if (m_mark && !m_data.lines.empty()) {
        PaintReading(painter, Layout(), LayOutReading(m_data, m_formats, Layout(), *m_mark, this),
                     look);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect frame;
        frame.initFrom(this);
        frame.state |= QStyle::State_KeyboardFocusChange; // after a click the keys work, too
        frame.backgroundColor = look.background;
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
    }
}

void ChartWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Refresh();
}

void ChartWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    Refresh();
    if (event->type() == QEvent::LanguageChange) {
        Describe();
    }
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
    }
}

bool ChartWidget::IsOnHorizon(const QPointF& position) const {
    constexpr double reach = 6; // units
    const ChartLayout& layout = Layout();
    return !m_data.lines.empty() && position.y() >= layout.horizon.place.top() &&
           position.y() <= layout.plot.bottom() &&
           std::abs(position.x() - layout.horizon.position) <= reach * layout.unit;
}

void ChartWidget::SetYears(int years) {
    const int possible = std::clamp(years, FewestYears, MostYears);
    if (possible != m_data.years) {
        m_data.years = possible;
        Refresh();
        Q_EMIT HorizonChanged(possible);
    }
}

void ChartWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !IsOnHorizon(event->position())) {
        QWidget::mousePressEvent(event);
        return;
    }
    SetMark(std::nullopt);
    m_drag = Drag{.scale = Layout().scale,
                  .distance = event->position().x() - Layout().horizon.position,
                  .yearsBefore = m_data.years};
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
    if (m_drag && !event->buttons().testFlag(Qt::LeftButton)) {
        EndDrag(); // released where the widget could not see it
    }
    if (m_drag) {
        const double month = m_drag->scale.MonthAt(event->position().x() - m_drag->distance);
        const double years = std::clamp(month / MonthsPerYear, 1.0 * FewestYears, 1.0 * MostYears);
        SetYears(static_cast<int>(std::lround(years)));
        return;
    }
    HoverAt(event->position());
}

void ChartWidget::mouseReleaseEvent(QMouseEvent* event) {
    QWidget::mouseReleaseEvent(event);
    if (m_drag && event->button() == Qt::LeftButton) {
        EndDrag();
        HoverAt(event->position());
    }
}

void ChartWidget::EndDrag() {
    m_drag.reset();
    Refresh();
}

void ChartWidget::HoverAt(const QPointF& position) {
    setCursor(IsOnHorizon(position) ? Qt::SizeHorCursor : Qt::ArrowCursor);
    if (Layout().plot.contains(position) && !m_data.lines.empty()) {
        SetMark(ChartMark{.month = Layout().MonthAt(position.x()), .chosen = -1});
        m_isHovering = true;
    } else if (m_isHovering) {
        SetMark(std::nullopt);
    }
}

void ChartWidget::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    if (m_isHovering) {
        SetMark(std::nullopt);
    }
}

void ChartWidget::SetMark(const std::optional<ChartMark>& mark) {
    m_isHovering = false;
    if (m_mark != mark) {
        m_mark = mark;
        update();
    }
}

int ChartWidget::ChosenLine() const {
    const auto chosen = std::ranges::find(m_data.lines, m_chosenLoan, &ChartLine::place);
    return chosen == m_data.lines.end() ? 0 : static_cast<int>(chosen - m_data.lines.begin());
}

void ChartWidget::ReadMonth(int month) {
    if (!m_data.lines.empty()) {
        SetMark(
            ChartMark{.month = std::clamp(month, 0, Layout().scale.span), .chosen = ChosenLine()});
    }
    Describe();
}

/// Chooses the line that is next above at this month, or below where that is negative.
void ChartWidget::ReadLine(int above) {
    const int month = m_mark ? m_mark->month : m_data.Horizon();
    const std::vector<int> lines = LinesByValue(m_data, month);
    if (lines.empty()) {
        return;
    }
    const auto now = std::ranges::find(lines, ChosenLine()) - lines.begin();
    const auto next = std::clamp<std::ptrdiff_t>(now - above, 0, std::ssize(lines) - 1);
    const int line = lines[static_cast<std::size_t>(next)];
    m_chosenLoan = m_data.lines[static_cast<std::size_t>(line)].place;
    ReadMonth(month);
}

void ChartWidget::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && m_drag) {
        const int before = m_drag->yearsBefore;
        EndDrag();
        SetYears(before);
    } else if (!MoveBy(*event)) {
        QWidget::keyPressEvent(event);
    }
}

/// False for a key that moves nothing here.
bool ChartWidget::MoveBy(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool byYears = modifiers == Qt::AltModifier;
    const int months = modifiers == Qt::ControlModifier ? MonthsPerYear : 1;
    const int month = m_mark ? m_mark->month : m_data.Horizon();
    const int direction = event.key() == Qt::Key_Left ? -1 : 1;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (byYears) {
            SetYears(m_data.years + direction);
        } else {
            ReadMonth(month + direction * months);
        }
        return true;
    case Qt::Key_Up:
        ReadLine(1);
        return true;
    case Qt::Key_Down:
        ReadLine(-1);
        return true;
    case Qt::Key_Home:
        ReadMonth(0);
        return true;
    case Qt::Key_End:
        ReadMonth(Layout().scale.span);
        return true;
    case Qt::Key_Plus:
        SetYears(m_data.years + 1);
        return true;
    case Qt::Key_Minus:
        SetYears(m_data.years - 1);
        return true;
    default:
        return false;
    }
}

void ChartWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
    if (IsMoveOfFocus(event->reason())) {
        ReadMonth(m_data.Horizon());
    }
}

void ChartWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
    if (!m_isHovering) {
        SetMark(std::nullopt);
    }
}

QString ChartWidget::Sentence() const {
    if (m_data.lines.empty() || !m_mark) {
        return GetResourceText(m_data.lines.empty() ? TextNumber::ChartWithoutLines
                                                    : TextNumber::ChartKeys);
    }
    const auto line = static_cast<std::size_t>(ChosenLine());
    return SentenceOf(m_data, m_formats, m_data.lines[line], m_mark->month);
}

/// For screen readers. The mouse changes nothing here: its user sees the values.
void ChartWidget::Describe() {
    const QString name = NameOfShown(m_data.shows);
    if (accessibleName() != name) {
        setAccessibleName(name);
    }
    if (!m_isHovering) {
        AnnounceReading(*this, Sentence());
    }
}

} // namespace quend::compare
