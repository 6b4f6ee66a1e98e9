#pragma once

#include "Schedule.h"

#include <cstdint>

/// The arithmetic of the schedule and nothing else, as the yardstick of its cost: one hand-written
/// loop a frequency, no check, no table, plain integers. Wrong for anything but a healthy loan.
struct BareLoan {
    std::int64_t balance; ///< ten-thousandths, as all amounts here
    std::int64_t payment;
    std::int64_t escrowShare;
    double rate;
    int year; ///< the first day
    int month;
    int day;
    int days; ///< the same day counted since 30 December 1899
};

/// A schedule without escrow that begins on 21 July 2026, as the benchmarks have it.
inline BareLoan BareLoanOf(const ScheduleTerms& terms) {
    return {terms.balance.TenThousandths(),
            terms.payment.TenThousandths(),
            0,
            terms.rate,
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
