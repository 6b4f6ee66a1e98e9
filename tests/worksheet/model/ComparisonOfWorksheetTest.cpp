// A comparison computes what the window shows, from any worksheet.

#include "ComparisonOfWorksheet.h"
#include "Failure.h"
#include "QuendNames.h"
#include "RandomCases.h"
#include "WorksheetTest.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int OfferCount = 4;

class ComparisonOfWorksheet : public WorksheetTest {
protected:
    ComparisonOfWorksheet() { m_worksheet.GrowOfferArrays(Row{-1}, Row{OfferCount - 1}); }

    /// A value that cannot be computed with is stored, too.
    void Put(Field field, const FieldValue& value) {
        try {
            m_worksheet.Store(field, value);
        } catch (const OverflowFailure&) { // NOLINT(bugprone-empty-catch)
        }
    }
    /// Often nothing, seldom too much.
    static Money Amount(Random& random, double highest) {
        const double most = random.OneIn(40) ? 9e14 : highest;
        return random.OneIn(6) ? Money() : Units(std::floor(random.OfAnySize(1, most)));
    }
    static FrequencyCode Code(Random& random) {
        return FrequencyCode(random.OneOf(std::array{u"M"_s, u"B"_s, u"W"_s, u"Q"_s, u""_s}));
    }
    static Months Term(Random& random) { return {12 * std::max(0, random.Int(-5, 40))}; }
    /// Between -1 % and 15 %.
    static Rate AnyRate(Random& random) {
        return Rate::FromFraction(random.OneIn(8) ? 0.0 : random.Int(-8, 120) / 800.0);
    }

    void EnterAny(Random& random) {
        m_worksheet.Clear();
        Put({FieldId::LoanAmount}, Amount(random, 1e6));
        Put({FieldId::LoanTerm}, Term(random));
        Put({FieldId::AnnualTaxes}, Amount(random, 1e4));
        if (!random.OneIn(5)) {
            EnterAnyCurrentLoan(random);
        }
        for (Row row{0}; row.value < random.Int(0, OfferCount); ++row.value) {
            EnterAnyOffer(random, row);
        }
        random.OneIn(2) ? m_worksheet.SortByInterest() : m_worksheet.SortByPayoffDate();
        m_worksheet.ShowOffers();
    }
    void EnterAnyCurrentLoan(Random& random) {
        Put({FieldId::CurLoanAmount}, Amount(random, 1e6));
        Put({FieldId::CurLoanTerm}, Term(random));
        Put({FieldId::CurInterestRate}, AnyRate(random));
        Put({FieldId::CurPaymentFrequency}, Code(random));
        Put({FieldId::CurrentBalance}, Amount(random, 1e5));
        Put({FieldId::CurActualPayment}, Amount(random, 1e4));
        Put({FieldId::ActPaymentFrequency}, Code(random));
        const int today = m_worksheet.Today().Days();
        Put({FieldId::NextPayment}, Date::FromDays(random.Int(today - 400, today + 400)));
    }
    void EnterAnyOffer(Random& random, Row row) {
        Put({FieldId::Term, row}, Term(random));
        Put({FieldId::InterestRate, row}, AnyRate(random));
        Put({FieldId::Points, row}, Percent::FromPercent(random.Int(-8, 40) / 8.0));
        Put({FieldId::FinancePoints, row}, random.OneIn(2));
        Put({FieldId::Costs, row}, Amount(random, 1e4) - Units(100));
        Put({FieldId::ActualPayment, row}, Amount(random, 1e4));
        Put({FieldId::Frequency, row}, Code(random)); // last: raises a missing payment
    }

    template <class Value>
    void ExpectShown(Field field, const std::optional<Value>& value) const {
        EXPECT_EQ(TextOf(field), m_worksheet.Texts().DisplayText(value.value_or(Value())))
            << testing::PrintToString(field);
    }
    void ExpectOffer(OfferIndex place, const OfferComparison& offer) const {
        const Row row = m_worksheet.RowOfOffer(place);
        ExpectShown({FieldId::PandI, row}, offer.principalAndInterest);
        ExpectShown({FieldId::Payment, row}, offer.payment);
        ExpectShown({FieldId::ActualPayment, row}, std::optional(offer.actualPayment));
        ExpectShown({FieldId::PayoffDate, row}, offer.payoffDate);
        ExpectShown({FieldId::Interest, row}, offer.interest);
        if (offer.principal) {
            EXPECT_EQ(*offer.principal, m_worksheet.Offer(place).StartingPrinciple());
        }
    }
};

TEST_F(ComparisonOfWorksheet, ComputesWhatTheWindowShows) {
    int shown = 0;
    ForRandomCases(200, [&](Random& random) {
        EnterAny(random);
        ComparisonInput input = ToComparison(m_worksheet);
        ASSERT_EQ(input.offers.size(), OfferCount);
        input.choice = random.OneOf(
            std::array{PaymentChoice::Intended, PaymentChoice::Required, PaymentChoice::Monthly});
        const ComparisonResult result = Compare(input);
        for (OfferIndex place{0}; place.value < OfferCount; ++place.value) {
            EXPECT_EQ(input.offers[place.value].costs, m_worksheet.Offer(place).Costs());
            ExpectOffer(place, result.offers[place.value]);
            shown += result.offers[place.value].figures ? 1 : 0;
        }
        if (result.current) {
            ExpectShown({FieldId::CurAmountLeft}, result.current->amountLeft);
            ExpectShown({FieldId::CurInterestLeft}, result.current->interestLeft);
            ExpectShown({FieldId::CurPayoffDate}, result.current->payoffDate);
        }
    });
    EXPECT_GT(shown, 0);
}

TEST_F(ComparisonOfWorksheet, HasALoanHeldTodayWhereMoreThanItsDateIsEntered) {
    struct Case {
        FieldId field;
        FieldValue entered;
        bool held;
    };
    const Date day = Date::FromCalendar(2026, 4, 1);
    for (const Case& row : {
             Case{FieldId::LoanAmount, Units(1), false},
             Case{FieldId::NextPayment, day, false},
             Case{FieldId::CurLoanAmount, Units(1), true},
             Case{FieldId::CurLoanTerm, Months{12}, true},
             Case{FieldId::CurInterestRate, Rate::FromFraction(0.01), true},
             Case{FieldId::CurPaymentFrequency, FrequencyCode(u"M"_s), true},
             Case{FieldId::CurrentBalance, Units(1), true},
             Case{FieldId::CurActualPayment, Units(1), true},
             Case{FieldId::ActPaymentFrequency, FrequencyCode(u"M"_s), true},
         }) {
        m_worksheet.Clear();
        m_worksheet.Store({row.field}, row.entered);
        const ComparisonInput input = ToComparison(m_worksheet);
        EXPECT_EQ(input.current != CurrentLoanInput(), row.held)
            << RuleOf(row.field).control.data();
        EXPECT_EQ(input.current.nextPayment, row.held ? m_worksheet.Today() : Date());
        EXPECT_EQ(input.years, 5);
    }
}

} // namespace
