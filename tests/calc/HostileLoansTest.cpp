#include "HostileLoans.h"
#include "QuendNames.h"

#include "CLoan.h"
#include "Failure.h"
#include "MonthAfter.h"
#include "RecordingLoanContext.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>

namespace {

constexpr int LoanCount = 10'000;
constexpr int Patience = 1'000; // most periods that the plain loop runs

std::optional<ScheduleTotals> Fast(const HostileLoan& loan) {
    try {
        return RunSchedule(loan.Terms());
    } catch (const OverflowFailure&) {
        return std::nullopt;
    }
}

/// The schedule as a plain loop, one period after the other, with converting calendar steps and no
/// shortcut.
class PlainLoop {
public:
    enum class End { Paid, Overflow, Unknown };

    explicit PlainLoop(const HostileLoan& loan)
        : m_loan(loan), m_balance(loan.amount), m_date(loan.start) {}

    End Run() {
        try {
            for (int period = 0; period < Patience; ++period) {
                if (m_balance.IsZero()) {
                    return End::Paid;
                }
                Pay();
                ++m_totals.periods;
            }
        } catch (const OverflowFailure&) {
            return End::Overflow;
        }
        return End::Unknown;
    }
    ScheduleTotals Totals() const {
        ScheduleTotals totals = m_totals;
        totals.payoff = totals.periods == 0 ? Date() : m_date;
        return totals;
    }

private:
    void Pay() {
        const Money escrow = EscrowShare(m_loan.code, m_loan.escrowMonthly);
        const Money interest = Money::FromDouble(InterestUnits());
        Money principal = m_loan.actualPayment - escrow - interest;
        if (principal > m_balance) {
            principal = m_balance;
        } else {
            Step();
        }
        m_totals.paid += escrow + principal + interest;
        m_totals.interest += interest;
        m_balance -= principal;
    }
    double InterestUnits() const {
        const double units = m_balance.ToDouble();
        const double rate = m_loan.rate.Fraction();
        const QString& code = m_loan.code.Text();
        return code == u"M"   ? units * rate / 12
               : code == u"B" ? units * rate / 24
               : code == u"W" ? units * rate / 365 * 14
               : code == u"Q" ? units * rate / 365 * 28
                              : 0.0;
    }
    void Step() {
        const QString& code = m_loan.code.Text();
        if (code == u"M") {
            m_date = MonthAfter(m_date);
        } else if (code == u"W") {
            m_date = m_date.PlusDays(14);
        } else if (code == u"Q") {
            m_date = m_date.PlusDays(28);
        } else if (code == u"B") {
            const Date before = m_date;
            m_date = m_secondHalf ? MonthAfter(m_saved) : m_date.PlusDays(14);
            m_saved = m_secondHalf ? m_saved : before;
            m_secondHalf = !m_secondHalf;
        }
    }

