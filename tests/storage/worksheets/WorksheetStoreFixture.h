#pragma once

#include "EnterValues.h"
#include "Frequency.h"
#include "Language.h"
#include "Printing.h"
#include "QuendNames.h"
#include "Sheet.h"
#include "StoreFolder.h"
#include "WorksheetStore.h"

#include <gtest/gtest.h>

inline const QLocale UnitedStates(QLocale::English, QLocale::UnitedStates);
inline const QLocale Mexico(QLocale::Spanish, QLocale::Mexico);
inline const QLocale Germany(QLocale::German, QLocale::Germany);
inline constexpr int English = 1;
inline constexpr int Spanish = 2;

inline Money Units(double units) { return Money::FromDouble(units); }

/// Gives every saved value a different content.
inline void Fill(Worksheet& w) {
    w.SetLoanName(QStringLiteral("Our new home"));
    w.SetLoanType(LoanTypeCode(QStringLiteral("M")));
    w.SetLoanAmount(Units(250'000.5));
    w.SetLoanTerm(Months{360});
    w.SetEscrowTaxes(Units(3'600));
    w.SetEscrowInsurance(Units(1'200.25));
    w.SetCurrentLoanAmount(Units(230'000));
    w.SetCurrentTerm(Months{342});
    w.SetCurrentInterestRate(Rate::FromFraction(0.07125));
    w.SetCurrentFrequency(FrequencyCodeToText(FrequencyCode(QStringLiteral("B"))));
    w.SetCurrentBalance(Units(198'450.75));
    w.SetCurrentActualFrequency(FrequencyCodeToText(FrequencyCode(QStringLiteral("W"))));
    w.SetCurrentNextPayment(Date::FromCalendar(2026, 12, 3));
    w.SetCurrentActualPayment(Units(2'050));
    w.SetCurrentPayment(Units(1'186.35)); // last: any other value of the loan computes it anew
}

inline void FillOffer(Worksheet& w, Row row, const QString& who) {
    EnterOffer(w, row,
               {{FieldId::FinancePoints, true},
                {FieldId::Points, Percent::FromPercent(1.125)},
                {FieldId::Term, Months{186}},
                {FieldId::InterestRate, Rate::FromFraction(0.0625)},
                {FieldId::Frequency, FrequencyCode(QStringLiteral("Q"))},
                {FieldId::ActualPayment, Units(5'000)},
                {FieldId::Who, who},
                {FieldId::Costs, Units(-950.5)}});
}

/// A separate store for worksheets without a window.
class WorksheetStoreTest : public testing::Test {
protected:
    WorksheetStoreTest() {
        Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
        Language::Instance().LoadLanguage(English);
    }

    WorksheetStore Loans() const { return WorksheetStore(m_folder.Store()); }
    void Save(Sheet& sheet) const { Loans().Save(sheet.worksheet); }
    std::vector<Failure> Load(Sheet& sheet,
                              const QString& name = QStringLiteral("Our new home")) const {
        return Outcome(sheet, name).failures;
    }
    LoadOutcome Outcome(Sheet& sheet, const QString& name = QStringLiteral("Our new home")) const {
        return Loans().Load(sheet.worksheet, name, [&](Row last) {
            sheet.worksheet.GrowOfferArrays(sheet.worksheet.HighestOfferRow(), last);
        });
    }
    std::string Kept(const std::string& value) const { return m_folder.Text(Key, value); }
    void Put(const std::string& value, const std::string& text) const {
        m_folder.Store().SetValue(StoreFolder::Root, Key, value, RegistryType::Text, text);
    }

    inline static const std::string Key = StoreFolder::LoanKey("Our new home");
    StoreFolder m_folder;
};
