#include "OfferRows.h"

#include "ControlMap.h"
#include "FailureReport.h"
#include "Lists.h"
#include "OfferColumns.h"
#include "Worksheet.h"
#include "ui_OfferRow.h"

#include <QComboBox>
#include <QEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace quend::window {

OfferRows::OfferRows(Place place, Worksheet& worksheet, ControlMap& controls, OfferColumns& columns,
                     const FailureReport& report)
    : m_place(place), m_worksheet(&worksheet), m_controls(&controls), m_columns(&columns) {
    m_place.picScroll->installEventFilter(this);
    m_place.vsbLoans->installEventFilter(this);
    connect(m_place.vsbLoans, &QScrollBar::valueChanged, this, [this, &report] {
        report.Guard([this] {
            if (m_place.vsbLoans->isSliderDown()) {
                vsbLoans_Scroll();
            } else {
                vsbLoans_Change();
            }
        });
    });
    connect(m_place.vsbLoans, &QScrollBar::sliderReleased, this,
            [this, &report] { report.Guard([this] { vsbLoans_Change(); }); });
}

void OfferRows::CreateRows(Row loansDisplayed) {
    m_loansDisplayed = loansDisplayed;
    m_worksheet->GrowOfferArrays(HighestOfferRow(), loansDisplayed);
    for (Row row{0}; row <= loansDisplayed; ++row.value) {
        CreateOfferRow(row);
    }
}

void OfferRows::SetLoansDisplayed(Row loansDisplayed) {
    m_loansDisplayed = loansDisplayed;
    GrowTo(loansDisplayed);
}

void OfferRows::GrowTo(Row row) {
    while (HighestOfferRow() < std::min(row, m_offerRowCap)) {
        AddOfferRow();
    }
}

Row OfferRows::HighestOfferRow() const { return m_worksheet->HighestOfferRow(); }

void OfferRows::AddOfferRow() {
    const Row last = HighestOfferRow();
    const Row added{last.value + 1};
    if (last >= m_offerRowCap || !CreateOfferRow(added)) {
        return;
    }
    m_worksheet->GrowOfferArrays(last, added);
    PlaceRow(added);
    m_place.vsbLoans->hide();
    SetMaximum();
    m_place.vsbLoans->setValue(m_place.vsbLoans->value() + 1);
    vsbLoans_Change();
    m_place.vsbLoans->show();
}

/// A canvas higher than Qt's limit would cut off the last rows.
bool OfferRows::HasRoomFor(Row row) const {
    return (row.value + 1) <= QWIDGETSIZE_MAX / std::max(1, m_rowHeight);
}

bool OfferRows::CreateOfferRow(Row row) {
    if (!HasRoomFor(row)) {
        m_offerRowCap = Row{row.value - 1};
        return false;
    }
    auto* controls = new QWidget(m_place.picCanvas);
    Ui::OfferRow().setupUi(controls);
    controls->setObjectName(QStringLiteral("OfferRow(%1)").arg(row.value));
    m_controls->Add(*controls, OfferFields(), row);
    m_rows.emplace(row, controls);
    FillFrequencyList(*m_controls->ControlOf<QComboBox>({FieldId::Frequency, row}));
    controls->installEventFilter(this);
    for (QWidget* control : controls->findChildren<QWidget*>()) {
        control->installEventFilter(this);
    }
    Q_EMIT RowCreated(row.value, controls);
    controls->show();
    return true;
}

void OfferRows::Layout() {
    const QSize frame = m_place.picScroll->size();
    const int shown = m_loansDisplayed.value + 1;
    const int least = m_columns->RowHeight();
    const int top = static_cast<int>(std::lround(m_place.vsbLoans->value() / double(m_rowHeight)));
    m_rowHeight = std::max(1, std::clamp(frame.height() / shown, least, least * 3 / 2));
    m_columns->Share(frame.width());
    m_columns->PlaceHeadings();
    for (const auto& [row, controls] : m_rows) {
        PlaceRow(row);
    }
    SetMaximum();
    m_place.vsbLoans->setValue(top * m_rowHeight);
    vsbLoans_Change();
}

void OfferRows::PlaceRow(Row row) {
    const int width = m_place.picScroll->width();
    m_place.picCanvas->resize(width, m_rowHeight * static_cast<int>(m_rows.size()));
    m_rows.at(row)->setGeometry(0, row.value * m_rowHeight, width, m_rowHeight);
    m_columns->PlaceRow(row, m_rowHeight);
}

void OfferRows::SetMaximum() const {
    const int hidden = std::max(0, HighestOfferRow().value - m_loansDisplayed.value);
    m_place.vsbLoans->setMaximum(hidden * m_rowHeight);
    m_place.vsbLoans->setSingleStep(m_rowHeight);
    m_place.vsbLoans->setPageStep((m_loansDisplayed.value + 1) * m_rowHeight);
}

void OfferRows::ShowOfferRow(Row row) const {
    const double top = m_place.vsbLoans->value() / double(m_rowHeight);
    if (top > row.value) {
        m_place.vsbLoans->setValue(m_rowHeight * row.value);
    } else if (top + m_loansDisplayed.value < row.value) {
        m_place.vsbLoans->setValue(m_rowHeight * (row.value - m_loansDisplayed.value));
    }
}

void OfferRows::vsbLoans_Change() const {
    const bool scrolls = m_place.vsbLoans->maximum() != 0;
    m_place.vsbLoans->setEnabled(scrolls);
    if (scrolls) {
        // Halves go to the even row.
        const double row = std::nearbyint(m_place.vsbLoans->value() / double(m_rowHeight));
        m_place.vsbLoans->setValue(static_cast<int>(row) * m_rowHeight);
    }
    MoveCanvas();
}

/// The rows follow the scroll bar's slider; they snap to a whole row when it is released.
void OfferRows::vsbLoans_Scroll() const { MoveCanvas(); }

void OfferRows::MoveCanvas() const { m_place.picCanvas->move(0, -m_place.vsbLoans->value()); }

void OfferRows::ScrollByWheel(int eighthsOfDegree) {
    constexpr int notch = 120;
    m_wheel += eighthsOfDegree;
    const int rows = m_wheel / notch;
    m_wheel -= rows * notch;
    ScrollBy(-rows);
}

void OfferRows::ScrollBy(int rows) const {
    m_place.vsbLoans->setValue(m_place.vsbLoans->value() + rows * m_rowHeight);
}

bool OfferRows::CanScrollByWheel(int eighthsOfDegree) const {
    const QScrollBar& bar = *m_place.vsbLoans;
    return eighthsOfDegree > 0 ? bar.value() > bar.minimum() : bar.value() < bar.maximum();
}

/// The wheel scrolls by one row per notch over the rows or their scroll bar, so that a list under
/// the mouse does not change its choice unnoticed. At the first and the last row the event passes
/// on to the surrounding scroll area.
bool OfferRows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel) {
        const int turned = static_cast<QWheelEvent*>(event)->angleDelta().y();
        event->setAccepted(CanScrollByWheel(turned));
        if (event->isAccepted()) {
            ScrollByWheel(turned);
        }
        return true;
    }
    if (watched == m_place.picScroll && event->type() == QEvent::Resize) {
        Layout();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quend::window