    const HostileLoan& m_loan;
    Money m_balance;
    Date m_date;
    Date m_saved;
    bool m_secondHalf = false;
    ScheduleTotals m_totals;
};

TEST(HostileLoans, AllEndAsThePlainLoopDoes) {
    std::map<std::string, int> compared;
    for (const HostileLoan& loan : HostileLoans::Make(LoanCount)) {
        SCOPED_TRACE(testing::Message()
                     << loan.kind << ": " << loan.amount.ToDouble() << " at "
                     << loan.rate.Fraction() << " " << loan.code.Text().toStdString() << " pays "
                     << loan.actualPayment.ToDouble() << " escrow " << loan.escrowMonthly.ToDouble()
                     << " from " << loan.start.Days());
        const std::optional<ScheduleTotals> fast = Fast(loan);
        PlainLoop plain(loan);
        const PlainLoop::End end = plain.Run();
        if (end == PlainLoop::End::Unknown) {
            EXPECT_TRUE(!fast || fast->periods > Patience);
            continue;
        }
        ++compared[fast ? "paid" : "overflow"];
        ASSERT_EQ(fast.has_value(), end == PlainLoop::End::Paid);
        if (fast) {
            const ScheduleTotals slow = plain.Totals();
            EXPECT_EQ(fast->payoff, slow.payoff);
            EXPECT_EQ(fast->interest.TenThousandths(), slow.interest.TenThousandths());
            EXPECT_EQ(fast->paid.TenThousandths(), slow.paid.TenThousandths());
            EXPECT_EQ(fast->periods, slow.periods);
        }
    }
    // Both ends occurred often enough for the comparison to be meaningful.
    EXPECT_GT(compared["paid"], LoanCount / 4);
    EXPECT_GT(compared["overflow"], LoanCount / 50);
}

/// Sums over the records that a schedule passed to its observer.
struct Watched {
    Money interest;
    Money principal;
    std::int64_t periods = 0;
    bool datesInOrder = true;
    bool balanced = true; ///< every record's balance follows from the one before
    Money balance;
    Date date;
};

Watched Watch(const HostileLoan& loan) {
    Watched sums;
    sums.balance = loan.amount;
    sums.date = loan.start;
    RunToPayoff(loan.Terms(), [&sums](const SchedulePeriod& period) {
        const auto all = [&period](Money amount) {
            return Money::FromTenThousandths(amount.TenThousandths() * period.repeats);
        };
        sums.interest += all(period.interest);
        sums.principal += all(period.principal);
        sums.periods += period.repeats;
        sums.datesInOrder = sums.datesInOrder && sums.date <= period.date;
        sums.balanced = sums.balanced && sums.balance - all(period.principal) == period.balance;
        sums.balance = period.balance;
        sums.date = period.date;
    });
    return sums;
}

TEST(HostileLoans, RepayExactlyTheirPrincipal) {
    int repaid = 0;
    for (const HostileLoan& loan : HostileLoans::Make(LoanCount / 4)) {
        const std::optional<ScheduleTotals> totals = Fast(loan);
        if (!totals || totals->periods == 0) {
            continue;
        }
        SCOPED_TRACE(testing::Message() << loan.kind << " " << loan.amount.ToDouble());
        const Watched sums = Watch(loan);
        ++repaid;
        EXPECT_EQ(sums.principal, loan.amount);
        EXPECT_EQ(sums.interest, totals->interest);
        EXPECT_EQ(sums.periods, totals->periods);
        EXPECT_EQ(sums.date, totals->payoff);
        EXPECT_TRUE(sums.balance.IsZero());
        EXPECT_TRUE(sums.balanced);
        EXPECT_TRUE(sums.datesInOrder);
    }
    EXPECT_GT(repaid, LoanCount / 16);
}

/// Asks an offer for every result. Anything but a result or an overflow ends the test.
int AnswersOf(const HostileLoan& loan, RecordingLoanContext& context) {
    OfferValues values = loan.Offer();
    values.financePoints = !loan.points.IsZero();
    values.actualPayment = Money();
    CLoan offer = MakeOffer(context, values);
    int answers = 0;
    const auto ask = [&answers](const auto& question) {
        try {
            question();
            ++answers;
        } catch (const OverflowFailure&) {
            return;
        }
    };
    ask([&] { offer.SetActualPayment(loan.actualPayment); });
    ask([&] { offer.StartingPrinciple(); });
    ask([&] { offer.PandI(); });
    ask([&] {
        const Money payment = offer.Payment();
        EXPECT_TRUE(payment.IsZero() || offer.ActualPayment() >= payment);
    });
    ask([&] {
        const bool dated = !offer.PayoffDate().IsNone();
        EXPECT_TRUE(dated || offer.Interest().IsZero());
    });
    return answers;
}

TEST(HostileLoans, GetAnAnswerOrAnOverflowFromAnOffer) {
    int complete = 0;
    for (const HostileLoan& loan : HostileLoans::Make(LoanCount)) {
        RecordingLoanContext context;
        context.escrowMonthly = loan.escrowMonthly;
        context.today = loan.start;
        complete += AnswersOf(loan, context) == 5 ? 1 : 0;
    }
    EXPECT_GT(complete, LoanCount / 2);
    EXPECT_LT(complete, LoanCount);
}

} // namespace
