// Properties of the schedule of every loan, tested over random ones.

#include "Failure.h"
#include "MonthAfter.h"
#include "PreciseLoan.h"
#include "QuendNames.h"
#include "RandomLoan.h"
#include "Schedule.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace {

/// The least payment, exact or raised by up to its own amount.
Money PaymentOf(const RandomLoan& loan, Random& random) {
    const Money least = loan.LeastPayment();
    if (random.OneIn(3)) {
        return least;
    }
    const double more = least.ToDouble() * random.OfAnySize(1e-4, 1.0);
    return least + Money::FromDouble(more);
}

struct WatchedRun {
    std::vector<SchedulePeriod> periods;
    std::optional<ScheduleTotals> totals; ///< none means OverflowFailure
};

WatchedRun Watch(const ScheduleTerms& terms) {
    WatchedRun run;
    try {
        run.totals = RunSchedule(
            terms, [&run](const SchedulePeriod& period) { run.periods.push_back(period); });
    } catch (const OverflowFailure&) {
        run.totals.reset();
    }
    return run;
}

/// The principal parts repay the principal. Interest and payments add up to the totals.
void CheckSums(const ScheduleTerms& terms, const WatchedRun& run) {
    Money principal;
    Money interest;
    for (const SchedulePeriod& period : run.periods) {
        principal += period.principal;
        interest += period.interest;
    }
    const auto periods = std::ssize(run.periods);
    EXPECT_EQ(principal, terms.balance);
    EXPECT_EQ(interest, run.totals->interest);
    EXPECT_EQ(run.totals->periods, periods);
    const Money escrow = Money::FromTenThousandths(terms.escrowShare.TenThousandths() * periods);
    EXPECT_EQ(run.totals->paid, principal + interest + escrow);
    EXPECT_TRUE(run.periods.back().balance.IsZero());
}

/// Every payment but the last is the intended one; the last one is no larger.
void CheckPayments(const ScheduleTerms& terms, const WatchedRun& run) {
    for (const SchedulePeriod& period : run.periods) {
        const Money payment = period.principal + period.interest + terms.escrowShare;
        if (&period == &run.periods.back()) {
            EXPECT_LE(payment, terms.payment);
        } else {
            ASSERT_EQ(payment, terms.payment);
        }
    }
}

TEST(ScheduleProperties, PrincipalPartsAreThePrincipalAndTheSumsAgree) {
    int repaid = 0;
    ForRandomCases(500, [&repaid](Random& random) {
        const RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        const ScheduleTerms terms = loan.Terms(PaymentOf(loan, random));
        const WatchedRun run = Watch(terms);
        if (run.totals) {
            ++repaid;
            CheckSums(terms, run);
            CheckPayments(terms, run);
        }
    });
    RecordProperty("repaid", repaid);
    EXPECT_GT(repaid, 0);
}

/// At a rate of zero or above, no balance rises or stays: a payment that would allow it is an
/// overflow before the first period. Later, only the end of the calendar is an overflow.
TEST(ScheduleProperties, BalancesAndInterestNeverGrow) {
    ForRandomCases(500, [](Random& random) {
        RandomLoan loan = RandomLoan::Make(random);
        loan.rate = random.OneIn(10) ? Rate() : loan.rate;
        SCOPED_TRACE(loan);
        const Money least = loan.LeastPayment();
        const Money payment = random.OneIn(3)
                                  ? Money::FromDouble(least.ToDouble() * random.Between(-1.0, 1.0))
                                  : PaymentOf(loan, random);
        const ScheduleTerms terms = loan.Terms(payment);
        const WatchedRun run = Watch(terms);
        Money balance = terms.balance;
        Money interest = run.periods.empty() ? Money() : run.periods.front().interest;
        for (const SchedulePeriod& period : run.periods) {
            ASSERT_LT(period.balance, balance);
            ASSERT_LE(period.interest, interest);
            ASSERT_GE(period.interest, Money());
            balance = period.balance;
            interest = period.interest;
        }
        const Date reached = run.periods.empty() ? terms.start : run.periods.back().date;
        const bool lastDates = reached > Date::FromCalendar(9999, 11, 30);
        EXPECT_TRUE(run.totals || run.periods.empty() || lastDates);
    });
}

