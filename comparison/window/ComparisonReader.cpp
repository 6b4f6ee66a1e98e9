#include "ComparisonReader.h"

#include "ComparisonOfWorksheet.h"
#include "Loan.h"
#include "Settings.h"
#include "Worksheet.h"

#include <utility>

namespace quend::compare {

namespace {

QString FirstLine(const QString& lender) {
    return lender.section(QLatin1Char('\n'), 0, 0).simplified();
}

ComparedWorksheet EnteredIn(Loan& window) {
    const Worksheet& sheet = window.GetWorksheet();
    const Settings& settings = window.GetSettings();
    ComparedWorksheet entered{.name = sheet.LoanName(),
                              .input = ToComparison(sheet),
                              .result = {},
                              .lenders = {},
                              .rows = {}};
    entered.input.years = settings.compareYears;
    entered.input.choice = settings.comparePayments;
    entered.input.monthlyPayment = settings.compareMonthly;
    for (std::size_t offer = 0; offer < sheet.OfferCount(); ++offer) {
        entered.lenders.push_back(FirstLine(sheet.Offer(OfferIndex{offer}).Who()));
    }
    for (Row row{0}; row <= sheet.HighestOfferRow(); ++row.value) {
        entered.rows.push_back(static_cast<int>(sheet.OfferIndexOfRow(row).value) + 1);
    }
    return entered;
}

} // namespace

bool ComparisonReader::Read() {
    ComparedWorksheet entered = EnteredIn(*m_window);
    const bool sameFigures = m_hasRead && entered.input == m_compared.input;
    if (sameFigures && entered.name == m_compared.name && entered.lenders == m_compared.lenders &&
        entered.rows == m_compared.rows) {
        return false;
    }
    entered.result =
        sameFigures ? std::move(m_compared.result) : comparison::Compare(entered.input);
    m_compared = std::move(entered);
    m_hasRead = true;
    return true;
}

} // namespace quend::compare
