#pragma once

#include "CalcNames.h"
#include "Money.h"
#include "Quantities.h"
#include "TextNumbers.h"

#include <QString>
#include <QStringList>

#include <array>

namespace quend::calc {

/// How the due dates of a frequency follow one another.
enum class DateStep {
    Month,     ///< one calendar month
    HalfMonth, ///< 14 days, then to one calendar month after the first date of the pair
    Days,      ///< a fixed number of days, the frequency's interestParts
};

/// One of the four payment frequencies. A frequency is always held and saved as its code, a text of
/// one capital letter; the empty text means no frequency.
struct Frequency {
    char16_t code;
    int textNumber;           ///< the text with its name
    int periodsPerYear;       ///< in the payment formula
    int wholePeriodsPerMonth; ///< 0 where a month holds no whole number of periods
    /// The interest of one schedule period is balance * rate / interestYear * interestParts.
    /// Periods of days are relative to 365 days, intentionally not to the periods of the payment
    /// formula.
    double interestYear;
    int interestParts;
    DateStep step;
    bool halvesEscrow; ///< half the monthly escrow per payment, whatever periodsPerYear is

    FrequencyCode Code() const { return FrequencyCode(QChar(code)); }
};

/// In the order of every list of frequencies.
// clang-format off
inline constexpr std::array<Frequency, 4> Frequencies{{
    // code  text                                 a year  a month  interest    dates                halves escrow
    {  u'M', TextNumber::FrequencyMonthly,        12,     1,        12.0,  1,  DateStep::Month,     false },
    {  u'B', TextNumber::FrequencyTwiceAMonth,    24,     2,        24.0,  1,  DateStep::HalfMonth, true  },
    {  u'W', TextNumber::FrequencyEveryTwoWeeks,  26,     0,       365.0, 14,  DateStep::Days,      true  },
    {  u'Q', TextNumber::FrequencyEveryFourWeeks, 13,     0,       365.0, 28,  DateStep::Days,      false },
}};
// clang-format on

/// Null for no frequency and for an unknown code. The row has static lifetime.
const Frequency* FindFrequency(const FrequencyCode& code);

/// The number of payments in a term; not rounded: 100 months have 216.67 payments every two weeks.
/// Raises OverflowFailure if a whole number of payments is outside the 32-bit range.
double PeriodsOfTerm(const Frequency& frequency, Months term);

/// The part of the monthly escrow in one payment: all of it for M and Q, half of it (computed in
/// double, rounded as Money::FromDouble does) for every other code, including unknown and empty
/// ones.
Money EscrowShare(const FrequencyCode& code, Money monthlyEscrow);

/// The code's text in the current language; empty for an unknown code.
QString FrequencyCodeToText(const FrequencyCode& code);

/// The code whose text in the current language equals the given one; otherwise none. The empty
/// text has no code, even if the language lacks a text.
FrequencyCode FrequencyTextToCode(const QString& text);

/// The four texts in list order.
QStringList FrequencyTexts();

} // namespace quend::calc
