#include "OfferColumns.h"

#include "ControlMap.h"
#include "FieldWidth.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <array>

namespace quend::window {

namespace {

constexpr int Gap = 4;

constexpr std::array Headings{
    OfferHeading{"lblPoints", FieldId::FinancePoints, FieldId::Points},
    OfferHeading{"lblInterestRate", FieldId::InterestRate, FieldId::InterestRate},
    OfferHeading{"lblTerm", FieldId::Term, FieldId::Term},
    OfferHeading{"lblFrequency", FieldId::Frequency, FieldId::Frequency},
    OfferHeading{"lblPandI", FieldId::PandI, FieldId::PandI},
    OfferHeading{"lblPayment", FieldId::Payment, FieldId::Payment},
    OfferHeading{"lblActualPayment", FieldId::ActualPayment, FieldId::ActualPayment},
    OfferHeading{"cmdPayoffDate", FieldId::PayoffDate, FieldId::PayoffDate},
    OfferHeading{"cmdInterest", FieldId::Interest, FieldId::Interest},
    OfferHeading{"lblWho", FieldId::Who, FieldId::Who},
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

std::span<const OfferHeading> OfferHeadings() { return Headings; }

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
    for (const OfferHeading& heading : Headings) {
        const auto* control = m_headings->findChild<QWidget*>(QLatin1String(heading.control));
        auto column = std::ranges::find(m_columns, heading.last, &Column::field);
        const int others = heading.first == heading.last ? 0 : m_columns.front().least + Gap;
        column->least = std::max(column->least, control->sizeHint().width() + 4 - others);
    }
    m_rowHeight = m_controls->ControlOf({FieldId::Frequency, Row{0}})->sizeHint().height() + Gap;
    m_headings->setFixedHeight(m_rowHeight);
}

int OfferColumns::MinimumWidth() const {
    int width = Gap * (static_cast<int>(m_columns.size()) - 1);
    for (const Column& column : m_columns) {
        width += column.least;
    }
    return width;
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
    for (const OfferHeading& heading : Headings) {
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
