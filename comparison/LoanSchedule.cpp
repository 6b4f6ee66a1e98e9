#include "LoanSchedule.h"

#include "ComparedCurrent.h"
#include "ComparedOffer.h"

#include <algorithm>

namespace quend::comparison {

namespace {

std::optional<DatedLoan> LoanAt(const ComparisonInput& input, int place) {
    if (place == CurrentLoanPlace) {
        const ComparedCurrent current = CompareCurrent(input);
        return current.costs ? current.loan : std::nullopt;
    }
    const OfferInput* const offer = OfferAt(input, place);
    return offer != nullptr ? ComparedOffer(input, *offer).Compared() : std::nullopt;
}

std::vector<ScheduleRow> RowsOf(const ScheduleTerms& terms) {
    std::vector<ScheduleRow> rows;
    Date due = terms.start;
    Money interestSoFar;
    RunToPayoff(terms, [&](const SchedulePeriod& period) {
        interestSoFar += period.interest;
        rows.push_back({.number = static_cast<std::int64_t>(rows.size()) + 1,
                        .date = due,
                        .payment = period.interest + period.principal + terms.escrowShare,
                        .interest = period.interest,
                        .principal = period.principal,
                        .escrow = terms.escrowShare,
                        .balance = period.balance,
                        .interestSoFar = interestSoFar});
        due = period.date; // the schedule reports the day after the date step
    });
    return rows;
}

} // namespace

std::optional<std::vector<ScheduleRow>> ScheduleOf(const ComparisonInput& input, int place) {
    const std::optional<DatedLoan> loan = LoanAt(input, place);
    if (!loan) {
        return std::nullopt;
    }
    return RowsOf(loan->terms);
}

Date CurrentAccruesFrom(const ComparisonInput& input) {
    const Frequency* const frequency = FindFrequency(input.current.actualFrequency);
    const Date next = input.current.nextPayment;
    if (frequency == nullptr || next.IsNone()) {
        return input.today;
    }
    return std::max(input.today, OnePeriodBefore(next, *frequency));
}

std::vector<ScheduleRow> ByYear(const std::vector<ScheduleRow>& rows) {
    std::vector<ScheduleRow> years;
    for (const ScheduleRow& row : rows) {
        const int year = static_cast<int>(row.date.Calendar().year());
        if (years.empty() || years.back().number != year) {
            years.push_back({.number = year});
        }
        ScheduleRow& sum = years.back();
        sum.date = row.date;
        sum.payment += row.payment;
        sum.interest += row.interest;
        sum.principal += row.principal;
        sum.escrow += row.escrow;
        sum.balance = row.balance;
        sum.interestSoFar = row.interestSoFar;
    }
    return years;
}

} // namespace quend::comparison
