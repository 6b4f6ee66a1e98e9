#include "TextReport.h"

#include "CommandTextNumbers.h"
#include "Figures.h"
#include "Findings.h"
#include "Language.h"
#include "TerminalText.h"

#include <algorithm>
#include <array>
#include <variant>

namespace quend::tool {

namespace {

constexpr int MostNamePlaces = 32;
constexpr QChar Best = u'*';
constexpr QChar NotBest = u' ';
constexpr QChar None = u'-';

struct FigureColumn {
    Figure figure;
    int heading;
    Figure ranked; ///< by which the best is found
};

// Payments of different frequencies are compared by the month.
// clang-format off
constexpr std::array<FigureColumn, 8> FigureColumns{{
    {Figure::PaymentCompared, TextNumber::ColumnPayment, Figure::MonthlyEquivalent},
    {Figure::Upfront, TextNumber::ColumnUpfront, Figure::Upfront},
    {Figure::Costs, TextNumber::ColumnCosts, Figure::Costs},
    {Figure::Apr, TextNumber::ColumnApr, Figure::Apr},
    {Figure::TotalCost, TextNumber::ColumnTotalCost, Figure::TotalCost},
    {Figure::CostByHorizon, TextNumber::ColumnCostInYears, Figure::CostByHorizon},
    {Figure::BalanceAtHorizon, TextNumber::ColumnBalance, Figure::BalanceAtHorizon},
    {Figure::PayoffDate, TextNumber::ColumnPayoff, Figure::PayoffDate},
}};
// clang-format on

QString Heading(const FigureColumn& column, int years) {
    if (column.heading != TextNumber::ColumnCostInYears) {
        return GetResourceText(column.heading);
    }
    return years == 1 ? GetResourceText(TextNumber::ColumnCostInAYear)
                      : GetResourceText(column.heading).arg(years);
}

QString Shown(const FigureValue& value, const DisplayFormats& formats) {
    if (const auto* amount = std::get_if<Money>(&value)) {
        return formats.Currency(*amount);
    }
    if (const auto* rate = std::get_if<Rate>(&value)) {
        return formats.Percent(*rate);
    }
    if (const auto* date = std::get_if<Date>(&value)) {
        return formats.ShortDate(*date);
    }
    return None;
}

/// Of two values of one column; none is neither less nor greater than another.
bool IsLess(const FigureValue& left, const FigureValue& right) {
    const auto isLess = [&]<typename Value>(Value /*of this type*/) {
        const auto* const first = std::get_if<Value>(&left);
        const auto* const second = std::get_if<Value>(&right);
        return first != nullptr && second != nullptr && *first < *second;
    };
    return isLess(Money()) || isLess(Rate()) || isLess(Date());
}

std::vector<FigureValue> ValuesOf(const ComparedWorksheet& worksheet, Figure figure,
                                  const std::vector<int>& places) {
    std::vector<FigureValue> values;
    values.reserve(places.size());
    for (const int place : places) {
        values.push_back(ValueOf(worksheet, figure, place));
    }
    return values;
}

/// The least are marked, unless all are equal.
QStringList Cells(const std::vector<FigureValue>& values, const std::vector<FigureValue>& ranks,
                  const DisplayFormats& formats) {
    QStringList cells;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const FigureValue& rank = ranks[i];
        const auto isGreater = [&](const FigureValue& other) { return IsLess(rank, other); };
        const auto isLess = [&](const FigureValue& other) { return IsLess(other, rank); };
        const bool isBest =
            std::ranges::any_of(ranks, isGreater) && std::ranges::none_of(ranks, isLess);
        cells.append(Shown(values[i], formats) + (isBest ? Best : NotBest));
    }
    return cells;
}

QString ShownName(const ComparedWorksheet& worksheet, int place) {
    return CutTo(NameOfLoan(worksheet, place), MostNamePlaces);
}

QString Table(const ComparedWorksheet& worksheet, const DisplayFormats& formats) {
    const std::vector<int> places = PlacesThatTakePart(worksheet);
    std::vector<TextColumn> columns{{GetResourceText(TextNumber::ColumnLender), Align::Left}};
    std::vector<QStringList> rows;
    rows.reserve(places.size());
    for (const int place : places) {
        rows.push_back({ShownName(worksheet, place)});
    }
    for (const FigureColumn& column : FigureColumns) {
        const QStringList cells = Cells(ValuesOf(worksheet, column.figure, places),
                                        ValuesOf(worksheet, column.ranked, places), formats);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            rows[row].append(cells[static_cast<qsizetype>(row)]);
        }
        // The place of the mark belongs to the column.
        QString heading = Heading(column, worksheet.input.years);
        columns.push_back({heading.replace(u'\n', QStringLiteral(" \n")) + NotBest, Align::Right});
    }
    return AlignedLines(columns, rows) + GetResourceText(TextNumber::BestOfColumn) + u'\n';
}

