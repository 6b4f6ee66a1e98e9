#include "QuendNames.h"
#include "WorksheetTest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Row Row0{0};
constexpr Field Intended{FieldId::ActualPayment, Row0};

class WorksheetOfferTest : public WorksheetTest {
protected:
    WorksheetOfferTest() { EnterOffers(1); }

    /// No intended payment yet, as in a new row.
    void ClearIntended() {
        Store(Intended, u""_s);
        StartCounting();
    }
};

struct OfferCase {
    QString frequency;
    double taxes;
    QString pAndI;
    QString payment;
    QString payoff;
    QString interest;
};

TEST_F(WorksheetOfferTest, ComputesEveryFrequencyWithItsShareOfTheEscrow) {
    // clang-format off
    const std::vector<OfferCase> cases{
        // frequency             taxes  P and I        payment        payoff           interest
        {u"Monthly"_s,          0,     u"$599.55"_s, u"$599.55"_s, u"3/10/2056"_s, u"$115,838.53"_s},
        {u"Twice a month"_s,    0,     u"$299.64"_s, u"$299.64"_s, u"3/10/2056"_s, u"$115,744.53"_s},
        {u"Every two weeks"_s,  0,     u"$276.58"_s, u"$276.58"_s, u"12/7/2055"_s, u"$114,681.82"_s},
        {u"Every four weeks"_s, 0,     u"$553.39"_s, u"$553.39"_s, u"12/7/2055"_s, u"$114,769.78"_s},
        {u"Monthly"_s,          3000,  u"$599.55"_s, u"$849.55"_s, u"3/10/2056"_s, u"$115,838.53"_s},
        {u"Twice a month"_s,    3000,  u"$299.64"_s, u"$424.64"_s, u"3/10/2056"_s, u"$115,744.53"_s},
        {u"Every two weeks"_s,  3000,  u"$276.58"_s, u"$401.58"_s, u"12/7/2055"_s, u"$114,681.82"_s},
        {u"Every four weeks"_s, 3000,  u"$553.39"_s, u"$803.39"_s, u"12/7/2055"_s, u"$114,769.78"_s},
        {u""_s,                 3000,  u""_s,        u""_s,        u""_s,          u""_s},
        {u"Yearly"_s,           3000,  u""_s,        u""_s,        u""_s,          u""_s},
    };
    // clang-format on
    for (const auto& [frequency, taxes, pAndI, payment, payoff, interest] : cases) {
        SCOPED_TRACE(frequency.toStdString());
        m_worksheet.SetEscrowTaxes(Units(taxes));
        Store({FieldId::Frequency, Row0}, frequency);
        ClearIntended();
        m_worksheet.RecalculateOffer(Row0);
        EXPECT_EQ(ResultTexts(Row0), (std::vector{pAndI, payment, payoff, interest}));
        EXPECT_EQ(TextOf(Intended), payment) << "raised to the payment";
    }
}

TEST_F(WorksheetOfferTest, ShowsEachResultOnceAndInOrder) {
    ClearIntended();
    m_worksheet.RecalculateOffer(Row0);
    EXPECT_EQ(m_display.TextsInOrder(), (std::vector<Field>{{FieldId::PandI, Row0},
                                                            {FieldId::Payment, Row0},
                                                            Intended,
                                                            {FieldId::PayoffDate, Row0},
                                                            {FieldId::Interest, Row0}}));
    EXPECT_EQ(m_offerSchedules, 1);
    StartCounting();
    m_worksheet.RecalculateOffer(Row0);
    EXPECT_EQ(m_display.TextsInOrder(), OfferResults(Row0));
    EXPECT_EQ(m_offerSchedules, 1);
}

struct MissingCase {
    FieldId missing;
    bool paysOff; ///< the intended payment still repays the loan
};

