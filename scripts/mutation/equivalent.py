"""Equivalent changes, each with the reason. A row has the file, the line's text, the change, why no test
can detect it, and the number of such changes in the line, if several. A row that a test detects, or that
matches no change any more, is a fault."""

OVERWRITTEN = "The built-in function stores its result there, whether it overflows or not."
NO_ZERO = "A balance of zero never comes here: a schedule has no period then, and ends with it."
RANGE = "if (year < 1 || year > LastYear || month < 1 || month > 12 || day < 1 || day > 31) {"
TIME = "It saves time alone."
NO_DAY = "Months and days that fit the calendar type and do not exist are refused by the next lines."
REST = "const std::int64_t beyondHalf = (rest < 0 ? -rest : rest) * 2 - PerCent;"
STEP = "const std::int64_t step = rest < 0 ? -1 : 1;"
TRY = "if (days.end >= day && !period.balance.IsZero() && later++ % BetweenTries == 0) {"
TRIES = "What it says early is what the schedule says at its end: when it is asked changes the time alone."
WIDEN = "high = std::min(high * 2.0, highest);"
BRACKET = "The halving finds the rate from any limit above it, up to the highest."
HALVE = ("high - low > 1e-16 && middle > low && middle < high;"
         " middle = std::midpoint(low, high)) {")
LIMIT = "At equality both answers are true: the limit leaves more than the error of the functions."
START = "The search tries one first, and finds the same from there."
PRECISE = "Halving ends at neighbouring doubles, too; the rate is good to 1e-14 before."


def each(file, line, changes, reason):
    return [(file, line, what, reason) for what in changes]


