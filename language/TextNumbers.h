#pragma once

#include <array>

/// The texts that code asks for by number. Those that a form names are not listed here.
namespace TextNumber {

inline constexpr int PaymentRaised = 3;
inline constexpr int LoanTypeAuto = 10;
inline constexpr int LoanTypeBusiness = 11;
inline constexpr int LoanTypeConstruction = 19;
inline constexpr int LoanTypeDebtConsolidation = 29;
inline constexpr int LoanTypeHomeEquity = 39;
inline constexpr int LoanTypeMortgage = 83;
/// A picture such as " nnnn.nn" follows it.
inline constexpr int NumberRefused = 87;
inline constexpr int Ok = 90;
inline constexpr int FrequencyTwiceAMonth = 111;
inline constexpr int FrequencyEveryTwoWeeks = 112;
inline constexpr int FrequencyMonthly = 114;
inline constexpr int FrequencyEveryFourWeeks = 115;
/// A blank and the picture's path follow it.
inline constexpr int PictureNotLoaded = 124;
inline constexpr int WindowTitle = 200;

/// Every one of them: a text without a use, or a use without a text, shows up in the tests.
inline constexpr std::array All{
    PaymentRaised,
    LoanTypeAuto,
    LoanTypeBusiness,
    LoanTypeConstruction,
    LoanTypeDebtConsolidation,
    LoanTypeHomeEquity,
    LoanTypeMortgage,
    NumberRefused,
    Ok,
    FrequencyTwiceAMonth,
    FrequencyEveryTwoWeeks,
    FrequencyMonthly,
    FrequencyEveryFourWeeks,
    PictureNotLoaded,
    WindowTitle,
};

} // namespace TextNumber
