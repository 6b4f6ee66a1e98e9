#pragma once

#include "QuendNames.h"

#include <QChar>
#include <QDate>

#include <cstdint>

/// A second implementation of the loan arithmetic, plain and slow. It shares nothing with the
/// program's, so that the two can be compared.
namespace Plain {

/// A number outside the range of its type.
struct TooLarge {};
/// A debt that no number of payments repays.
struct NeverRepaid : TooLarge {};

/// Holds any sum of two amounts, and their product with a number of periods.
__extension__ typedef __int128 Wide; // NOLINT(modernize-use-using): only so is it no warning

/// Money in whole ten-thousandths.
using Count = std::int64_t;

/// Converts units, halves to even.
Count Whole(double units);
/// The same, rounded to whole cents.
Count WholeCents(double units);
/// Halves to even.
Count ToCents(Count amount);
Count Sum(Count left, Count right);
Count Less(Count left, Count right);
double Units(Count amount);

/// A frequency is its letter; a null character means none.
Count MonthlyEscrow(Count taxes, Count insurance);
Count EscrowOf(QChar frequency, Count monthlyEscrow);
Count PrincipalAndInterest(Count principal, double rate, int months, QChar frequency);

struct Debt {
    Count balance = 0;
    double rate = 0;
    Count payment = 0;
    Count escrow = 0;
    QChar frequency;
    QDate start;
};

struct Repaid {
    QDate date;
    Count interest = 0;
    Count paid = 0; ///< only if requested
};

/// Pays one period after another. Throws NeverRepaid or TooLarge.
Repaid Repay(const Debt& debt, bool addsPayments);

} // namespace Plain
