#pragma once

#include "Money.h"
#include "TextNumbers.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>

/// How the due dates of a frequency follow one another.
enum class DateStep {
    Month,     ///< one calendar month
    HalfMonth, ///< 14 days, then to one calendar month after the first date of the pair
    Days,      ///< a fixed number of days, the frequency's interestParts
};

/// One of the four ways to repay a loan. Everywhere a frequency is held and saved as its code, a
/// text of one capital letter; the empty text is no frequency.
struct Frequency {
    char16_t code;
    int textNumber;           ///< the language text that names it to the user
    int periodsPerYear;       ///< in the payment formula
    int wholePeriodsPerMonth; ///< 0 where a month holds no whole number of periods
    /// One period of the schedule bears balance * rate / interestYear * interestParts. Periods of
    /// days count them against 365, on purpose not against the periods of the payment formula.
    double interestYear;
    int interestParts;
    DateStep step;
    bool halvesEscrow; ///< a payment carries half the monthly escrow, however many a year has

    QString Code() const { return {QChar(code)}; }
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

/// Null for no frequency and for an unknown code. The row lives as long as the program.
const Frequency* FindFrequency(QStringView code);

/// How many payments a term holds; not rounded, so that 100 months hold 216.67 payments of two
/// weeks. Raises OverflowFailure where a whole number of payments leaves the 32-bit range.
double PeriodsOfTerm(const Frequency& frequency, int termMonths);

/// What one payment carries of the monthly escrow: all of it for M and Q, half of it (in double
/// precision, then as Money::FromDouble rounds) for every other code, unknown and empty included.
Money EscrowShare(QStringView code, Money monthlyEscrow);

/// The code's text in the language of the moment; empty for any other code.
QString FrequencyCodeToText(const QString& code);

/// The code whose text, in the language of the moment, is exactly the given one; otherwise empty.
/// The empty text has no code, even where a language lacks a text.
QString FrequencyTextToCode(const QString& text);

/// The four texts in list order.
QStringList FrequencyTexts();
