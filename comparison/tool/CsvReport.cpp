#include "CsvReport.h"

#include "CsvText.h"
#include "ResultJson.h"
#include "ValueTexts.h"

#include <QLocale>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace quend::tool {

namespace {

QByteArray Cell(Money amount) { return AmountText(amount); }
QByteArray Cell(Date date) { return DateText(date); }
QByteArray Cell(Rate rate) {
    return QByteArray::number(rate.Fraction(), 'g', QLocale::FloatingPointShortest);
}
QByteArray Cell(bool flag) { return flag ? "true" : "false"; }
QByteArray Cell(int number) { return QByteArray::number(number); }
QByteArray Cell(std::int64_t number) { return QByteArray::number(static_cast<qint64>(number)); }
QByteArray Cell(LeftOut reason) { return NameOf(reason); }

/// Not "3-27", which a spreadsheet would take for a date.
QByteArray Cell(const std::vector<CheaperStretch>& stretches) {
    QByteArray cell;
    for (const CheaperStretch& stretch : stretches) {
        cell += cell.isEmpty() ? "from " : "; from ";
        cell += Cell(stretch.fromMonth);
        if (stretch.untilMonth) {
            cell += " until " + Cell(*stretch.untilMonth);
        }
    }
    return cell;
}

template <typename Value>
QByteArray Cell(const std::optional<Value>& value) {
    return value ? Cell(*value) : QByteArray();
}

using OfOffer = QByteArray (*)(const OfferComparison& offer);
using OfCurrent = QByteArray (*)(const CurrentLoanComparison& current);

template <typename Loan>
QByteArray Nothing(const Loan& /*loan*/) {
    return {};
}

template <auto Member, typename Loan>
QByteArray OfLoan(const Loan& loan) {
    return Cell(loan.*Member);
}

template <auto Member, typename Loan>
QByteArray OfFigures(const Loan& loan) {
    return loan.figures ? Cell((*loan.figures).*Member) : QByteArray();
}

template <typename Loan>
QByteArray FailureOf(const Loan& loan) {
    return loan.overflow ? "overflow" : "";
}

struct Column {
    const char* name = nullptr;
    OfOffer offer = Nothing;
    OfCurrent current = Nothing;
};

using Offer = OfferComparison;
using Figures = OfferFigures;
using Current = CurrentLoanComparison;
using CurrentFigures = CurrentLoanFigures;

// clang-format off
constexpr std::array Columns{
    Column{"principal",            OfLoan<&Offer::principal>},
    Column{"principalAndInterest", OfLoan<&Offer::principalAndInterest>},
    Column{"payment",              OfLoan<&Offer::payment>},
    Column{"actualPayment",        OfLoan<&Offer::actualPayment>},
    Column{"raised",               OfLoan<&Offer::raised>},
    Column{"payoffDate",           OfLoan<&Offer::payoffDate>,             OfLoan<&Current::payoffDate>},
    Column{"interest",             OfLoan<&Offer::interest>},
    Column{"amountLeft",           Nothing,                                OfLoan<&Current::amountLeft>},
    Column{"interestLeft",         Nothing,                                OfLoan<&Current::interestLeft>},
    Column{"failure",              FailureOf,                              FailureOf},
    Column{"leftOut",              OfLoan<&Offer::leftOut>},
    Column{"paymentCompared",      OfFigures<&Figures::paymentCompared>,   OfFigures<&CurrentFigures::paymentCompared>},
    Column{"upfront",              OfFigures<&Figures::upfront>},
    Column{"totalCost",            OfFigures<&Figures::totalCost>,         OfFigures<&CurrentFigures::totalCost>},
    Column{"costByHorizon",        OfFigures<&Figures::costByHorizon>,     OfLoan<&Current::costByHorizon>},
    Column{"balanceAtHorizon",     OfFigures<&Figures::balanceAtHorizon>,  OfLoan<&Current::balanceAtHorizon>},
    Column{"monthlyEquivalent",    OfFigures<&Figures::monthlyEquivalent>, OfFigures<&CurrentFigures::monthlyEquivalent>},
    Column{"apr",                  OfFigures<&Figures::apr>},
    Column{"effectiveRate",        OfFigures<&Figures::effectiveRate>},
    Column{"interestSaved",        OfFigures<&Figures::interestSaved>},
    Column{"paymentsSaved",        OfFigures<&Figures::paymentsSaved>},
    Column{"cheaper",              OfFigures<&Figures::cheaper>},
    Column{"rateToMatch",          OfFigures<&Figures::rateToMatch>},
    Column{"paymentForHorizon",    OfFigures<&Figures::paymentForHorizon>, OfLoan<&Current::paymentForHorizon>},
};
// clang-format on

constexpr const char* PlaceName = "offer";
constexpr const char* LenderName = "lender";
constexpr const char* CurrentName = "current"; // in place of an offer's number

/// The lender is the whole text of the file, with its line ends.
void AddName(CsvLines& lines, const WorksheetInFile& worksheet, int place) {
    if (place == CurrentLoanPlace) {
        lines.Add(CurrentName).Add({});
        return;
    }
    const QString& lender = worksheet.offers.at(static_cast<std::size_t>(place) - 1).lender;
    lines.Add(Cell(place)).Add(CsvText(lender));
}

} // namespace

QByteArray CompareCsv(const WorksheetInFile& worksheet, const ComparisonResult& result) {
    CsvLines lines;
    lines.Add(PlaceName).Add(LenderName);
    for (const Column& column : Columns) {
        lines.Add(column.name);
    }
    lines.EndLine();
    int place = 0;
    for (const OfferComparison& offer : result.offers) {
        AddName(lines, worksheet, ++place);
        for (const Column& column : Columns) {
            lines.Add(column.offer(offer));
        }
        lines.EndLine();
    }
    if (result.current) {
        AddName(lines, worksheet, CurrentLoanPlace);
        for (const Column& column : Columns) {
            lines.Add(column.current(*result.current));
        }
        lines.EndLine();
    }
    return lines.Bytes();
}

QByteArray ScheduleCsv(const std::vector<ScheduleRow>& rows) {
    CsvLines lines;
    for (const char* name : {"number", "date", "payment", "interest", "principal", "escrow",
                             "balance", "interestSoFar"}) {
        lines.Add(name);
    }
    lines.EndLine();
    for (const ScheduleRow& row : rows) {
        lines.Add(Cell(row.number)).Add(Cell(row.date));
        for (const Money amount : {row.payment, row.interest, row.principal, row.escrow,
                                   row.balance, row.interestSoFar}) {
            lines.Add(Cell(amount));
        }
        lines.EndLine();
    }
    return lines.Bytes();
}

QByteArray PaymentsCsv(const WorksheetInFile& worksheet, const std::vector<PaymentBy>& payments) {
    CsvLines lines;
    lines.Add(PlaceName).Add(LenderName).Add("payment").EndLine();
    for (const PaymentBy& row : payments) {
        AddName(lines, worksheet, row.place);
        lines.Add(Cell(row.payment)).EndLine();
    }
    return lines.Bytes();
}

} // namespace quend::tool
