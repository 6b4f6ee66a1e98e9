// Loading worksheets with missing, invalid or calculated values, and from a store that fails.

#include "QuendNames.h"
#include "WorksheetStoreFixture.h"

using namespace Qt::StringLiterals;

namespace {

class WorksheetLoading : public WorksheetStoreTest {};

struct BadValue {
    const char* value;
    const char* text;
    int failure;                  ///< 0: accepted
    const char* source = nullptr; ///< of the failure; null: the value
};

TEST_F(WorksheetLoading, ABadValueIsReportedAndTheRestIsLoaded) {
    for (const BadValue& bad : {
             BadValue{"LoanType", "Yacht", 13},
             BadValue{"LoanType", "Hipoteca", 0},
             BadValue{"LoanAmount", "abc", 13},
             BadValue{"LoanAmount", "1.234,5", 13},
             BadValue{"LoanAmount", "-", 13},
             BadValue{"LoanAmount", "99999999999999999999", 6},
             BadValue{"LoanTerm", "3000000000", 6},
             BadValue{"LoanTerm", "360.5", 0},
             BadValue{"EscrowTaxes", "1e3", 13},
             BadValue{"EscrowInsurance", " 5", 13},
             BadValue{"CurrentTerm", "x", 13},
             BadValue{"CurrentInterestRate", "7%", 13},
             BadValue{"CurrentFrequency", "Z", 13},
             BadValue{"CurrentActualFrequency", "Monthly", 13},
             BadValue{"CurrentNextPayment", "2/30/2026", 13},
             BadValue{"CurrentNextPayment", "soon", 13},
             BadValue{"CurrentPayment", "--5", 13},
             BadValue{"CurrentActualPayment", "$5", 13},
             BadValue{"Loan 1 Points", "nan", 13},
             BadValue{"Loan 1 Points", "1,5", 0},
             BadValue{"Loan 1 Points", "1\u066B5", 0}, // as an Arabic locale writes it
             BadValue{"Loan 1 Term", "thirty", 13},
             BadValue{"Loan 1 InterestRate", "inf", 13},
             BadValue{"Loan 1 Frequency", "m", 13},
             BadValue{"Loan 1 ActualPayment", "1.2.3", 13},
             BadValue{"Loan 1 Costs", "free", 13},
             BadValue{"Loan 1 Costs", "922337203685478", 6},
             // Valid values whose results cannot be computed.
             BadValue{"EscrowTaxes", "922337203685477", 6, "EscrowInsurance"},
             BadValue{"CurrentTerm", "2147483647", 6, "CurrentPayment"},
             BadValue{"CurrentActualPayment", "1", 6},
             BadValue{"Loan 1 Points", "1000000000000", 6, "Loan 1"},
         }) {
        SCOPED_TRACE(std::string(bad.value) + " = " + bad.text);
        Sheet sheet;
        Fill(sheet.worksheet);
        FillOffer(sheet.worksheet, Row{0}, u"First"_s);
        Save(sheet);
        Put(bad.value, bad.text);
        Sheet read;
        const std::vector<Failure> failures = Load(read);
        ASSERT_EQ(bad.failure == 0 ? 0U : 1U, failures.size());
        if (bad.failure != 0) {
            EXPECT_EQ(bad.failure, failures[0].Number());
            EXPECT_EQ(bad.source == nullptr ? bad.value : bad.source, failures[0].Source());
        }
        EXPECT_EQ(u"First", read.worksheet.OfferOfRow(Row{0}).Who());
        EXPECT_EQ(Units(198'450.75), read.worksheet.CurrentBalance());
        EXPECT_FALSE(read.worksheet.Dirty());
    }
}

TEST_F(WorksheetLoading, ACountThatCannotBeMakesNoEndlessRows) {
    struct Case {
        std::int32_t count;
        std::size_t failures;
        int highest;
        bool hasFirst;
    };
    for (const Case& row :
         {Case{0, 0, 5, false}, Case{1, 0, 5, true}, Case{16, 0, 15, true}, Case{17, 1, 15, true},
          Case{1'000'000, 1, 15, true}, Case{-1, 1, 5, false}, Case{INT32_MIN, 1, 5, false}}) {
        Sheet sheet;
        Fill(sheet.worksheet);
        FillOffer(sheet.worksheet, Row{0}, u"First"_s);
        Save(sheet);
        m_folder.Store().SetValue(StoreFolder::Root, Key, "LoanCount", RegistryType::Number,
                                  row.count);
        Sheet read;
        EXPECT_EQ(row.failures, Load(read).size()) << row.count;
        EXPECT_EQ(Row{row.highest}, read.worksheet.HighestOfferRow()) << row.count;
        EXPECT_EQ(row.hasFirst, read.worksheet.OfferOfRow(Row{0}).Who() == u"First") << row.count;
        EXPECT_EQ(Units(250'000.5), read.worksheet.LoanAmount()) << row.count;
    }
}

TEST_F(WorksheetLoading, MissingValuesTakeTheirDefaults) {
    m_folder.Store().CreateKey(StoreFolder::Root, Key);
    m_folder.Store().SetValue(StoreFolder::Root, Key, "LoanCount", RegistryType::Number, 2);
    Sheet read;
    FillOffer(read.worksheet, Row{0}, u"Of before"_s);
    EXPECT_TRUE(Load(read).empty());
    EXPECT_EQ(Money(), read.worksheet.LoanAmount());
    EXPECT_EQ(u"", read.worksheet.LoanType().Text());
    EXPECT_EQ(u"", read.worksheet.OfferOfRow(Row{0}).Who());
    EXPECT_EQ(Money(), read.worksheet.OfferOfRow(Row{0}).ActualPayment());
    EXPECT_EQ(read.worksheet.Today(), read.worksheet.CurrentNextPayment());
}

TEST_F(WorksheetLoading, ThePaymentOfTheLoanHeldTodayIsTheOneThatWasKept) {
    Sheet sheet;
    Fill(sheet.worksheet);
    Save(sheet);
    sheet.worksheet.RecalculateCurrentPayment();
    const Money computed = sheet.worksheet.CurrentPayment();
    struct Case {
        const char* kept;
        Money loaded;
        const char16_t* shown;
    };
    for (const Case& row : {Case{"1234.56", Units(1'234.56), u"$1,234.56"}, Case{"0", Money(), u""},
                            Case{nullptr, Money(), u""}}) {
        if (row.kept != nullptr) {
            Put("CurrentPayment", row.kept);
        } else {
            m_folder.Store().DeleteValue(StoreFolder::Root, Key, "CurrentPayment");
        }
        Sheet read;
        EXPECT_TRUE(Load(read).empty());
        EXPECT_EQ(row.loaded, read.worksheet.CurrentPayment());
        EXPECT_EQ(row.shown, read.display.TextOf({FieldId::CurPayment}));
        EXPECT_FALSE(read.worksheet.Dirty());
        read.worksheet.RecalculateCurrentPayment(); // as when one of its inputs loses focus
        EXPECT_EQ(computed, read.worksheet.CurrentPayment());
    }
}

/// Missing values of the current loan are marked at once.
TEST_F(WorksheetLoading, WhatIsMissingOfTheLoanHeldTodayIsMarked) {
    Sheet sheet;
    sheet.worksheet.SetLoanName(u"Our new home"_s);
    sheet.worksheet.SetCurrentInterestRate(Rate::FromFraction(0.05));
    Save(sheet);
    Sheet read;
    EXPECT_TRUE(Load(read).empty());
    EXPECT_EQ(Mark::Missing, read.display.Of({FieldId::CurLoanAmount}).mark);
    EXPECT_EQ(Mark::None, read.display.Of({FieldId::CurInterestRate}).mark);
    EXPECT_EQ(FrequencyCodeToText(FrequencyCode(u"M"_s)), read.worksheet.CurrentFrequency());
}

/// The intended payment is assigned before the rate, so an old offer must not reject it.
TEST_F(WorksheetLoading, LoadingOverOtherOffersRefusesNoPayment) {
    Sheet sheet;
    Fill(sheet.worksheet);
    EnterOffer(sheet.worksheet, Row{0},
               {{FieldId::Term, Months{360}},
                {FieldId::InterestRate, Rate::FromFraction(0.03)},
                {FieldId::Frequency, FrequencyCode(u"M"_s)},
                {FieldId::ActualPayment, Units(1'600)}});
    Save(sheet);
    Sheet other;
    Fill(other.worksheet);
    FillOffer(other.worksheet, Row{0}, u"Dear"_s);
    other.display.ForgetCalls();
    EXPECT_TRUE(Load(other).empty());
    EXPECT_EQ(0, other.display.PaymentsRefused());
    EXPECT_EQ(0, other.display.PaymentsRaised());
    EXPECT_EQ(Units(1'600), other.worksheet.OfferOfRow(Row{0}).ActualPayment());
    EXPECT_EQ(u"$1,600.00", other.display.TextOf({FieldId::ActualPayment, Row{0}}));
    EXPECT_FALSE(other.display.TextOf({FieldId::Interest, Row{0}}).isEmpty());
}

TEST_F(WorksheetLoading, AStoreThatCannotBeReadHasLostNothing) {
    Sheet sheet;
    Fill(sheet.worksheet);
    Save(sheet);
    {
        const StoreOutOfReach closed(m_folder.File());
        EXPECT_THROW(Loans().Delete(u"Our new home"_s), StoreFailure);
        const LoadOutcome outcome = Outcome(sheet);
        EXPECT_FALSE(outcome.exists);
        EXPECT_NE(StoreTrouble::None, outcome.trouble);
    }
    EXPECT_EQ(Units(250'000.5), sheet.worksheet.LoanAmount());
    EXPECT_TRUE(Outcome(sheet).exists);
    EXPECT_NO_THROW(Loans().Delete(u"Our new home"_s));
    EXPECT_TRUE(Loans().Names().isEmpty());
}

TEST_F(WorksheetLoading, ASaveThatCannotBeMadeIsReportedAndLeavesEverything) {
    Sheet sheet;
    Fill(sheet.worksheet);
    const WorksheetStore nowhere(RegistryAPI("/proc/no/such/place/Loan.store"));
    try {
        nowhere.Save(sheet.worksheet);
        FAIL() << "a save into nowhere looks like one";
    } catch (const Failure& failure) {
        EXPECT_EQ(1001, failure.Number());
        EXPECT_EQ("Unable to create the registry key", failure.Description());
    }
    EXPECT_TRUE(sheet.worksheet.Dirty());
    EXPECT_EQ(Units(250'000.5), sheet.worksheet.LoanAmount());
}

} // namespace
