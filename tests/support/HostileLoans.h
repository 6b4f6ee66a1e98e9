#pragma once

#include "CLoan.h"
#include "Date.h"
#include "Frequency.h"
#include "Money.h"
#include "QuendNames.h"
#include "Schedule.h"

#include <array>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

/// All inputs of a loan's arithmetic.
struct HostileLoan {
    const char* kind = "";
    Money amount;
    Rate rate;
    Months term;
    FrequencyCode code;
    Money actualPayment;
    Money escrowMonthly;
    Percent points;
    Date start;

    ScheduleTerms Terms() const {
        return {.balance = amount,
                .rate = rate,
                .payment = actualPayment,
                .escrowShare = EscrowShare(code, escrowMonthly),
                .frequency = FindFrequency(code),
                .start = start};
    }
    /// The points are paid in cash.
    OfferValues Offer() const {
        return {.startingAmount = amount,
                .points = points,
                .financePoints = false,
                .term = term,
                .rate = rate,
                .frequency = code,
                .actualPayment = actualPayment};
    }
};

/// Loans that could slow down or break a schedule, the same in every run and on every system. It
/// does not know the right results.
class HostileLoans {
public:
    static std::vector<HostileLoan> Make(int count) {
        HostileLoans maker;
        std::vector<HostileLoan> loans;
        loans.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            loans.push_back(maker.One());
        }
        return loans;
    }