TEST_F(WorksheetOfferTest, ShowsNothingWhereAnInputIsMissing) {
    // clang-format off
    const std::vector<MissingCase> cases{
        {FieldId::LoanAmount,   false},
        {FieldId::InterestRate, false},
        {FieldId::Frequency,    false},
        {FieldId::Term,         true},
    };
    // clang-format on
    for (const auto& [missing, paysOff] : cases) {
        EnterOffers(1);
        const Field field{missing, missing == FieldId::LoanAmount ? Field::NoRow : Row0};
        SCOPED_TRACE(testing::PrintToString(field));
        StartCounting();
        if (missing == FieldId::Frequency) {
            Store(field, u""_s);
        } else {
            Store(field, u""_s);
        }
        EXPECT_EQ(TextOf({FieldId::PandI, Row0}), QString());
        EXPECT_EQ(TextOf({FieldId::Payment, Row0}), QString());
        EXPECT_EQ(TextOf({FieldId::PayoffDate, Row0}).isEmpty(), !paysOff);
        EXPECT_EQ(m_display.Of({FieldId::PayoffDate, Row0}).toolTip, paysOff);
        EXPECT_EQ(TextOf({FieldId::Interest, Row0}).isEmpty(), !paysOff);
        EXPECT_FALSE(m_display.Of({FieldId::Interest, Row0}).toolTip);
        EXPECT_EQ(TextOf(Intended), u"$599.55"_s);
        EXPECT_EQ(m_display.PaymentsRaised(), 0);
    }
}

TEST_F(WorksheetOfferTest, RaisesAnIntendedPaymentThatIsMissing) {
    ClearIntended();
    m_worksheet.RecalculateOffer(Row0);
    EXPECT_EQ(TextOf(Intended), u"$599.55"_s);
    EXPECT_EQ(m_display.Of(Intended).mark, Mark::Raised);
    EXPECT_EQ(m_display.PaymentsRaised(), 1);
    EXPECT_EQ(m_display.PaymentsRefused(), 0);
    EXPECT_TRUE(m_worksheet.Dirty());
    EXPECT_FALSE(m_worksheet.PaymentNoticeShown()) << "the window's business";
    EXPECT_TRUE(m_display.Of({FieldId::PayoffDate, Row0}).toolTip);

    StartCounting();
    m_worksheet.RecalculateOffer(Row0);
    EXPECT_EQ(m_display.Of(Intended).marks, 0) << "raised once";
    EXPECT_EQ(m_display.PaymentsRaised(), 0);
    EXPECT_FALSE(m_worksheet.Dirty());
}

TEST_F(WorksheetOfferTest, RaisesAnIntendedPaymentThatHasBecomeTooLow) {
    StartCounting();
    Store({FieldId::Term, Row0}, u"180"_s);
    EXPECT_EQ(TextOf(Intended), u"$843.86"_s);
    EXPECT_EQ(m_display.Of(Intended).mark, Mark::Raised);
    EXPECT_EQ(m_display.PaymentsRaised(), 1);

    StartCounting();
    Store({FieldId::Term, Row0}, u"360"_s); // a lower payment does not lower it
    EXPECT_EQ(TextOf(Intended), u"$843.86"_s);
    EXPECT_EQ(m_display.Of(Intended).marks, 0);
    EXPECT_EQ(m_display.PaymentsRaised(), 0);
}

struct IntendedCase {
    QString typed;
    QString shown;
    bool refused;
    QString payoff;
    QString interest;
};

