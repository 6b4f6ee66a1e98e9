"""Equivalent changes, each with the reason. A row has the file, the line's text, the change, why no test
can detect it, and the number of such changes in the line, if several. A row that a test detects, or that
matches no change any more, is a fault."""

OVERWRITTEN = "The built-in function stores its result there, whether it overflows or not."
NO_ZERO = "A balance of zero never comes here: a schedule has no period then, and ends with it."
RANGE = "if (year < 1 || year > LastYear || month < 1 || month > 12 || day < 1 || day > 31) {"
NO_DAY = "Months and days that fit the calendar type and do not exist are refused by the next lines."
REST = "const std::int64_t beyondHalf = (rest < 0 ? -rest : rest) * 2 - PerCent;"
STEP = "const std::int64_t step = rest < 0 ? -1 : 1;"

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
    ("worksheet/model/WorksheetSorting.cpp", "keys.reserve(m_offers.size());",
     "keys.reserve(m_offers.size()); -> nothing", "It saves time alone."),
]
