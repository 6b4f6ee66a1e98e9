#include "ComparisonOfWorksheet.h"

#include "CLoan.h"
#include "Worksheet.h"

#include <variant>

namespace quend::model {

namespace {

FrequencyCode CodeIn(const Worksheet& worksheet, FieldId field) {
    return std::get<FrequencyCode>(worksheet.Value({field}));
}

comparison::CurrentLoanInput ToCurrentLoan(const Worksheet& worksheet) {
    comparison::CurrentLoanInput loan{
        .amount = worksheet.CurrentLoanAmount(),
        .term = worksheet.CurrentTerm(),
        .rate = worksheet.CurrentInterestRate(),
        .frequency = CodeIn(worksheet, FieldId::CurPaymentFrequency),
        .balance = worksheet.CurrentBalance(),
        .actualPayment = worksheet.CurrentActualPayment(),
        .actualFrequency = CodeIn(worksheet, FieldId::ActPaymentFrequency),
    };
    if (loan != comparison::CurrentLoanInput()) {
        loan.nextPayment = worksheet.CurrentNextPayment();
    }
    return loan;
}

comparison::OfferInput ToOffer(const CLoan& offer) {
    return {.points = offer.Points(),
            .pointsFinanced = offer.FinancePoints(),
            .costs = offer.Costs(),
            .rate = offer.InterestRate(),
            .term = offer.Term(),
            .frequency = offer.FrequencyCode(),
            .actualPayment = offer.ActualPayment()};
}

} // namespace

comparison::ComparisonInput ToComparison(const Worksheet& worksheet) {
    comparison::ComparisonInput input{
        .today = worksheet.Today(),
        .amount = worksheet.LoanAmount(),
        .term = worksheet.LoanTerm(),
        .escrowMonthly = worksheet.EscrowMonthly(),
        .current = ToCurrentLoan(worksheet),
    };
    for (OfferIndex offer{0}; offer.value < worksheet.OfferCount(); ++offer.value) {
        input.offers.push_back(ToOffer(worksheet.Offer(offer)));
    }
    return input;
}

} // namespace quend::model
