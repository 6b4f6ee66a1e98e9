#include "BareLoop.h"

#include <array>
#include <cmath>

namespace {

struct BareDay {
    int year;
    int month;
    int day;
    int days;
};

inline int LengthOf(int year, int month) {
    constexpr std::array<int, 13> Lengths{0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && leap ? 29 : Lengths[static_cast<unsigned>(month)];
}

inline void NextMonth(BareDay& date) {
    date.days += LengthOf(date.year, date.month) - date.day;
    date.year += date.month == 12 ? 1 : 0;
    date.month = date.month == 12 ? 1 : date.month + 1;
    const int length = LengthOf(date.year, date.month);
    date.day = date.day < length ? date.day : length;
    date.days += date.day;
}

inline std::int64_t Rounded(double units) { return std::llrint(units * 10'000.0); }

/// Inlined into each of the four functions below, with their constants.
template <typename Interest, typename Step>
inline BarePayoff Repay(const BareLoan& loan, Interest interestOf, Step step) {
    BarePayoff payoff{0, loan.days, 0};
    const std::int64_t available = loan.payment - loan.escrowShare;
    std::int64_t balance = loan.balance;
    while (balance != 0) {
        const std::int64_t interest =
            Rounded(interestOf(static_cast<double>(balance) / 10'000.0, loan.rate));
        std::int64_t principal = available - interest;
        if (principal > balance) {
            principal = balance;
        } else {
            payoff.days = step();
        }
        payoff.interest += interest;
        balance -= principal;
        ++payoff.periods;
    }
    return payoff;
}

} // namespace

BarePayoff BareMonthly(const BareLoan& loan) {
    BareDay date{loan.year, loan.month, loan.day, loan.days};
    return Repay(
        loan, [](double units, double rate) { return units * rate / 12.0; },
        [&date] {
            NextMonth(date);
            return date.days;
        });
}

BarePayoff BareTwiceAMonth(const BareLoan& loan) {
    BareDay first{loan.year, loan.month, loan.day, loan.days};
    bool second = false;
    return Repay(
        loan, [](double units, double rate) { return units * rate / 24.0; },
        [&first, &second] {
            second = !second;
            if (second) {
                return first.days + 14;
            }
            NextMonth(first);
            return first.days;
        });
}

BarePayoff BareEveryTwoWeeks(const BareLoan& loan) {
    int days = loan.days;
    return Repay(
        loan, [](double units, double rate) { return units * rate / 365.0 * 14.0; },
        [&days] { return days += 14; });
}

BarePayoff BareEveryFourWeeks(const BareLoan& loan) {
    int days = loan.days;
    return Repay(
        loan, [](double units, double rate) { return units * rate / 365.0 * 28.0; },
        [&days] { return days += 28; });
}