CHANGES = [
    ("calc/Money.h", "std::int64_t sum = 0;", "0 -> 1", OVERWRITTEN),
    ("calc/Money.h", "std::int64_t difference = 0;", "0 -> 1", OVERWRITTEN),
    ("calc/Money.cpp", "std::int64_t count = 0;", "0 -> 1", OVERWRITTEN),
    ("calc/Money.cpp", REST, "< -> <=", "Zero turned round is zero."),
    ("calc/Money.cpp", REST, "0 -> 1", "Zero turned round is zero."),
    ("calc/Money.cpp", "const bool awayFromZero = beyondHalf > 0 || (beyondHalf == 0 && cents % 2 != 0);",
     "0 -> 1", "Twice the rest less a hundred is even: above 0 it is above 1."),
    ("calc/Money.cpp", STEP, "< -> <=", "Whole cents take no step."),
    ("calc/Money.cpp", STEP, "0 -> 1", "Whole cents take no step."),
    ("calc/Date.cpp", RANGE, "1 -> 0", NO_DAY, 2),  # for the month and for the day
    ("calc/Date.cpp", RANGE, "12 -> 13", NO_DAY),
    ("calc/Date.cpp", RANGE, "31 -> 32", NO_DAY),
    ("calc/Date.cpp", "int sum = 0;", "0 -> 1", OVERWRITTEN),
    ("calc/Date.cpp", "RaiseOverflow();", "RaiseOverflow(); -> nothing",
     "In PlusDays: a sum that wraps lies outside the dates, which FromDays refuses."),
    ("calc/DueDates.h", "m_day = m_day < length ? m_day : length;", "< -> <=", "Both are the same then."),
    ("calc/Frequency.h",
     "{  u'M', TextNumber::FrequencyMonthly,        12,     1,        12.0,  1,  DateStep::Month,     false },",
     "1 -> 0", "Of the whole periods: months / 12 * 12 are the months again, because 12 is 8 + 4: a"
     " quotient by the sum of two powers of two comes back in double precision."),
    ("calc/Frequency.cpp", "int periods = 0;", "0 -> 1", OVERWRITTEN),
    ("calc/Schedule.h",
     "return principal <= Money() && balance > Money() && (principal.IsZero() || !(rate < 0.0));",
     "> -> >=", NO_ZERO),
    ("calc/Schedule.h", "const bool owed = terms.balance > Money();", "> -> >=", NO_ZERO),
    ("calc/Schedule.cpp", "std::int64_t fullPayments = 0;", "0 -> 1", OVERWRITTEN),
    ("comparison/AccrualPeriods.cpp", "if (days <= 0) {", "<= -> <", "The interest of no day is zero."),
    *each("comparison/AccruedInterest.cpp", "constexpr std::int64_t BetweenTries = 256;",
          ("256 -> 255", "256 -> 257"), TRIES),
    ("comparison/AccruedInterest.cpp", "std::int64_t later = 0;", "0 -> 1", TRIES),
    *each("comparison/AccruedInterest.cpp", TRY,
          (">= -> >", "! -> nothing", "% -> *", "% -> /", "== -> !=", "0 -> 1"), TRIES),
    ("comparison/AccruedInterest.cpp",
     "end = EndAfter(period, rate, periods.StepsUntil(Date::Last()), all);",
     "end = EndAfter(period, rate, periods.StepsUntil(Date::Last()), all); -> nothing", TRIES),
    ("comparison/ActuarialRate.cpp",
     "constexpr double Usual = 0.015625; // few loans have a higher rate; an exact double",
     "0.015625 -> 1.015625", BRACKET),
    ("comparison/ActuarialRate.cpp", "double high = std::min(Usual, highest);", "min -> max", BRACKET),
    *each("comparison/ActuarialRate.cpp", WIDEN, ("min -> max", "2.0 -> 3.0"), BRACKET),
    *each("comparison/ActuarialRate.cpp", HALVE,
          ("- -> +", "> -> >=", "1e-16 -> -0.9999999999999999"), PRECISE),
    ("comparison/ActuarialRate.cpp", "(excess(middle) > 0.0 ? low : high) = middle;", "> -> >=",
     "A rate without an excess is the one searched for, as either limit."),
    ("comparison/ComparedOffer.cpp", "std::int64_t sum = 0;", "0 -> 1", OVERWRITTEN),
    ("comparison/ComparedOffer.cpp",
     "auto high = static_cast<std::int64_t>(std::ceil(own * Steps - 1e-9));", "- -> +",
     "The search then tries the own rate, too, which costs more than the cheapest."),
    ("comparison/ComparedOffer.cpp", "return false;", "false -> true",
     "In the handler: a rate below its own requires no more, and its own is within the range of money."),
    ("comparison/Comparison.cpp", "offers.reserve(input.offers.size());",
     "offers.reserve(input.offers.size()); -> nothing", TIME),
    ("comparison/CostByMonth.cpp", "while (m_day < days.end && m_month <= MostMonths) {", "< -> <=",
     "What has accrued by the end of a period is all of it and nothing of the next."),
    ("comparison/CostByMonth.cpp", "std::int64_t limit = 0;", "0 -> 1", OVERWRITTEN, 2),
    *each("comparison/OverTime.cpp", "const CostByMonth costs = RunCosts(loan, closing, today, 1);",
          ("1 -> 0", "1 -> 2"), "The balance at a horizon is not read."),
    ("comparison/ScheduleEnd.cpp", "if ((principal + rounding) * growth * (1.0 + Precise) < owed) {",
     "< -> <=", LIMIT),
    *each("comparison/ScheduleEnd.cpp",
          "const bool ends = least * (1.0 - Precise) > owed && allInterest < Most * (1.0 - Precise);",
          ("> -> >=", "< -> <="), LIMIT),
    *each("comparison/Solving.cpp", "return LeastNumber(0, most, 1, fails).value_or(most + 1) - 1;",
          ("0 -> 1", "1 -> 2"), START),
    ("worksheet/model/WorksheetSorting.cpp", "keys.reserve(m_offers.size());",
     "keys.reserve(m_offers.size()); -> nothing", TIME),
]
