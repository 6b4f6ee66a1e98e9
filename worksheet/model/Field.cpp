#include "Field.h"

#include <algorithm>
#include <array>

namespace quend::model {

namespace {

constexpr QLatin1String operator""_name(const char* text, std::size_t length) {
    return QLatin1String(text, static_cast<qsizetype>(length));
}

// clang-format off
constexpr auto LoanFieldTable = [] {
    using enum FieldId;
    using enum Access;
    return std::array{
        //        id                  control                       kind                       access  decimals separator key
        FieldRule{LoanName,            "cboLoanName"_name,            ValueKind::Text,           Input,  0, false},
        FieldRule{LoanType,            "cboLoanType"_name,            ValueKind::LoanType,       Input,  0, false},
        FieldRule{LoanAmount,          "txtLoanAmount"_name,          ValueKind::Amount,         Input,  2, true},
        FieldRule{LoanTerm,            "txtLoanTerm"_name,            ValueKind::WholeTerm,      Input,  0, false},
        FieldRule{AnnualTaxes,         "txtAnnualTaxes"_name,         ValueKind::Amount,         Input,  2, true},
        FieldRule{AnnualInsurance,     "txtAnnualInsurance"_name,     ValueKind::Amount,         Input,  2, true},
        FieldRule{MonthlyEscrow,       "txtMonthlyEscrow"_name,       ValueKind::Amount,         Result, 2, false},
        FieldRule{CurLoanAmount,       "txtCurLoanAmount"_name,       ValueKind::Amount,         Input,  2, true},
        FieldRule{CurLoanTerm,         "txtCurLoanTerm"_name,         ValueKind::FractionalTerm, Input,  0, false},
        FieldRule{CurInterestRate,     "txtCurInterestRate"_name,     ValueKind::Rate,           Input,  3, true},
        FieldRule{CurPaymentFrequency, "cboCurPaymentFrequency"_name, ValueKind::Frequency,      Input,  0, false},
        FieldRule{CurPayment,          "txtCurPayment"_name,          ValueKind::Amount,         Result, 2, false},
        FieldRule{CurActualPayment,    "txtCurActualPayment"_name,    ValueKind::Amount,         Input,  2, true},
        FieldRule{ActPaymentFrequency, "cboActPaymentFrequency"_name, ValueKind::Frequency,      Input,  0, false},
        FieldRule{NextPayment,         "dtNextPayment"_name,          ValueKind::Date,           Input,  0, false},
        FieldRule{CurrentBalance,      "txtCurrentBalance"_name,      ValueKind::Amount,         Input,  2, true},
        FieldRule{CurAmountLeft,       "txtCurAmountLeft"_name,       ValueKind::Amount,         Result, 2, false},
        FieldRule{CurInterestLeft,     "txtCurInterestLeft"_name,     ValueKind::Amount,         Result, 2, false},
        FieldRule{CurPayoffDate,       "txtCurPayoffDate"_name,       ValueKind::Date,           Result, 0, false},
    };
}();

// The term of an offer accepts three decimals although its decimal symbol cannot be typed: a pasted
// 30.5 is taken as 30 years.
constexpr auto OfferFieldTable = [] {
    using enum FieldId;
    using enum Access;
    return std::array{
        FieldRule{FinancePoints,       "chkPoints"_name,              ValueKind::Flag,           Input,  0, false},
        FieldRule{Points,              "txtPoints"_name,              ValueKind::Percent,        Input,  3, true},
        FieldRule{InterestRate,        "txtInterestRate"_name,        ValueKind::Rate,           Input,  3, true},
        FieldRule{Term,                "txtTerm"_name,                ValueKind::WholeTerm,      Input,  3, false},
        FieldRule{Frequency,           "cboFrequency"_name,           ValueKind::Frequency,      Input,  0, false},
        FieldRule{PandI,               "txtPandI"_name,               ValueKind::Amount,         Result, 2, false},
        FieldRule{Payment,             "txtPayment"_name,             ValueKind::Amount,         Result, 2, false},
        FieldRule{ActualPayment,       "txtActualPayment"_name,       ValueKind::Amount,         Input,  2, true},
        FieldRule{PayoffDate,          "txtPayoffDate"_name,          ValueKind::Date,           Result, 0, false},
        FieldRule{Interest,            "txtInterest"_name,            ValueKind::Amount,         Result, 2, false},
        FieldRule{Who,                 "txtWho"_name,                 ValueKind::Text,           Input,  0, false},
    };
}();
// clang-format on

constexpr FieldRule CostsRule{FieldId::Costs, {}, ValueKind::Amount, Access::Input, 2, true};

} // namespace

std::span<const FieldRule> LoanFields() { return LoanFieldTable; }

std::span<const FieldRule> OfferFields() { return OfferFieldTable; }

const FieldRule& RuleOf(FieldId id) {
    if (id == FieldId::Costs) {
        return CostsRule;
    }
    const auto fields = id < FieldId::FinancePoints ? LoanFields() : OfferFields();
    return *std::ranges::find(fields, id, &FieldRule::id);
}

QLatin1String NumberPicture(int decimals) {
    constexpr std::array pictures{" nnn"_name, " nnnn.n"_name, " nnnn.nn"_name, " nnnn.nnn"_name};
    return pictures.at(static_cast<std::size_t>(decimals));
}

} // namespace quend::model