private:
    struct Kind {
        const char* name;
        int weight; ///< per cent
        void (HostileLoans::*distort)(HostileLoan&);
    };

    // Each endless kind runs for thousands of years, so a few are enough.
    static constexpr auto Kinds();

    HostileLoan One();

    std::int64_t Between(std::int64_t first, std::int64_t last) {
        return first +
               static_cast<std::int64_t>(m_random() % static_cast<std::uint64_t>(last - first + 1));
    }
    template <typename Value, std::size_t Count>
    Value AnyOf(const std::array<Value, Count>& values) {
        return values.at(m_random() % Count);
    }
    Money Cents(std::int64_t first, std::int64_t last) {
        return Money::FromTenThousandths(Between(first, last) * 100);
    }
    Money AnyMoney() {
        return Money::FromTenThousandths(static_cast<std::int64_t>(m_random() >> AnyShift()));
    }
    unsigned AnyShift() { return static_cast<unsigned>(Between(0, 50)); }
    FrequencyCode AnyCode() { return Frequencies.at(m_random() % Frequencies.size()).Code(); }

    void Leave(HostileLoan&) {}
    void PayFirstInterest(HostileLoan& loan) {
        loan.actualPayment = EscrowShare(loan.code, loan.escrowMonthly) + FirstInterest(loan) +
                             Money::FromTenThousandths(Between(-1, 1));
    }
    void LastToTheEndOfTime(HostileLoan& loan) {
        loan.amount = Money::FromTenThousandths(Between(1, 9) * 10'000'000'000'000);
        loan.rate = Rate::FromFraction(AnyOf(std::array{0.0, 0.0, -0.0, 1e-12, -1e-9}));
        loan.escrowMonthly = Money();
        loan.actualPayment = FirstInterest(loan) + Cents(1, 100);
        loan.start = Date::FromDays(static_cast<int>(Between(1, 50'000)));
    }
    void GrowUnderANegativeRate(HostileLoan& loan) {
        loan.rate = Rate::FromFraction(-static_cast<double>(Between(1, 100'000)) / 1000.0);
        loan.actualPayment = -loan.actualPayment;
    }
    void TurnSigns(HostileLoan& loan) {
        const auto turned = m_random();
        loan.amount = (turned & 1U) != 0U ? -loan.amount : loan.amount;
        loan.actualPayment = (turned & 2U) != 0U ? -loan.actualPayment : loan.actualPayment;
        loan.escrowMonthly = (turned & 4U) != 0U ? -loan.escrowMonthly : loan.escrowMonthly;
        loan.rate = Rate::FromFraction(loan.rate.Fraction() * ((turned & 8U) != 0U ? -1 : 1));
        loan.term.count *= (turned & 16U) != 0U ? -1 : 1;
    }
    void StretchTerm(HostileLoan& loan) {
        using Limits = std::numeric_limits<int>;
        loan.term.count =
            AnyOf(std::array{Limits::max(), Limits::min(), Limits::max() / 2, Limits::max() / 2 + 1,
                             Limits::min() / 2, 1'000'000, -1});
    }
    void BreakRate(HostileLoan& loan) {
        using Limits = std::numeric_limits<double>;
        loan.rate = Rate::FromFraction(AnyOf(
            std::array{Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(),
                       Limits::denorm_min(), 1e-17, 1e9, -12.0, -26.5, -1e30}));
        loan.points =
            Percent::FromPercent(AnyOf(std::array{0.0, 1e30, Limits::quiet_NaN(), -100.0}));
    }
    void FillTheRange(HostileLoan& loan) {
        loan.amount = AnyMoney();
        loan.actualPayment = AnyMoney();
        loan.escrowMonthly = AnyMoney();
    }
    void LoseFrequency(HostileLoan& loan) {
        loan.code =
            FrequencyCode(AnyOf(std::array{QString(), QStringLiteral("X"), QStringLiteral("m"),
                                           QStringLiteral("MM"), QStringLiteral(" ")}));
        loan.amount = AnyMoney();
    }
    void StartLate(HostileLoan& loan) {
        loan.start = Date::FromDays(static_cast<int>(Between(2'958'000, Date::Last().Days())));
    }

    Money FirstInterest(const HostileLoan& loan) {
        const Frequency* const frequency = FindFrequency(loan.code);
        return Money::FromDouble(loan.amount.ToDouble() * loan.rate.Fraction() /
                                 frequency->interestYear * frequency->interestParts);
    }

    std::mt19937_64 m_random{20'260'721};
};

constexpr auto HostileLoans::Kinds() {
    return std::array{
        Kind{"ordinary", 30, &HostileLoans::Leave},
        Kind{"pays about its first interest", 12, &HostileLoans::PayFirstInterest},
        Kind{"lasts to the end of time", 2, &HostileLoans::LastToTheEndOfTime},
        Kind{"grows under a negative rate", 2, &HostileLoans::GrowUnderANegativeRate},
        Kind{"signs turned", 12, &HostileLoans::TurnSigns},
        Kind{"term out of reach", 10, &HostileLoans::StretchTerm},
        Kind{"rate out of reach", 10, &HostileLoans::BreakRate},
        Kind{"any amounts", 8, &HostileLoans::FillTheRange},
        Kind{"no frequency", 8, &HostileLoans::LoseFrequency},
        Kind{"starts in the last years", 6, &HostileLoans::StartLate},
    };
}

inline HostileLoan HostileLoans::One() {
    HostileLoan loan;
    loan.amount = Cents(1, 100'000'000);
    loan.rate = Rate::FromFraction(static_cast<double>(Between(1, 30'000)) / 100'000.0);
    loan.term = Months{static_cast<int>(Between(1, 480))};
    loan.code = AnyCode();
    // Between a long and a short repayment.
    loan.actualPayment =
        Money::FromDoubleInCents(loan.amount.ToDouble() / static_cast<double>(Between(2, 200)));
    loan.escrowMonthly = Cents(0, 30'000);
    loan.points = Percent::FromPercent(static_cast<double>(Between(0, 8)) / 2.0);
    loan.start = Date::FromDays(static_cast<int>(Between(0, 60'000)));

    auto left = Between(0, 99);
    for (const Kind& kind : Kinds()) {
        if (left < kind.weight) {
            loan.kind = kind.name;
            (this->*kind.distort)(loan);
            break;
        }
        left -= kind.weight;
    }
    return loan;
}
