#pragma once

#include <QString>

#include <compare>
#include <utility>

namespace quend::calc {

// Rates, percentages, terms and codes. None converts to another, to a number or to a text unless a
// call names the conversion. The default of each is zero or empty and means "not entered".

inline constexpr int MonthsPerYear = 12;

class Rate;

/// A percentage, such as the points of an offer: 1.5 means 1.5 %. Any double, never rounded.
class Percent {
public:
    constexpr Percent() = default;
    static constexpr Percent FromPercent(double value) { return Percent(value); }
    static constexpr Percent FromRate(Rate rate);

    constexpr double Value() const { return m_value; }
    constexpr Rate ToRate() const;
    /// The share of a whole. Multiplies before it divides: ToRate first would round differently.
    constexpr double Of(double whole) const { return whole * m_value / Whole; }
    /// True for negative zero, too.
    constexpr bool IsZero() const { return m_value == 0.0; }

    friend constexpr bool operator==(Percent, Percent) = default;
    friend constexpr auto operator<=>(Percent, Percent) = default;

private:
    static constexpr double Whole = 100.0;

    explicit constexpr Percent(double value) : m_value(value) {}

    double m_value = 0.0;
};

/// An annual interest rate, held as a fraction: 0.065 is 6.5 %. Any double, never rounded.
class Rate {
public:
    constexpr Rate() = default;
    static constexpr Rate FromFraction(double fraction) { return Rate(fraction); }

    constexpr double Fraction() const { return m_fraction; }
    /// True for negative zero, too.
    constexpr bool IsZero() const { return m_fraction == 0.0; }

    friend constexpr bool operator==(Rate, Rate) = default;
    friend constexpr auto operator<=>(Rate, Rate) = default;

private:
    explicit constexpr Rate(double fraction) : m_fraction(fraction) {}

    double m_fraction = 0.0;
};

constexpr Percent Percent::FromRate(Rate rate) { return Percent(rate.Fraction() * Whole); }
constexpr Rate Percent::ToRate() const { return Rate::FromFraction(m_value / Whole); }

/// A term in whole months.
struct Months {
    int count = 0;

    // Halves round to even. OverflowFailure if the result is outside ± the largest int, or NaN.
    static Months Nearest(double months);
    /// The nearest month: 12.5 years are 150 months.
    static Months FromYears(double years) { return Nearest(years * MonthsPerYear); }
    /// Whole years, rounded as years: 12.5 years are 12 years, 144 months.
    static Months FromWholeYears(double years);

    constexpr double InYears() const { return static_cast<double>(count) / MonthsPerYear; }
    constexpr bool IsZero() const { return count == 0; }

    friend constexpr bool operator==(Months, Months) = default;
    friend constexpr auto operator<=>(Months, Months) = default;
};

/// A code as it is stored. Any text is kept unchanged; an unknown code is not a failure. `Kind`
/// only separates the codes of one list from those of another. Does not know the list.
template <class Kind>
class StoredCode {
public:
    StoredCode() = default;
    explicit StoredCode(QString text) : m_text(std::move(text)) {}

    const QString& Text() const { return m_text; }
    bool IsNone() const { return m_text.isEmpty(); }

    friend bool operator==(const StoredCode&, const StoredCode&) = default;
    friend std::strong_ordering operator<=>(const StoredCode&, const StoredCode&) = default;

private:
    QString m_text;
};

/// The code of a payment frequency (Frequency.h).
using FrequencyCode = StoredCode<struct FrequencyCodeKind>;

} // namespace quend::calc
