#include "WorksheetValues.h"

#include "Failure.h"
#include "Frequency.h"
#include "LoanTypes.h"
#include "StoreNames.h"
#include "StoredWorksheet.h"

#include <algorithm>
#include <array>

namespace quend::storage {

namespace {

// clang-format off
constexpr std::array LoanValueTable{
    //        name                      field                         missing  read as
    KeptValue{LoanNameName,             FieldId::LoanName,            "",       0},
    KeptValue{"LoanType",               FieldId::LoanType,            "",       1},
    KeptValue{"LoanAmount",             FieldId::LoanAmount,          "0",      2},
    KeptValue{"LoanTerm",               FieldId::LoanTerm,            "0",      3},
    KeptValue{"EscrowTaxes",            FieldId::AnnualTaxes,         "0",      4},
    KeptValue{EscrowInsuranceName,      FieldId::AnnualInsurance,     "0",      5},
    KeptValue{"CurrentLoanAmount",      FieldId::CurLoanAmount,       "0",      6},
    KeptValue{"CurrentTerm",            FieldId::CurLoanTerm,         "0",      7},
    KeptValue{"CurrentInterestRate",    FieldId::CurInterestRate,     "0",      8},
    KeptValue{"CurrentBalance",         FieldId::CurrentBalance,      "0",      9},
    KeptValue{CurrentActualPaymentName, FieldId::CurActualPayment,    "0",     14},
    KeptValue{"CurrentFrequency",       FieldId::CurPaymentFrequency, "",      11},
    KeptValue{"CurrentActualFrequency", FieldId::ActPaymentFrequency, "",      10},
    KeptValue{CurrentPaymentName,       FieldId::CurPayment,          "0",     13},
    KeptValue{"CurrentNextPayment",     FieldId::NextPayment,         "",      12},
};

constexpr std::array OfferValueTable{
    KeptValue{" FinancePoints",         FieldId::FinancePoints,       "",       3, RegistryType::Number},
    KeptValue{" Points",                FieldId::Points,              "0",      4},
    KeptValue{" Term",                  FieldId::Term,                "0",      2},
    KeptValue{" InterestRate",          FieldId::InterestRate,        "0",      5},
    KeptValue{" Frequency",             FieldId::Frequency,           "",       6},
    KeptValue{" ActualPayment",         FieldId::ActualPayment,       "0",      1},
    KeptValue{" Who",                   FieldId::Who,                 "",       7},
    KeptValue{" Costs",                 FieldId::Costs,               "0",      8, RegistryType::Text, Written::IfEntered},
};
// clang-format on

/// Written in the current language; accepted in any language.
LoanTypeCode ReadLoanType(const std::string& stored) {
    const QString text = QString::fromStdString(stored);
    const LoanTypeCode code = LoanTypeTextToCodeInAnyLanguage(text);
    return code.IsNone() && !text.isEmpty() ? throw ConversionFailure(ProgramSource) : code;
}

FrequencyCode ReadFrequency(const std::string& stored) {
    const FrequencyCode code(QString::fromStdString(stored));
    return code.IsNone() || FindFrequency(code) != nullptr ? code
                                                           : throw ConversionFailure(ProgramSource);
}

} // namespace

std::span<const KeptValue> KeptWorksheetValues() { return LoanValueTable; }

std::span<const KeptValue> KeptOfferValues() { return OfferValueTable; }

std::vector<KeptValue> InOrderOfReading(std::span<const KeptValue> values) {
    std::vector<KeptValue> ordered;
    std::ranges::copy_if(values, std::back_inserter(ordered),
                         [](const KeptValue& value) { return value.readPlace > 0; });
    std::ranges::sort(ordered, {}, &KeptValue::readPlace);
    return ordered;
}

RegistryValue ToStored(const FieldValue& value, const StoredTexts& texts) {
    const ByType stored{
        [](bool ticked) { return RegistryValue(RegistryFlag(ticked)); },
        [](const QString& text) { return RegistryValue(text.toStdString()); },
        [](const LoanTypeCode& code) {
            return RegistryValue(LoanTypeCodeToText(code).toStdString());
        },
        [](const FrequencyCode& code) { return RegistryValue(code.Text().toStdString()); },
        [&](const auto& number) { return RegistryValue(texts.Write(number)); },
    };
    return std::visit(stored, value);
}

FieldValue FromStored(const RegistryValue& stored, const FieldValue& present,
                      const StoredTexts& texts) {
    if (std::holds_alternative<bool>(present)) {
        return std::get<std::int32_t>(stored) != 0;
    }
    const auto& text = std::get<std::string>(stored);
    const ByType read{
        [&](Money) -> FieldValue { return texts.ReadAmount(text); },
        [&](Rate) -> FieldValue { return texts.ReadRate(text); },
        [&](Percent) -> FieldValue { return texts.ReadPercent(text); },
        [&](Months) -> FieldValue { return texts.ReadMonths(text); },
        [&](Date) -> FieldValue { return texts.ReadDate(text); },
        [&](const LoanTypeCode&) -> FieldValue { return ReadLoanType(text); },
        [&](const FrequencyCode&) -> FieldValue { return ReadFrequency(text); },
        [&](const QString&) -> FieldValue { return QString::fromStdString(text); },
        [](bool same) -> FieldValue { return same; },
    };
    return std::visit(read, present);
}

} // namespace quend::storage
