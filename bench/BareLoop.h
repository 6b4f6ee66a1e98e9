#pragma once

#include "QuendNames.h"
#include "Schedule.h"

#include <cstdint>

/// Only the arithmetic of the schedule, as the baseline of its cost: one hand-written loop per
/// frequency, no checks, no table, plain integers. Correct only for a valid loan that is repaid.
struct BareLoan {
    std::int64_t balance; ///< ten-thousandths, like all amounts here
    std::int64_t payment;
    std::int64_t escrowShare;
    double rate;
    int year; ///< the first day
    int month;
    int day;
    int days; ///< the same day counted since 30 December 1899
};

/// A schedule without escrow that starts on 21 July 2026, as in the benchmarks.
inline BareLoan BareLoanOf(const ScheduleTerms& terms) {
    return {terms.balance.TenThousandths(),
            terms.payment.TenThousandths(),
            0,
            terms.rate.Fraction(),
            2026,
            7,
            21,
            terms.start.Days()};
}

struct BarePayoff {
    std::int64_t interest;
    int days;
    int periods;
};

BarePayoff BareMonthly(const BareLoan& loan);
BarePayoff BareTwiceAMonth(const BareLoan& loan);
BarePayoff BareEveryTwoWeeks(const BareLoan& loan);
BarePayoff BareEveryFourWeeks(const BareLoan& loan);
