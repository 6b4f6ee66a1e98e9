#include "WorksheetValues.h"

#include "Failure.h"
#include "Frequency.h"
#include "LoanTypes.h"
#include "StoreNames.h"
#include "StoredWorksheet.h"

#include <array>

namespace quend::storage {

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

struct Amount {
    static std::string Write(Money amount, const StoredTexts& texts) { return texts.Write(amount); }
    static Money Read(const QString& text, const StoredTexts& texts) {
        return texts.ReadAmount(text.toStdString());
    }
};

struct Months {
    static std::string Write(int months, const StoredTexts& texts) {
        return texts.Write(static_cast<double>(months));
    }
    static int Read(const QString& text, const StoredTexts& texts) {
        return texts.ReadMonths(text.toStdString());
    }
};

struct Real {
    static std::string Write(double number, const StoredTexts& texts) {
        return texts.Write(number);
    }
    static double Read(const QString& text, const StoredTexts& texts) {
        return texts.ReadReal(text.toStdString());
    }
};

/// A fraction, saved in percent.
struct Percent {
    static constexpr double Whole = 100;
    static std::string Write(double fraction, const StoredTexts& texts) {
        return texts.Write(fraction * Whole);
    }
    static double Read(const QString& text, const StoredTexts& texts) {
        return texts.ReadReal(text.toStdString()) / Whole;
    }
};

struct Day {
    static std::string Write(Date date, const StoredTexts& texts) { return texts.Write(date); }
    static Date Read(const QString& text, const StoredTexts& texts) {
        return texts.ReadDate(text.toStdString());
    }
};

/// A loan type, written as text in the current language; accepted in any language.
struct LoanTypeText {
    static std::string Write(const QString& code, const StoredTexts&) {
        return LoanTypeCodeToText(code).toStdString();
    }
    static QString Read(const QString& text, const StoredTexts&) {
        const QString code = LoanTypeTextToCodeInAnyLanguage(text);
        return code.isEmpty() && !text.isEmpty() ? throw ConversionFailure(ProgramSource) : code;
    }
};

/// A frequency code. An unknown code is rejected, because it would silently empty the results.
struct FrequencyCode {
    static std::string Write(const QString& code, const StoredTexts&) { return code.toStdString(); }
    static QString Read(const QString& code, const StoredTexts&) {
        return code.isEmpty() || FindFrequency(code) != nullptr
                   ? code
                   : throw ConversionFailure(ProgramSource);
    }
};

/// The same for a property that holds the display text of the frequency.
struct FrequencyShown {
    static std::string Write(const QString& text, const StoredTexts&) {
        return FrequencyTextToCode(text).toStdString();
    }
    static QString Read(const QString& code, const StoredTexts& texts) {
        return FrequencyCodeToText(FrequencyCode::Read(code, texts));
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
    OfLoan<Months,         &W::LoanTerm,                &W::SetLoanTerm>(                "LoanTerm",               "0",  3),
    OfLoan<Amount,         &W::EscrowTaxes,             &W::SetEscrowTaxes>(             "EscrowTaxes",            "0",  4),
    OfLoan<Amount,         &W::EscrowInsurance,         &W::SetEscrowInsurance>(         "EscrowInsurance",        "0",  5),
    OfLoan<Amount,         &W::CurrentLoanAmount,       &W::SetCurrentLoanAmount>(       "CurrentLoanAmount",      "0",  6),
    OfLoan<Months,         &W::CurrentTerm,             &W::SetCurrentTerm>(             "CurrentTerm",            "0",  7),
    OfLoan<Percent,        &W::CurrentInterestRate,     &W::SetCurrentInterestRate>(     "CurrentInterestRate",    "0",  8),
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
            return RegistryValue(RegistryFlag(offer.FinancePoints()));
        },
        [](CLoan& offer, const RegistryValue& value, const StoredTexts&) {
            offer.SetFinancePoints(std::get<std::int32_t>(value) != 0);
        }},
    OfOffer<Real,          &C::Points,                  &C::SetPoints>(                  " Points",                "0",  4),
    OfOffer<Months,        &C::Term,                    &C::SetTerm>(                    " Term",                  "0",  2),
    OfOffer<Percent,       &C::InterestRate,            &C::SetInterestRate>(            " InterestRate",          "0",  5),
    OfOffer<FrequencyCode, &C::FrequencyCode,           &C::SetFrequencyCode>(           " Frequency",             "",   6),
    OfOffer<Amount,        &C::ActualPayment,           &C::SetActualPayment>(           " ActualPayment",         "0",  1),
    OfOffer<PlainText,     &C::Who,                     &C::SetWho>(                     " Who",                   "",   7),
};
// clang-format on

} // namespace

std::span<const KeptValue<Worksheet>> KeptWorksheetValues() { return LoanValueTable; }

std::span<const KeptValue<CLoan>> KeptOfferValues() { return OfferValueTable; }

} // namespace quend::storage