/// At a rate below zero, a balance grows exactly when the payment takes out more than the interest
/// earns.
TEST(ScheduleProperties, BalancesGrowUnderANegativeRateAlone) {
    int grown = 0;
    ForRandomCases(100, [&grown](Random& random) {
        RandomLoan loan = RandomLoan::Make(random);
        loan.rate = Rate::FromFraction(-random.OfAnySize(1e-3, 10.0));
        SCOPED_TRACE(loan);
        const double part = random.Between(-0.05, 0.1);
        const ScheduleTerms terms = loan.Terms(Money::FromDouble(loan.amount.ToDouble() * part));
        const WatchedRun run = Watch(terms);
        Money balance = terms.balance;
        for (const SchedulePeriod& period : run.periods) {
            const bool takenOut = terms.payment - terms.escrowShare < period.interest;
            ASSERT_EQ(period.balance > balance, takenOut);
            grown += takenOut ? 1 : 0;
            balance = period.balance;
        }
    });
    EXPECT_GT(grown, 0);
}

/// Rounding keeps the order of two amounts, so a balance that is once lower stays lower.
TEST(ScheduleProperties, AHigherPaymentNeverPaysOffLaterNorCostsMore) {
    ForRandomCases(500, [](Random& random) {
        const RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        const Money payment = PaymentOf(loan, random);
        const double share = random.OfAnySize(1e-6, 1.0);
        const Money higher =
            payment + Money::FromDouble(payment.ToDouble() * share) + Money::FromTenThousandths(1);
        const std::optional<ScheduleTotals> usual = Watch(loan.Terms(payment)).totals;
        const std::optional<ScheduleTotals> raised = Watch(loan.Terms(higher)).totals;
        if (!usual) {
            return; // less than the interest: never repaid
        }
        ASSERT_TRUE(raised) << higher.TenThousandths();
        EXPECT_LE(raised->payoff, usual->payoff);
        EXPECT_LE(raised->interest, usual->interest);
        EXPECT_LE(raised->periods, usual->periods);
    });
}

/// Computes each period from the balance before it. The interest is exact to the ten-thousandth,
/// unless the true one is so close to half of it that double precision cannot decide the side. The
/// rest is exact.
class SlowSchedule {
public:
    explicit SlowSchedule(const ScheduleTerms& terms)
        : m_terms(terms), m_balance(terms.balance), m_date(terms.start), m_ofMonth(terms.start) {}

    void Check(const SchedulePeriod& period) {
        const PreciseAmount interest =
            PreciseInterest(*m_terms.frequency, m_terms.rate.Fraction(), m_balance);
        const std::int64_t rounded = period.interest.TenThousandths();
        ASSERT_TRUE(interest.MayRoundTo(rounded));
        ASSERT_EQ(interest.Nearest().value_or(rounded), rounded);
        m_undecided += interest.Nearest() ? 0 : 1;
        Money principal = m_terms.payment - m_terms.escrowShare - period.interest;
        if (principal > m_balance) {
            principal = m_balance;
        } else {
            Step();
        }
        m_balance -= principal;
        ASSERT_EQ(period.principal, principal);
        ASSERT_EQ(period.balance, m_balance);
        ASSERT_EQ(period.date, m_date);
    }
    int Undecided() const { return m_undecided; }

private:
    /// Months by the calendar, weeks in days from the first date.
    void Step() {
        ++m_steps;
        const char16_t code = m_terms.frequency->code;
        if (code == u'W' || code == u'Q') {
            m_date = m_terms.start.PlusDays(m_steps * (code == u'W' ? 14 : 28));
        } else if (code == u'M' || m_steps % 2 == 0) {
            m_ofMonth = MonthAfter(m_ofMonth);
            m_date = m_ofMonth;
        } else {
            m_date = m_ofMonth.PlusDays(14);
        }
    }

    const ScheduleTerms& m_terms;
    Money m_balance;
    Date m_date;
    Date m_ofMonth; ///< the first of a pair
    int m_steps = 0;
    int m_undecided = 0;
};

TEST(ScheduleProperties, EveryPeriodAgreesWithThePreciseOne) {
    std::int64_t periods = 0;
    std::int64_t undecided = 0;
    ForRandomCases(500, [&](Random& random) {
        const RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        const ScheduleTerms terms = loan.Terms(PaymentOf(loan, random));
        SlowSchedule slow(terms);
        for (const SchedulePeriod& period : Watch(terms).periods) {
            slow.Check(period);
            if (testing::Test::HasFailure()) {
                return;
            }
            ++periods;
        }
        undecided += slow.Undecided();
    });
    RecordProperty("periods", std::to_string(periods));
    RecordProperty("undecided", std::to_string(undecided));
    EXPECT_LE(undecided, 1 + periods / 50);
}

