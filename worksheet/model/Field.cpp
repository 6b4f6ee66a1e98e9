#include "Field.h"

#include <algorithm>
#include <array>

namespace quend::model {

namespace {

using enum FieldId;
using enum ValueKind;
using enum Access;

constexpr QLatin1String operator""_name(const char* text, std::size_t length) {
    return QLatin1String(text, static_cast<qsizetype>(length));
}

// clang-format off
constexpr std::array LoanFieldTable{
    //        id                  control                       kind            access  decimals separator key
    FieldRule{LoanName,            "cboLoanName"_name,            Text,           Input,  0, false},
    FieldRule{LoanType,            "cboLoanType"_name,            Choice,         Input,  0, false},
    FieldRule{LoanAmount,          "txtLoanAmount"_name,          Amount,         Input,  2, true},
    FieldRule{LoanTerm,            "txtLoanTerm"_name,            WholeTerm,      Input,  0, false},
    FieldRule{AnnualTaxes,         "txtAnnualTaxes"_name,         Amount,         Input,  2, true},
    FieldRule{AnnualInsurance,     "txtAnnualInsurance"_name,     Amount,         Input,  2, true},
    FieldRule{MonthlyEscrow,       "txtMonthlyEscrow"_name,       Amount,         Result, 2, false},
    FieldRule{CurLoanAmount,       "txtCurLoanAmount"_name,       Amount,         Input,  2, true},
    FieldRule{CurLoanTerm,         "txtCurLoanTerm"_name,         FractionalTerm, Input,  0, false},
    FieldRule{CurInterestRate,     "txtCurInterestRate"_name,     Percent,        Input,  3, true},
    FieldRule{CurPaymentFrequency, "cboCurPaymentFrequency"_name, Choice,         Input,  0, false},
    FieldRule{CurPayment,          "txtCurPayment"_name,          Amount,         Result, 2, false},
    FieldRule{CurActualPayment,    "txtCurActualPayment"_name,    Amount,         Input,  2, true},
    FieldRule{ActPaymentFrequency, "cboActPaymentFrequency"_name, Choice,         Input,  0, false},
    FieldRule{NextPayment,         "dtNextPayment"_name,          Date,           Input,  0, false},
    FieldRule{CurrentBalance,      "txtCurrentBalance"_name,      Amount,         Input,  2, true},
    FieldRule{CurAmountLeft,       "txtCurAmountLeft"_name,       Amount,         Result, 2, false},
    FieldRule{CurInterestLeft,     "txtCurInterestLeft"_name,     Amount,         Result, 2, false},
    FieldRule{CurPayoffDate,       "txtCurPayoffDate"_name,       Date,           Result, 0, false},
};

// The term of an offer accepts three decimals although its decimal symbol cannot be typed: a pasted
// 30.5 is taken as 30 years.
constexpr std::array OfferFieldTable{
    FieldRule{FinancePoints,       "chkPoints"_name,              Flag,           Input,  0, false},
    FieldRule{Points,              "txtPoints"_name,              Decimal,        Input,  3, true},
    FieldRule{InterestRate,        "txtInterestRate"_name,        Percent,        Input,  3, true},
    FieldRule{Term,                "txtTerm"_name,                WholeTerm,      Input,  3, false},
    FieldRule{Frequency,           "cboFrequency"_name,           Choice,         Input,  0, false},
    FieldRule{PandI,               "txtPandI"_name,               Amount,         Result, 2, false},
    FieldRule{Payment,             "txtPayment"_name,             Amount,         Result, 2, false},
    FieldRule{ActualPayment,       "txtActualPayment"_name,       Amount,         Input,  2, true},
    FieldRule{PayoffDate,          "txtPayoffDate"_name,          Date,           Result, 0, false},
    FieldRule{Interest,            "txtInterest"_name,            Amount,         Result, 2, false},
    FieldRule{Who,                 "txtWho"_name,                 Text,           Input,  0, false},
};
// clang-format on

} // namespace

std::span<const FieldRule> LoanFields() { return LoanFieldTable; }

std::span<const FieldRule> OfferFields() { return OfferFieldTable; }

const FieldRule& RuleOf(FieldId id) {
    const auto fields = id < FinancePoints ? LoanFields() : OfferFields();
    return *std::ranges::find(fields, id, &FieldRule::id);
}

QLatin1String NumberPicture(int decimals) {
    constexpr std::array pictures{" nnn"_name, " nnnn.n"_name, " nnnn.nn"_name, " nnnn.nnn"_name};
    return pictures.at(static_cast<std::size_t>(decimals));
}

} // namespace quend::model