TEST_F(WorksheetOfferTest, TakesAnIntendedPaymentFromThePaymentUpwards) {
    // clang-format off
    const std::vector<IntendedCase> cases{
        // typed       shown          refused  payoff           interest
        {u"900"_s,    u"$900.00"_s, false,   u"9/10/2039"_s, u"$46,332.60"_s},
        {u"599.55"_s, u"$599.55"_s, false,   u"3/10/2056"_s, u"$115,838.53"_s},
        {u"599.54"_s, u"$599.55"_s, true,    u"3/10/2056"_s, u"$115,838.53"_s},
        {u".01"_s,    u"$599.55"_s, true,    u"3/10/2056"_s, u"$115,838.53"_s},
        {u""_s,       u""_s,        false,   u""_s,          u""_s},
        {u"0"_s,      u""_s,        false,   u""_s,          u""_s},
    };
    // clang-format on
    for (const auto& [typed, shown, refused, payoff, interest] : cases) {
        SCOPED_TRACE(typed.toStdString());
        Store(Intended, u"700"_s);
        m_display.ShowMark(Intended, Mark::None);
        m_worksheet.SetPaymentNoticeShown(false);
        StartCounting();
        Store(Intended, typed);
        EXPECT_EQ(TextOf(Intended), shown);
        EXPECT_EQ(TextOf({FieldId::PayoffDate, Row0}), payoff);
        EXPECT_EQ(TextOf({FieldId::Interest, Row0}), interest);
        EXPECT_EQ(m_display.Of({FieldId::PayoffDate, Row0}).toolTip, !payoff.isEmpty());
        EXPECT_EQ(
            m_display.TextsInOrder(),
            (std::vector<Field>{Intended, {FieldId::PayoffDate, Row0}, {FieldId::Interest, Row0}}));
        EXPECT_EQ(m_offerSchedules, payoff.isEmpty() ? 0 : 1);
        EXPECT_EQ(m_display.Of(Intended).mark, refused ? Mark::Raised : Mark::None);
        EXPECT_EQ(m_display.PaymentsRefused(), refused ? 1 : 0);
        EXPECT_EQ(m_display.PaymentsRaised(), refused ? 1 : 0);
        EXPECT_EQ(m_worksheet.PaymentNoticeShown(), refused);
        EXPECT_TRUE(m_worksheet.Dirty());
    }
}

/// Checking a new payment first raises the missing old one; the user is not told of that.
TEST_F(WorksheetOfferTest, AFigureTypedIntoAnEmptyFieldIsNotMarked) {
    ClearIntended();
    Store(Intended, u"900"_s);
    m_worksheet.RecalculateOffer(Row0);
    EXPECT_EQ(TextOf(Intended), u"$900.00"_s);
    EXPECT_EQ(m_display.Of(Intended).marks, 0);
    EXPECT_EQ(m_display.PaymentsRaised(), 0);
}

TEST_F(WorksheetOfferTest, AClearedIntendedPaymentIsRaisedByTheNextRecalculation) {
    Store(Intended, u""_s);
    EXPECT_EQ(m_worksheet.OfferOfRow(Row0).ActualPayment(), Money());
    StartCounting();
    m_worksheet.RecalculateOffer(Row0);
    EXPECT_EQ(TextOf(Intended), u"$599.55"_s);
    EXPECT_EQ(m_display.PaymentsRaised(), 1);
}

TEST_F(WorksheetOfferTest, FinancedPointsAreBorrowed) {
    Store({FieldId::Points, Row0}, u"1.25"_s);
    EXPECT_EQ(TextOf({FieldId::PandI, Row0}), u"$599.55"_s) << "paid up front";
    m_worksheet.Store({FieldId::FinancePoints, Row0}, true);
    EXPECT_EQ(ResultTexts(Row0),
              (std::vector{u"$607.04"_s, u"$607.04"_s, u"3/10/2056"_s, u"$117,289.36"_s}));
    EXPECT_EQ(TextOf(Intended), u"$607.04"_s);
    m_worksheet.Store({FieldId::FinancePoints, Row0}, false);
    EXPECT_EQ(TextOf({FieldId::PandI, Row0}), u"$599.55"_s);
}

struct DefaultTermCase {
    int defaultTerm;
    QString term;
    QString rate;
    QString shown;
};

