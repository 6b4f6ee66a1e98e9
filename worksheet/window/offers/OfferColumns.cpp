#include "OfferColumns.h"

#include "ControlMap.h"
#include "FieldWidth.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <array>
#include <numeric>

namespace quend::window {

namespace {

constexpr int Gap = 4;

/// A heading belongs to one column; the first one to the tick box and the points beside it.
struct Heading {
    const char* control;
    FieldId first;
    FieldId last;
};

constexpr std::array Headings{
    Heading{"lblPoints", FieldId::FinancePoints, FieldId::Points},
    Heading{"lblInterestRate", FieldId::InterestRate, FieldId::InterestRate},
    Heading{"lblTerm", FieldId::Term, FieldId::Term},
    Heading{"lblFrequency", FieldId::Frequency, FieldId::Frequency},
    Heading{"lblPandI", FieldId::PandI, FieldId::PandI},
    Heading{"lblPayment", FieldId::Payment, FieldId::Payment},
    Heading{"lblActualPayment", FieldId::ActualPayment, FieldId::ActualPayment},
    Heading{"cmdPayoffDate", FieldId::PayoffDate, FieldId::PayoffDate},
    Heading{"cmdInterest", FieldId::Interest, FieldId::Interest},
    Heading{"lblWho", FieldId::Who, FieldId::Who},
};

/// A column's share of the spare width.
int StretchOf(FieldId field) {
    switch (field) {
    case FieldId::FinancePoints:
        return 0;
    case FieldId::Who:
        return 6;
    case FieldId::Frequency:
        return 2;
    default:
        return 1;
    }
}

} // namespace

OfferColumns::OfferColumns(QWidget& headings, const ControlMap& controls)
    : m_headings(&headings), m_controls(&controls) {
    for (const FieldRule& rule : OfferFields()) {
        m_columns.push_back({.field = rule.id});
    }
}

void OfferColumns::Measure(const DisplayFormats& formats) {
    for (Column& column : m_columns) {
        const QWidget* control = m_controls->ControlOf({column.field, Row{0}});
        const bool asBigAsItsEntries =
            column.field == FieldId::FinancePoints || column.field == FieldId::Frequency;
        column.least = asBigAsItsEntries
                           ? control->sizeHint().width()
                           : LeastFieldWidth(column.field, m_headings->fontMetrics(), formats);
    }
    for (const Heading& heading : Headings) {
        const auto* control = m_headings->findChild<QWidget*>(QLatin1String(heading.control));
        auto column = std::ranges::find(m_columns, heading.last, &Column::field);
        const int others = heading.first == heading.last ? 0 : m_columns.front().least + Gap;
        column->least = std::max(column->least, control->sizeHint().width() + 4 - others);
    }
    m_rowHeight = m_controls->ControlOf({FieldId::Frequency, Row{0}})->sizeHint().height() + Gap;
    m_headings->setFixedHeight(m_rowHeight);
}

int OfferColumns::MinimumWidth() const {
    return std::accumulate(m_columns.begin(), m_columns.end(), -Gap,
                           [](int sum, const Column& c) { return sum + c.least + Gap; });
}

void OfferColumns::Share(int width) {
    int spare = std::max(0, width - MinimumWidth());
    int stretch = 0;
    for (const Column& column : m_columns) {
        stretch += StretchOf(column.field);
    }
    int left = 0;
    for (Column& column : m_columns) {
        const int extra =
            StretchOf(column.field) == 0 ? 0 : spare * StretchOf(column.field) / stretch;
        stretch -= StretchOf(column.field);
        spare -= extra;
        column.left = left;
        column.width = column.least + extra;
        left += column.width + Gap;
    }
}

const OfferColumns::Column& OfferColumns::ColumnOf(FieldId field) const {
    return *std::ranges::find(m_columns, field, &Column::field);
}

QRect OfferColumns::SpanOf(FieldId first, FieldId last) const {
    const int left = ColumnOf(first).left;
    return {left, 0, ColumnOf(last).left + ColumnOf(last).width - left, m_rowHeight};
}

void OfferColumns::PlaceHeadings() const {
    for (const Heading& heading : Headings) {
        auto* control = m_headings->findChild<QWidget*>(QLatin1String(heading.control));
        control->setGeometry(SpanOf(heading.first, heading.last));
        if (auto* label = qobject_cast<QLabel*>(control)) {
            label->setAlignment(Qt::AlignCenter);
            label->setBuddy(m_controls->ControlOf({heading.last, Row{0}}));
        }
    }
}

void OfferColumns::PlaceRow(Row row, int height) const {
    for (const Column& column : m_columns) {
        QWidget* control = m_controls->ControlOf({column.field, row});
        // Fixed, because a list resizes itself when its entries change.
        control->setFixedSize(column.width, m_rowHeight - Gap);
        control->move(column.left, (height - control->height()) / 2);
    }
}

} // namespace quend::window
