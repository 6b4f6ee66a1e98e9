#pragma once

#include "Comparison.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quend::comparison {

/// The place of the loan held today, where that of an offer is from 1.
inline constexpr int CurrentLoanPlace = 0;

/// One payment of a schedule.
struct ScheduleRow {
    std::int64_t number{}; ///< from 1
    Date date{};
    Money payment{}; ///< interest, principal and escrow
    Money interest{};
    Money principal{};
    Money escrow{};
    Money balance{}; ///< afterwards
    Money interestSoFar{};

    friend bool operator==(const ScheduleRow&, const ScheduleRow&) = default;
};

/// The payments of an offer, or of the loan held today, with the compared payment; the first is
/// due today, or on the next-payment date. Past the last date the date stays there. None where the
/// loan takes no part; empty where there is no such place.
std::optional<std::vector<ScheduleRow>> ScheduleOf(const ComparisonInput& input, int place);

/// The day from which the interest of the loan held today is counted: today, or one period before
/// its next payment where that is later.
Date CurrentAccruesFrom(const ComparisonInput& input);

/// The same rows added up by calendar year: number is the year, the date that of its last payment,
/// balance and interest so far are those after it.
std::vector<ScheduleRow> ByYear(const std::vector<ScheduleRow>& rows);

} // namespace quend::comparison
