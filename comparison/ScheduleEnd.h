#pragma once

#include "ComparisonNames.h"
#include "Schedule.h"

#include <cstdint>

namespace quend::comparison {

/// The rate of one schedule period, a fraction.
double RateOfPeriod(const ScheduleTerms& terms);

/// When a schedule ends.
enum class ScheduleEnd {
    InTime,  ///< before the last date, and its interest is within the range of money
    TooLate, ///< its dates pass the last one
    Unclear  ///< near the last date, where only the schedule itself can say
};

/// Says from one period whether the schedule ends in time, without running the rest: the cost is
/// that of two logarithms, not of thousands of years. The balance is above zero, the rate not
/// negative; `steps` are the date steps left after the period, `interest` that so far.
ScheduleEnd EndAfter(const SchedulePeriod& period, double rateOfPeriod, std::int64_t steps,
                     Money interest);

} // namespace quend::comparison
