#pragma once

#include "Arithmetic.h"

#include <QLocale>
#include <QString>
#include <QStringView>

#include <optional>

/// How a country writes numbers, amounts and days: a separate implementation of its few rules.
class Forms {
public:
    /// One of Forms::Countries.
    explicit Forms(std::size_t country);
    static constexpr std::size_t Countries = 3;

    std::size_t Country() const { return m_country; }
    QLocale Locale() const;
    QChar Point() const { return m_point; }

    // All of these write zero as the empty text.
    QString Currency(Plain::Count amount) const;
    QString Number(Plain::Count amount) const;
    QString Number(double number) const;
    QString ThreeDecimals(double number) const;
    QString Percent(double fraction) const;
    /// No day is written as the empty text.
    QString Day(QDate day) const;
    /// The day that was typed; none outside the years 1753 to 9999. `thisYear` completes a year of
    /// two digits.
    QDate ReadDay(const QString& text, int thisYear) const;
    QString Term(int months, bool inMonths) const;

    enum class Reading { Number, NoNumber, TooLarge };
    /// Whether a text has the form of a number with so many decimals. It may still have no digit.
    bool IsForm(QStringView text, int decimals) const;
    /// Throws NoNumber or TooLarge. The empty text is zero.
    double ReadReal(const QString& text) const;
    Plain::Count ReadAmount(const QString& text) const;

    /// A number as a spreadsheet shows it, in the form in which it is typed; none if its groups
    /// have wrong lengths.
    std::optional<QString> FromCell(QString cell, bool isAmount, bool isPercent) const;

    struct NoNumber {};

private:
    QString Bare(const QString& text) const;

    std::size_t m_country;
    QChar m_point;
};
