#pragma once

#include "Arithmetic.h"

#include <QLocale>
#include <QString>
#include <QStringView>

/// How a country writes numbers, amounts and days, put together here from its few habits.
class Forms {
public:
    /// One of Forms::Countries.
    explicit Forms(std::size_t country);
    static constexpr std::size_t Countries = 3;

    std::size_t Country() const { return m_country; }
    QLocale Locale() const;
    QChar Point() const { return m_point; }

    // Zero is the empty text, in all of these.
    QString Currency(Plain::Count amount) const;
    QString Number(Plain::Count amount) const;
    QString Number(double number) const;
    QString ThreeDecimals(double number) const;
    QString Percent(double fraction) const;
    /// No day is the empty text.
    QString Day(QDate day) const;
    /// What was typed for a day; none where it is no day between 1753 and 9999. `thisYear` says
    /// what two digits mean.
    QDate ReadDay(const QString& text, int thisYear) const;
    QString Term(int months, bool inMonths) const;

    enum class Reading { Number, NoNumber, TooLarge };
    /// Whether a text has the form of a number with so many decimals, which is not to say that it
    /// holds any digit.
    bool IsForm(QStringView text, int decimals) const;
    /// Throws NoNumber or TooLarge. The empty text is zero.
    double ReadReal(const QString& text) const;
    Plain::Count ReadAmount(const QString& text) const;

    struct NoNumber {};

private:
    QString Bare(const QString& text) const;

    std::size_t m_country;
    QChar m_point;
};