QString KeptText(const ComparisonInput& input, const DisplayFormats& formats) {
    const QString until = formats.ShortDate(HorizonDay(input.today, input.years));
    return input.years == 1
               ? GetResourceText(TextNumber::KeptAYear).arg(until)
               : GetResourceText(TextNumber::KeptYears).arg(QString::number(input.years), until);
}

QString PaymentsCompared(const ComparisonInput& input, const DisplayFormats& formats) {
    switch (input.choice) {
    case PaymentChoice::Intended:
        return GetResourceText(TextNumber::IntendedPayments);
    case PaymentChoice::Required:
        return GetResourceText(TextNumber::RequiredPayments);
    case PaymentChoice::Monthly:
        break;
    }
    return GetResourceText(TextNumber::MonthlyPayments).arg(formats.Currency(input.monthlyPayment));
}

QString Title(const ComparedWorksheet& worksheet) {
    return worksheet.name.isEmpty() ? QString() : worksheet.name + QStringLiteral("\n\n");
}

QString JoinedLines(const QStringList& lines) {
    return lines.isEmpty() ? QString() : lines.join(u'\n') + u'\n';
}

/// A loan that never ends with its own payment may with a greater one.
QString WhyNoPayment(const ComparedWorksheet& worksheet, int place) {
    const QString leftOut = LeftOutSentence(worksheet, place);
    const bool neverEnds =
        place != CurrentLoanPlace &&
        worksheet.result.offers.at(static_cast<std::size_t>(place) - 1).leftOut ==
            LeftOut::NeverEnds;
    return leftOut.isEmpty() || neverEnds ? GetResourceText(TextNumber::NoLeastPayment) : leftOut;
}

} // namespace

QString CompareText(const ComparedWorksheet& worksheet, const DisplayFormats& formats) {
    const ComparisonInput& input = worksheet.input;
    QString text = Title(worksheet);
    text += JoinedLines({KeptText(input, formats), PaymentsCompared(input, formats)}) + u'\n';
    if (!PlacesThatTakePart(worksheet).empty()) {
        text += Table(worksheet, formats) + u'\n';
    }
    return text + JoinedLines(Findings(worksheet, formats));
}

QString PaymentsText(const ComparedWorksheet& worksheet, const std::vector<PaymentBy>& payments,
                     Date day, const DisplayFormats& formats) {
    std::vector<QStringList> rows;
    QStringList notes;
    for (const PaymentBy& row : payments) {
        if (IsBlank(worksheet, row.place)) {
            continue;
        }
        const QString payment = row.payment ? formats.Currency(*row.payment) : QString(None);
        rows.push_back({ShownName(worksheet, row.place), payment});
        if (!row.payment) {
            notes.append(WhyNoPayment(worksheet, row.place));
        }
    }
    notes.removeDuplicates();
    const std::vector<TextColumn> columns{
        {GetResourceText(TextNumber::ColumnLender), Align::Left},
        {GetResourceText(TextNumber::LeastPayment), Align::Right}};
    return Title(worksheet) +
           GetResourceText(TextNumber::NothingOwedOn).arg(formats.ShortDate(day)) +
           QStringLiteral("\n\n") + AlignedLines(columns, rows) + JoinedLines(notes);
}

} // namespace quend::tool