TEST_F(WorksheetOfferTest, ARateFillsAMissingTermWithTheDefault) {
    // clang-format off
    const std::vector<DefaultTermCase> cases{
        // default  term       rate     shown
        {180,       u""_s,    u"6"_s, u"180"_s},
        {180,       u""_s,    u"0"_s, u""_s},
        {180,       u"360"_s, u"6"_s, u"360"_s},
        {0,         u""_s,    u"6"_s, u""_s},
    };
    // clang-format on
    const Field term{FieldId::Term, Row0};
    for (const DefaultTermCase& c : cases) {
        m_worksheet.SetLoanTerm(Months{c.defaultTerm});
        Store({FieldId::InterestRate, Row0}, u""_s);
        Store(term, c.term);
        StartCounting();
        Store({FieldId::InterestRate, Row0}, c.rate);
        EXPECT_EQ(TextOf(term), c.shown) << c.defaultTerm << ", " << c.rate.toStdString();
        EXPECT_EQ(m_worksheet.EntryText(term), c.shown);
        EXPECT_LE(m_display.Of(term).texts, 1);
        EXPECT_EQ(m_worksheet.Dirty(), c.rate != u"0"_s);
    }
}

TEST_F(WorksheetOfferTest, EveryRowFollowsTheLoanAmountAndTheEscrow) {
    EnterOffers(3);
    StartCounting();
    m_worksheet.SetEscrowTaxes(Units(1800));
    m_worksheet.SetEscrowInsurance(Units(900));
    for (Row row{0}; row.value < 3; ++row.value) {
        EXPECT_EQ(TextOf({FieldId::PandI, row}), u"$599.55"_s);
        EXPECT_EQ(TextOf({FieldId::Payment, row}), u"$824.55"_s);
        EXPECT_EQ(TextOf({FieldId::ActualPayment, row}), u"$824.55"_s);
        EXPECT_EQ(m_display.Of({FieldId::ActualPayment, row}).mark, Mark::Raised);
    }
    EXPECT_EQ(m_display.PaymentsRaised(), 6); // taxes, then insurance
    EXPECT_EQ(m_offerSchedules, 6);

    m_worksheet.SetLoanAmount(Units(200'000));
    for (Row row{0}; row.value < 3; ++row.value) {
        EXPECT_EQ(TextOf({FieldId::PandI, row}), u"$1,199.10"_s);
    }
}

TEST_F(WorksheetOfferTest, GrowingKeepsWhatIsThere) {
    Store(Intended, u"900"_s);
    Store({FieldId::Who, Row0}, u"First Bank"_s);
    StartCounting();
    m_worksheet.GrowOfferArrays(Row0, Row{15});
    EXPECT_EQ(m_worksheet.HighestOfferRow(), Row{15});
    EXPECT_EQ(m_worksheet.OfferOfRow(Row0).Who(), u"First Bank"_s);
    EXPECT_EQ(m_worksheet.OfferOfRow(Row0).ActualPayment(), Units(900));
    EXPECT_FALSE(m_worksheet.Dirty());
    EXPECT_TRUE(m_display.TextsInOrder().empty());

    m_worksheet.GrowOfferArrays(Row{15}, Row{15}); // nothing to add
    EXPECT_EQ(m_worksheet.HighestOfferRow(), Row{15});
    for (Row row{0}; row <= m_worksheet.HighestOfferRow(); ++row.value) {
        EXPECT_EQ(m_worksheet.OfferIndexOfRow(row).value, static_cast<std::size_t>(row.value));
    }

    // A new row uses the same amount, and an old one keeps its worksheet.
    const Row last{15};
    m_worksheet.SetLoanTerm(Months{360});
    Store({FieldId::Frequency, last}, u"Monthly"_s);
    Store({FieldId::InterestRate, last}, u"6"_s);
    EXPECT_EQ(TextOf({FieldId::PandI, last}), u"$599.55"_s);
    StartCounting();
    Store({FieldId::Who, Row0}, u"Second Bank"_s);
    EXPECT_TRUE(m_worksheet.Dirty());
}

} // namespace
