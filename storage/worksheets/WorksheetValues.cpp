#include "WorksheetValues.h"

#include "Failure.h"
#include "Frequency.h"
#include "LoanTypes.h"
#include "StoreNames.h"
#include "StoredWorksheet.h"

#include <array>

namespace {

constexpr std::int16_t Text = RegistryType::Text;

QString TextOf(const RegistryValue& value) {
    return QString::fromStdString(std::get<std::string>(value));
}

// Converters between a property and its text; each kind of value has both directions.

struct PlainText {
    static std::string Write(const QString& text, const StoredTexts&) { return text.toStdString(); }
    static QString Read(const QString& text, const StoredTexts&) { return text; }
};

/// A number or date, converted by the reader and the matching writer.
template <class Value, Value (StoredTexts::*Reader)(const std::string&) const>
struct Converted {
    static std::string Write(Value value, const StoredTexts& texts) { return texts.Write(value); }
    static Value Read(const QString& text, const StoredTexts& texts) {
        return (texts.*Reader)(text.toStdString());
    }
};

using Amount = Converted<Money, &StoredTexts::ReadAmount>;
using Term = Converted<Months, &StoredTexts::ReadMonths>;
using Points = Converted<Percent, &StoredTexts::ReadPercent>;
using InterestRate = Converted<Rate, &StoredTexts::ReadRate>;
using Day = Converted<Date, &StoredTexts::ReadDate>;

/// A loan type, written as text in the current language; accepted in any language.
struct LoanTypeText {
    static std::string Write(const LoanTypeCode& code, const StoredTexts&) {
        return LoanTypeCodeToText(code).toStdString();
    }
    static LoanTypeCode Read(const QString& text, const StoredTexts&) {
        const LoanTypeCode code = LoanTypeTextToCodeInAnyLanguage(text);
        return code.IsNone() && !text.isEmpty() ? throw ConversionFailure(ProgramSource) : code;
    }
};

/// A frequency code. An unknown code is rejected, because it would silently empty the results.
struct KnownFrequency {
    static std::string Write(const FrequencyCode& code, const StoredTexts&) {
        return code.Text().toStdString();
    }
    static FrequencyCode Read(const QString& text, const StoredTexts&) {
        const FrequencyCode code(text);
        return code.IsNone() || FindFrequency(code) != nullptr
                   ? code
                   : throw ConversionFailure(ProgramSource);
    }
};

/// The same for a property that holds the display text of the frequency.
struct FrequencyShown {
    static std::string Write(const QString& text, const StoredTexts&) {
        return FrequencyTextToCode(text).Text().toStdString();
    }
    static QString Read(const QString& code, const StoredTexts& texts) {
        return FrequencyCodeToText(KnownFrequency::Read(code, texts));
    }
};

template <class Kind, auto Get, auto Set, class Owner>
constexpr KeptValue<Owner> Kept(const char* name, const char* missing, int readPlace) {
    return {name,
            Text,
            missing,
            readPlace,
            [](const Owner& owner, const StoredTexts& texts) {
                return RegistryValue(Kind::Write((owner.*Get)(), texts));
            },
            [](Owner& owner, const RegistryValue& value, const StoredTexts& texts) {
                (owner.*Set)(Kind::Read(TextOf(value), texts));
            }};
}

template <class Kind, auto Get, auto Set>
constexpr auto OfLoan = Kept<Kind, Get, Set, Worksheet>;
template <class Kind, auto Get, auto Set>
constexpr auto OfOffer = Kept<Kind, Get, Set, CLoan>;

using W = Worksheet;
using C = CLoan;

// clang-format off
const std::array LoanValueTable{
    //     kind            from and to                                                         name                      missing  read as
    OfLoan<PlainText,      &W::LoanName,                &W::SetLoanName>(                LoanNameName,             "",   0),
    OfLoan<LoanTypeText,   &W::LoanType,                &W::SetLoanType>(                "LoanType",               "",   1),
    OfLoan<Amount,         &W::LoanAmount,              &W::SetLoanAmount>(              "LoanAmount",             "0",  2),
    OfLoan<Term,           &W::LoanTerm,                &W::SetLoanTerm>(                "LoanTerm",               "0",  3),
    OfLoan<Amount,         &W::EscrowTaxes,             &W::SetEscrowTaxes>(             "EscrowTaxes",            "0",  4),
    OfLoan<Amount,         &W::EscrowInsurance,         &W::SetEscrowInsurance>(         "EscrowInsurance",        "0",  5),
    OfLoan<Amount,         &W::CurrentLoanAmount,       &W::SetCurrentLoanAmount>(       "CurrentLoanAmount",      "0",  6),
    OfLoan<Term,           &W::CurrentTerm,             &W::SetCurrentTerm>(             "CurrentTerm",            "0",  7),
    OfLoan<InterestRate,   &W::CurrentInterestRate,     &W::SetCurrentInterestRate>(     "CurrentInterestRate",    "0",  8),
    OfLoan<Amount,         &W::CurrentBalance,          &W::SetCurrentBalance>(          "CurrentBalance",         "0",  9),
    OfLoan<Amount,         &W::CurrentActualPayment,    &W::SetCurrentActualPayment>(    "CurrentActualPayment",   "0", 14),
    OfLoan<FrequencyShown, &W::CurrentFrequency,        &W::SetCurrentFrequency>(        "CurrentFrequency",       "",  11),
    OfLoan<FrequencyShown, &W::CurrentActualFrequency,  &W::SetCurrentActualFrequency>(  "CurrentActualFrequency", "",  10),
    OfLoan<Amount,         &W::CurrentPayment,          &W::SetCurrentPayment>(          CurrentPaymentName,       "0", 13),
    OfLoan<Day,            &W::CurrentNextPayment,      &W::SetCurrentNextPayment>(      "CurrentNextPayment",     "",  12),
};

const std::array OfferValueTable{
    KeptValue<CLoan>{" FinancePoints", RegistryType::Number, "", 3,
        [](const CLoan& offer, const StoredTexts&) {
            return RegistryValue(std::int32_t{offer.FinancePoints() ? -1 : 0});
        },
        [](CLoan& offer, const RegistryValue& value, const StoredTexts&) {
            offer.SetFinancePoints(std::get<std::int32_t>(value) != 0);
        }},
    OfOffer<Points,         &C::Points,                 &C::SetPoints>(                 " Points",                "0",  4),
    OfOffer<Term,           &C::Term,                   &C::SetTerm>(                   " Term",                  "0",  2),
    OfOffer<InterestRate,   &C::InterestRate,           &C::SetInterestRate>(           " InterestRate",          "0",  5),
    OfOffer<KnownFrequency, &C::FrequencyCode,          &C::SetFrequencyCode>(          " Frequency",             "",   6),
    OfOffer<Amount,         &C::ActualPayment,          &C::SetActualPayment>(          " ActualPayment",         "0",  1),
    OfOffer<PlainText,      &C::Who,                    &C::SetWho>(                    " Who",                   "",   7),
};
// clang-format on

} // namespace

std::span<const KeptValue<Worksheet>> KeptWorksheetValues() { return LoanValueTable; }

std::span<const KeptValue<CLoan>> KeptOfferValues() { return OfferValueTable; }