/// Without rounding the balance after m payments a of a loan P is P * q^m - a * (q^m - 1) / x, with
/// q = 1 + x. A rounded period is off by at most half a ten-thousandth (and its error), and that
/// difference bears interest from then on: (1/2 + error) * (q^m - 1) / x in all.
TEST(ScheduleProperties, BalancesFollowTheClosedFormula) {
    ForRandomCases(500, [](Random& random) {
        const RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        const ScheduleTerms terms = loan.Terms(PaymentOf(loan, random));
        const Precise x = PeriodRate(*terms.frequency, terms.rate.Fraction());
        const auto principal = static_cast<Precise>(terms.balance.TenThousandths());
        const auto available =
            static_cast<Precise>((terms.payment - terms.escrowShare).TenThousandths());
        const Precise straying =
            PreciseInterest(*terms.frequency, terms.rate.Fraction(), terms.balance).strays;
        const auto half = static_cast<Precise>(0.5);
        Precise growth = 1;
        std::vector<SchedulePeriod> periods = Watch(terms).periods;
        if (!periods.empty()) {
            periods.pop_back(); // reduced to the remaining balance
        }
        for (const SchedulePeriod& period : periods) {
            growth *= 1 + x;
            const Precise payments = (growth - 1) / x;
            const Precise formula = principal * growth - available * payments;
            const auto balance = static_cast<Precise>(period.balance.TenThousandths());
            const Precise apart = balance < formula ? formula - balance : balance - formula;
            ASSERT_LE(apart, (half + straying) * payments) << period.balance.TenThousandths();
        }
    });
}

/// The computed payment is rounded by half a cent, each interest by half a ten-thousandth. While
/// the sum of these with its interest is less than half a payment, the loan takes the payments of
/// its term, or a small one more. Loans in weeks may end sooner: weeks are counted against 365
/// days, so they bear slightly less interest than the payment allows for.
TEST(ScheduleProperties, TheComputedPaymentRepaysWithinTheTerm) {
    int cases = 0;
    ForRandomCases(500, [&cases](Random& random) {
        const RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        const Frequency& frequency = *FindFrequency(loan.code);
        const double n = PeriodsOfTerm(frequency, loan.term);
        const double x = loan.rate.Fraction() / frequency.periodsPerYear;
        const double rounded = 0.00505 * (std::pow(1.0 + x, n) - 1.0) / x;
        const Money payment = loan.LeastPayment();
        if (rounded > (payment - loan.EscrowPart()).ToDouble() / 2.0) {
            return;
        }
        ++cases;
        const std::optional<ScheduleTotals> totals = Watch(loan.Terms(payment)).totals;
        ASSERT_TRUE(totals);
        EXPECT_LE(static_cast<double>(totals->periods), std::ceil(n) + 1.0);
        if (frequency.step != DateStep::Days) {
            EXPECT_GE(static_cast<double>(totals->periods), n);
        }
    });
    EXPECT_GT(cases, 0);
}

/// Without a frequency there is neither interest nor date: equal payments and a last one with the
/// rest.
TEST(ScheduleProperties, WithoutAFrequencyTheBalanceIsDivided) {
    ForRandomCases(2'000, [](Random& random) {
        const RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        ScheduleTerms terms = loan.Terms({});
        terms.frequency = nullptr;
        const double share = random.OfAnySize(1e-4, 2.0);
        const Money available =
            Money::FromDouble(terms.balance.ToDouble() * share) + Money::FromTenThousandths(1);
        terms.payment = available + terms.escrowShare;
        const WatchedRun run = Watch(terms);
        ASSERT_TRUE(run.totals);
        std::int64_t left = terms.balance.TenThousandths();
        for (const SchedulePeriod& period : run.periods) {
            left -= period.principal.TenThousandths() * period.repeats;
            EXPECT_EQ(period.balance.TenThousandths(), left);
            EXPECT_EQ(period.date, terms.start);
            EXPECT_GT(period.principal, Money());
            EXPECT_LE(period.principal, available);
        }
        EXPECT_EQ(left, 0);
        EXPECT_EQ(run.totals->interest, Money());
        const std::int64_t part = available.TenThousandths();
        EXPECT_EQ(run.totals->periods, (terms.balance.TenThousandths() - 1) / part + 1);
    });
}

} // namespace
