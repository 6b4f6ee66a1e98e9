#include "Field.h"
#include "QuendNames.h"

#include "Printing.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace {

using enum FieldId;
using enum Access;

struct Expected {
    FieldId id;
    QLatin1String control;
    ValueKind kind;
    Access access;
    int decimals;
    bool separatorKey;
    QLatin1String picture; ///< of the numbers
};

QLatin1String operator""_l1(const char* text, std::size_t length) {
    return QLatin1String(text, static_cast<qsizetype>(length));
}

// clang-format off
const std::vector<Expected> UpperBands{
    // id                control                      kind                       access  decimals key    picture
    {LoanName,            "cboLoanName"_l1,            ValueKind::Text,           Input,  0,       false, {}},
    {LoanType,            "cboLoanType"_l1,            ValueKind::LoanType,       Input,  0,       false, {}},
    {LoanAmount,          "txtLoanAmount"_l1,          ValueKind::Amount,         Input,  2,       true,  " nnnn.nn"_l1},
    {LoanTerm,            "txtLoanTerm"_l1,            ValueKind::WholeTerm,      Input,  0,       false, " nnn"_l1},
    {AnnualTaxes,         "txtAnnualTaxes"_l1,         ValueKind::Amount,         Input,  2,       true,  " nnnn.nn"_l1},
    {AnnualInsurance,     "txtAnnualInsurance"_l1,     ValueKind::Amount,         Input,  2,       true,  " nnnn.nn"_l1},
    {MonthlyEscrow,       "txtMonthlyEscrow"_l1,       ValueKind::Amount,         Result, 2,       false, " nnnn.nn"_l1},
    {CurLoanAmount,       "txtCurLoanAmount"_l1,       ValueKind::Amount,         Input,  2,       true,  " nnnn.nn"_l1},
    {CurLoanTerm,         "txtCurLoanTerm"_l1,         ValueKind::FractionalTerm, Input,  0,       false, " nnn"_l1},
    {CurInterestRate,     "txtCurInterestRate"_l1,     ValueKind::Rate,           Input,  3,       true,  " nnnn.nnn"_l1},
    {CurPaymentFrequency, "cboCurPaymentFrequency"_l1, ValueKind::Frequency,      Input,  0,       false, {}},
    {CurPayment,          "txtCurPayment"_l1,          ValueKind::Amount,         Result, 2,       false, " nnnn.nn"_l1},
    {CurActualPayment,    "txtCurActualPayment"_l1,    ValueKind::Amount,         Input,  2,       true,  " nnnn.nn"_l1},
    {ActPaymentFrequency, "cboActPaymentFrequency"_l1, ValueKind::Frequency,      Input,  0,       false, {}},
    {NextPayment,         "dtNextPayment"_l1,          ValueKind::Date,           Input,  0,       false, {}},
    {CurrentBalance,      "txtCurrentBalance"_l1,      ValueKind::Amount,         Input,  2,       true,  " nnnn.nn"_l1},
    {CurAmountLeft,       "txtCurAmountLeft"_l1,       ValueKind::Amount,         Result, 2,       false, " nnnn.nn"_l1},
    {CurInterestLeft,     "txtCurInterestLeft"_l1,     ValueKind::Amount,         Result, 2,       false, " nnnn.nn"_l1},
    {CurPayoffDate,       "txtCurPayoffDate"_l1,       ValueKind::Date,           Result, 0,       false, {}},
};

const std::vector<Expected> OfferRow{
    {FinancePoints,       "chkPoints"_l1,              ValueKind::Flag,           Input,  0,       false, {}},
    {Points,              "txtPoints"_l1,              ValueKind::Percent,        Input,  3,       true,  " nnnn.nnn"_l1},
    {InterestRate,        "txtInterestRate"_l1,        ValueKind::Rate,           Input,  3,       true,  " nnnn.nnn"_l1},
    {Term,                "txtTerm"_l1,                ValueKind::WholeTerm,      Input,  3,       false, " nnnn.nnn"_l1},
    {Frequency,           "cboFrequency"_l1,           ValueKind::Frequency,      Input,  0,       false, {}},
    {PandI,               "txtPandI"_l1,               ValueKind::Amount,         Result, 2,       false, " nnnn.nn"_l1},
    {Payment,             "txtPayment"_l1,             ValueKind::Amount,         Result, 2,       false, " nnnn.nn"_l1},
    {ActualPayment,       "txtActualPayment"_l1,       ValueKind::Amount,         Input,  2,       true,  " nnnn.nn"_l1},
    {PayoffDate,          "txtPayoffDate"_l1,          ValueKind::Date,           Result, 0,       false, {}},
    {Interest,            "txtInterest"_l1,            ValueKind::Amount,         Result, 2,       false, " nnnn.nn"_l1},
    {Who,                 "txtWho"_l1,                 ValueKind::Text,           Input,  0,       false, {}},
};

const Expected WithoutControl{Costs,   {},                            ValueKind::Amount,         Input,  2,       true,  " nnnn.nn"_l1};
// clang-format on

void ExpectRule(const FieldRule& rule, const Expected& expected) {
    const std::string name = QString(expected.control).toStdString();
    EXPECT_EQ(rule.id, expected.id) << name;
    EXPECT_EQ(rule.control, expected.control) << name;
    EXPECT_EQ(rule.kind, expected.kind) << name;
    EXPECT_EQ(rule.access, expected.access) << name;
    EXPECT_EQ(rule.decimals, expected.decimals) << name;
    EXPECT_EQ(rule.separatorKey, expected.separatorKey) << name;
    EXPECT_EQ(rule.IsNumber(), !expected.picture.isEmpty()) << name;
    if (rule.IsNumber()) {
        EXPECT_STREQ(NumberPicture(rule.decimals).latin1(), expected.picture.latin1()) << name;
    }
}

TEST(FieldTable, HoldsEveryFieldInItsOrder) {
    ASSERT_EQ(LoanFields().size(), UpperBands.size());
    for (std::size_t i = 0; i < UpperBands.size(); ++i) {
        ExpectRule(LoanFields()[i], UpperBands[i]);
    }
    ASSERT_EQ(OfferFields().size(), OfferRow.size());
    for (std::size_t i = 0; i < OfferRow.size(); ++i) {
        ExpectRule(OfferFields()[i], OfferRow[i]);
    }
    ExpectRule(RuleOf(Costs), WithoutControl);
}

TEST(FieldTable, FindsTheRuleOfEachField) {
    for (int id = 0; id <= static_cast<int>(Costs); ++id) {
        EXPECT_EQ(static_cast<int>(RuleOf(static_cast<FieldId>(id)).id), id);
    }
    EXPECT_EQ(LoanFields().size() + OfferFields().size(), static_cast<std::size_t>(Costs));
}

} // namespace
