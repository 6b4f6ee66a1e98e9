#include "CLoan.h"
#include "QuendNames.h"

#include "Failure.h"
#include "Language.h"
#include "RecordingLoanContext.h"
#include "TextNumbers.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

static_assert(std::is_nothrow_move_constructible_v<CLoan>); // so that a growing vector moves it
static_assert(std::is_move_assignable_v<CLoan>);

Money Units(double units) { return Money::FromDouble(units); }

/// 100,000.00 at 6 % for 360 months, monthly, escrow 250.00: 849.55 a month.
class CLoanTest : public testing::Test {
protected:
    CLoanTest() {
        m_context.escrowMonthly = Units(250.0);
        m_context.today = Date::FromCalendar(2026, 3, 10);
        m_loan.SetStartingAmount(Units(100'000.0));
        m_loan.SetTerm(Months{360});
        m_loan.SetInterestRate(Rate::FromFraction(0.06));
        m_loan.SetFrequencyCode(FrequencyCode(u"M"_s));
        m_context.dirtied = 0;
    }

    RecordingLoanContext m_context;
    CLoan m_loan{m_context};
};

TEST_F(CLoanTest, StartsEmpty) {
    m_context.loanTerm = Months{360};
    CLoan fresh(m_context);
    EXPECT_FALSE(fresh.FinancePoints());
    EXPECT_FALSE(MakeOffer(m_context, {}).FinancePoints());
    EXPECT_TRUE(fresh.Points().IsZero());
    EXPECT_FALSE(fresh.FinanceClosingCosts());
    EXPECT_EQ(fresh.ClosingCosts(), Money());
    EXPECT_EQ(fresh.Costs(), Money());
    EXPECT_TRUE(fresh.Term().IsZero());
    EXPECT_TRUE(fresh.InterestRate().IsZero());
    EXPECT_TRUE(fresh.FrequencyCode().IsNone());
    EXPECT_EQ(fresh.Frequency(), QString());
    EXPECT_EQ(fresh.ActualPayment(), Money());
    EXPECT_FALSE(fresh.Forced());
    EXPECT_EQ(fresh.Interest(), Money());
    EXPECT_EQ(fresh.Who(), QString());
    EXPECT_EQ(fresh.StartingPrinciple(), Money());
    EXPECT_EQ(fresh.PandI(), Money());
    EXPECT_EQ(fresh.Payment(), Money());
    EXPECT_TRUE(fresh.PayoffDate().IsNone());
    EXPECT_EQ(m_context.dirtied, 0);
}

struct PaymentCase {
    QString code;
    double principalAndInterest;
    double payment;
};

/// Every entry is compared; results are not.
TEST_F(CLoanTest, HasTheEntriesOfItsCopyUntilOneChanges) {
    const CLoan same = m_loan;
    static_cast<void>(m_loan.PayoffDate());
    EXPECT_TRUE(m_loan.HasSameEntries(same));
    const std::vector<std::function<void(CLoan&)>> changes{
        [](CLoan& loan) { loan.SetFinancePoints(true); },
        [](CLoan& loan) { loan.SetPoints(Percent::FromPercent(1)); },
        [](CLoan& loan) { loan.SetFinanceClosingCosts(true); },
        [](CLoan& loan) { loan.SetClosingCosts(Units(1)); },
        [](CLoan& loan) { loan.SetCosts(Units(1)); },
        [](CLoan& loan) { loan.SetStartingAmount(Units(1)); },
        [](CLoan& loan) { loan.SetTerm(Months{1}); },
        [](CLoan& loan) { loan.SetInterestRate(Rate::FromFraction(0.01)); },
        [](CLoan& loan) { loan.SetFrequencyCode(FrequencyCode(u"B"_s)); },
        [](CLoan& loan) { loan.SetActualPayment(Units(1'000)); },
        [](CLoan& loan) { loan.SetWho(u"Bank"_s); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        CLoan other = same;
        changes[i](other);
        EXPECT_FALSE(other.HasSameEntries(same)) << "change " << i;
    }
}

TEST_F(CLoanTest, AddsTheEscrowShareToThePayment) {
    // clang-format off
    const std::vector<PaymentCase> cases{
        // code     principalAndInterest  payment
        {  u"M"_s,               599.55,  849.55 },
        {  u"B"_s,               299.64,  424.64 },
        {  u"W"_s,               276.58,  401.58 },
        {  u"Q"_s,               553.39,  803.39 },
        {  u"X"_s,                  0.0,     0.0 },
        {  u""_s,                   0.0,     0.0 },
    };
    // clang-format on
    for (const auto& [code, principalAndInterest, payment] : cases) {
        m_loan.SetFrequencyCode(FrequencyCode(code));
        EXPECT_EQ(m_loan.PandI(), Units(principalAndInterest)) << code.toStdString();
        EXPECT_EQ(m_loan.Payment(), Units(payment)) << code.toStdString();
    }
}

struct PrincipalCase {
    double amount;
    double points;
    bool financePoints;
    double costs;
    bool financeCosts;
    double principal;
};

TEST_F(CLoanTest, BorrowsFinancedPointsAndCostsToo) {
    // clang-format off
    const std::vector<PrincipalCase> cases{
        //     amount  points  financePoints    costs  financeCosts     principal
        {   200'000.0,   1.25, true,              0.0, false,           202'500.0 },
        {   200'000.0,   1.25, false,             0.0, false,           200'000.0 },
        {   200'000.0,    0.0, true,          3'000.0, true,            203'000.0 },
        {   200'000.0,   1.25, true,          3'000.0, true,            205'500.0 },
        {   200'000.0,   1.25, true,          3'000.0, false,           202'500.0 },
        {  738'605.85,  2.875, true,              0.0, false,        759'840.7682 }, // to the ten-thousandth
        {       100.0,   -1.0, true,              0.0, false,                99.0 },
        {         0.0,   1.25, true,          3'000.0, true,              3'000.0 },
    };
    // clang-format on
    for (const PrincipalCase& row : cases) {
        SCOPED_TRACE(testing::Message() << row.amount << " " << row.points);
        m_loan.SetStartingAmount(Units(row.amount));
        m_loan.SetPoints(Percent::FromPercent(row.points));
        m_loan.SetFinancePoints(row.financePoints);
        m_loan.SetClosingCosts(Units(row.costs));
        m_loan.SetCosts(Units(row.costs + 1.0)); // never borrowed
        m_loan.SetFinanceClosingCosts(row.financeCosts);
        EXPECT_EQ(m_loan.StartingPrinciple(), Units(row.principal));
    }
}

struct DirtyCase {
    const char* property;
    std::function<void(CLoan&)> set;
};

TEST_F(CLoanTest, MarksTheWorksheetDirtyWhenAValueChanges) {
    m_loan.Payment(); // later calls no longer raise the actual payment
    const QString weekly = GetResourceText(TextNumber::FrequencyEveryTwoWeeks);
    const std::vector<DirtyCase> cases{
        {"FinancePoints", [](CLoan& loan) { loan.SetFinancePoints(true); }},
        {"Points", [](CLoan& loan) { loan.SetPoints(Percent::FromPercent(1.25)); }},
        {"FinanceClosingCosts", [](CLoan& loan) { loan.SetFinanceClosingCosts(true); }},
        {"ClosingCosts", [](CLoan& loan) { loan.SetClosingCosts(Units(1.0)); }},
        {"Costs", [](CLoan& loan) { loan.SetCosts(Units(1.0)); }},
        {"Term", [](CLoan& loan) { loan.SetTerm(Months{180}); }},
        {"InterestRate", [](CLoan& loan) { loan.SetInterestRate(Rate::FromFraction(0.07)); }},
        {"FrequencyCode", [](CLoan& loan) { loan.SetFrequencyCode(FrequencyCode(u"B"_s)); }},
        {"Frequency", [&weekly](CLoan& loan) { loan.SetFrequency(weekly); }},
        {"ActualPayment", [](CLoan& loan) { loan.SetActualPayment(Units(5'000.0)); }},
        {"Who", [](CLoan& loan) { loan.SetWho(u"First Bank"_s); }},
    };
    for (const auto& [property, set] : cases) {
        m_context.dirtied = 0;
        set(m_loan);
        EXPECT_EQ(m_context.dirtied, 1) << property;
        set(m_loan);
        EXPECT_EQ(m_context.dirtied, 1) << property << " again";
    }
    m_context.dirtied = 0;
    m_loan.SetStartingAmount(Units(7.0));
    EXPECT_EQ(m_context.dirtied, 0);
}

struct MissingTermCase {
    int term;
    double rate;
    int defaultTerm;
    int termAfter;
};

TEST_F(CLoanTest, TakesTheDefaultTermWithARate) {
    // clang-format off
    const std::vector<MissingTermCase> cases{
        // term   rate  defaultTerm  termAfter
        {     0,  0.05,         240,       240 },
        {     0,   0.0,         240,         0 },
        {   120,  0.05,         240,       120 },
        {     0,  0.05,           0,         0 },
        {     0, -0.05,         240,       240 },
        {    -5,  0.05,         240,        -5 },
    };
    // clang-format on
    for (const auto& [term, rate, defaultTerm, termAfter] : cases) {
        m_loan.SetTerm(Months{term});
        m_context.loanTerm = Months{defaultTerm};
        m_loan.SetInterestRate(Rate::FromFraction(rate));
        EXPECT_EQ(m_loan.Term().count, termAfter) << term << " at " << rate;
        EXPECT_EQ(m_loan.InterestRate().Fraction(), rate);
    }
}

TEST_F(CLoanTest, TakesTheDefaultTermEvenWhenTheRateStaysTheSame) {
    m_loan.SetTerm(Months{0});
    m_context.loanTerm = Months{240};
    m_loan.SetInterestRate(Rate::FromFraction(0.06));
    EXPECT_EQ(m_loan.Term(), Months{240});
}

TEST_F(CLoanTest, KnowsItsFrequencyByTextAndByCode) {
    m_loan.SetFrequency(GetResourceText(TextNumber::FrequencyEveryFourWeeks));
    EXPECT_EQ(m_loan.FrequencyCode(), FrequencyCode(u"Q"_s));
    EXPECT_EQ(m_loan.Frequency(), GetResourceText(TextNumber::FrequencyEveryFourWeeks));
    m_loan.SetFrequencyCode(FrequencyCode(u"x1"_s));
    EXPECT_EQ(m_loan.FrequencyCode(), FrequencyCode(u"x1"_s));
    EXPECT_EQ(m_loan.Frequency(), QString());
    m_loan.SetFrequency(u"now and then"_s);
    EXPECT_TRUE(m_loan.FrequencyCode().IsNone());
    EXPECT_EQ(m_loan.PandI(), Money());
    EXPECT_EQ(m_loan.Payment(), Money());
    EXPECT_TRUE(m_loan.PayoffDate().IsNone());
}

TEST_F(CLoanTest, RaisesALowActualPaymentAndReportsItOnce) {
    EXPECT_EQ(m_loan.Payment(), Units(849.55));
    EXPECT_EQ(m_loan.ActualPayment(), Units(849.55));
    EXPECT_EQ(m_context.dirtied, 1);
    EXPECT_EQ(m_context.refused, 0);
    EXPECT_TRUE(m_loan.Forced());
    EXPECT_FALSE(m_loan.Forced());
    m_loan.Payment(); // now high enough
    EXPECT_FALSE(m_loan.Forced());
    EXPECT_EQ(m_context.dirtied, 1);
    m_loan.SetInterestRate(Rate::FromFraction(0.05)); // does not lower the actual payment
    EXPECT_EQ(m_loan.Payment(), Units(786.82));
    EXPECT_EQ(m_loan.ActualPayment(), Units(849.55));
    EXPECT_FALSE(m_loan.Forced());
}

TEST_F(CLoanTest, RaisesNothingWithoutAPayment) {
    m_loan.SetInterestRate(Rate::FromFraction(0.0));
    EXPECT_EQ(m_loan.PandI(), Money());
    EXPECT_EQ(m_loan.Payment(), Money());
    EXPECT_EQ(m_loan.ActualPayment(), Money());
    EXPECT_FALSE(m_loan.Forced());
    m_loan.SetActualPayment(Units(0.01));
    EXPECT_EQ(m_loan.ActualPayment(), Units(0.01));
    EXPECT_TRUE(m_loan.PayoffDate().IsNone());
    m_loan.SetActualPayment(Units(-1.0));
    EXPECT_EQ(m_loan.Payment(), Money());
    EXPECT_EQ(m_loan.ActualPayment(), Units(-1.0));
    EXPECT_FALSE(m_loan.Forced());
}

struct ActualPaymentCase {
    double before; ///< stored after the loan's payment of 849.55 was computed
    double entered;
    double after;
    int refused;
    int dirtied;
};

TEST_F(CLoanTest, ChecksAnEnteredActualPayment) {
    // clang-format off
    const std::vector<ActualPaymentCase> cases{
        //  before   entered     after  refused  dirtied
        {   849.55,    500.0,   849.55,       1,       0 },
        {   849.55, 849.5499,   849.55,       1,       0 },
        {   849.55,   849.55,   849.55,       0,       0 },
        {   849.55, 849.5501, 849.5501,       0,       1 },
        {   849.55,  1'000.0,  1'000.0,       0,       1 },
        {  1'000.0,   0.0001,   849.55,       1,       1 },
        {  1'000.0,  1'000.0,  1'000.0,       0,       0 },
        {   849.55,      0.0,      0.0,       0,       1 },
        {   849.55,     -1.0,     -1.0,       0,       1 },
    };
    // clang-format on
    for (const ActualPaymentCase& row : cases) {
        SCOPED_TRACE(row.entered);
        m_loan.SetActualPayment(Units(row.before));
        m_loan.Forced();
        m_context.refused = 0;
        m_context.dirtied = 0;
        m_loan.SetActualPayment(Units(row.entered));
        EXPECT_EQ(m_loan.ActualPayment(), Units(row.after));
        EXPECT_FALSE(m_loan.Forced());
        EXPECT_EQ(m_context.refused, row.refused);
        EXPECT_EQ(m_context.dirtied, row.dirtied);
    }
}

TEST_F(CLoanTest, RaisesAnAcceptedZeroAtTheNextReading) {
    m_loan.SetActualPayment(Money());
    EXPECT_EQ(m_loan.ActualPayment(), Money());
    EXPECT_TRUE(m_loan.Forced()); // checking the entry already computed the payment
    m_loan.Payment();
    EXPECT_EQ(m_loan.ActualPayment(), Units(849.55));
    EXPECT_TRUE(m_loan.Forced());
}

TEST_F(CLoanTest, PaysOffFromTodayOn) {
    m_loan.SetStartingAmount(Units(1'000.0));
    m_loan.SetInterestRate(Rate::FromFraction(0.12));
    m_loan.SetTerm(Months{2});
    m_context.escrowMonthly = Money();
    m_loan.SetActualPayment(Units(600.0));
    EXPECT_EQ(m_loan.PandI(), Units(507.51));
    EXPECT_EQ(m_loan.Interest(), Money());
    EXPECT_EQ(m_loan.PayoffDate(), Date::FromCalendar(2026, 4, 10));
    EXPECT_EQ(m_loan.Interest(), Units(14.1));
    m_loan.SetActualPayment(Units(1'010.0));   // exactly clears it
    EXPECT_EQ(m_loan.Interest(), Units(14.1)); // result of the previous schedule
    EXPECT_EQ(m_loan.PayoffDate(), Date::FromCalendar(2026, 4, 10));
    EXPECT_EQ(m_loan.Interest(), Units(10.0));
    m_loan.SetActualPayment(Units(1'010.01)); // overpays: still dated today
    EXPECT_EQ(m_loan.PayoffDate(), m_context.today);
}

TEST_F(CLoanTest, PaysOffAnUnknownFrequencyWithoutInterestOrTime) {
    m_loan.SetFrequencyCode(FrequencyCode(u"X"_s));
    m_loan.SetActualPayment(Units(1'000.0));
    EXPECT_EQ(m_loan.PayoffDate(), m_context.today);
    EXPECT_EQ(m_loan.Interest(), Money());
    m_loan.SetActualPayment(Units(125.0)); // half the escrow takes all of it
    EXPECT_THROW(m_loan.PayoffDate(), OverflowFailure);
}

struct NoDateCase {
    const char* missing;
    std::function<void(CLoan&)> clear;
};

TEST_F(CLoanTest, HasNoPayoffDateWhileAnInputIsMissing) {
    const std::vector<NoDateCase> cases{
        {"principal", [](CLoan& loan) { loan.SetStartingAmount(Money()); }},
        {"rate", [](CLoan& loan) { loan.SetInterestRate(Rate::FromFraction(0.0)); }},
        {"frequency", [](CLoan& loan) { loan.SetFrequencyCode(FrequencyCode()); }},
        {"actual payment", [](CLoan& loan) { loan.SetActualPayment(Money()); }},
    };
    for (const auto& [missing, clear] : cases) {
        CLoan loan = m_loan;
        loan.Payment();
        EXPECT_FALSE(loan.PayoffDate().IsNone());
        EXPECT_FALSE(loan.Interest().IsZero());
        clear(loan);
        EXPECT_TRUE(loan.PayoffDate().IsNone()) << missing;
        EXPECT_EQ(loan.Interest(), Money()) << missing;
    }
}

TEST_F(CLoanTest, ForgetsItsInterestWhenThePayoffFails) {
    m_loan.Payment();
    m_loan.PayoffDate();
    ASSERT_FALSE(m_loan.Interest().IsZero());
    m_loan.SetActualPayment(Units(-1.0));
    EXPECT_THROW(m_loan.PayoffDate(), OverflowFailure);
    EXPECT_EQ(m_loan.Interest(), Money());
    // A principal out of range fails before the schedule starts.
    m_loan.SetActualPayment(Units(1'000.0));
    m_loan.PayoffDate();
    m_loan.SetStartingAmount(Units(9e14));
    m_loan.SetPoints(Percent::FromPercent(50.0));
    m_loan.SetFinancePoints(true);
    EXPECT_THROW(m_loan.PayoffDate(), OverflowFailure);
    EXPECT_EQ(m_loan.Interest(), Money());
}

TEST_F(CLoanTest, PassesOverflowOnAndKeepsWhatWasStored) {
    m_loan.SetActualPayment(Units(900.0));
    m_loan.SetFrequencyCode(FrequencyCode(u"B"_s));
    m_loan.SetTerm(Months{std::numeric_limits<int>::max()});
    EXPECT_THROW(m_loan.PandI(), OverflowFailure);
    EXPECT_THROW(m_loan.Payment(), OverflowFailure);
    EXPECT_THROW(m_loan.SetActualPayment(Units(1'000.0)), OverflowFailure);
    EXPECT_EQ(m_loan.ActualPayment(), Units(900.0));
    EXPECT_EQ(m_loan.StartingPrinciple(), Units(100'000.0));
}

TEST_F(CLoanTest, LivesInAVector) {
    std::vector<CLoan> offers;
    for (int i = 0; i < 20; ++i) {
        offers.emplace_back(m_context).SetPoints(Percent::FromPercent(i));
    }
    offers.push_back(std::move(m_loan));
    EXPECT_EQ(offers.at(7).Points(), Percent::FromPercent(7.0));
    EXPECT_EQ(offers.back().Payment(), Units(849.55));
}

} // namespace
