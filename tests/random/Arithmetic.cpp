#include "Arithmetic.h"

#include <cmath>
#include <limits>

namespace Plain {

namespace {

Count Fitting(Wide count) {
    using Limits = std::numeric_limits<Count>;
    if (count < Limits::min() || count > Limits::max()) {
        throw TooLarge{};
    }
    return static_cast<Count>(count);
}

Count Nearest(double count) {
    const double nearest = std::nearbyint(count);
    if (!(nearest >= -0x1p63 && nearest < 0x1p63)) { // NaN as well
        throw TooLarge{};
    }
    return static_cast<Count>(nearest);
}

double InterestOfPeriod(const Debt& debt, Count balance) {
    const double owed = Units(balance);
    switch (debt.frequency.unicode()) {
    case u'M':
        return owed * debt.rate / 12;
    case u'B':
        return owed * debt.rate / 24;
    case u'W':
        return owed * debt.rate / 365 * 14;
    case u'Q':
        return owed * debt.rate / 365 * 28;
    default:
        return 0;
    }
}

/// The due dates of payments.
class DueDays {
public:
    DueDays(QChar frequency, QDate start) : m_frequency(frequency), m_day(start), m_first(start) {}

    QDate Day() const { return m_day; }
    void GoOn() {
        switch (m_frequency.unicode()) {
        case u'M':
            m_day = m_day.addMonths(1);
            break;
        case u'B':
            if (m_isSecond) {
                m_day = m_first.addMonths(1);
            } else {
                m_first = m_day;
                m_day = m_day.addDays(14);
            }
            m_isSecond = !m_isSecond;
            break;
        case u'W':
            m_day = m_day.addDays(14);
            break;
        default:
            m_day = m_day.addDays(28);
        }
        if (m_day > QDate(9999, 12, 31)) {
            throw TooLarge{};
        }
    }

private:
    QChar m_frequency;
    QDate m_day;
    QDate m_first;
    bool m_isSecond = false;
};

/// Without a frequency there is no interest and no date: the number of payments that fit.
Repaid RepayWithoutDates(const Debt& debt, Count available) {
    if (debt.balance > 0 ? available <= 0 : available < debt.balance) {
        throw NeverRepaid{};
    }
    const Count full = debt.balance > 0 ? (debt.balance - 1) / available : 0;
    const Count last = debt.balance - full * available;
    return {debt.start, 0, Sum(Fitting(Wide{full} * debt.payment), Sum(debt.escrow, last))};
}

} // namespace

Count Whole(double units) { return Nearest(units * 10'000); }
Count WholeCents(double units) { return Fitting(Wide{Nearest(units * 100)} * 100); }
Count Sum(Count left, Count right) { return Fitting(Wide{left} + right); }
Count Less(Count left, Count right) { return Fitting(Wide{left} - right); }
double Units(Count amount) { return static_cast<double>(amount) / 10'000; }

Count ToCents(Count amount) {
    Count cents = amount / 100;
    const Count rest = amount % 100;
    if (rest > 50 || (rest == 50 && cents % 2 != 0)) {
        ++cents;
    } else if (rest < -50 || (rest == -50 && cents % 2 != 0)) {
        --cents;
    }
    return cents * 100;
}

Count MonthlyEscrow(Count taxes, Count insurance) {
    return WholeCents(Units(Sum(taxes, insurance)) / 12);
}

Count EscrowOf(QChar frequency, Count monthlyEscrow) {
    const bool whole = frequency == u'M' || frequency == u'Q';
    return whole ? monthlyEscrow : Whole(Units(monthlyEscrow) / 2);
}

Count PrincipalAndInterest(Count principal, double rate, int months, QChar frequency) {
    if (principal == 0 || rate == 0 || months == 0) {
        return 0;
    }
    double aYear = 0;
    double periods = 0;
    switch (frequency.unicode()) {
    case u'M':
        aYear = 12;
        periods = months;
        break;
    case u'B':
        aYear = 24;
        periods = months * 2.0;
        if (periods > std::numeric_limits<int>::max() ||
            periods < std::numeric_limits<int>::min()) {
            throw TooLarge{};
        }
        break;
    case u'W':
        aYear = 26;
        periods = months / 12.0 * 26;
        break;
    case u'Q':
        aYear = 13;
        periods = months / 12.0 * 13;
        break;
    default:
        return 0;
    }
    const double r = rate / aYear;
    return WholeCents(Units(principal) / ((1 - std::pow(1 + r, -periods)) / r));
}

Repaid Repay(const Debt& debt, bool addsPayments) {
    const Count available = Less(debt.payment, debt.escrow);
    if (debt.frequency.isNull()) {
        return RepayWithoutDates(debt, available);
    }
    DueDays days(debt.frequency, debt.start);
    Repaid repaid;
    Wide paid = 0;
    for (Count balance = debt.balance; balance != 0;) {
        const Count interest = Whole(InterestOfPeriod(debt, balance));
        Count principal = Less(available, interest);
        if (principal > balance) {
            principal = balance;
        } else if (balance > 0 && (principal == 0 || (principal < 0 && debt.rate >= 0))) {
            throw NeverRepaid{}; // the balance never falls
        } else {
            days.GoOn();
        }
        repaid.interest = Sum(repaid.interest, interest);
        balance = Less(balance, principal);
        paid += Wide{debt.escrow} + principal + interest;
    }
    repaid.date = days.Day();
    if (addsPayments) {
        repaid.paid = Fitting(paid);
    }
    return repaid;
}

} // namespace Plain
